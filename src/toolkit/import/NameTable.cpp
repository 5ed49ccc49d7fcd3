#include "toolkit/import/NameTable.h"

#include <utility>

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

bool NameTable::isName(Index id, std::string_view name) const {
  const auto at = static_cast<std::size_t>(id);
  const std::size_t begin = begins_[at];
  const std::size_t end = at + 1 < begins_.size() ? begins_[at + 1] : texts_.size();
  if (end - begin != name.size()) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (texts_[begin + i] != capital(name[i])) return false;
  }
  return true;
}

Index NameTable::idOf(std::string_view name) {
  const std::uint64_t hash = hashOf(name);
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = static_cast<std::size_t>(hash) & mask;
  while (slots_[at].id != none) {
    if (slots_[at].hash == hash && isName(slots_[at].id, name)) return slots_[at].id;
    at = (at + 1) & mask;
  }
  const auto id = static_cast<Index>(begins_.size());
  begins_.push_back(texts_.size());
  for (const char c : name) texts_ += capital(c);
  slots_[at] = {hash, id};
  if (2 * begins_.size() > slots_.size()) grow();
  return id;
}

void NameTable::grow() {
  std::vector<Slot> old(2 * slots_.size());
  std::swap(old, slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.id == none) continue;
    std::size_t at = static_cast<std::size_t>(slot.hash) & mask;
    while (slots_[at].id != none) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}

}  // namespace as::toolkit
