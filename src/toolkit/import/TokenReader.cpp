#include "toolkit/import/TokenReader.h"

#include <algorithm>

#include "toolkit/import/Characters.h"
#include "toolkit/import/CodePage.h"
#include "toolkit/import/ImportLimits.h"
#include "toolkit/import/Replacement.h"

namespace as::toolkit {

namespace {

bool isSign(char character) { return character == '+' || character == '-'; }

// What frames characters of two bytes is no part of a value.
void dropShifts(std::string& text) {
  if (text.find_first_of("\x0E\x0F") == std::string::npos) return;
  text.erase(std::remove_if(text.begin(), text.end(),
                            [](char c) { return c == shiftOut || c == shiftIn; }),
             text.end());
}

}  // namespace

void TokenReader::read(Token& token) {
  token.prefix.clear();
  token.quote = '"';
  while (!rest_.empty()) {
    if (readPart(token)) return;
  }
  while (true) {
    words_.read(word_);
    token.place = word_.place;
    if (before_ == Before::picture) {
      if (isPicture()) {
        readPicture(token);
        return;
      }
      if (!word_.isRun("IS")) before_ = Before::nothing;
    }
    switch (word_.kind) {
      case TextWord::Kind::run:
        if (word_.simple && !isSign(word_.text.front())) {
          readWord(token, word_.text);
          return;
        }
        rest_ = word_.text;
        restPlace_ = word_.place;
        while (!rest_.empty()) {
          if (readPart(token)) return;
        }
        continue;
      case TextWord::Kind::literal:
        before_ = Before::nothing;
        readLiteral(token);
        return;
      case TextWord::Kind::mark:
        readMark(token);
        return;
      case TextWord::Kind::period:
        token.kind = TokenKind::period;
        token.text = '.';
        before_ = Before::nothing;
        if (periodsInSourceComputer_ > 0) periodsInSourceComputer_--;
        return;
      case TextWord::Kind::barrier:
      case TextWord::Kind::end:
        token.kind = TokenKind::end;
        token.text.clear();
        return;
    }
  }
}

void TokenReader::readLiteral(Token& token) const {
  const LiteralParts parts = partsOf(word_);
  token.kind = TokenKind::literal;
  token.quote = parts.quote;
  token.prefix = parts.prefix;
  std::transform(token.prefix.begin(), token.prefix.end(), token.prefix.begin(),
                 [](char character) { return static_cast<char>(character & ~0x20); });
  if (parts.content.find(parts.quote) == std::string_view::npos) {
    token.text = parts.content;
    dropShifts(token.text);
    return;
  }
  token.text.clear();
  for (std::size_t i = 0; i < parts.content.size(); i++) {
    token.text += parts.content[i];
    // The quotes within come in pairs.
    if (parts.content[i] == parts.quote) i++;
  }
  dropShifts(token.text);
}

void TokenReader::readMark(Token& token) {
  token.kind = TokenKind::punctuation;
  token.text = word_.text;
  const TextWord& ahead = words_.ahead();
  if (ahead.kind != TextWord::Kind::mark || ahead.space) return;
  const bool isOne = (word_.text == "<" && (ahead.text == "=" || ahead.text == ">")) ||
                     (word_.text == ">" && ahead.text == "=");
  if (!isOne) return;
  token.text += ahead.text;
  words_.read(word_);
}

// Whether the word begins a picture. (That of a currency sign is told otherwise.)
bool TokenReader::isPicture() const {
  if (word_.kind == TextWord::Kind::mark) return true;
  return word_.kind == TextWord::Kind::run && !word_.isRun("IS") && !word_.isRun("SYMBOL");
}

void TokenReader::readPicture(Token& token) {
  before_ = Before::nothing;
  token.kind = TokenKind::picture;
  token.text = word_.text;
  while (!words_.ahead().space && (words_.ahead().kind == TextWord::Kind::run ||
                                   words_.ahead().kind == TextWord::Kind::mark)) {
    words_.read(word_);
    token.text += word_.text;
  }
}

// How many characters at the beginning of `text` are a number that is no word; 0 when none are.
std::size_t TokenReader::numberSize(std::string_view text) const {
  const char point = decimalPointIsComma_ ? ',' : '.';
  std::size_t size = 0;
  const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : ' '; };
  const auto digits = [&] {
    const std::size_t begin = size;
    while (isDigit(at(size))) size++;
    return size - begin;
  };
  const bool hasSign = isSign(at(0));
  if (hasSign) size++;
  std::size_t count = digits();
  const bool hasPoint = at(size) == point && isDigit(at(size + 1));
  if (hasPoint) {
    size++;
    count += digits();
  }
  if (count == 0 || (!hasSign && !hasPoint)) return 0;
  if (hasPoint && (at(size) == 'E' || at(size) == 'e')) {
    const std::size_t mantissa = size++;
    if (isSign(at(size))) size++;
    if (digits() == 0) size = mantissa;
  }
  return isWordCharacter(at(size)) && at(size) != '-' ? 0 : size;
}

// Takes the next word of the rest; false when it was a separator.
bool TokenReader::readPart(Token& token) {
  std::size_t size = numberSize(rest_);
  token.place = restPlace_;
  bool isToken = true;
  if (size > 0) {
    token.kind = TokenKind::number;
    token.text = rest_.substr(0, size);
    std::replace(token.text.begin(), token.text.end(), ',', '.');
    before_ = Before::nothing;
  } else if (isWordCharacter(rest_.front()) && rest_.front() != '-') {
    size = 1;
    while (size < rest_.size() && isWordCharacter(rest_[size])) size++;
    readWord(token, rest_.substr(0, size));
  } else {
    size = rest_.substr(0, 2) == "**" ? 2 : 1;
    isToken = rest_.front() != ',';
    token.kind = rest_.front() == '.' ? TokenKind::period : TokenKind::punctuation;
    token.text = rest_.substr(0, size);
  }
  restPlace_.column = columnBehind(rest_.substr(0, size), restPlace_.column);
  rest_.remove_prefix(size);
  return isToken;
}

// As much of a word as is read.
std::string_view TokenReader::withinLimit(std::string_view text, const SourcePlace& place) {
  if (text.size() <= importLimits::word) return text;
  report_.add(SourceRule::limit, place,
              "the word " + quoted(text) + " has more than " + std::to_string(importLimits::word) +
                  " bytes; what follows them is not read");
  return beginningOf(text, importLimits::word);
}

void TokenReader::endUnit() {
  if (inFront_.empty()) return;
  decimalPointIsComma_ = inFront_.back();
  inFront_.pop_back();
}

void TokenReader::readWord(Token& token, std::string_view text) {
  token.kind = TokenKind::word;
  token.text = withinLimit(text, token.place);
  const Before before = before_;
  switch (text.size()) {
    case 2:
      if (before != Before::nothing && sameWord(text, "IS")) return;
      break;
    case 3:
      if (sameWord(text, "PIC")) {
        before_ = Before::picture;
        return;
      }
      if (sameWord(text, "END")) {
        before_ = Before::end;
        return;
      }
      break;
    case 4:
      if (before == Before::debugging && sameWord(text, "MODE")) hasDebuggingMode_ = true;
      break;
    case 5:
      if (before == Before::decimalPoint && sameWord(text, "COMMA")) decimalPointIsComma_ = true;
      if (before == Before::end && sameWord(text, "CLASS")) endUnit();
      break;
    case 7:
      if (sameWord(text, "PICTURE")) {
        before_ = Before::picture;
        return;
      }
      if (before == Before::end && sameWord(text, "PROGRAM")) endUnit();
      break;
    case 8:
      if (before == Before::end && sameWord(text, "FUNCTION")) endUnit();
      if (sameWord(text, "CLASS-ID")) inFront_.push_back(decimalPointIsComma_);
      break;
    case 9:
      if (periodsInSourceComputer_ > 0 && sameWord(text, "DEBUGGING")) {
        before_ = Before::debugging;
        return;
      }
      break;
    case 10:
      if (sameWord(text, "PROGRAM-ID")) inFront_.push_back(decimalPointIsComma_);
      break;
    case 11:
      if (sameWord(text, "FUNCTION-ID")) inFront_.push_back(decimalPointIsComma_);
      break;
    case 13:
      if (sameWord(text, "DECIMAL-POINT")) {
        before_ = Before::decimalPoint;
        return;
      }
      break;
    case 15:
      // Its name ends with a period, and its paragraph with another.
      if (sameWord(text, "SOURCE-COMPUTER")) periodsInSourceComputer_ = 2;
      break;
    default:
      break;
  }
  before_ = Before::nothing;
}

}  // namespace as::toolkit
