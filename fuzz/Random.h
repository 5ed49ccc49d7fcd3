// The one source of chance of a mutation: the same seed makes the same mutation.
#ifndef FUZZ_RANDOM_H_
#define FUZZ_RANDOM_H_

#include <cstddef>
#include <random>

namespace fuzz {

class Random {
 public:
  explicit Random(unsigned int seed) : engine_(seed) {}

  // A number from 0 to `count` - 1; 0 for no count at all.
  std::size_t below(std::size_t count) { return count < 2 ? 0 : engine_() % count; }
  // True `percent` times in a hundred.
  bool chance(std::size_t percent) { return below(100) < percent; }
  // One of the members, which there are.
  template <class Container>
  const typename Container::value_type& oneOf(const Container& members) {
    return members[below(members.size())];
  }
  template <class T, std::size_t N>
  const T& oneOf(const T (&members)[N]) {
    return members[below(N)];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace fuzz

#endif  // FUZZ_RANDOM_H_
