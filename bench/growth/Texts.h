// What texts that are made to a size are put together of.
#ifndef BENCH_GROWTH_TEXTS_H_
#define BENCH_GROWTH_TEXTS_H_

#include <string>

namespace growth {

inline std::string number(int i) { return std::to_string(i); }

// part(0) part(1) ... part(count - 1)
template <class Part>
std::string repeat(int count, const Part& part) {
  std::string text;
  for (int i = 0; i < count; i++) text += part(i);
  return text;
}

}  // namespace growth

#endif  // BENCH_GROWTH_TEXTS_H_
