// Measures the memory that a dictionary takes at most, in processes of its own: see memory/.
#include <benchmark/benchmark.h>

#include "Compare.h"
#include "Program.h"

namespace {

struct Peak {
  double heap = 0;      // Bytes that were allocated and not yet freed.
  double resident = 0;  // The most memory that the process had.
};

Peak peakOf(const std::string& side, long items) {
  const std::vector<double> numbers =
      bench::numbersOf({AS_MEMORY_PROGRAM, side, std::to_string(items)});
  return {numbers.at(0), numbers.at(1)};
}

// The heap is the same in every process, and so nearly is what the process has.
void peakMemory(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    const long items = state.range(0);
    const Peak ours = peakOf("parse", items);
    const auto tell = [&](const std::string& name, const Peak& peak, const Peak& other) {
      state.counters["heap_to_" + name] = peak.heap / other.heap;
      state.counters["resident_to_" + name] = peak.resident / other.resident;
    };
    tell("bare", ours, peakOf("bare", items));
    tell("bare_without_blanks", ours, peakOf("bare_without_blanks", items));
    const Peak job = peakOf("job", items);
#ifdef AS_WITH_BINDINGS
    tell("bindings", job, peakOf("bindings", items));
#endif
#ifdef AS_WITH_LIBXML2
    // Its heap is C's.
    state.counters["resident_to_libxml2"] = job.resident / peakOf("libxml2", items).resident;
#endif
    state.counters["bytes_per_item"] = ours.heap / static_cast<double>(items);
    state.SetIterationTime(0);
  }
}
BENCHMARK(peakMemory)->Apply(bench::inRounds)->Arg(5000)->Arg(50000);

}  // namespace
