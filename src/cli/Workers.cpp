#include "cli/Workers.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

namespace cli {

namespace {

bool writeAll(int file, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(file, data, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    data += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

bool readAll(int file, char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t got = ::read(file, data, size);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    data += got;
    size -= static_cast<std::size_t>(got);
  }
  return true;
}

struct Header {
  std::size_t isFine;
  std::size_t messages;
  std::size_t results;
};

bool send(int file, const WorkOutcome& outcome) {
  const Header header = {outcome.isFine ? 1U : 0U, outcome.messages.size(), outcome.results.size()};
  return writeAll(file, reinterpret_cast<const char*>(&header), sizeof header) &&
         writeAll(file, outcome.messages.data(), outcome.messages.size()) &&
         writeAll(file, outcome.results.data(), outcome.results.size());
}

bool receive(int file, WorkOutcome& outcome) {
  Header header = {};
  if (!readAll(file, reinterpret_cast<char*>(&header), sizeof header)) return false;
  outcome.isFine = header.isFine != 0;
  outcome.messages.resize(header.messages);
  outcome.results.resize(header.results);
  return readAll(file, outcome.messages.data(), outcome.messages.size()) &&
         readAll(file, outcome.results.data(), outcome.results.size());
}

// A process that does every `step`-th piece from `first` on.
class Worker {
 public:
  Worker() = default;
  ~Worker() {
    if (file_ >= 0) ::close(file_);
    while (process_ > 0 && ::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  // `others` are the ones that were started before. The number of the error if it cannot start,
  // else 0.
  int start(const std::vector<std::unique_ptr<Worker>>& others, std::size_t first, std::size_t step,
            std::size_t count, const std::function<WorkOutcome(std::size_t)>& work) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return errno;
    file_ = ends[0];
    process_ = ::fork();
    if (process_ < 0) {
      const int error = errno;
      ::close(ends[1]);
      return error;
    }
    if (process_ == 0) {
      ::close(ends[0]);
      // Who writes to a pipe that nobody reads is to be told so, and not to wait for this process.
      for (const std::unique_ptr<Worker>& other : others) ::close(other->file_);
      try {
        bool isHeard = true;
        for (std::size_t i = first; i < count && isHeard; i += step) {
          isHeard = send(ends[1], work(i));
        }
      } catch (const std::exception&) {
        // The piece counts as not done.
      }
      ::_exit(0);
    }
    ::close(ends[1]);
    return 0;
  }

  WorkOutcome next() const {
    WorkOutcome outcome;
    if (!receive(file_, outcome)) outcome = {};
    return outcome;
  }

 private:
  int file_ = -1;
  pid_t process_ = -1;
};

}  // namespace

void workThrough(std::size_t count, std::size_t processes,
                 const std::function<WorkOutcome(std::size_t)>& work,
                 const std::function<void(std::size_t, const WorkOutcome&)>& done) {
  processes = std::min(processes, count);
  if (processes <= 1) {
    for (std::size_t i = 0; i < count; ++i) done(i, work(i));
    return;
  }
  std::vector<std::unique_ptr<Worker>> workers;
  for (std::size_t i = 0; i < processes; ++i) {
    auto worker = std::make_unique<Worker>();
    if (const int error = worker->start(workers, i, processes, count, work); error != 0) {
      // What the others hold is given back first: to say what an error is may take a descriptor.
      worker.reset();
      workers.clear();
      throw std::system_error(error, std::generic_category());
    }
    workers.push_back(std::move(worker));
  }
  for (std::size_t i = 0; i < count; ++i) done(i, workers[i % processes]->next());
}

}  // namespace cli
