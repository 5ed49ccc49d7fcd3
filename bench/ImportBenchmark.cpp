// Measures what making a dictionary of a COBOL source costs, over looking at its words.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Compare.h"
#include "as/toolkit/Import.h"

namespace {

constexpr long linesOfCopybook = 20;

// Of so many lines of a program ten describe a record, copybooks and comments among them; the
// others are statements.
constexpr long linesOfTurn = 20;

std::string code(const std::string& text) { return "       " + text; }

// As it is written: with sequence numbers, and identifications behind column 72.
std::string card(long number, std::string text) {
  std::string line = std::to_string(100000 + number % 900000) + text.substr(6);
  line.resize(72, ' ');
  return line + "LARGE   \n";
}

std::string copybookOf(long number) {
  const std::string n = std::to_string(number);
  std::string text;
  for (long i = 0; i < linesOfCopybook; i++) {
    text += code("    05 :TAG:-FIELD-" + n + "-" + std::to_string(i) + "  PIC S9(7)V99 COMP-3.\n");
  }
  return text;
}

// Of so many lines, those of its copybooks counted each time that they are copied.
class Source {
 public:
  explicit Source(long lines) {
    for (long i = 0; i < distinct; i++) copybooks_["CB" + std::to_string(i)] = copybookOf(i);
    for (const char* const line : {"IDENTIFICATION DIVISION.", "PROGRAM-ID. LARGE.",
                                   "DATA DIVISION.", "WORKING-STORAGE SECTION."}) {
      add(code(line));
    }
    const long turns = lines / linesOfTurn;
    for (long i = 0; i < turns; i++) addData(i);
    add(code("PROCEDURE DIVISION."));
    while (lines_ < lines) {
      add(code("    IF STATE-1 = \"O\" AND KEY-1 NOT = ZERO"));
      add(code("        MOVE KEY-1 TO KEY-2 *> and so on"));
      add("      * What a statement is for.");
      add(code("    END-IF."));
    }
  }

  const std::string& text() const { return text_; }
  long lines() const { return lines_; }
  const std::map<std::string, std::string>& copybooks() const { return copybooks_; }

 private:
  static constexpr long distinct = 10;
  static constexpr long turnsOfCopy = 10;

  void add(const std::string& line) { text_ += card(++lines_, line); }

  void addData(long turn) {
    const std::string n = std::to_string(turn);
    add("      *----------------------------------------------------------------");
    add("      * What the next record is for.");
    add(code("01  GROUP-" + n + "."));
    add(code("    05 KEY-" + n + "          PIC 9(8)."));
    add(code("    05 NAME-" + n + "         PIC X(30) VALUE SPACES."));
    add(code("    05 PARTS-" + n + " REDEFINES NAME-" + n + " PIC X(20)."));
    add(code("    05 STATE-" + n + "        PIC X."));
    add(code("       88 IS-OPEN-" + n + "   VALUE \"O\" \"P\"."));
    if (turn % turnsOfCopy != 0) return;
    add(code("    COPY CB" + std::to_string(turn / turnsOfCopy % distinct)));
    add(code("        REPLACING ==:TAG:== BY ==T" + n + "==."));
    lines_ += linesOfCopybook;
  }

  std::string text_;
  long lines_ = 0;
  std::map<std::string, std::string> copybooks_;
};

class Copybooks : public as::toolkit::CopybookProvider {
 public:
  explicit Copybooks(const std::map<std::string, std::string>& texts) : texts_(texts) {}

  std::optional<as::toolkit::Copybook> find(const std::string& name, const std::string&) override {
    const auto found = texts_.find(name);
    if (found == texts_.end()) return std::nullopt;
    return as::toolkit::Copybook{name, found->second};
  }

 private:
  const std::map<std::string, std::string>& texts_;
};

// What looking at every word once comes to.
std::size_t hashOfWords(std::string_view text) {
  std::size_t all = 0;
  while (!text.empty()) {
    const std::size_t begin = text.find_first_not_of(" \n");
    if (begin == std::string_view::npos) break;
    text.remove_prefix(begin);
    const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
    all ^= std::hash<std::string_view>()(text.substr(0, end));
    text.remove_prefix(end);
  }
  return all;
}

void importSource(benchmark::State& state) {
  const Source source(state.range(0));
  const auto import = [&] {
    Copybooks copybooks(source.copybooks());
    return as::toolkit::importCobol(source.text(), "LARGE.cbl", &copybooks);
  };
  if (import().programs.at(0).isRefused()) {
    state.SkipWithError("the source was refused");
    return;
  }
  const auto look = [&] { benchmark::DoNotOptimize(hashOfWords(source.text())); };
  const bench::Rounds rounds = bench::compare(state,
                                              {{"ours", [&] { return bench::timed(import); }},
                                               {"look", [&] { return bench::timed(look); }}},
                                              bench::roundsFor(state.range(0)));
  state.counters["lines_a_second"] = static_cast<double>(source.lines()) / rounds.seconds(0);
}
BENCHMARK(importSource)->Apply(bench::inRounds)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000);

}  // namespace
