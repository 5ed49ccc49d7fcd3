#include "toolkit/import/ClauseReader.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <limits>
#include <optional>

namespace as::toolkit {

namespace {

constexpr std::int64_t mostOccurrences = std::numeric_limits<int>::max();

bool isEntryLevel(int level) {
  return (level >= 1 && level <= 49) || level == 66 || level == 77 || level == 78 || level == 88;
}

bool isUnsignedUsage(const std::string& word) {
  constexpr std::string_view prefix = "UNSIGNED-";
  return inCapitals(word).compare(0, prefix.size(), prefix) == 0;
}

}  // namespace

int levelOf(const Word& word) {
  const std::string& text = word.token.text;
  if (!word.is(TokenKind::word) || text.empty() || text.size() > 2) return -1;
  int level = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return -1;
    level = 10 * level + (digit - '0');
  }
  return level;
}

bool ClauseReader::isClause(const Word& word) const {
  return word.meaning.role == KeywordRole::clause || word.meaning.role == KeywordRole::usage ||
         word.meaning.role == KeywordRole::softClause;
}

void ClauseReader::readName(DataEntry& entry) {
  entry.name = "FILLER";
  const Word& word = words_.peek();
  if (!word.is(TokenKind::word) || isAtNextEntry()) return;
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

bool ClauseReader::isAtNextEntry() {
  const Word& word = words_.peek();
  if (word.is(TokenKind::end)) return true;
  if (!word.is(TokenKind::word)) return false;
  if (isEntryLevel(levelOf(word))) return true;
  if (word.meaning.role == KeywordRole::unit) return true;
  const Word& next = words_.peek(1);
  return next.is(Keyword::section) || next.is(Keyword::division);
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
  while (!words_.peek().is(TokenKind::period) && !isAtNextEntry()) {
    if (readClause(entry)) continue;
    entry.isDamaged = true;
    while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) words_.skip();
  }
  endEntry(entry);
}

bool ClauseReader::bad(DataEntry& entry, const SourcePlace& place, const std::string& text) {
  problems_.tell(EntryRule::badClause, place, entry.name + ": " + text);
  return false;
}

bool ClauseReader::passOver(DataEntry& entry, const char* what) {
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
      return readOccurs(entry);
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
      skipValue();
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
      if (!words_.accept(Keyword::length) && !words_.accept(Keyword::numeric)) {
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
    case Keyword::based:
      words_.skip();
      return passOver(entry, "BASED");
    case Keyword::volatileWord:
      words_.skip();
      return passOver(entry, "VOLATILE");
    case Keyword::threadLocal:
      words_.skip();
      return passOver(entry, "THREAD-LOCAL");
    case Keyword::aligned:
      words_.skip();
      return passOver(entry, "ALIGNED");
    case Keyword::property:
      words_.skip();
      while (!words_.peek().is(TokenKind::period) && !isAtNextEntry() && !isClause(words_.peek())) {
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
  const Word& next = words_.peek();
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
  entry.picture = pictureOf(words_.take().token.text, place);
  return true;
}

// Names of constants in parentheses are as good as numbers.
std::string ClauseReader::withConstants(const std::string& picture) const {
  std::string result;
  for (std::size_t at = 0; at < picture.size(); ++at) {
    result += picture[at];
    if (picture[at] != '(') continue;
    const std::size_t close = picture.find(')', at);
    if (close == std::string::npos) continue;
    const std::string name = picture.substr(at + 1, close - at - 1);
    const bool isName =
        std::any_of(name.begin(), name.end(), [](unsigned char c) { return std::isalpha(c) != 0; });
    const ConstantEntry* const constant = isName ? constants_.find(name) : nullptr;
    result += constant != nullptr && constant->number ? std::to_string(*constant->number) : name;
    at = close - 1;
  }
  return result;
}

Index ClauseReader::pictureOf(const std::string& written, const SourcePlace& place) {
  const auto known = pictures_.find(written);
  if (known != pictures_.end() &&
      program_.pictures[static_cast<std::size_t>(known->second)].picture) {
    return known->second;
  }
  PictureRules rules;
  rules.isDecimalPointComma = program_.isDecimalPointComma;
  for (const CobolProgram::Currency& currency : program_.currencies) {
    const bool isFirst = &currency == &program_.currencies.front();
    if (!isFirst && written.find(currency.symbol) == std::string::npos) continue;
    rules.currencySymbol = currency.symbol;
    rules.currencyCharacters = currency.characters;
  }
  PictureEntry entry{withConstants(written), std::nullopt};
  entry.picture = as::toolkit::readPicture(entry.text, rules);
  if (!entry.picture) {
    problems_.tell(EntryRule::badPicture, place, entry.text + " is no PICTURE that can be read");
  }
  program_.pictures.push_back(std::move(entry));
  const auto index = static_cast<Index>(program_.pictures.size() - 1);
  pictures_[written] = index;
  return index;
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

bool ClauseReader::readOccurs(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  words_.skip();
  if (entry.isTable()) return bad(entry, place, "OCCURS stands there twice");
  if (words_.accept(Keyword::dynamic)) {
    entry.isUnbounded = true;
    entry.minOccurs = 0;
    if (words_.accept(Keyword::capacity)) {
      words_.accept(Keyword::in);
      words_.skip();
    }
    if (words_.accept(Keyword::from)) {
      entry.minOccurs = static_cast<int>(
          std::clamp<std::int64_t>(constants_.takeInteger().value_or(0), 0, mostOccurrences));
    }
    if (words_.accept(Keyword::to)) constants_.takeInteger();
    words_.accept(Keyword::initialized);
    entry.maxOccurs = std::max(entry.minOccurs, 1);
  } else if (!readOccurrences(entry)) {
    return false;
  }
  if (!readOccursPhrases(entry)) return false;
  if (entry.isUnbounded) {
    problems_.tell(EntryRule::notThatLong, place,
                   entry.name + " has no greatest number of occurrences: it counts with " +
                       std::to_string(entry.maxOccurs));
  } else if (entry.depending == none && entry.minOccurs != entry.maxOccurs) {
    problems_.tell(EntryRule::noDepending, place,
                   entry.name + " occurs " + std::to_string(entry.minOccurs) + " to " +
                       std::to_string(entry.maxOccurs) + " times, but depends on nothing");
  } else if (entry.level == 1 || entry.level == 77) {
    problems_.tell(EntryRule::tableOnTop, place, entry.name + " is a table of records");
  }
  return true;
}

bool ClauseReader::readOccurrences(DataEntry& entry) {
  const SourcePlace place = words_.peek().token.place;
  const auto tell = [&](const std::string& text) {
    problems_.tell(EntryRule::badOccurs, place, entry.name + " " + text);
    return false;
  };
  const std::optional<std::int64_t> first = constants_.takeInteger();
  if (!first) return tell("occurs a number of times that is not known");
  std::optional<std::int64_t> last = first;
  const bool isRange = words_.accept(Keyword::to);
  if (isRange && words_.accept(Keyword::unbounded)) {
    entry.isUnbounded = true;
    last = std::max<std::int64_t>(*first, 1);
  } else if (isRange) {
    last = constants_.takeInteger();
  }
  if (!last) return tell("occurs a number of times that is not known");
  if (*first < 0 || *last < 1) return tell("occurs " + std::to_string(*last) + " times");
  if (*last > mostOccurrences) return tell("occurs more often than 2147483647 times");
  if (*first > *last) {
    return tell("occurs at least " + std::to_string(*first) + " times, but at most " +
                std::to_string(*last));
  }
  entry.minOccurs = static_cast<int>(*first);
  entry.maxOccurs = static_cast<int>(*last);
  words_.accept(Keyword::times);
  if (words_.peek().is(Keyword::depending) && !isRange) entry.minOccurs = 1;
  return true;
}

bool ClauseReader::readOccursPhrases(DataEntry& entry) {
  for (;;) {
    const SourcePlace place = words_.peek().token.place;
    if (words_.accept(Keyword::times)) continue;
    if (words_.accept(Keyword::depending)) {
      words_.accept(Keyword::on);
      NameReference reference;
      reference.kind = NameReference::Kind::depending;
      reference.place = words_.peek().token.place;
      reference.names = constants_.takeName();
      if (reference.names.empty()) return bad(entry, place, "DEPENDING ON names nothing");
      program_.references.push_back(std::move(reference));
      entry.depending = static_cast<Index>(program_.references.size() - 1);
    } else if (words_.peek().is(Keyword::ascending) || words_.peek().is(Keyword::descending)) {
      words_.skip();
      words_.accept(Keyword::key);
      words_.accept(Keyword::isWord);
      words_.accept(Keyword::are);
      skipNames();
    } else if (words_.accept(Keyword::indexed)) {
      words_.accept(Keyword::by);
      skipNames();
    } else {
      return true;
    }
  }
}

// Indexes and keys stand in no dictionary.
void ClauseReader::skipNames() {
  for (;;) {
    const Word& word = words_.peek();
    const bool isName = word.is(TokenKind::word) && !isClause(word) &&
                        word.meaning.role != KeywordRole::filling && !word.is(Keyword::ascending) &&
                        !word.is(Keyword::descending) && !word.is(Keyword::indexed) &&
                        !word.is(Keyword::depending);
    if (!isName || isAtNextEntry()) return;
    words_.skip();
  }
}

// Values are of no use to a dictionary; they end where a clause begins.
void ClauseReader::skipValue() {
  words_.accept(Keyword::isWord);
  words_.accept(Keyword::are);
  if (!words_.peek().is(TokenKind::period)) words_.skip();
  while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) {
    const Word& word = words_.peek();
    if (isClause(word) || word.meaning.role == KeywordRole::filling) return;
    // A number here is a further value, unless an entry begins with it.
    const bool isSection =
        words_.peek(1).is(Keyword::section) || words_.peek(1).is(Keyword::division);
    const bool isEntry = isEntryLevel(levelOf(word)) && words_.peek(1).is(TokenKind::word) &&
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
  if (!isAtNextEntry()) reference.names = constants_.takeName();
  if (reference.names.empty()) return bad(entry, reference.place, "a name is missing");
  // LIKE X (+5) makes an item longer.
  if (kind == NameReference::Kind::like && words_.peek().isMark("(")) {
    return bad(entry, reference.place, "LIKE with another length is not known");
  }
  Index& slot = kind == NameReference::Kind::redefines ? entry.reference : entry.type;
  if (slot != none) return bad(entry, reference.place, "it has a type already");
  program_.references.push_back(std::move(reference));
  slot = static_cast<Index>(program_.references.size() - 1);
  return true;
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
