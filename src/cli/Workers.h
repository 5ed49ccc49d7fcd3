// Does many pieces of work in several processes.
#ifndef CLI_WORKERS_H_
#define CLI_WORKERS_H_

#include <cstddef>
#include <functional>
#include <string>

namespace cli {

struct WorkOutcome {
  bool isFine = false;
  std::string messages;  // For standard error,
  std::string results;   // and for standard output.
};

// Does `work` for each number below `count`, in so many processes at a time, and hands the outcomes
// to `done` in this one, in the order of the numbers. What a process had to do that ended before
// its time is not fine and says nothing.
void workThrough(std::size_t count, std::size_t processes,
                 const std::function<WorkOutcome(std::size_t)>& work,
                 const std::function<void(std::size_t, const WorkOutcome&)>& done);

}  // namespace cli

#endif  // CLI_WORKERS_H_
