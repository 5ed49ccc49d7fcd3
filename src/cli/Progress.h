// Tells on a terminal how far a long piece of work is.
#ifndef CLI_PROGRESS_H_
#define CLI_PROGRESS_H_

#include <cstddef>

namespace cli {

// A bar in the last line of standard error, where that is a terminal and the pieces are many.
class Progress {
 public:
  Progress(std::size_t pieces, bool isQuiet);

  // To be called before anything else is written: takes the bar away.
  void clear() const;
  // When so many pieces are done: draws it anew.
  void show(std::size_t done) const;

 private:
  std::size_t pieces_;
  bool isWatched_;
};

}  // namespace cli

#endif  // CLI_PROGRESS_H_
