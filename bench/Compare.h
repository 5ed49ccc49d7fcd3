// How a comparison in rounds becomes a benchmark.
#ifndef BENCH_COMPARE_H_
#define BENCH_COMPARE_H_

#include <benchmark/benchmark.h>

#include <vector>

#include "Rounds.h"

namespace bench {

// As many rounds as tell something, fewer of those that take long. The variable AS_BENCH_ROUNDS of
// the environment says otherwise.
int roundsFor(long items);

// Runs so many rounds as the one iteration of the benchmark; counts "to_<name>" for each side
// behind the first. The time of the benchmark is what the first side takes.
Rounds compare(benchmark::State& state, std::vector<Side> sides, int rounds);

// What is common to all benchmarks; put behind BENCHMARK() by ->Apply.
void inRounds(benchmark::internal::Benchmark* benchmark);
// The same with these numbers of items.
void bySize(benchmark::internal::Benchmark* benchmark);

}  // namespace bench

#endif  // BENCH_COMPARE_H_
