// Counts what is allocated, and makes chosen allocations fail. This program's operator new is its
// own: see Allocations.cpp.
#ifndef TESTS_MEMORY_ALLOCATIONS_H_
#define TESTS_MEMORY_ALLOCATIONS_H_

#include <cstddef>

namespace memory {

// How many blocks the library and the tests hold. What the XML parser allocates for itself, the DOM
// included, counts apart: it does not promise to lose nothing.
long held();
// How many blocks the XML parser has been given so far.
long givenToParser();

// Which allocations fail, while an object of this lives.
class Failing {
 public:
  enum Whose { anybodys, ours };

  // The allocation number `n` from now on, counted from 1, and none after it.
  explicit Failing(long n, Whose whose = anybodys);
  // Every one of that many bytes.
  static Failing ofSize(std::size_t size);
  ~Failing();
  Failing(const Failing&) = delete;
  Failing& operator=(const Failing&) = delete;

  // Whether one has failed.
  static bool happened();

 private:
  Failing() = default;
};

}  // namespace memory

#endif  // TESTS_MEMORY_ALLOCATIONS_H_
