#include "toolkit/import/FormatRecognition.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <string>

#include "toolkit/import/Characters.h"
#include "toolkit/import/LineText.h"
#include "toolkit/import/QuoteState.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

namespace {

// What is looked at: enough for any source whose head is a long comment.
constexpr std::size_t mostLines = 4000;
constexpr std::size_t columnsLookedAt = 16;
constexpr std::size_t indicator = 6;

// Of a line that only one format can have.
constexpr int strongVote = 2;

// Words that begin a line and leave room in front of column 7 for more than themselves; longer ones
// stand in column 7, where they show by themselves.
constexpr std::array<std::string_view, 35> starters = {
    "ID",     "DATA",  "FD",     "SD",     "RD",     "COPY",  "MOVE",  "IF",    "ELSE",
    "EXEC",   "CALL",  "SET",    "ADD",    "GO",     "STOP",  "EXIT",  "OPEN",  "READ",
    "CLOSE",  "WRITE", "SORT",   "WHEN",   "END",    "FILE",  "USE",   "NEXT",  "GOBACK",
    "RETURN", "CBL",   "SELECT", "AUTHOR", "ASSIGN", "MERGE", "START", "END-IF"};

// The first columns of a line, tabs expanded, each character as one byte.
std::string columnsOf(std::string_view line) {
  std::string columns;
  for (std::size_t i = 0; i < line.size() && columns.size() < columnsLookedAt; i++) {
    if (line[i] == '\t') {
      columns.append(tabWidth - columns.size() % tabWidth, ' ');
    } else if (!isWithinCharacter(line[i])) {
      columns += isBlank(line[i]) ? ' ' : line[i];
    }
  }
  return columns;
}

bool isLevel(std::string_view word) {
  return word.size() <= 2 && std::all_of(word.begin(), word.end(), isDigit);
}

bool isStarter(std::string_view word) {
  return std::any_of(starters.begin(), starters.end(),
                     [&](std::string_view starter) { return sameWord(starter, word); });
}

bool isAll(std::string_view text, bool (*is)(char)) {
  return std::all_of(text.begin(), text.end(), is);
}

// Whether an entry stands behind column 7 and nothing but numbers in front of it, as the offsets
// and lengths that some write there: " 25 03    05 NAME". Free format has no two levels on a line.
bool hasNumbersInFrontOfEntry(std::string_view line) {
  if (line.size() <= indicator + 1 || line[indicator] != ' ') return false;
  const bool areNumbers = isAll(line.substr(0, indicator), [](char character) {
    return isDigit(character) || character == ' ';
  });
  if (!areNumbers) return false;
  const std::string_view code = trimmed(line.substr(indicator));
  const std::size_t end = code.find(' ');
  if (end == std::string_view::npos || !isLevel(code.substr(0, end))) return false;
  const std::string_view name = trimmed(code.substr(end));
  return !isDigit(name.front()) && isWordCharacter(name.front());
}

// Above 0: fixed format; below: free.
int voteOf(std::string_view line) {
  const std::string columns = columnsOf(line);
  const std::string_view text = trimmed(columns);
  if (text.empty()) return 0;
  const std::size_t start = columns.find_first_not_of(' ');
  const std::string_view sequence = std::string_view(columns).substr(0, indicator);
  const std::string_view word = text.substr(0, text.find(' '));
  if (columns.size() <= indicator) {
    // Sequence numbers of lines that are empty are as long as they can be.
    if (text.substr(0, 2) == "*>" || isStarter(word)) return -1;
    return columns.size() == indicator && isAll(sequence, isDigit) ? 1 : 0;
  }
  const char mark = columns[indicator];
  if (start >= indicator) {
    const bool isComment = mark == '*' && columns.substr(indicator, 2) != "*>";
    if (isComment || mark == '/') return strongVote;
    if (mark == '-') return 1;
    return start > indicator || mark == '*' || mark == '$' || mark == '>' || mark == 'D' ||
                   mark == 'd'
               ? 0
               : -1;
  }
  if (text.substr(0, 2) == "*>") return -strongVote;
  if (text.substr(0, 2) == ">>" || text.front() == '$') return 0;
  const bool isIndicator = mark == ' ' || mark == '*' || mark == '/' || mark == '-' ||
                           mark == 'D' || mark == 'd' || mark == '$';
  if (!isIndicator) return start == 0 && isAll(sequence, isDigit) ? 0 : -strongVote;
  if (isAll(sequence, isDigit) || hasNumbersInFrontOfEntry(line)) return strongVote;
  // "01  NAME", "MOVE A TO B" against "AB1234" and "  0100".
  const bool hasMore = word.size() < text.size();
  if (isStarter(word) || (isLevel(word) && hasMore && word.size() + start < indicator - 1)) {
    return -strongVote;
  }
  if (mark == '*' || mark == '/') return 1;
  // "    7 DATE-OF PIC X": a word that begins there, behind a level.
  if (mark != '-' && mark != ' ' && columns[indicator - 1] == ' ' &&
      columns.size() > indicator + 1 && isWordCharacter(columns[indicator + 1])) {
    return isLevel(trimmed(sequence)) ? -1 : 0;
  }
  // "    5 D PIC X": an item of that name, or a line for debugging.
  if ((mark == 'D' || mark == 'd') && isLevel(trimmed(sequence))) return 0;
  // A word across the border: "PROGRAM-ID", "WORKING-STORAGE".
  if (mark == '-' || mark == 'D' || mark == 'd') {
    return isWordCharacter(columns[indicator - 1]) && columns.size() > indicator + 1 &&
                   isWordCharacter(columns[indicator + 1])
               ? -1
               : 1;
  }
  return 0;
}

bool setsFormat(std::string_view line) {
  const std::string_view text = trimmed(line);
  if (text.substr(0, 2) != ">>" && text.find('$') == std::string_view::npos) return false;
  const std::size_t mark = text.substr(0, 2) == ">>" ? 0 : text.find('$');
  std::string folded(text.substr(mark, 80));
  std::transform(folded.begin(), folded.end(), folded.begin(), [](char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
  });
  return (folded.front() == '>' || isDollarDirective(folded)) &&
         (folded.find("SOURCE") != std::string::npos);
}

// Each character as one byte.
std::string oneByteEach(std::string_view line) {
  std::string columns;
  columns.reserve(line.size());
  std::copy_if(line.begin(), line.end(), std::back_inserter(columns),
               [](char character) { return !isWithinCharacter(character); });
  return columns;
}

// Whether a line that goes on behind column 72 was written without a right margin: a literal that
// is open there and is ended behind, text that stands behind column 80 with nothing where the
// identification would be, or text that runs through the whole of it.
enum class BehindMargin { nothing, ended, open };

BehindMargin behindMargin(std::string_view text) {
  constexpr std::size_t margin = 72;
  constexpr std::size_t record = 80;
  if (text.size() <= margin) return BehindMargin::nothing;
  const std::string columns = oneByteEach(text);
  const std::string_view line = columns;
  if (line.size() <= margin || line.find('\t') != std::string_view::npos) {
    return BehindMargin::nothing;
  }
  const char mark = line[indicator];
  if (mark == '*' || mark == '/' || mark == '$') return BehindMargin::nothing;
  QuoteState quotes;
  const bool hasComment =
      quotes.read(line.substr(indicator + 1, margin - indicator - 1)) != std::string_view::npos;
  if (hasComment) return BehindMargin::nothing;
  if (quotes.isOpen()) {
    return line.find(quotes.quote(), margin) == std::string_view::npos ? BehindMargin::nothing
                                                                       : BehindMargin::open;
  }
  if (line.size() <= record) return BehindMargin::nothing;
  const std::string_view identification = line.substr(margin, record - margin);
  // What stands far behind the end of a sentence is a remark.
  const std::string_view code = trimmed(line.substr(indicator + 1, margin - indicator - 1));
  const bool isBlankThere = trimmed(identification).empty() && (code.empty() || code.back() != '.');
  const bool runsThrough = isAll(line.substr(margin - 1, record - margin + 2), isWordCharacter);
  const bool isMore = !trimmed(line.substr(record)).empty();
  return isMore && (isBlankThere || runsThrough) ? BehindMargin::ended : BehindMargin::nothing;
}

bool isContinuation(std::string_view line) {
  return line.size() > indicator && line[indicator] == '-';
}

// A literal that is open at the margin goes on there when no continuation follows.
bool hasNoMargin(std::string_view text) {
  bool isOpen = false;
  for (std::size_t lines = 0; lines < mostLines && !text.empty(); lines++) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (trimmed(line).empty()) continue;
    if (isOpen && !isContinuation(line)) return true;
    const BehindMargin behind = behindMargin(line);
    if (behind == BehindMargin::ended) return true;
    isOpen = behind == BehindMargin::open;
  }
  return isOpen;
}

struct Votes {
  int fixed = 0;
  int free = 0;
};

Votes votesOf(std::string_view text) {
  Votes votes;
  for (std::size_t lines = 0; lines < mostLines && !text.empty(); lines++) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (setsFormat(line)) break;
    const int vote = voteOf(line);
    (vote > 0 ? votes.fixed : votes.free) += std::abs(vote);
  }
  return votes;
}

SourceFormat withMargin(SourceFormat format, std::string_view text) {
  return format == SourceFormat::fixed && hasNoMargin(text) ? SourceFormat::variable : format;
}

}  // namespace

SourceFormat recognisedFormat(std::string_view text, SourceFormat otherwise) {
  const Votes votes = votesOf(text);
  const SourceFormat format = votes.fixed == votes.free  ? otherwise
                              : votes.fixed > votes.free ? SourceFormat::fixed
                                                         : SourceFormat::free;
  return withMargin(format, text);
}

SourceFormat copybookFormat(std::string_view text, SourceFormat around, bool isTold) {
  const Votes votes = votesOf(text);
  const bool isFreeAround = around == SourceFormat::free;
  const int same = isFreeAround ? votes.free : votes.fixed;
  const int other = isFreeAround ? votes.fixed : votes.free;
  const bool isClear = other >= strongVote && other > 2 * same;
  if (!isClear) return isTold ? around : withMargin(around, text);
  return isFreeAround ? withMargin(SourceFormat::fixed, text) : SourceFormat::free;
}

}  // namespace as::toolkit
