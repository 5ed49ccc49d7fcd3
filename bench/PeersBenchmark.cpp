// Measures the whole job against others' ways of doing it, those that were there when this was
// built.
#include <benchmark/benchmark.h>

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

void wholeJob(benchmark::State& state) {
  const std::string text = bench::dictionary(state.range(0));
  const bench::Reading expected = bench::jobOfOurs(text);
  std::vector<bench::Side> sides;
  for (const Peer& peer : peers) {
    const Job job = peer.job;
    sides.push_back({peer.name, [&state, &text, &expected, job] {
                       bench::Reading read;
                       const double seconds = bench::timed([&] { read = job(text); });
                       if (!(read == expected)) state.SkipWithError("something else was read");
                       return seconds;
                     }});
  }
  bench::compare(state, sides, bench::roundsFor(state.range(0)));
}
BENCHMARK(wholeJob)->Apply(bench::bySize);

}  // namespace
