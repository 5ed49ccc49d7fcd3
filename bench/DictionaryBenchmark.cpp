// Measures what the model costs over the bare XML parser, and what reading it costs.
#include <benchmark/benchmark.h>

#include "Bare.h"
#include "Compare.h"
#include "Documents.h"
#include "WholeJob.h"

namespace {

void parseDictionary(benchmark::State& state) {
  const std::string text = bench::dictionary(state.range(0));
  const auto bare = [&](bench::Blanks blanks) {
    return [&text, blanks] {
      return bench::timed([&] { bench::parseBare(text, "vorcobol.xsd", blanks); });
    };
  };
  bench::compare(state,
                 {{"ours", [&] { return bench::timed([&] { bench::parseDictionary(text); }); }},
                  {"bare", bare(bench::Blanks::kept)},
                  {"bare_without_blanks", bare(bench::Blanks::dropped)}},
                 bench::roundsFor(state.range(0)));
}
BENCHMARK(parseDictionary)->Apply(bench::bySize);

// Every accessor of every item, against parsing the dictionary.
void readAccessors(benchmark::State& state) {
  const std::string text = bench::dictionary(state.range(0));
  std::unique_ptr<as::IProgram> program;
  const auto parse = [&] {
    program.reset();
    return bench::timed([&] { program = bench::parseDictionary(text); });
  };
  parse();
  const auto read = [&] {
    return bench::timed([&] {
      if (bench::readEverything(*program).items != state.range(0)) {
        state.SkipWithError("not every item was read");
      }
    });
  };
  bench::compare(state, {{"ours", read}, {"parse", parse}}, bench::roundsFor(state.range(0)));
}
BENCHMARK(readAccessors)->Apply(bench::bySize);

}  // namespace
