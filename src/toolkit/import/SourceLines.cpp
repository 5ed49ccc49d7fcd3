#include "toolkit/import/SourceLines.h"

#include <algorithm>
#include <cstring>

#include "toolkit/import/Characters.h"
#include "toolkit/import/LineText.h"
#include "toolkit/import/QuoteState.h"

namespace as::toolkit {

namespace {

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

}  // namespace

SourceLines::SourceLines(const SourceText& text, SourceFormat format, std::int32_t file,
                         TextArena& arena, SourceReport& report)
    : text_(text.text),
      layout_(text, format, file, arena, report),
      file_(file),
      arena_(arena),
      report_(report) {}

bool SourceLines::layNext(LaidLine& laid) {
  if (at_ >= text_.size()) return false;
  const char* const begin = text_.data() + at_;
  const std::size_t left = text_.size() - at_;
  const auto* const end = static_cast<const char*>(std::memchr(begin, '\n', left));
  const std::size_t size = end == nullptr ? left : static_cast<std::size_t>(end - begin);
  at_ += size + 1;
  number_++;
  laid.number = number_;
  layout_.lay({begin, size}, laid);
  return true;
}

bool SourceLines::isCode(const LaidLine& laid) const {
  return laid.kind == LineKind::code || laid.kind == LineKind::continuation ||
         (laid.kind == LineKind::debugging && debugging_);
}

// Lines for debugging are left to be looked at when it is known whether they are code.
void SourceLines::findAhead() {
  while (!hasAhead_ && layNext(ahead_)) hasAhead_ = ahead_.kind != LineKind::blank;
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
    if (current_.kind == LineKind::directive && current_.text.size() > 2 &&
        beginsWord(current_.text.substr(2), "D")) {
      const std::string_view code = current_.text.substr(3);
      const std::int32_t column = current_.column + 3;
      current_.setText(code, column);
      current_.kind = current_.text.empty() ? LineKind::blank : LineKind::debugging;
    }
  } while (current_.kind != LineKind::directive && !isCode(current_));
  line.text = current_.text;
  line.number = current_.number;
  line.column = current_.column;
  line.isPlain = current_.isPlain;
  line.areaA = current_.areaA;
  line.isDirective = current_.kind == LineKind::directive;
  line.seams.clear();
  if (line.isDirective) return true;
  // Another program, with options of its own, may follow.
  layout_.setCodeSeen(!isEndOfProgram(line.text));
  const bool endsInDash =
      line.text.size() > 1 && line.text.back() == '-' && isQuote(line.text[line.text.size() - 2]);
  const bool canGoOn = format() != SourceFormat::free || endsInDash || endsInLiteral(line.text);
  if (!canGoOn) return true;
  findAhead();
  if (format() == SourceFormat::free && !endsInDash) continueAhead();
  if (hasAhead_ && (ahead_.kind == LineKind::continuation || endsInDash)) join(line);
  return true;
}

// A dash in column 1 continues a literal where lines have an indicator there.
void SourceLines::continueAhead() {
  if (!hasAhead_ || ahead_.column != 1 || ahead_.text.front() != '-') return;
  const std::string_view behind = withoutBlanksInFront(ahead_.whole.substr(1));
  if (behind.empty()) return;
  ahead_.column += static_cast<std::int32_t>(ahead_.whole.size() - behind.size());
  ahead_.text = withoutBlanksBehind(behind);
  ahead_.whole = behind;
  ahead_.kind = LineKind::continuation;
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
    if (!hasAhead_ || !(ahead_.kind == LineKind::continuation || (hasDash && isCode(ahead_))))
      break;
    part = ahead_.whole;
    std::size_t skipped = 0;
    if (hasDash && isQuote(part.front()) && part.front() == added[added.size() - 2]) {
      // "abc"-  and  "def"
      joined.resize(first + added.size() - 2);
      quotes.open(part.front());
      skipped = 1;
    } else if (ahead_.kind != LineKind::continuation) {
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
      const bool isAtMargin = format() == SourceFormat::fixed && room == 0 && joined.size() == size;
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
