// Collects changes as they are found.
#ifndef TOOLKIT_DIFF_CHANGELIST_H_
#define TOOLKIT_DIFF_CHANGELIST_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "as/toolkit/Diff.h"

namespace as::toolkit {

// The number of a change; none for no change.
using ChangeNumber = std::size_t;
inline constexpr ChangeNumber noChange = static_cast<ChangeNumber>(-1);

class ChangeList {
 public:
  struct Place {
    std::string before;
    std::string after;
  };

  // REQUIRES: `kind` is one of the table. It breaks callers if its kind does and `mayBreak` is
  // true.
  ChangeNumber add(const char* kind, Place place, std::string oldValue = "",
                   std::string newValue = "", bool mayBreak = true, ChangeNumber cause = noChange) {
    Change change;
    change.kind = kind;
    change.oldPlace = std::move(place.before);
    change.newPlace = std::move(place.after);
    change.oldValue = std::move(oldValue);
    change.newValue = std::move(newValue);
    change.breaks = mayBreak && findChangeKind(kind)->breaks;
    if (cause != noChange) change.cause = cause;
    changes_.push_back(std::move(change));
    return changes_.size() - 1;
  }

  // The same when the two differ; noChange when they do not.
  ChangeNumber addIfDifferent(const char* kind, const Place& place, const std::string& oldValue,
                              const std::string& newValue, bool mayBreak = true) {
    if (oldValue == newValue) return noChange;
    return add(kind, place, oldValue, newValue, mayBreak);
  }

  std::vector<Change>& all() { return changes_; }
  // A change breaks callers when one that follows from it does; what becomes of services is their
  // own.
  std::vector<Change> take() {
    for (std::size_t i = changes_.size(); i-- > 0;) {
      const Change& change = changes_[i];
      if (change.breaks && change.cause && change.service.empty())
        changes_[*change.cause].breaks = true;
    }
    return std::move(changes_);
  }

 private:
  std::vector<Change> changes_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_CHANGELIST_H_
