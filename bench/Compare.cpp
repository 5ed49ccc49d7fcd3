#include "Compare.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace bench {

int roundsFor(long items) {
  constexpr long itemsInAll = 300000;
  if (const char* const told = std::getenv("AS_BENCH_ROUNDS")) return std::max(1, std::atoi(told));
  return static_cast<int>(std::clamp(itemsInAll / items, 3L, 101L));
}

Rounds compare(benchmark::State& state, std::vector<Side> sides, int rounds) {
  Rounds made(std::move(sides));
  for ([[maybe_unused]] auto _ : state) {
    for (int round = 0; round < rounds; round++) made.run();
    state.SetIterationTime(made.seconds(0));
  }
  for (std::size_t side = 1; side < made.sides().size(); side++) {
    state.counters["to_" + made.sides()[side].name] = made.firstTo(side);
  }
  return made;
}

void inRounds(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
}

void bySize(benchmark::internal::Benchmark* benchmark) {
  inRounds(benchmark);
  for (const long items : {50, 1000, 5000, 50000, 1000000}) benchmark->Arg(items);
}

}  // namespace bench
