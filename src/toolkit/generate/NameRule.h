// What becomes of names that a target language forbids. One rule for all languages, with what they
// allow as its parameters:
//
// 1. A name that the user chose stays as chosen.
// 2. Characters that the language does not take in a name are left out; where the language's names
//    are written in humps, the letter behind becomes a capital one, else a "_" stands in their
//    place. A name that could not start so gets a "_" in front (or the language's own prefix), as
//    does one that is empty.
// 3. Names that are too long are cut, and end with eight digits made of the whole name.
// 4. A reserved word gets a "_" behind it, as many as it takes to be none.
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
#include <vector>

#include "as/toolkit/Finding.h"
#include "as/toolkit/Generate.h"

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

// A name that wants a place in a scope.
struct NameWish {
  std::string name;   // As the document has it.
  std::string place;  // Where findings tell of it.
  // It is made up, for a structure that has no name of its own: nothing is told of changes, and
  // names of documents go before it.
  bool isMade = false;
};

struct ServiceModel;

// The wishes for the names of all types, in their order: what declared ones are called, and the
// ways to the others, "quote.drivers".
std::vector<NameWish> typeWishes(const ServiceModel& model);

// Gives out the names of scopes, tells changes and takes what the user chose into account.
class NameGiver {
 public:
  // All of them must outlive it.
  NameGiver(const NameRule& rule, const ChosenNames& chosen, Findings& findings)
      : rule_(rule), chosen_(chosen), findings_(findings) {}

  // The names of the members of one scope, in the order of the wishes. Changes are told, once for
  // each place; a chosen name that the language forbids, or two alike, is an error.
  std::vector<std::string> namesIn(const std::vector<NameWish>& wishes);

 private:
  struct Claim {
    std::size_t index;  // Of a wish.
    int rank = 0;       // Chosen, as it was, changed.
  };

  std::string wantedName(const NameWish& wish, int& rank);
  void tellApart(const std::vector<NameWish>& wishes, std::vector<Claim> claimants,
                 std::vector<std::string>& names);
  const std::string* chosenFor(const NameWish& wish) const;
  void tellChange(const NameWish& wish, const std::string& name);

  const NameRule& rule_;
  const ChosenNames& chosen_;
  Findings& findings_;
  std::unordered_set<std::string> told_;
};

// Unicode code points of UTF-8 text; what is no UTF-8 counts as U+FFFD.
std::u32string charactersOf(std::string_view text);
std::string utf8Of(std::u32string_view text);

// With letters of ASCII in their small form.
std::string inSmallLetters(std::string_view text);

// Letters of ASCII, digits, and what XML 1.0 takes in names (without the colon).
bool isAsciiLetter(char32_t character);
bool isDigit(char32_t character);
bool isXmlNameStart(char32_t character);
bool isXmlNameCharacter(char32_t character);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMERULE_H_
