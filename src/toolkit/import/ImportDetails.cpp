#include "toolkit/import/ImportDetails.h"

namespace as::toolkit {

SourceLocation locationOf(const SourceMap& map, const SourcePlace& place) {
  return {map.name(place.file), place.line, place.column};
}

std::vector<SourceLocation> copiedAt(const SourceMap& map, const SourcePlace& place) {
  std::vector<SourceLocation> result;
  for (SourcePlace at = place; at.file != 0;) {
    at = map.from(at.file);
    result.push_back(locationOf(map, at));
  }
  return result;
}

SourceLocation ImportDetails::locationOf(const SourcePlace& place) const {
  return as::toolkit::locationOf(source_->map, place);
}

}  // namespace as::toolkit
