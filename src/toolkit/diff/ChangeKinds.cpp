#include <algorithm>

#include "as/toolkit/Diff.h"

namespace as::toolkit {

const std::vector<ChangeKind>& changeKinds() {
  static const std::vector<ChangeKind> all = {
#define AS_CHANGE(id, mirror, breaks, text, why) {id, mirror, breaks, text, why},
#include "toolkit/diff/ChangeKinds.def"
#undef AS_CHANGE
  };
  return all;
}

const ChangeKind* findChangeKind(const std::string& id) {
  const auto& all = changeKinds();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const ChangeKind& kind) { return kind.id == id; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace as::toolkit
