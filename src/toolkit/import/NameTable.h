// Numbers for the names of a source: one for all spellings of a name.
#ifndef TOOLKIT_IMPORT_NAMETABLE_H_
#define TOOLKIT_IMPORT_NAMETABLE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/import/ProgramEntries.h"

namespace as::toolkit {

// Names are looked up as often as entries are read: here a look-up is one step to a slot and one to
// the text.
class NameTable {
 public:
  NameTable() : slots_(firstSlots, none) {}

  Index idOf(std::string_view name);

  // The name with its number.
  NameReference::Name nameOf(const std::string& text) { return {text, idOf(text)}; }

 private:
  static constexpr std::size_t firstSlots = 1024;

  std::string_view textOf(Index id) const;
  bool isName(Index id, std::string_view name) const;
  Index& slotOf(std::string_view name);
  void grow();

  std::vector<Index> slots_;         // A power of two, at most half of them taken.
  std::vector<std::size_t> begins_;  // Of the texts, by number.
  std::string texts_;                // In capitals.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_NAMETABLE_H_
