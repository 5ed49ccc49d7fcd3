// What comparisons of lists need.
#ifndef TOOLKIT_DIFF_SEQUENCE_H_
#define TOOLKIT_DIFF_SEQUENCE_H_

#include <algorithm>
#include <cstddef>
#include <vector>

namespace as::toolkit {

inline constexpr std::size_t noPartner = static_cast<std::size_t>(-1);

// Which of `partners` (the places of an old list's members in the new one, noPartner for those that
// have none) keep their order: a longest rising part of them.
inline std::vector<bool> keepingOrder(const std::vector<std::size_t>& partners) {
  std::vector<bool> keeps(partners.size(), false);
  std::vector<std::size_t> ends;  // Of the best rising part of each length: where it ends.
  std::vector<std::size_t> before(partners.size(), noPartner);
  for (std::size_t i = 0; i < partners.size(); ++i) {
    if (partners[i] == noPartner) continue;
    const auto at =
        std::lower_bound(ends.begin(), ends.end(), partners[i],
                         [&](std::size_t end, std::size_t value) { return partners[end] < value; });
    if (at != ends.begin()) before[i] = *(at - 1);
    if (at == ends.end()) {
      ends.push_back(i);
    } else {
      *at = i;
    }
  }
  if (ends.empty()) return keeps;
  for (std::size_t i = ends.back(); i != noPartner; i = before[i]) keeps[i] = true;
  return keeps;
}

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_SEQUENCE_H_
