#include "toolkit/import/EnvironmentReader.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "toolkit/import/ConstantReader.h"
#include "toolkit/import/EntryWords.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

int lengthOf(const std::string& text) { return static_cast<int>(characterCount(text)); }

bool isSectionOfData(const Word& word) {
  switch (word.meaning.keyword) {
    case Keyword::file:
    case Keyword::workingStorage:
    case Keyword::localStorage:
    case Keyword::basedStorage:
    case Keyword::constant:
    case Keyword::linkage:
    case Keyword::communication:
    case Keyword::report:
    case Keyword::screen:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool EnvironmentReader::isAtEnd() {
  const Word& word = words_.peek();
  if (word.is(TokenKind::end) || word.meaning.role == KeywordRole::unit) return true;
  const Word& next = words_.peek(1);
  if (isAtEndOfUnit(words_)) return true;
  if (next.is(Keyword::division)) return !word.is(Keyword::environment);
  return next.is(Keyword::section) && isSectionOfData(word);
}

// In a copybook entries follow without a header.
bool EnvironmentReader::isAtEntry() {
  const Word& word = words_.peek();
  return program_.isCopybook &&
         (levelOf(word) >= 0 || word.is(Keyword::fd) || word.is(Keyword::sd));
}

void EnvironmentReader::read() {
  bool isAtSentence = true;
  while (!isAtEnd() && !(isAtSentence && isAtEntry())) {
    isAtSentence = words_.peek().is(TokenKind::period);
    if (words_.peek().is(Keyword::decimalPoint)) {
      words_.skip();
      words_.accept(Keyword::isWord);
      if (words_.accept(Keyword::comma)) program_.isDecimalPointComma = true;
    } else if (words_.peek().is(Keyword::currency)) {
      readCurrency();
    } else if (words_.peek().is(Keyword::callConvention)) {
      readConvention();
    } else if (words_.peek().is(Keyword::select)) {
      readSelect();
    } else {
      words_.skip();
    }
  }
}

void EnvironmentReader::readCurrency() {
  words_.skip();
  words_.accept(Keyword::sign);
  words_.accept(Keyword::isWord);
  if (!words_.peek().is(TokenKind::literal)) return;
  const std::string sign = words_.take().token.text;
  CurrencyTable::Currency currency{sign, 1};
  words_.accept(Keyword::with);
  if (words_.peek().is(Keyword::picture) || words_.peek().is(Keyword::pic)) {
    words_.skip();
    words_.accept(Keyword::symbol);
    if (words_.peek().is(TokenKind::literal)) {
      currency = {words_.take().token.text, lengthOf(sign)};
    }
  }
  if (lengthOf(currency.symbol) == 1) {
    program_.currencies.add(std::move(currency.symbol), currency.characters);
  }
}

void EnvironmentReader::readConvention() {
  words_.skip();
  const std::optional<std::int64_t> number = readInteger(words_.peek().token.text);
  if (!number || *number < std::numeric_limits<int>::min() ||
      *number > std::numeric_limits<int>::max()) {
    return;
  }
  words_.skip();
  words_.accept(Keyword::isWord);
  if (!words_.peek().is(TokenKind::word)) return;
  program_.conventions[names_.idOf(words_.take().token.text)] = static_cast<int>(*number);
}

void EnvironmentReader::readSelect() {
  words_.skip();
  words_.accept(Keyword::optional);
  FileEntry file;
  file.name = words_.peek().token.text;
  file.nameId = names_.idOf(file.name);
  file.isSelected = true;
  if (!words_.peek().is(TokenKind::word)) return;
  words_.skip();
  while (!words_.peek().is(TokenKind::period) && !words_.peek().is(Keyword::select) && !isAtEnd()) {
    if (words_.peek().is(Keyword::access)) {
      readAccess(file);
    } else if (!readOrganization(file)) {
      words_.skip();
    }
  }
  program_.files.push_back(std::move(file));
}

void EnvironmentReader::readAccess(FileEntry& file) {
  words_.skip();
  words_.accept(Keyword::mode);
  words_.accept(Keyword::isWord);
  if (words_.accept(Keyword::sequential)) file.access = FileAccess::sequential;
  if (words_.accept(Keyword::random)) file.access = FileAccess::random;
  if (words_.accept(Keyword::dynamic)) file.access = FileAccess::dynamic;
}

// The word ORGANIZATION may be missing; RELATIVE may stand for a key then. False when there is no
// such clause; RECORD in front of SEQUENTIAL is passed over as what is no clause.
bool EnvironmentReader::readOrganization(FileEntry& file) {
  const bool isNamed = words_.accept(Keyword::organization) || words_.accept(Keyword::organisation);
  if (isNamed) words_.accept(Keyword::isWord);
  const Word& next = words_.peek(1);
  if (words_.peek().is(Keyword::line) && next.is(Keyword::sequential)) {
    file.organization = FileOrganization::lineSequential;
    words_.skip();
    words_.skip();
    return true;
  }
  if (words_.accept(Keyword::sequential)) {
    file.organization = FileOrganization::sequential;
    return true;
  }
  if (words_.accept(Keyword::indexed)) {
    file.organization = FileOrganization::indexed;
    return true;
  }
  const bool isKey = next.is(Keyword::key) || next.is(Keyword::isWord);
  if (words_.peek().is(Keyword::relative) && (isNamed || !isKey)) {
    file.organization = FileOrganization::relative;
    words_.skip();
    return true;
  }
  return isNamed;
}

}  // namespace as::toolkit
