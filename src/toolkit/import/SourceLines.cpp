#include "toolkit/import/SourceLines.h"

#include <algorithm>
#include <cstring>

#include "toolkit/import/Characters.h"
#include "toolkit/import/QuoteState.h"

namespace as::toolkit {

namespace {

constexpr std::size_t indicatorColumn = 7;
constexpr std::size_t firstColumn = 8;
constexpr std::size_t lastColumn = 72;
constexpr std::size_t recordLength = 80;
constexpr std::int32_t lastColumnOfAreaA = 11;

bool beginsWord(std::string_view text, std::string_view word) {
  return text.size() >= word.size() && sameWord(text.substr(0, word.size()), word) &&
         (text.size() == word.size() || isBlank(text[word.size()]));
}

std::string_view withoutBlanksInFront(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && isBlank(text[i])) i++;
  return text.substr(i);
}

std::string_view withoutBlanksBehind(std::string_view text) {
  std::size_t size = text.size();
  while (size > 0 && isBlank(text[size - 1])) size--;
  return text.substr(0, size);
}

// A line with options for a compiler.
bool isOptionCard(std::string_view text) {
  return beginsWord(text, "CBL") || beginsWord(text, "PROCESS") ||
         (text.size() > 1 && text.front() == '@');
}

bool isEndOfProgram(std::string_view text) {
  constexpr std::string_view end = "END";
  return beginsWord(text, end) &&
         beginsWord(withoutBlanksInFront(text.substr(end.size())), "PROGRAM");
}

bool endsInLiteral(std::string_view text) {
  if (text.find_first_of("\"'") == std::string_view::npos) return false;
  QuoteState quotes;
  quotes.read(text);
  return quotes.isOpen();
}

bool isAsciiWithoutTabs(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) < 0x80 && character != '\t';
  });
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  return withoutBlanksBehind(withoutBlanksInFront(text));
}

bool isDollarDirective(std::string_view text) {
  if (text.empty() || text.front() != '$') return false;
  const std::string_view rest = withoutBlanksInFront(text.substr(1));
  for (const std::string_view known : {"SET", "IF", "ELSE", "ELIF", "ELSE-IF", "END", "END-IF",
                                       "DISPLAY", "REGION", "END-REGION"}) {
    if (beginsWord(rest, known)) return true;
  }
  return false;
}

SourceLines::SourceLines(const SourceText& text, SourceFormat format, std::int32_t file,
                         TextArena& arena, SourceReport& report)
    : text_(text.text),
      isPlain_(text.plain),
      format_(format),
      file_(file),
      arena_(arena),
      report_(report) {}

bool SourceLines::layNext(Laid& laid) {
  if (at_ >= text_.size()) return false;
  const char* const begin = text_.data() + at_;
  const std::size_t left = text_.size() - at_;
  const auto* const end = static_cast<const char*>(std::memchr(begin, '\n', left));
  const std::size_t size = end == nullptr ? left : static_cast<std::size_t>(end - begin);
  at_ += size + 1;
  number_++;
  laid.kind = Kind::blank;
  laid.number = number_;
  lay({begin, size}, laid);
  return true;
}

void SourceLines::lay(std::string_view line, Laid& laid) {
  if (format_ == SourceFormat::free) {
    layFree(line, laid);
  } else {
    layColumns(line, laid);
  }
}

void SourceLines::setText(Laid& laid, std::string_view code, std::int32_t column) {
  const std::string_view text = withoutBlanksInFront(code);
  laid.whole = text;
  laid.text = withoutBlanksBehind(text);
  laid.column = laid.isPlain ? column + static_cast<std::int32_t>(code.size() - text.size())
                             : columnBehind(code.substr(0, code.size() - text.size()), column);
}

// A directive that begins in front of the code, or a line that was never meant for the compiler.
bool SourceLines::layOddStart(std::string_view line, Laid& laid) {
  const std::string_view text = withoutBlanksInFront(line);
  const bool isCard = !codeSeen_ && isOptionCard(text);
  const bool isDirective = isCard || text.substr(0, 2) == ">>" || isDollarDirective(text);
  const bool isInclude = beginsWord(line, "-INC");
  if (!isDirective && !isInclude) return false;
  laid.isPlain = isPlain_ || isAsciiWithoutTabs(line);
  setText(laid, line, 1);
  laid.kind = isInclude ? Kind::code : Kind::directive;
  laid.areaA = false;
  return true;
}

SourceLines::Cut SourceLines::cut(std::string_view line) {
  // Nobody knows how wide the tabs of its writer were: what fits into the columns as it stands was
  // meant to be code, wherever it comes to with these.
  const bool isTabbed = !isPlain_ && line.size() <= lastColumn && line.find('\t') != line.npos;
  const bool hasMargin = format_ == SourceFormat::fixed && !isTabbed;
  const std::size_t margin = hasMargin ? lastColumn : std::string_view::npos;
  Cut result;
  result.column = static_cast<std::int32_t>(firstColumn);
  result.isPlain = isPlain_ || isAsciiWithoutTabs(line.substr(0, margin));
  std::size_t afterSequence = indicatorColumn - 1;
  std::string expanded;
  if (!result.isPlain) {
    // Up to the right margin, or to the first column of the code, tabs become blanks.
    const std::size_t expandTo =
        margin != std::string_view::npos || isTabbed ? margin : indicatorColumn;
    std::size_t column = 0;
    afterSequence = line.size();
    std::size_t i = 0;
    const auto noteColumn = [&] {
      if (column == indicatorColumn - 1) afterSequence = expanded.size();
    };
    for (; i < line.size() && column < expandTo; i++) {
      if (line[i] == '\t') {
        do {
          noteColumn();
          expanded += ' ';
          column++;
        } while (column % tabWidth != 0 && column < expandTo);
        continue;
      }
      if (!isWithinCharacter(line[i])) noteColumn();
      expanded += line[i];
      // What belongs to the last character comes along.
      while (i + 1 < line.size() && isWithinCharacter(line[i + 1])) expanded += line[++i];
      column++;
    }
    if (margin == std::string_view::npos) {
      expanded += line.substr(i);
    }
    result.room = margin == std::string_view::npos || column >= margin ? 0 : margin - column;
    if (column < indicatorColumn) afterSequence = std::min(afterSequence, expanded.size());
    line = arena_.keep(expanded);
  } else {
    line = line.substr(0, margin);
    result.room = margin == std::string_view::npos ? 0 : margin - line.size();
  }
  result.sequence = line.substr(0, afterSequence);
  if (line.size() <= afterSequence) return result;
  std::size_t length = 1;
  while (afterSequence + length < line.size() && isWithinCharacter(line[afterSequence + length])) {
    length++;
  }
  result.indicator = length == 1 ? line[afterSequence] : '?';
  result.fromIndicator = line.substr(afterSequence);
  result.code = line.substr(afterSequence + length);
  return result;
}

// A line of stars or dashes from the first column on, as some draw them: no number of a sequence,
// and no continuation.
bool SourceLines::isDrawn(std::string_view line) {
  if (line.size() <= indicatorColumn || line.front() != '*') return false;
  const std::string_view start = line.substr(1, indicatorColumn - 1);
  return (start.front() == '*' || start.front() == '-' || start.front() == '=') &&
         start.find_first_not_of(start.front()) == std::string_view::npos;
}

void SourceLines::layColumns(std::string_view line, Laid& laid) {
  if (isDrawn(line)) return;
  const Cut parts = cut(line);
  laid.isPlain = parts.isPlain;
  if (line.size() > recordLength && format_ == SourceFormat::fixed) tellWide(line, laid);
  laid.room = parts.room;
  if (const char first = parts.sequence.empty() ? ' ' : parts.sequence.front();
      first == '>' || first == '$' || first == '@' || first == '-' || first == ' ' ||
      (!codeSeen_ && isWordCharacter(first))) {
    const std::string_view sequence = withoutBlanksInFront(parts.sequence);
    if ((!sequence.empty() || !codeSeen_) && layOddStart(line, laid)) return;
  }
  setText(laid, parts.code, parts.column);
  switch (parts.indicator) {
    case '*':
    case '/':
      laid.kind = Kind::blank;
      return;
    case '-':
      laid.kind = laid.text.empty() ? Kind::blank : Kind::continuation;
      return;
    case 'D':
    case 'd':
      laid.kind = Kind::debugging;
      break;
    case '$':
    case '>':
    case '@':
      if (layOddStart(parts.fromIndicator, laid)) {
        laid.column = static_cast<std::int32_t>(indicatorColumn);
        return;
      }
      [[fallthrough]];
    default:
      if (!isBlank(parts.indicator)) {
        report_.add(
            SourceRule::indicator, {file_, laid.number, static_cast<std::int32_t>(indicatorColumn)},
            quoted({&parts.indicator, 1}) + " in column 7 is no indicator, and is passed over",
            "name the format of the source if it is not fixed");
      }
      laid.kind = Kind::code;
  }
  if (laid.text.empty() || laid.text.substr(0, 2) == "*>") {
    laid.kind = Kind::blank;
    return;
  }
  laid.areaA = laid.column <= lastColumnOfAreaA;
  if (laid.text.substr(0, 2) == ">>" || isDollarDirective(laid.text) ||
      (!codeSeen_ && isOptionCard(laid.text))) {
    laid.kind = Kind::directive;
  }
}

// Records have names of 8 characters behind the margin; what is longer was hardly meant to be left
// out, least of all when it stands together with what is in front of it.
void SourceLines::tellWide(std::string_view line, const Laid& laid) {
  if (wideTold_ || !laid.isPlain || laid.kind == Kind::directive) return;
  const bool isComment = line[indicatorColumn - 1] == '*' || line[indicatorColumn - 1] == '/';
  if (isComment || isBlank(line[lastColumn - 1]) || isBlank(line[lastColumn])) return;
  wideTold_ = true;
  report_.add(SourceRule::behindMargin,
              {file_, laid.number, static_cast<std::int32_t>(lastColumn + 1)},
              "what stands behind column 72 is left out here, and in the lines behind",
              "name the format of the source if it is not fixed");
}

// A directive behind what stands in the columns of sequence numbers, so that it is one in fixed
// format, too.
std::string_view SourceLines::withoutMark(std::string_view line) {
  const std::size_t directive = line.find(">>");
  if (directive == 0 || directive == std::string_view::npos || directive > firstColumn) return line;
  const std::string_view mark = withoutBlanksBehind(line.substr(0, directive));
  const bool isMark = mark.size() < indicatorColumn && mark.find(' ') == std::string_view::npos &&
                      std::all_of(mark.begin(), mark.end(), isWordCharacter);
  return isMark ? line.substr(directive) : line;
}

void SourceLines::layFree(std::string_view line, Laid& laid) {
  line = withoutMark(line);
  laid.isPlain = isPlain_ || isAsciiWithoutTabs(line);
  laid.room = 0;
  laid.areaA = false;
  setText(laid, line, 1);
  const char first = line.empty() ? ' ' : line.front();
  const bool isComment = first == '*' || first == '/' || laid.text.substr(0, 2) == "*>";
  laid.kind = laid.text.empty() || isComment ? Kind::blank : Kind::code;
  if (laid.kind == Kind::code) layOddStart(line, laid);
}

bool SourceLines::isCode(const Laid& laid) const {
  return laid.kind == Kind::code || laid.kind == Kind::continuation ||
         (laid.kind == Kind::debugging && debugging_);
}

// Lines for debugging are left to be looked at when it is known whether they are code.
void SourceLines::findAhead() {
  while (!hasAhead_ && layNext(ahead_)) hasAhead_ = ahead_.kind != Kind::blank;
}

bool SourceLines::next(SourceLine& line) {
  do {
    if (hasAhead_) {
      current_ = ahead_;
      hasAhead_ = false;
    } else if (!layNext(current_)) {
      return false;
    }
    // ">>D" is a line for debugging of any format.
    if (current_.kind == Kind::directive && current_.text.size() > 2 &&
        beginsWord(current_.text.substr(2), "D")) {
      const std::string_view code = current_.text.substr(3);
      const std::int32_t column = current_.column + 3;
      setText(current_, code, column);
      current_.kind = current_.text.empty() ? Kind::blank : Kind::debugging;
    }
  } while (current_.kind != Kind::directive && !isCode(current_));
  line.text = current_.text;
  line.number = current_.number;
  line.column = current_.column;
  line.isPlain = current_.isPlain;
  line.areaA = current_.areaA;
  line.isDirective = current_.kind == Kind::directive;
  line.seams.clear();
  if (line.isDirective) return true;
  // Another program, with options of its own, may follow.
  codeSeen_ = !isEndOfProgram(line.text);
  const bool endsInDash =
      line.text.size() > 1 && line.text.back() == '-' && isQuote(line.text[line.text.size() - 2]);
  const bool canGoOn = format_ != SourceFormat::free || endsInDash || endsInLiteral(line.text);
  if (!canGoOn) return true;
  findAhead();
  if (format_ == SourceFormat::free && !endsInDash) continueAhead();
  if (hasAhead_ && (ahead_.kind == Kind::continuation || endsInDash)) join(line);
  return true;
}

// A dash in column 1 continues a literal where lines have an indicator there.
void SourceLines::continueAhead() {
  if (!hasAhead_ || ahead_.kind != Kind::code || ahead_.column != 1 || ahead_.text.front() != '-') {
    return;
  }
  const std::string_view behind = withoutBlanksInFront(ahead_.whole.substr(1));
  if (behind.empty()) return;
  ahead_.column += static_cast<std::int32_t>(ahead_.whole.size() - behind.size());
  ahead_.text = withoutBlanksBehind(behind);
  ahead_.whole = behind;
  ahead_.kind = Kind::continuation;
}

void SourceLines::join(SourceLine& line) {
  std::string joined;
  QuoteState quotes;
  std::size_t first = 0;  // Of the part that was added last.
  std::string_view part = current_.whole;
  std::size_t room = current_.room;
  while (true) {
    joined += part;
    const std::size_t comment = quotes.read(std::string_view(joined).substr(first));
    if (comment != std::string_view::npos) joined.resize(first + comment);
    const std::string_view added = withoutBlanksBehind(std::string_view(joined).substr(first));
    const bool hasDash = !quotes.isOpen() && !added.empty() && added.back() == '-' &&
                         quotes.closedAt() + 1 == added.size();
    findAhead();
    if (!hasAhead_ || !(ahead_.kind == Kind::continuation || (hasDash && isCode(ahead_)))) break;
    part = ahead_.whole;
    std::size_t skipped = 0;
    if (hasDash && isQuote(part.front()) && part.front() == added[added.size() - 2]) {
      // "abc"-  and  "def"
      joined.resize(first + added.size() - 2);
      quotes.open(part.front());
      skipped = 1;
    } else if (ahead_.kind != Kind::continuation) {
      break;
    } else if (quotes.isOpen()) {
      joined.append(room, ' ');
      if (part.front() == quotes.quote()) {
        skipped = 1;
      } else {
        report_.add(SourceRule::continuation, {file_, ahead_.number, ahead_.column},
                    "the literal goes on without a quote of its own kind in front",
                    "begin the continuation with " + std::string(1, quotes.quote()));
      }
    } else {
      const std::size_t size = first + added.size();
      const bool isAtMargin = format_ == SourceFormat::fixed && room == 0 && joined.size() == size;
      joined.resize(size);
      if (quotes.closedAt() == size - first && part.front() == joined.back()) {
        if (isAtMargin) {
          // A quote in column 72 is half of a doubled one; the continuation writes the other half
          // behind the quote that it begins with.
          if (part.size() > 1 && part[1] == part[0]) skipped = 1;
          quotes.reopen();
        } else {
          joined += ' ';
        }
      }
    }
    hasAhead_ = false;
    first = joined.size();
    line.seams.push_back(
        {first, ahead_.number, ahead_.column + static_cast<std::int32_t>(skipped)});
    line.isPlain = line.isPlain && ahead_.isPlain;
    part.remove_prefix(skipped);
    room = ahead_.room;
  }
  line.text = arena_.keep(withoutBlanksBehind(joined));
}

}  // namespace as::toolkit
