#include "toolkit/import/NameTable.h"

#include <algorithm>

namespace as::toolkit {

namespace {

char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::uint64_t hashOf(std::string_view name) {
  constexpr std::uint64_t start = 0xCBF29CE484222325U;
  constexpr std::uint64_t factor = 0x100000001B3U;
  std::uint64_t hash = start;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(capital(c))) * factor;
  return hash ^ (hash >> 32U);
}

}  // namespace

std::string_view NameTable::textOf(Index id) const {
  const auto at = static_cast<std::size_t>(id);
  const std::size_t end = at + 1 < begins_.size() ? begins_[at + 1] : texts_.size();
  return std::string_view(texts_).substr(begins_[at], end - begins_[at]);
}

bool NameTable::isName(Index id, std::string_view name) const {
  const std::string_view text = textOf(id);
  return std::equal(text.begin(), text.end(), name.begin(), name.end(),
                    [](char known, char wanted) { return known == capital(wanted); });
}

// The slot with the number of that name, or the free one where it belongs.
Index& NameTable::slotOf(std::string_view name) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = static_cast<std::size_t>(hashOf(name)) & mask;
  while (slots_[at] != none && !isName(slots_[at], name)) at = (at + 1) & mask;
  return slots_[at];
}

Index NameTable::idOf(std::string_view name) {
  Index& slot = slotOf(name);
  if (slot != none) return slot;
  const auto id = static_cast<Index>(begins_.size());
  begins_.push_back(texts_.size());
  for (const char c : name) texts_ += capital(c);
  slot = id;
  if (2 * begins_.size() > slots_.size()) grow();
  return id;
}

void NameTable::grow() {
  slots_.assign(2 * slots_.size(), none);
  for (Index id = 0; static_cast<std::size_t>(id) < begins_.size(); ++id) slotOf(textOf(id)) = id;
}

}  // namespace as::toolkit
