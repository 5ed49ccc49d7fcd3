// Joins the members of two lists by their names, and those that are left by being alike.
#ifndef TOOLKIT_DIFF_NAMEMATCH_H_
#define TOOLKIT_DIFF_NAMEMATCH_H_

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "toolkit/diff/Sequence.h"

namespace as::toolkit {

// For each member of `before` the place of its partner in `after`, noPartner for none: the first
// that is left of those of the same nameOf(member).
template <class T, class NameOf>
std::vector<std::size_t> matchNamesOf(const std::vector<T>& before, const std::vector<T>& after,
                                      const NameOf& nameOf) {
  std::unordered_map<std::string, std::vector<std::size_t>> known;
  for (std::size_t i = after.size(); i-- > 0;) known[nameOf(after[i])].push_back(i);
  std::vector<std::size_t> partners(before.size(), noPartner);
  for (std::size_t i = 0; i < before.size(); ++i) {
    const auto found = known.find(nameOf(before[i]));
    if (found == known.end() || found->second.empty()) continue;
    partners[i] = found->second.back();
    found->second.pop_back();
  }
  return partners;
}

// Which members of `after` have no partner.
inline std::vector<std::size_t> withoutPartner(const std::vector<std::size_t>& partners,
                                               std::size_t count) {
  std::vector<bool> taken(count, false);
  for (const std::size_t partner : partners) {
    if (partner != noPartner) taken[partner] = true;
  }
  std::vector<std::size_t> left;
  for (std::size_t i = 0; i < count; ++i) {
    if (!taken[i]) left.push_back(i);
  }
  return left;
}

// The same by `name`, and of those that are left the ones that isAlike(old, new) calls renamed,
// near by in the order of both lists.
template <class T, class IsAlike>
std::vector<std::size_t> matchByName(const std::vector<T>& before, const std::vector<T>& after,
                                     const IsAlike& isAlike) {
  constexpr std::size_t farthest = 64;
  std::vector<std::size_t> partners = matchNamesOf(
      before, after, [](const T& member) -> const std::string& { return member.name; });
  const std::vector<std::size_t> free = withoutPartner(partners, after.size());
  std::size_t next = 0;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (partners[i] != noPartner) continue;
    for (std::size_t j = next; j < std::min(free.size(), next + farthest); ++j) {
      if (!isAlike(before[i], after[free[j]])) continue;
      partners[i] = free[j];
      next = j + 1;
      break;
    }
  }
  return partners;
}

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_NAMEMATCH_H_
