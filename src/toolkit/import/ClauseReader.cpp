#include "toolkit/import/ClauseReader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "toolkit/import/Characters.h"
#include "toolkit/import/EntryWords.h"

namespace as::toolkit {

namespace {

constexpr std::int64_t mostByteLength = 1'000'000'000;

// Nobody writes longer literals, and what several come to is a number.
constexpr int mostImplied = 1'000'000;

// In characters of UTF-8.
int lengthOf(const std::string& text) {
  const std::ptrdiff_t length =
      std::count_if(text.begin(), text.end(), [](char c) { return !isWithinCharacter(c); });
  return static_cast<int>(std::min<std::ptrdiff_t>(length, mostImplied));
}

bool isUnsignedUsage(const std::string& word) {
  constexpr std::string_view prefix = "UNSIGNED-";
  return inCapitals(word).compare(0, prefix.size(), prefix) == 0;
}

}  // namespace

void ClauseReader::readName(DataEntry& entry) {
  entry.name = "FILLER";
  const Word& word = words_.peek();
  if (!word.is(TokenKind::word) || isAtNextEntry(words_)) return;
  if (word.is(Keyword::filler)) {
    words_.skip();
    return;
  }
  const Word& next = words_.peek(1);
  const KeywordRole role = word.meaning.role;
  const bool isReserved = role == KeywordRole::clause || role == KeywordRole::filling;
  bool isName = !isReserved;
  if (role == KeywordRole::softClause) {
    // "05 TYPE PIC X" is called TYPE; "05 TYPE T" is not.
    const Word& third = words_.peek(2);
    isName = next.is(TokenKind::period) || next.meaning.role == KeywordRole::clause ||
             next.meaning.role == KeywordRole::usage ||
             (next.is(Keyword::isWord) && isClause(third) && !third.is(Keyword::type));
  } else if (role == KeywordRole::usage) {
    const bool mayBeName = word.meaning.usage == Usage::bit || word.is(Keyword::object);
    isName = mayBeName && next.meaning.role == KeywordRole::clause;
  }
  if (!isName) return;
  entry.name = word.token.text;
  entry.nameId = names_.idOf(entry.name);
  words_.skip();
}

void ClauseReader::endEntry(const DataEntry& entry) {
  if (words_.peek().is(TokenKind::period)) {
    words_.skip();
    return;
  }
  problems_.tell(EntryRule::noPeriod, words_.peek().token.place,
                 "there is no period behind the entry of " + entry.name);
}

void ClauseReader::readClauses(DataEntry& entry) {
  while (!words_.peek().is(TokenKind::period) && !isAtNextEntry(words_)) {
    if (readClause(entry)) continue;
    entry.isDamaged = true;
    while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) words_.skip();
  }
  endEntry(entry);
}

bool ClauseReader::bad(const DataEntry& entry, const SourcePlace& place, const std::string& text) {
  problems_.tell(EntryRule::badClause, place, entry.name + ": " + text);
  return false;
}

bool ClauseReader::passOver(const DataEntry& entry, const char* what) {
  problems_.tell(
      EntryRule::passedClause, words_.peek().token.place,
      std::string(what) + " of " + entry.name + " and others is not held by dictionaries");
  return true;
}

bool ClauseReader::readClause(DataEntry& entry) {
  const Word& word = words_.peek();
  const SourcePlace place = word.token.place;
  const Keyword keyword = word.meaning.keyword;
  switch (keyword) {
    case Keyword::isWord:
    case Keyword::are:
      words_.skip();
      return true;
    case Keyword::redefines:
      if (entry.isRedefinition) return bad(entry, place, "REDEFINES stands there twice");
      entry.isRedefinition = true;
      return readReference(entry, NameReference::Kind::redefines);
    case Keyword::renames:
      return readRenames(entry);
    case Keyword::pic:
    case Keyword::picture:
      return readPicture(entry);
    case Keyword::usage:
      return readUsage(entry);
    case Keyword::sign:
    case Keyword::leading:
    case Keyword::trailing:
      return readSign(entry);
    case Keyword::occurs:
      return occurs_.read(entry);
    case Keyword::sync:
    case Keyword::synchronized:
      words_.skip();
      entry.hasOwnSync = true;
      if (!words_.accept(Keyword::left)) words_.accept(Keyword::right);
      return true;
    case Keyword::just:
    case Keyword::justified:
      words_.skip();
      entry.isJustified = !words_.accept(Keyword::left);
      words_.accept(Keyword::right);
      return true;
    case Keyword::blank:
      words_.skip();
      words_.accept(Keyword::when);
      if (words_.peek().is(Keyword::zero) || words_.peek().is(Keyword::zeros) ||
          words_.peek().is(Keyword::zeroes)) {
        words_.skip();
        entry.isBlankWhenZero = true;
        return true;
      }
      return bad(entry, place, "BLANK WHEN is not followed by ZERO");
    case Keyword::value:
    case Keyword::values:
      words_.skip();
      readValue(entry);
      return true;
    case Keyword::external:
      words_.skip();
      if (words_.accept(Keyword::as) || words_.accept(Keyword::by)) words_.skip();
      return passOver(entry, "EXTERNAL");
    case Keyword::global:
      words_.skip();
      entry.isGlobal = true;
      return true;
    case Keyword::typedefWord:
      words_.skip();
      words_.accept(Keyword::strong);
      entry.isTypedef = true;
      return true;
    case Keyword::type:
      words_.skip();
      words_.accept(Keyword::isWord);
      words_.accept(Keyword::to);
      return readReference(entry, NameReference::Kind::type);
    case Keyword::like:
      return readReference(entry, NameReference::Kind::like);
    case Keyword::same:
      words_.skip();
      return readReference(entry, NameReference::Kind::like);
    case Keyword::any:
      words_.skip();
      entry.impliedSize = 1;
      entry.isImpliedNumeric = words_.accept(Keyword::numeric);
      if (!entry.isImpliedNumeric && !words_.accept(Keyword::length)) {
        return bad(entry, place, "ANY is not followed by LENGTH or NUMERIC");
      }
      problems_.tell(EntryRule::notThatLong, place,
                     entry.name + " is of any length: it counts with that of its PICTURE");
      return true;
    case Keyword::dynamic:
      words_.skip();
      words_.accept(Keyword::length);
      if (words_.peek().is(TokenKind::word) && !isClause(words_.peek()) &&
          !words_.peek().is(Keyword::limit)) {
        words_.skip();
      }
      if (words_.accept(Keyword::limit)) {
        words_.accept(Keyword::isWord);
        constants_.takeInteger();
      }
      problems_.tell(EntryRule::notThatLong, place,
                     entry.name + " is of dynamic length: it counts with that of its PICTURE");
      return true;
    case Keyword::byteLength: {
      words_.skip();
      words_.accept(Keyword::isWord);
      const std::optional<std::int64_t> length = constants_.takeInteger();
      if (!length || *length < 1 || *length > mostByteLength) {
        return bad(entry, place, "BYTE-LENGTH is no number that is known");
      }
      entry.byteLength = static_cast<int>(*length);
      return true;
    }
    case Keyword::based:
      words_.skip();
      return passOver(entry, "BASED");
    case Keyword::handle:
      return readHandle(entry);
    case Keyword::varying:
      hostVariables_.readVarying(entry);
      return true;
    case Keyword::sql:
      if (hostVariables_.isAtType()) return hostVariables_.readType(entry);
      break;
    case Keyword::identified:
      // The field of a form.
      words_.skip();
      words_.accept(Keyword::by);
      words_.skip();
      return true;
    case Keyword::volatileWord:
      words_.skip();
      return passOver(entry, "VOLATILE");
    case Keyword::threadLocal:
      words_.skip();
      return passOver(entry, "THREAD-LOCAL");
    case Keyword::aligned:
      words_.skip();
      return passOver(entry, "ALIGNED");
    case Keyword::specialNames:
    case Keyword::externalForm:
      // What the run-time system keeps of the screen in the item, or a form of a web page.
      words_.skip();
      while (words_.peek().is(TokenKind::word) && !isAtNextEntry(words_) &&
             !isClause(words_.peek())) {
        words_.skip();
      }
      return true;
    case Keyword::property:
      words_.skip();
      while (!words_.peek().is(TokenKind::period) && !isAtNextEntry(words_) &&
             !isClause(words_.peek())) {
        words_.skip();
      }
      return passOver(entry, "PROPERTY");
    case Keyword::constant:
      words_.skip();
      words_.accept(Keyword::record);
      return true;
    case Keyword::date:
      words_.skip();
      words_.accept(Keyword::format);
      words_.accept(Keyword::isWord);
      words_.skip();
      return passOver(entry, "DATE FORMAT");
    case Keyword::groupUsage: {
      words_.skip();
      words_.accept(Keyword::isWord);
      const std::optional<Usage> usage = words_.peek().meaning.usage;
      if (usage != Usage::national && usage != Usage::bit) {
        return bad(entry, place, "GROUP-USAGE is neither NATIONAL nor BIT");
      }
      entry.ownUsage = usage;
      words_.skip();
      return true;
    }
    default:
      break;
  }
  if (word.meaning.role == KeywordRole::usage) return readUsage(entry);
  problems_.tell(
      EntryRule::unknownClause, place,
      word.token.text + " in the entry of " + entry.name + " begins no clause that is known");
  return false;
}

bool ClauseReader::readUsage(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (words_.accept(Keyword::usage)) words_.accept(Keyword::isWord);
  if (entry.ownUsage) return bad(entry, place, "USAGE stands there twice");
  if (hostVariables_.isAtType()) return hostVariables_.readType(entry);
  const Word& next = words_.peek();
  if (next.is(Keyword::handle)) return readHandle(entry);
  if (next.is(TokenKind::word) && next.is(Keyword::name) && !next.meaning.usage) {
    return readReference(entry, NameReference::Kind::type);
  }
  const Word word = words_.take();
  std::optional<Usage> usage = word.meaning.usage;
  if (word.is(Keyword::object)) {
    if (!words_.accept(Keyword::reference)) {
      return bad(entry, place, "OBJECT is not followed by REFERENCE");
    }
    usage = Usage::objectReference;
  }
  if (!usage) return bad(entry, place, word.token.text + " is no USAGE that is known");
  entry.ownUsage = usage;
  if (isUnsignedUsage(word.token.text)) entry.isUnsigned = true;
  readUsagePhrases(entry);
  return true;
}

// "HANDLE OF FONT LARGE-FONT": what stands for a window, font, thread and the like, in four bytes.
bool ClauseReader::readHandle(DataEntry& entry) {
  if (entry.ownUsage) return bad(entry, words_.peek().token.place, "USAGE stands there twice");
  words_.skip();
  entry.ownUsage = Usage::binaryLong;
  if (!words_.accept(Keyword::of)) return true;
  while (words_.peek().is(TokenKind::word) && !isAtNextEntry(words_) && !isClause(words_.peek())) {
    words_.skip();
  }
  return true;
}

// What the usages of objects, pointers and binary items say besides.
void ClauseReader::readUsagePhrases(DataEntry& entry) {
  if (words_.accept(Keyword::unsignedWord)) {
    entry.isUnsigned = true;
    return;
  }
  if (words_.accept(Keyword::signedWord)) return;
  const Usage usage = *entry.ownUsage;
  if (usage == Usage::comp3 && words_.peek().is(Keyword::with) && words_.peek(1).is(Keyword::no)) {
    words_.skip();
  }
  if (usage == Usage::comp3 && words_.peek().is(Keyword::no) && words_.peek(1).is(Keyword::sign)) {
    words_.skip();
    words_.skip();
    entry.ownUsage = Usage::comp6;
    return;
  }
  const bool isPointer = usage == Usage::pointer || usage == Usage::pointer32 ||
                         usage == Usage::procedurePointer || usage == Usage::functionPointer;
  if (isPointer && words_.accept(Keyword::to)) {
    words_.skip();
    return;
  }
  if (usage != Usage::objectReference) return;
  if (words_.accept(Keyword::factory)) words_.accept(Keyword::of);
  if (words_.peek().is(TokenKind::word) && !isClause(words_.peek())) words_.skip();
  words_.accept(Keyword::only);
}

bool ClauseReader::readPicture(DataEntry& entry) {
  words_.skip();
  words_.accept(Keyword::isWord);
  const SourcePlace place = words_.peek().token.place;
  if (entry.picture != none) return bad(entry, place, "PICTURE stands there twice");
  const bool isText = words_.peek().is(TokenKind::picture) || words_.peek().is(TokenKind::word) ||
                      words_.peek().is(TokenKind::number);
  if (!isText) return bad(entry, place, "PICTURE is followed by nothing");
  std::string text = words_.take().token.text;
  if (isPointOfPicture(text, place)) {
    words_.skip();
    text += '.';
  }
  entry.picture = pictures_.indexOf(text, place);
  return true;
}

// Of the two periods of "PIC 9(6)..", the first belongs to the picture, unless it takes none.
bool ClauseReader::isPointOfPicture(const std::string& text, const SourcePlace& place) {
  if (!words_.peek().is(TokenKind::period) || !words_.peek(1).is(TokenKind::period)) return false;
  const SourcePlace& first = words_.peek().token.place;
  const SourcePlace& second = words_.peek(1).token.place;
  const bool isOneText = first.line == place.line && second.line == place.line &&
                         first.column == place.column + static_cast<int>(text.size()) &&
                         second.column == first.column + 1;
  return isOneText && pictures_.isPicture(text + '.');
}

bool ClauseReader::readSign(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (words_.accept(Keyword::sign)) words_.accept(Keyword::isWord);
  const bool isLeading = words_.accept(Keyword::leading);
  if (!isLeading && !words_.accept(Keyword::trailing)) {
    return bad(entry, place, "SIGN is neither LEADING nor TRAILING");
  }
  const bool isSeparate = words_.accept(Keyword::separate);
  if (isSeparate) words_.accept(Keyword::character);
  entry.ownSign = isLeading ? (isSeparate ? SignClause::leadingSeparate : SignClause::leading)
                            : (isSeparate ? SignClause::trailingSeparate : SignClause::trailing);
  return true;
}

// Of values, a dictionary needs the length of a literal, which is that of an item without a
// PICTURE. They end where a clause begins.
void ClauseReader::readValue(DataEntry& entry) {
  words_.accept(Keyword::isWord);
  words_.accept(Keyword::are);
  bool isTaken = false;
  if (words_.peek().is(TokenKind::literal)) entry.impliedSize = 0;
  while (words_.peek().is(TokenKind::literal)) {
    const Word literal = words_.take();
    isTaken = true;
    if (literal.token.prefix.empty()) {
      entry.impliedSize = std::min(entry.impliedSize + lengthOf(literal.token.text), mostImplied);
    }
    if (!words_.acceptMark("&")) break;
  }
  if (!isTaken && !words_.peek().is(TokenKind::period)) words_.skip();
  while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) {
    const Word& word = words_.peek();
    if (isClause(word) || word.meaning.role == KeywordRole::filling) return;
    // A number here is a further value, unless an entry begins with it.
    const bool isSection =
        words_.peek(1).is(Keyword::section) || words_.peek(1).is(Keyword::division);
    const bool isEntry = isEntryLevel(word) && words_.peek(1).is(TokenKind::word) &&
                         (isClause(words_.peek(2)) || words_.peek(2).is(TokenKind::period));
    if (isSection || isEntry) return;
    words_.skip();
  }
}

bool ClauseReader::readReference(DataEntry& entry, NameReference::Kind kind) {
  if (kind == NameReference::Kind::redefines || words_.peek().is(Keyword::like)) words_.skip();
  if (kind == NameReference::Kind::like) {
    words_.accept(Keyword::isWord);
    words_.accept(Keyword::as);
  }
  NameReference reference;
  reference.kind = kind;
  reference.place = words_.peek().token.place;
  if (!isAtNextEntry(words_)) reference.names = constants_.takeName();
  if (reference.names.empty()) return bad(entry, reference.place, "a name is missing");
  if (kind == NameReference::Kind::like && words_.peek().isMark("(") && !readLikeChange(entry)) {
    return bad(entry, reference.place, "LIKE has no length in its parentheses that is known");
  }
  Index& slot = kind == NameReference::Kind::redefines ? entry.reference : entry.type;
  if (slot != none) return bad(entry, reference.place, "it has a type already");
  program_.references.push_back(std::move(reference));
  slot = static_cast<Index>(program_.references.size() - 1);
  return true;
}

// LIKE X (+5) makes an item longer, LIKE X (-5) shorter.
bool ClauseReader::readLikeChange(DataEntry& entry) {
  constexpr std::int64_t most = 1'000'000;
  words_.skip();
  const std::optional<std::int64_t> change = constants_.takeInteger();
  if (!change || *change < -most || *change > most) return false;
  entry.likeChange = static_cast<int>(*change);
  return words_.acceptMark(")");
}

bool ClauseReader::readRenames(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  if (!entry.isRenaming || entry.reference != none) {
    return bad(entry, place, "RENAMES stands at level 66 alone");
  }
  words_.skip();
  NameReference reference;
  reference.kind = NameReference::Kind::renames;
  reference.place = words_.peek().token.place;
  reference.names = constants_.takeName();
  if (words_.accept(Keyword::thru) || words_.accept(Keyword::through)) {
    reference.through = constants_.takeName();
    if (reference.through.empty()) return bad(entry, place, "a name is missing behind THRU");
  }
  if (reference.names.empty()) return bad(entry, place, "RENAMES names nothing");
  program_.references.push_back(std::move(reference));
  entry.reference = static_cast<Index>(program_.references.size() - 1);
  return true;
}

}  // namespace as::toolkit
