#include "Rounds.h"

#include <malloc.h>

#include <algorithm>
#include <ctime>

namespace bench {

double processorSeconds() {
  timespec now{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  if (values.size() % 2 == 1) return values[middle];
  return (values[middle - 1] + values[middle]) / 2;
}

double Rounds::run() {
  std::vector<double> round(sides_.size());
  for (std::size_t i = 0; i < sides_.size(); i++) {
    const std::size_t side = (i + taken_.size()) % sides_.size();
    ::malloc_trim(0);
    round[side] = sides_[side].run();
  }
  taken_.push_back(round);
  return round[0];
}

double Rounds::firstTo(std::size_t side) const {
  std::vector<double> ratios;
  for (const std::vector<double>& round : taken_) ratios.push_back(round[0] / round[side]);
  return median(ratios);
}

std::vector<double> Rounds::of(std::size_t side) const {
  std::vector<double> values;
  for (const std::vector<double>& round : taken_) values.push_back(round[side]);
  return values;
}

}  // namespace bench
