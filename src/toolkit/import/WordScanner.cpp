#include "toolkit/import/WordScanner.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "toolkit/import/Characters.h"

namespace as::toolkit {

namespace {

// What may stand in front of a literal's first quote.
bool isPrefix(std::string_view text) {
  constexpr std::array<std::string_view, 12> prefixes = {"X",  "N", "NX", "Z",  "G", "B",
                                                         "BX", "U", "UX", "NC", "H", "O"};
  return text.size() <= 2 &&
         std::any_of(prefixes.begin(), prefixes.end(),
                     [&](std::string_view prefix) { return sameWord(prefix, text); });
}

}  // namespace

WordScanner::WordScanner(SourceLines& lines, std::int32_t file, Directives& directives,
                         SourceReport& report)
    : lines_(lines), file_(file), directives_(directives), report_(report) {}

bool WordScanner::nextLine() {
  while (!atEnd_ && lines_.next(line_)) {
    if (line_.isDirective) {
      directives_.take(line_, file_, lines_);
      continue;
    }
    if (directives_.isSkipping()) continue;
    at_ = line_.text.data();
    end_ = at_ + line_.text.size();
    counted_ = at_;
    countedPlace_ = {file_, line_.number, line_.column};
    seam_ = 0;
    atLineStart_ = true;
    return true;
  }
  at_ = end_;
  atEnd_ = true;
  return false;
}

void WordScanner::setPlace(TextWord& word, const char* begin) {
  const auto offset = static_cast<std::size_t>(begin - line_.text.data());
  while (seam_ < line_.seams.size() && line_.seams[seam_].offset <= offset) {
    const SourceLine::Seam& seam = line_.seams[seam_++];
    counted_ = line_.text.data() + seam.offset;
    countedPlace_.line = seam.line;
    countedPlace_.column = seam.column;
  }
  const auto size = static_cast<std::size_t>(begin - counted_);
  countedPlace_.column = line_.isPlain ? countedPlace_.column + static_cast<std::int32_t>(size)
                                       : columnBehind({counted_, size}, countedPlace_.column);
  counted_ = begin;
  word.place = countedPlace_;
}

// Pseudo-text may end right behind the separator, and a period may be one too many.
bool WordScanner::isFollowedByBlank(const char* separator) const {
  const char* const next = separator + 1;
  const auto isEnd = [this](const char* at) {
    return at == end_ || isBlank(*at) || (*at == '|' && isComment(at)) ||
           (end_ - at >= 2 && at[0] == '*' && at[1] == '>');
  };
  return isEnd(next) || (end_ - next >= 2 && next[0] == '=' && next[1] == '=') ||
         (*separator == '.' && *next == '.' && isEnd(next + 1));
}

bool WordScanner::isComment(const char* bar) const {
  const char before = bar == line_.text.data() ? ' ' : bar[-1];
  const char behind = bar + 1 == end_ ? ' ' : bar[1];
  // Of two bars, the first begins it.
  return !lenient_ && (isCommentBar(before, behind) || (behind == '|' && isBlank(before)));
}

void WordScanner::read(TextWord& word) {
  word.space = false;
  word.simple = false;
  word.lineStart = false;
  word.areaA = false;
  while (true) {
    if (at_ == end_) {
      word.space = true;
      if (!nextLine()) {
        word.kind = TextWord::Kind::end;
        word.text = {};
        word.place = countedPlace_;
        return;
      }
    }
    const char character = *at_;
    switch (classOf(character)) {
      case CharacterClass::blank:
        word.space = true;
        at_++;
        continue;
      case CharacterClass::separator:
        if (character == ';' || isFollowedByBlank(at_)) {
          if (character != '.') {
            word.space = true;
            at_++;
            continue;
          }
          setPlace(word, at_);
          word.kind = TextWord::Kind::period;
          word.text = {at_, 1};
          at_++;
          atLineStart_ = false;
          return;
        }
        break;
      case CharacterClass::star:
        if (end_ - at_ >= 2 && at_[1] == '>') {
          at_ = end_;
          continue;
        }
        break;
      case CharacterClass::bar:
        if (isComment(at_)) {
          at_ = end_;
          continue;
        }
        break;
      default:
        break;
    }
    break;
  }
  word.lineStart = atLineStart_;
  word.areaA = atLineStart_ && line_.areaA;
  atLineStart_ = false;
  setPlace(word, at_);
  switch (classOf(*at_)) {
    case CharacterClass::quote:
      readLiteral(word, at_);
      return;
    case CharacterClass::mark:
      readMark(word);
      return;
    default:
      readRun(word);
  }
}

void WordScanner::readMark(TextWord& word) {
  const std::size_t size = *at_ == '=' && end_ - at_ >= 2 && at_[1] == '=' ? 2 : 1;
  word.kind = TextWord::Kind::mark;
  word.text = {at_, size};
  at_ += size;
}

void WordScanner::readRun(TextWord& word) {
  const char* const begin = at_;
  bool isSimple = true;
  while (at_ != end_) {
    switch (classOf(*at_)) {
      case CharacterClass::word:
        at_++;
        continue;
      case CharacterClass::inRun:
        isSimple = false;
        at_++;
        continue;
      case CharacterClass::separator:
        if (*at_ == ';' || isFollowedByBlank(at_)) break;
        isSimple = false;
        at_++;
        continue;
      case CharacterClass::star:
        if (end_ - at_ >= 2 && at_[1] == '>') break;
        isSimple = false;
        at_++;
        continue;
      case CharacterClass::bar:
        if (at_ != begin && isComment(at_)) break;
        isSimple = false;
        at_++;
        continue;
      case CharacterClass::quote:
        if (isPrefix({begin, static_cast<std::size_t>(at_ - begin)})) {
          readLiteral(word, begin);
          return;
        }
        break;
      default:
        break;
    }
    break;
  }
  word.kind = TextWord::Kind::run;
  word.text = {begin, static_cast<std::size_t>(at_ - begin)};
  word.simple = isSimple;
}

// `at_` is at the first quote, `begin` at its prefix.
void WordScanner::readLiteral(TextWord& word, const char* begin) {
  const char quote = *at_;
  const char* const opening = at_;
  at_++;
  while (true) {
    const auto* const found =
        at_ == end_ ? nullptr : static_cast<const char*>(std::memchr(at_, quote, left()));
    if (found == nullptr) break;
    at_ = found + 1;
    if (at_ == end_ || *at_ != quote) {
      word.kind = TextWord::Kind::literal;
      word.text = {begin, static_cast<std::size_t>(at_ - begin)};
      return;
    }
    at_++;
  }
  if (lenient_) {
    at_ = opening + 1;
    word.kind = TextWord::Kind::mark;
    word.text = {opening, 1};
    return;
  }
  at_ = end_;
  word.kind = TextWord::Kind::literal;
  word.text = {begin, static_cast<std::size_t>(end_ - begin)};
  report_.add(SourceRule::unterminatedLiteral, word.place,
              "the literal " + quoted(word.text) + " does not end",
              "end it with " + std::string(1, quote) + ", or continue it on the next line");
}

}  // namespace as::toolkit
