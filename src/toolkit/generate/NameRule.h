// What becomes of names that a target language forbids. One rule for all languages, with what they
// allow as its parameters:
//
// 1. A name that the user chose stays as chosen.
// 2. Characters that the language does not take in a name are left out; where the language's names
//    are written in humps, the letter behind becomes a capital one, else a "_" stands in their
//    place. A name that could not start so gets a "_" in front (or the language's own prefix), as
//    does one that is empty.
// 3. Names that are too long are cut, and end with eight digits made of the whole name.
// 4. A word that is reserved or taken gets a "_" behind it, as many as it takes to be neither.
// 5. Of names in one scope that are the same then, or differ in case only where the language or its
//    files do not tell cases apart, one keeps it: one that needed no change before one that did, of
//    these the first in the order of characters. The others get "_" and eight digits made of the
//    name as it was. Where even these are the same, they are counted.
//
// So a name depends on itself and on names that it collides with, and on nothing else.
#ifndef TOOLKIT_GENERATE_NAMERULE_H_
#define TOOLKIT_GENERATE_NAMERULE_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace as::toolkit::gen {

using Words = std::unordered_set<std::string_view>;

Words with(const Words& words, const Words& more);

// What a language lets names be.
struct NameRule {
  enum class Change { toUnderscore, toHumps };
  // Humps: how the first letter of a changed name is written.
  enum class Start { asIs, small, capital };

  const char* language;                               // As findings call it.
  std::function<bool(char32_t character)> mayStart;   // The first character;
  std::function<bool(char32_t character)> mayFollow;  // the others.
  const Words* reserved = nullptr;                    // Null for none.
  bool isReservedInAnyCase = false;
  // In small letters, names of others than those that are looked at (files that the output makes):
  // nothing is called so in any case. Null for none.
  const Words* taken = nullptr;
  Change change = Change::toUnderscore;
  Start start = Start::asIs;
  bool tellsCases = true;
  const char* prefix = "_";  // In front of a name that could not start as it does.
  std::size_t mostCharacters = 200;
};

// Whether the language takes the name as it is.
bool isLegal(const NameRule& rule, std::string_view name);

// Steps 2 to 4, without regard to others.
std::string legalName(const NameRule& rule, std::string_view name);

// Eight digits made of a text: 32 bits in hexadecimal.
std::string digitsOfText(std::string_view text);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMERULE_H_
