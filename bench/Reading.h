// What reading every attribute of every item of a dictionary gave: the same for whoever read it.
#ifndef BENCH_READING_H_
#define BENCH_READING_H_

#include <cstddef>

namespace bench {

struct Reading {
  long items = 0;
  long long numbers = 0;       // The sum of all.
  std::size_t characters = 0;  // Of all texts together.
  long flags = 0;              // Those that are true.
  // What stands for words, each reader's own numbers: so that words are read, too.
  long long codes = 0;
};

inline bool operator==(const Reading& one, const Reading& other) {
  return one.items == other.items && one.numbers == other.numbers &&
         one.characters == other.characters && one.flags == other.flags;
}

}  // namespace bench

#endif  // BENCH_READING_H_
