// Measures services: reading them, finding what their mappings lead to, checking and writing them.
#include <benchmark/benchmark.h>

#include "Bare.h"
#include "Compare.h"
#include "Documents.h"
#include "Folder.h"
#include "Services.h"
#include "as/CAgentServicesFactory.h"
#include "as/toolkit/Lint.h"

namespace {

using bench::timed;

// Web services with so many parameters, ten in each operation, besides those of headers and faults.
void parseService(benchmark::State& state) {
  const std::string text = bench::service(bench::web, state.range(0) / 10, "BENCH.xml");
  const auto ours = [&] { return timed([&] { bench::parseServiceText(text); }); };
  const auto bare = [&] {
    return timed([&] { bench::parseBare(text, bench::web.schema, bench::Blanks::kept); });
  };
  bench::compare(state, {{"ours", ours}, {"bare", bare}}, bench::roundsFor(state.range(0)));
}
BENCHMARK(parseService)->Apply(bench::bySize);

// What is done with a service that has its program, each against parsing the two documents. The
// program has ten items for each operation.
void useService(benchmark::State& state, const bench::Flavour& flavour) {
  const long operations = state.range(0);
  const long mappings = bench::mappingsOf(flavour) * operations;
  const bench::Folder folder;
  const std::string dictionary = folder.write("program.xml", bench::recordsAndEntries(operations));
  const std::string file =
      folder.write("service.xml", bench::service(flavour, operations, dictionary));
  std::unique_ptr<as::IService> service;
  const auto parse = [&] {
    service.reset();
    return timed([&] { service = bench::loadServiceFile(file); });
  };
  // The program is new each time: what it keeps to find things by is made anew.
  const auto resolve = [&] {
    parse();
    return timed([&] {
      if (bench::resolveMappings(*service) != mappings) {
        state.SkipWithError("a mapping leads nowhere");
      }
    });
  };
  const auto lint = [&] {
    parse();
    return timed([&] { benchmark::DoNotOptimize(as::toolkit::lint(*service)); });
  };
  const int rounds = bench::roundsFor(10 * operations);
  const bench::Rounds made =
      bench::compare(state, {{"resolve", resolve}, {"parse", parse}, {"lint", lint}}, rounds);
  state.counters.clear();
  state.counters["resolve_to_parse"] = made.firstTo(1);
  state.counters["lint_to_parse"] = made.seconds(2) / made.seconds(1);
}

void bySizeOfService(benchmark::internal::Benchmark* benchmark) {
  bench::inRounds(benchmark);
  benchmark->Arg(200)->Arg(2000);
}
BENCHMARK_CAPTURE(useService, Java, bench::java)->Apply(bySizeOfService);
BENCHMARK_CAPTURE(useService, Web, bench::web)->Apply(bySizeOfService);

// Writing a service that is laid out already, against the parser's own writer on the tree of the
// same text.
void writeService(benchmark::State& state) {
  const long operations = state.range(0);
  const auto written = [](as::IService& service) {
    return as::CAgentServicesFactory::SerializeToString(&service);
  };
  const std::string text =
      written(*bench::parseServiceText(bench::service(bench::web, operations, "BENCH.xml")));
  const std::unique_ptr<as::IService> service = bench::parseServiceText(text);
  const auto ours = [&] {
    std::string again;
    const double seconds = timed([&] { again = written(*service); });
    if (again != text) state.SkipWithError("something else was written");
    return seconds;
  };
  const auto bare = [&] { return bench::secondsToWriteBare(text); };
  bench::compare(state, {{"ours", ours}, {"bare", bare}}, bench::roundsFor(10 * operations));
  state.counters["megabytes"] = 1e-6 * static_cast<double>(text.size());
}
BENCHMARK(writeService)->Apply(bench::inRounds)->Arg(200)->Arg(1800);

}  // namespace
