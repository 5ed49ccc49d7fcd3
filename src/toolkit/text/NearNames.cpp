#include "toolkit/text/NearNames.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace as::toolkit {

namespace {

// Names of programs have 30 letters; longer ones are compared no further than this.
constexpr std::size_t longest = 100;

char folded(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::uint64_t lettersOf(std::string_view name) {
  std::uint64_t letters = 0;
  for (const char c : name) {
    letters |= std::uint64_t{1} << (static_cast<unsigned char>(folded(c)) % 64U);
  }
  return letters;
}

using Row = std::array<std::size_t, longest + 1>;

}  // namespace

std::size_t editDistance(std::string_view left, std::string_view right, std::size_t most) {
  if (left.size() > right.size()) std::swap(left, right);
  if (right.size() > longest || right.size() - left.size() > most) return most + 1;
  // A row for each letter of `left`; of each only what lies within `most` of the diagonal counts.
  Row beforeLast{};
  Row last{};
  Row row{};
  for (std::size_t j = 0; j <= right.size(); ++j) last[j] = j;
  for (std::size_t i = 1; i <= left.size(); ++i) {
    row.fill(most + 1);
    if (i <= most) row[0] = i;
    std::size_t least = row[0];
    const std::size_t from = i > most ? i - most : 1;
    const std::size_t to = std::min(right.size(), i + most);
    for (std::size_t j = from; j <= to; ++j) {
      const bool isSame = folded(left[i - 1]) == folded(right[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
      const bool isSwapped = i > 1 && j > 1 && folded(left[i - 1]) == folded(right[j - 2]) &&
                             folded(left[i - 2]) == folded(right[j - 1]);
      if (isSwapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
      least = std::min(least, row[j]);
    }
    if (least > most) return most + 1;
    beforeLast = last;
    last = row;
  }
  return std::min(last[right.size()], most + 1);
}

std::size_t mostWrongLetters(std::string_view name) {
  constexpr std::size_t lettersForOne = 3;
  constexpr std::size_t mostOfAll = 3;
  return std::min(name.size() / lettersForOne, mostOfAll);
}

void NearNames::add(std::string name) {
  letters_.push_back(lettersOf(name));
  names_.push_back(std::move(name));
  known_.clear();
}

std::optional<std::size_t> NearNames::nearestTo(const std::string& wanted) {
  const auto [answer, isNew] = known_.try_emplace(wanted);
  if (isNew) answer->second = search(wanted);
  return answer->second;
}

std::optional<std::size_t> NearNames::search(std::string_view wanted) {
  std::optional<std::size_t> nearest;
  if (wanted.empty() || wanted.size() > longest) return nearest;
  const std::size_t most = mostWrongLetters(wanted);
  std::size_t least = most + 1;
  const std::uint64_t letters = lettersOf(wanted);
  for (std::size_t i = 0; i < names_.size() && least > 0; ++i) {
    const std::string& name = names_[i];
    const std::size_t difference =
        std::max(name.size(), wanted.size()) - std::min(name.size(), wanted.size());
    // A letter that only one of them has takes a change.
    const bool isFar = difference >= least ||
                       static_cast<std::size_t>(std::popcount(letters & ~letters_[i])) >= least ||
                       static_cast<std::size_t>(std::popcount(letters_[i] & ~letters)) >= least;
    const std::size_t cost = isFar ? 1 : longest + wanted.size() * (2 * most + 1);
    if (cost > budget_) {
      budget_ = 0;
      return std::nullopt;
    }
    budget_ -= cost;
    if (isFar) continue;
    const std::size_t distance = editDistance(wanted, name, least - 1);
    if (distance >= least) continue;
    least = distance;
    nearest = i;
  }
  return nearest;
}

}  // namespace as::toolkit
