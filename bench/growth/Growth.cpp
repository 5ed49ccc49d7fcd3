#include "Growth.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace growth {

namespace {

// The processor's time that the work takes, in milliseconds.
double millisecondsOf(const Work& work) {
  const auto now = [] {
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
  };
  const double begin = now();
  work();
  return now() - begin;
}

double medianOf(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

int size() {
  const char* const wanted = std::getenv("AS_GROWTH");
  return wanted == nullptr ? 2500 : std::atoi(wanted);
}

// `prepare(n)` is the work with n of what is measured.
void measure(benchmark::State& state, int n, const std::function<Work(int)>& prepare) {
  constexpr int rounds = 3;
  std::vector<double> once;
  std::vector<double> fourfold;
  for ([[maybe_unused]] auto _ : state) {
    for (int round = 0; round < rounds; round++) {
      once.push_back(millisecondsOf(prepare(n)));
      fourfold.push_back(millisecondsOf(prepare(4 * n)));
    }
    state.SetIterationTime(1e-3 * medianOf(fourfold));
  }
  state.counters["n"] = n;
  state.counters["ms"] = medianOf(once);
  state.counters["fourfold"] = medianOf(fourfold) / medianOf(once);
}

}  // namespace

void add(const std::string& name, int most, const std::function<Work(int)>& prepare) {
  const auto run = [most, prepare](benchmark::State& state) {
    measure(state, std::min(size(), most), prepare);
  };
  benchmark::RegisterBenchmark(("growth/" + name).c_str(), run)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1);
}

}  // namespace growth
