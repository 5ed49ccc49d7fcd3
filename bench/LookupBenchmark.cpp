// Measures how looking up what a mapping leads to grows with the program.
#include <benchmark/benchmark.h>

#include "Compare.h"
#include "Documents.h"
#include "Folder.h"
#include "Services.h"

namespace {

// A program of so many top-level items and a service of 100 mappings to them.
class Subject {
 public:
  explicit Subject(long items) : name_(std::to_string(items)) {
    const std::string dictionary = folder_.write("program.xml", bench::flatDictionary(items));
    service_ = bench::loadServiceFile(
        folder_.write("service.xml", bench::spreadMappings(mappings, items, dictionary)));
  }

  const std::string& name() const { return name_; }

  // The seconds that all mappings take a hundred times.
  double resolve(benchmark::State& state) {
    return bench::timed([&] {
      for (int i = 0; i < 100; i++) {
        if (bench::resolveMappings(*service_) != mappings) {
          state.SkipWithError("a mapping leads nowhere");
        }
      }
    });
  }

 private:
  static constexpr int mappings = 100;
  std::string name_;
  bench::Folder folder_;
  std::unique_ptr<as::IService> service_;
};

// A counter tells what a look-up in the largest program takes to one in a program of that size. The
// first look-up of all, for which the program makes what it finds names by, is useService's to
// measure.
void lookUp(benchmark::State& state) {
  std::vector<std::unique_ptr<Subject>> subjects;
  std::vector<bench::Side> sides;
  for (const long items : {100000, 10000, 1000, 100}) {
    subjects.push_back(std::make_unique<Subject>(items));
    Subject* const subject = subjects.back().get();
    subject->resolve(state);
    sides.push_back({subject->name(), [subject, &state] { return subject->resolve(state); }});
  }
  constexpr int rounds = 31;
  bench::compare(state, sides, rounds);
}
BENCHMARK(lookUp)->Apply(bench::inRounds);

}  // namespace
