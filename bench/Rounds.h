// Comparing in rounds: each side once a round, so that whatever else the machine does meets all.
#ifndef BENCH_ROUNDS_H_
#define BENCH_ROUNDS_H_

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// The seconds of processor time that this thread has had. (The time of day goes on while others
// have the processor.)
double processorSeconds();

// The seconds of processor time that `work` takes.
template <class Work>
double timed(const Work& work) {
  const double start = processorSeconds();
  work();
  return processorSeconds() - start;
}

// The value in the middle, between the two in the middle where these are two. REQUIRES: not empty.
double median(std::vector<double> values);

// One of those that are compared.
struct Side {
  std::string name;
  // Does its work once, and answers the seconds that count of it.
  std::function<double()> run;
};

class Rounds {
 public:
  explicit Rounds(std::vector<Side> sides) : sides_(std::move(sides)) {}

  // Runs each side once; the side that begins is another each time. Every one finds a heap that
  // has given back what it does not need. Answers the seconds of the first side.
  double run();

  const std::vector<Side>& sides() const { return sides_; }
  // The median of what a side took.
  double seconds(std::size_t side) const { return median(of(side)); }
  // The median of what the first side took to what that side took in the same round.
  double firstTo(std::size_t side) const;

 private:
  std::vector<double> of(std::size_t side) const;

  std::vector<Side> sides_;
  std::vector<std::vector<double>> taken_;  // A row a round.
};

}  // namespace bench

#endif  // BENCH_ROUNDS_H_
