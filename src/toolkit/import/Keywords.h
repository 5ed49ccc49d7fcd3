// The words of COBOL that the reader of entries knows.
#ifndef TOOLKIT_IMPORT_KEYWORDS_H_
#define TOOLKIT_IMPORT_KEYWORDS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "as/toolkit/Storage.h"

namespace as::toolkit {

enum class Keyword : std::uint8_t {
  name,  // One of the program, or a word that the reader has no use for.
#define AS_KEYWORD(name, word, role) name,
#include "toolkit/import/Keywords.def"
#undef AS_KEYWORD
};

enum class KeywordRole : std::uint8_t {
  other,
  filling,     // May stand before what it adds nothing to: IS.
  clause,      // Begins a clause of a data description entry; reserved everywhere.
  softClause,  // Begins one too, but may be a name of the program's.
  usage,       // A usage, with or without the word USAGE.
  figurative,  // A figurative constant.
  verb,        // Begins a statement.
  unit,        // Begins a program, class, method, ...
};

// What a word is.
struct WordMeaning {
  Keyword keyword = Keyword::name;
  KeywordRole role = KeywordRole::other;
  std::optional<Usage> usage;  // Of a word that is a usage by itself.
};

// Of a word in letters of any case.
WordMeaning meaningOf(std::string_view word);

// The word in capitals; letters of other languages stay as they are.
std::string inCapitals(std::string_view word);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_KEYWORDS_H_
