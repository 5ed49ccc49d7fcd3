#include "cli/Progress.h"

#include <unistd.h>

#include <iostream>
#include <string>

namespace cli {

namespace {

constexpr std::size_t few = 10;
constexpr std::size_t width = 30;

}  // namespace

Progress::Progress(std::size_t pieces, bool isQuiet)
    : pieces_(pieces), isWatched_(pieces > few && !isQuiet && ::isatty(STDERR_FILENO) != 0) {}

void Progress::clear() const {
  if (isWatched_) std::cerr << "\r\x1B[K";
}

void Progress::show(std::size_t done) const {
  if (!isWatched_) return;
  // What was written to standard output comes in front of it.
  std::cout.flush();
  const std::size_t filled = width * done / pieces_;
  std::cerr << "\r[" << std::string(filled, '#') << std::string(width - filled, '.') << "] " << done
            << " of " << pieces_;
  if (done == pieces_) clear();
  std::cerr.flush();
}

}  // namespace cli
