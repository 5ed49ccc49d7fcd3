#include "toolkit/import/ClauseReader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "toolkit/import/EntryWords.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

constexpr std::int64_t mostByteLength = 1'000'000'000;

// Nobody writes longer literals, and what several come to is a number.
constexpr int mostImplied = 1'000'000;

// In characters of UTF-8.
int lengthOf(const std::string& text) {
  return static_cast<int>(std::min<std::size_t>(characterCount(text), mostImplied));
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
    // "77 FLOAT COMP-1" is called FLOAT.
    const bool isBeforeUsage = next.meaning.role == KeywordRole::usage;
    isName = isBeforeUsage || (mayBeName && next.meaning.role == KeywordRole::clause);
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
      if (entry.isRedefinition)
        return problems_.badClause(entry.name, place, "REDEFINES stands there twice");
      entry.isRedefinition = true;
      return references_.read(entry, NameReference::Kind::redefines);
    case Keyword::renames:
      return references_.readRenames(entry);
    case Keyword::pic:
    case Keyword::picture:
      return readPicture(entry);
    case Keyword::usage:
      return usages_.read(entry);
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
      return problems_.badClause(entry.name, place, "BLANK WHEN is not followed by ZERO");
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
      return references_.read(entry, NameReference::Kind::type);
    case Keyword::like:
      return references_.read(entry, NameReference::Kind::like);
    case Keyword::same:
      words_.skip();
      return references_.read(entry, NameReference::Kind::like);
    case Keyword::any:
      words_.skip();
      entry.isImpliedNumeric = words_.accept(Keyword::numeric);
      if (!entry.isImpliedNumeric && !words_.accept(Keyword::length)) {
        return problems_.badClause(entry.name, place, "ANY is not followed by LENGTH or NUMERIC");
      }
      entry.impliedSize = 1;
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
        return problems_.badClause(entry.name, place, "BYTE-LENGTH is no number that is known");
      }
      entry.byteLength = static_cast<int>(*length);
      return true;
    }
    case Keyword::based:
      words_.skip();
      return passOver(entry, "BASED");
    case Keyword::handle:
      return usages_.readHandle(entry);
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
        return problems_.badClause(entry.name, place, "GROUP-USAGE is neither NATIONAL nor BIT");
      }
      entry.ownUsage = usage;
      words_.skip();
      return true;
    }
    default:
      break;
  }
  if (word.meaning.role == KeywordRole::usage) return usages_.read(entry);
  const bool isName = word.is(TokenKind::word) && keyword == Keyword::name;
  const bool hasType = entry.type != none || entry.ownUsage || entry.picture != none;
  if (isName && !hasType && references_.isType(names_.idOf(word.token.text))) {
    return references_.read(entry, NameReference::Kind::type);
  }
  const bool mayBeType = isName && !hasType && words_.peek(1).is(TokenKind::period);
  problems_.tell(EntryRule::unknownClause, place,
                 words_.peek().token.text + " in the entry of " + entry.name +
                     " begins no clause that is known" +
                     (mayBeType ? "; if it is a type, its TYPEDEF has to stand in front" : ""));
  return false;
}

bool ClauseReader::readPicture(DataEntry& entry) {
  words_.skip();
  words_.accept(Keyword::isWord);
  const SourcePlace place = words_.peek().token.place;
  if (entry.picture != none)
    return problems_.badClause(entry.name, place, "PICTURE stands there twice");
  const bool isText = words_.peek().is(TokenKind::picture) || words_.peek().is(TokenKind::word);
  if (!isText) return problems_.badClause(entry.name, place, "PICTURE is followed by nothing");
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
    return problems_.badClause(entry.name, place, "SIGN is neither LEADING nor TRAILING");
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

}  // namespace as::toolkit
