// Measures the whole job against others' ways of doing it, those that were there when this was
// built.
#include <benchmark/benchmark.h>

#include <memory>

#include "Compare.h"
#include "Documents.h"
#include "WholeJob.h"

namespace {

using Job = bench::Reading (*)(const std::string&);

struct Peer {
  const char* name;
  Job job;
};

constexpr Peer peers[] = {
    {"ours", bench::jobOfOurs},
#ifdef AS_WITH_BINDINGS
    {"bindings", bench::jobOfBindings},
#endif
#ifdef AS_WITH_LIBXML2
    {"libxml2", bench::jobOfLibxml2},
#endif
};

// Adds what takes the time of a job, and looks at what it has read.
template <class Work>
bench::Side sideOf(benchmark::State& state, const char* name, const bench::Reading& expected,
                   const Work& work) {
  return {name, [&state, &expected, work] {
            bench::Reading read;
            const double seconds = bench::timed([&] { read = work(); });
            if (!(read == expected)) state.SkipWithError("something else was read");
            return seconds;
          }};
}

void wholeJob(benchmark::State& state) {
  const std::string text = bench::dictionary(state.range(0));
  const bench::Reading expected = bench::jobOfOurs(text);
  std::vector<bench::Side> sides;
  for (const Peer& peer : peers) {
    const Job job = peer.job;
    sides.push_back(sideOf(state, peer.name, expected, [&text, job] { return job(text); }));
  }
  bench::compare(state, sides, bench::roundsFor(state.range(0)));
}
BENCHMARK(wholeJob)->Apply(bench::bySize);

#ifdef AS_WITH_BINDINGS
// The same with schemas that have been read before.
void wholeJobAgain(benchmark::State& state) {
  const std::string text = bench::dictionary(state.range(0));
  const bench::Reading expected = bench::jobOfOurs(text);
  const std::unique_ptr<bench::Keeper> ours = bench::keeperOfOurs();
  const std::unique_ptr<bench::Keeper> bindings = bench::keeperOfBindings();
  ours->job(text);
  bench::compare(state,
                 {sideOf(state, "ours", expected, [&] { return ours->job(text); }),
                  sideOf(state, "bindings", expected, [&] { return bindings->job(text); })},
                 bench::roundsFor(state.range(0)));
}
BENCHMARK(wholeJobAgain)->Apply(bench::bySize);
#endif

}  // namespace
