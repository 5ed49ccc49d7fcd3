#include "toolkit/import/LineLayout.h"

#include <algorithm>
#include <string>

#include "toolkit/import/Characters.h"
#include "toolkit/import/LineText.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

constexpr std::size_t indicatorColumn = 7;
constexpr std::size_t firstColumn = 8;
constexpr std::size_t lastColumn = 72;
constexpr std::size_t recordLength = 80;
constexpr std::int32_t lastColumnOfAreaA = 11;

bool isLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

// A line with options for a compiler.
bool isOptionCard(std::string_view text) {
  return beginsWord(text, "CBL") || beginsWord(text, "PROCESS") ||
         (text.size() > 1 && text.front() == '@');
}

bool isAsciiWithoutTabs(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) < 0x80 && character != '\t';
  });
}

}  // namespace

void LineLayout::lay(std::string_view line, LaidLine& laid) {
  laid.kind = LineKind::blank;
  if (format_ == SourceFormat::free) {
    layFree(line, laid);
  } else {
    layColumns(line, laid);
  }
}

void LaidLine::setText(std::string_view code, std::int32_t beginsIn) {
  whole = withoutBlanksInFront(code);
  text = withoutBlanksBehind(whole);
  const std::string_view blanks = code.substr(0, code.size() - whole.size());
  column = isPlain ? beginsIn + static_cast<std::int32_t>(blanks.size())
                   : columnBehind(blanks, beginsIn);
}

// A directive that begins in front of the code, or a line that was never meant for the compiler.
bool LineLayout::layOddStart(std::string_view line, LaidLine& laid) const {
  const std::string_view text = withoutBlanksInFront(line);
  const bool isCard = !codeSeen_ && isOptionCard(text);
  const bool isDirective = isCard || text.substr(0, 2) == ">>" || isDollarDirective(text);
  const bool isInclude = beginsWord(line, "-INC");
  if (!isDirective && !isInclude) return false;
  laid.isPlain = isPlain_ || isAsciiWithoutTabs(line);
  laid.setText(line, 1);
  laid.kind = isInclude ? LineKind::code : LineKind::directive;
  laid.areaA = false;
  return true;
}

LineLayout::Cut LineLayout::cut(std::string_view line) {
  // Nobody knows how wide the tabs of its writer were: what fits into the columns as it stands was
  // meant to be code, wherever it comes to with these.
  const bool isTabbed =
      !isPlain_ && line.size() <= lastColumn && line.find('\t') != std::string_view::npos;
  const bool hasMargin = format_ == SourceFormat::fixed && !isTabbed;
  const std::size_t margin = hasMargin ? lastColumn : std::string_view::npos;
  Cut result;
  result.column = static_cast<std::int32_t>(firstColumn);
  result.isPlain = isPlain_ || isAsciiWithoutTabs(line.substr(0, margin));
  std::size_t afterSequence = indicatorColumn - 1;
  if (!result.isPlain) {
    std::string expanded;
    // Up to the right margin, or to the first column of the code, tabs become blanks.
    const std::size_t expandTo =
        margin != std::string_view::npos || isTabbed ? margin : indicatorColumn;
    std::size_t column = 0;
    afterSequence = std::string::npos;
    std::size_t i = 0;
    // A wide character may reach across.
    const auto noteColumn = [&] {
      if (column < indicatorColumn - 1) return;
      afterSequence = std::min(afterSequence, expanded.size());
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
      column += isWide_ ? static_cast<std::size_t>(columnsOfCharacter(line.substr(i))) : 1;
      expanded += line[i];
      // What belongs to the last character comes along.
      while (i + 1 < line.size() && isWithinCharacter(line[i + 1])) expanded += line[++i];
    }
    if (margin == std::string_view::npos) {
      expanded += line.substr(i);
    }
    result.room = margin == std::string_view::npos || column >= margin ? 0 : margin - column;
    afterSequence = std::min(afterSequence, expanded.size());
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
bool LineLayout::isDrawn(std::string_view line) {
  if (line.size() <= indicatorColumn || line.front() != '*') return false;
  const std::string_view start = line.substr(1, indicatorColumn - 1);
  return (start.front() == '*' || start.front() == '-' || start.front() == '=') &&
         start.find_first_not_of(start.front()) == std::string_view::npos;
}

// What begins in the indicator's column. A word behind "$" is of a compiler that nobody here knows.
bool LineLayout::layDirective(const Cut& parts, LaidLine& laid) {
  constexpr auto column = static_cast<std::int32_t>(indicatorColumn);
  if (layOddStart(parts.fromIndicator, laid)) {
    laid.column = column;
    return true;
  }
  if (parts.indicator != '$' || laid.text.empty() || !isLetter(laid.text.front())) return false;
  laid.setText(parts.fromIndicator, column);
  laid.kind = LineKind::directive;
  return true;
}

void LineLayout::layColumns(std::string_view line, LaidLine& laid) {
  if (isDrawn(line)) return;
  const Cut parts = cut(line);
  laid.isPlain = parts.isPlain;
  laid.room = parts.room;
  if (const char first = parts.sequence.empty() ? ' ' : parts.sequence.front();
      first == '>' || first == '$' || first == '@' || first == '-' || first == ' ' ||
      (!codeSeen_ && isWordCharacter(first))) {
    const std::string_view sequence = withoutBlanksInFront(parts.sequence);
    if ((!sequence.empty() || !codeSeen_) && layOddStart(line, laid)) return;
  }
  if (line.size() > recordLength && format_ == SourceFormat::fixed) tellWide(line, laid);
  laid.setText(parts.code, parts.column);
  switch (parts.indicator) {
    case '*':
    case '/':
      laid.kind = LineKind::blank;
      return;
    case '-':
      laid.kind = laid.text.empty() ? LineKind::blank : LineKind::continuation;
      return;
    case 'D':
    case 'd':
      laid.kind = LineKind::debugging;
      break;
    case '$':
    case '>':
    case '@':
      if (layDirective(parts, laid)) return;
      [[fallthrough]];
    default:
      if (!isBlank(parts.indicator)) {
        report_.add(
            SourceRule::indicator, {file_, laid.number, static_cast<std::int32_t>(indicatorColumn)},
            quoted({&parts.indicator, 1}) + " in column 7 is no indicator, and is passed over",
            "name the format of the source if it is not fixed");
      }
      laid.kind = LineKind::code;
  }
  if (laid.text.empty() || laid.text.substr(0, 2) == "*>") {
    laid.kind = LineKind::blank;
    return;
  }
  laid.areaA = laid.column <= lastColumnOfAreaA;
  if (laid.text.substr(0, 2) == ">>" || isDollarDirective(laid.text) ||
      (!codeSeen_ && isOptionCard(laid.text))) {
    laid.kind = LineKind::directive;
  }
}

// Records have names of 8 characters behind the margin; what is longer was hardly meant to be left
// out, least of all when it stands together with what is in front of it.
void LineLayout::tellWide(std::string_view line, const LaidLine& laid) {
  if (wideTold_ || !laid.isPlain) return;
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
std::string_view LineLayout::withoutMark(std::string_view line) {
  const std::size_t directive = line.find(">>");
  if (directive == 0 || directive == std::string_view::npos || directive > firstColumn) return line;
  const std::string_view mark = withoutBlanksBehind(line.substr(0, directive));
  const bool isMark =
      mark.size() < indicatorColumn && std::all_of(mark.begin(), mark.end(), isWordCharacter);
  return isMark ? line.substr(directive) : line;
}

void LineLayout::layFree(std::string_view line, LaidLine& laid) {
  line = withoutMark(line);
  laid.isPlain = isPlain_ || isAsciiWithoutTabs(line);
  laid.room = 0;
  laid.areaA = false;
  laid.setText(line, 1);
  const char first = line.empty() ? ' ' : line.front();
  const bool isComment = first == '*' || first == '/' || laid.text.substr(0, 2) == "*>";
  laid.kind = laid.text.empty() || isComment ? LineKind::blank : LineKind::code;
  if (laid.kind == LineKind::code) layOddStart(line, laid);
}

}  // namespace as::toolkit
