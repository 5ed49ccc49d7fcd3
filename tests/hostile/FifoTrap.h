// A FIFO in a directory that notices whether it is opened for reading.
#ifndef TESTS_HOSTILE_FIFOTRAP_H_
#define TESTS_HOSTILE_FIFOTRAP_H_

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

#include "support/TempDirectory.h"

namespace hostile {

class FifoTrap {
 public:
  FifoTrap(const test::TempDirectory& directory, const std::string& name)
      : path_(directory.path() + "/" + name) {
    if (::mkfifo(path_.c_str(), S_IRUSR | S_IWUSR) != 0) throw std::runtime_error("no FIFO");
    thread_ = std::thread([this] {
      // Waits for a reader, which gets nothing to read.
      const int end = ::open(path_.c_str(), O_WRONLY);
      opened_ = !leaving_;
      ::close(end);
    });
  }
  ~FifoTrap() { leave(); }
  FifoTrap(const FifoTrap&) = delete;
  FifoTrap& operator=(const FifoTrap&) = delete;

  const std::string& path() const { return path_; }
  // Whether anyone opened it until now. Ends the trap.
  bool wasOpened() {
    leave();
    return opened_;
  }

 private:
  void leave() {
    if (!thread_.joinable()) return;
    leaving_ = true;
    const int end = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK);
    thread_.join();
    ::close(end);
  }

  std::string path_;
  std::atomic<bool> leaving_{false};
  std::atomic<bool> opened_{false};
  std::thread thread_;
};

}  // namespace hostile

#endif  // TESTS_HOSTILE_FIFOTRAP_H_
