// Measures what loading the library takes, to loading the XML parser alone: see load/.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Compare.h"
#include "Program.h"

namespace {

double kilobytesOf(const char* file) {
  return 1e-3 * static_cast<double>(std::filesystem::file_size(file));
}

void load(benchmark::State& state, const std::string& binding) {
  for ([[maybe_unused]] auto _ : state) {
    const std::vector<double> numbers =
        bench::numbersOf({AS_LOAD_PROGRAM, AS_LIBRARY, AS_PARSER_ALONE, binding});
    state.counters["to_parser_alone"] = numbers.at(0);
    state.SetIterationTime(numbers.at(1));
  }
  state.counters["kilobytes"] = kilobytesOf(AS_STRIPPED_LIBRARY);
  state.counters["toolkit_kilobytes"] = kilobytesOf(AS_STRIPPED_TOOLKIT);
}
BENCHMARK_CAPTURE(load, lazy, std::string("lazy"))->Apply(bench::inRounds);
BENCHMARK_CAPTURE(load, now, std::string("now"))->Apply(bench::inRounds);

}  // namespace
