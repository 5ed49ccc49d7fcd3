// Finds the name that somebody may have meant who wrote another.
#ifndef TOOLKIT_TEXT_NEARNAMES_H_
#define TOOLKIT_TEXT_NEARNAMES_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace as::toolkit {

// How many letters have to be changed, put in, left out or swapped with the next to make one name
// of the other, small and capital ones alike; `most` + 1 when there are more than `most`.
std::size_t editDistance(std::string_view left, std::string_view right, std::size_t most);

// So many of its letters may be wrong for a name to be known again: one of 3, 2 of 6, 3 of 9.
std::size_t mostWrongLetters(std::string_view name);

// However often it is asked, and of however many names, all takes no more than a bounded time: when
// that is spent, no name is near any more.
class NearNames {
 public:
  void add(std::string name);

  // The number of the name, counted from 0 in the order of add(), that takes the fewest changes;
  // the first of those that take as few. Nothing when none is near.
  std::optional<std::size_t> nearestTo(const std::string& wanted);

  const std::string& operator[](std::size_t number) const { return names_[number]; }

 private:
  std::optional<std::size_t> search(std::string_view wanted);

  // Letters compared, and names passed by: a tenth of a second.
  static constexpr std::size_t firstBudget = 20'000'000;

  std::vector<std::string> names_;
  std::vector<std::uint64_t> letters_;  // Which ones each name has.
  std::unordered_map<std::string, std::optional<std::size_t>> known_;
  std::size_t budget_ = firstBudget;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_NEARNAMES_H_
