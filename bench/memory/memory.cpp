// usage: memory SIDE ITEMS
//
// Does one job with a dictionary of so many items, once, and prints the most bytes of the heap that
// it had allocated at a time, and the most memory that the process had. Allocations are counted by
// this program's own operator new, which everything in the process has its memory from but C's.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <new>
#include <string>

#include "Bare.h"
#include "Documents.h"
#include "WholeJob.h"

namespace {

std::size_t held = 0;
std::size_t most = 0;

void* count(void* made) {
  if (made == nullptr) throw std::bad_alloc();
  held += ::malloc_usable_size(made);
  most = std::max(most, held);
  return made;
}

void release(void* gone) {
  held -= ::malloc_usable_size(gone);
  std::free(gone);
}

// The most memory that the process had, in bytes.
double mostResident() {
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0;
  while (status >> word) {
    if (word == "VmHWM:") status >> kilobytes;
  }
  return 1024 * kilobytes;
}

bool run(const std::string& side, const std::string& text) {
  if (side == "parse") {
    bench::parseDictionary(text);
  } else if (side == "bare") {
    bench::parseBare(text, "vorcobol.xsd", bench::Blanks::kept);
  } else if (side == "bare_without_blanks") {
    bench::parseBare(text, "vorcobol.xsd", bench::Blanks::dropped);
  } else if (side == "job") {
    bench::jobOfOurs(text);
#ifdef AS_WITH_BINDINGS
  } else if (side == "bindings") {
    bench::jobOfBindings(text);
#endif
#ifdef AS_WITH_LIBXML2
  } else if (side == "libxml2") {
    bench::jobOfLibxml2(text);
#endif
  } else {
    return false;
  }
  return true;
}

}  // namespace

void* operator new(std::size_t size) { return count(std::malloc(std::max<std::size_t>(size, 1))); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto unit = static_cast<std::size_t>(alignment);
  return count(std::aligned_alloc(unit, (size + unit - 1) / unit * unit));
}
void operator delete(void* gone) noexcept { release(gone); }
void operator delete(void* gone, std::size_t /*size*/) noexcept { release(gone); }
void operator delete(void* gone, std::align_val_t /*alignment*/) noexcept { release(gone); }
void operator delete(void* gone, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
  release(gone);
}

int main(int count, char** arguments) {
  if (count != 3) return 2;
  const std::string text = bench::dictionary(std::atol(arguments[2]));
  const std::size_t before = held;
  most = held;
  if (!run(arguments[1], text)) return 2;
  std::printf("%zu %.0f\n", most - before, mostResident());
  return 0;
}
