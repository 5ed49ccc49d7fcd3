#include "toolkit/walk/Subscripts.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "as/IMapping.h"

namespace as::toolkit {

namespace {

// `source` is the attribute that `read` reads.
std::vector<int> subscripts(as::IMapping& mapping, int (as::IMapping::*read)(int*),
                            const std::string& source) {
  // The library does not know the room that it is given.
  constexpr std::size_t leastRoom = as::IMapping::MAX_SUBSCRIPTS;
  const auto tokens = static_cast<std::size_t>(std::count(source.begin(), source.end(), ',')) + 1;
  std::vector<int> result(std::max(leastRoom, tokens), everyOccurrence);
  const int count = (mapping.*read)(result.data());
  result.resize(static_cast<std::size_t>(count));
  return result;
}

}  // namespace

// Nearly all mappings have no subscripts: those need no room for any.
std::vector<int> dataItemSubscripts(as::IMapping& mapping, const std::string& text) {
  if (text.find('(') == std::string::npos) return {};
  return subscripts(mapping, &as::IMapping::getDataItemSubscripts, text);
}

std::vector<int> interfaceSubscripts(as::IMapping& mapping, const std::string& text) {
  if (text.empty()) return {};
  return subscripts(mapping, &as::IMapping::getInterfaceSubscripts, text);
}

std::vector<int> dataItemSubscripts(as::IMapping& mapping) {
  return dataItemSubscripts(mapping, mapping.getRawMapping());
}

std::vector<int> interfaceSubscripts(as::IMapping& mapping) {
  return interfaceSubscripts(mapping, mapping.getAttributeValue("subscript"));
}

}  // namespace as::toolkit
