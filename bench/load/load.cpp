// usage: load LIBRARY OTHER lazy|now
//
// Loads one of the two libraries after the other, each time in a new process that has neither, and
// prints the median of what the first takes to what the other takes, and what the first takes, in
// seconds. "now" has every function looked up while the library is loaded, "lazy" as it is called.
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <vector>

#include "Rounds.h"

namespace {

// The seconds that loading takes in a process of its own; below 0 when it cannot be loaded.
double secondsToLoad(const char* library, int binding) {
  int ends[2];
  if (::pipe(ends) != 0) return -1;
  const pid_t child = ::fork();
  if (child == 0) {
    void* loaded = nullptr;
    double seconds = bench::timed([&] { loaded = ::dlopen(library, binding); });
    if (loaded == nullptr) {
      static_cast<void>(std::fprintf(stderr, "%s\n", ::dlerror()));
      seconds = -1;
    }
    const bool isTold = ::write(ends[1], &seconds, sizeof(seconds)) == sizeof(seconds);
    ::_exit(isTold ? 0 : 1);
  }
  ::close(ends[1]);
  double seconds = -1;
  if (::read(ends[0], &seconds, sizeof(seconds)) != sizeof(seconds)) seconds = -1;
  ::close(ends[0]);
  ::waitpid(child, nullptr, 0);
  return seconds;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) return 2;
  const int binding = std::strcmp(arguments[3], "now") == 0 ? RTLD_NOW : RTLD_LAZY;
  constexpr int rounds = 101;
  bench::Rounds made({{"first", [&] { return secondsToLoad(arguments[1], binding); }},
                      {"other", [&] { return secondsToLoad(arguments[2], binding); }}});
  for (int round = 0; round < rounds; round++) made.run();
  if (made.seconds(0) <= 0 || made.seconds(1) <= 0) return 1;
  std::printf("%.6f %.9f\n", made.firstTo(1), made.seconds(0));
  return 0;
}
