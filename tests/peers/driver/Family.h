// Has every file tried in a process of its own, several at a time. Where a process ends early,
// another goes on with the next request.
#ifndef TESTS_PEERS_DRIVER_FAMILY_H_
#define TESTS_PEERS_DRIVER_FAMILY_H_

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Child.h"
#include "Record.h"

namespace peers {

class Family {
 public:
  // Told of each file when a process for it has ended; see Report::add.
  using Listener = std::function<void(const std::filesystem::path& file, int status,
                                      const Record& record, const std::string& said)>;

  // At most `size` processes at a time, which work below the folder `work`.
  Family(std::size_t size, const std::filesystem::path& schemas, const std::filesystem::path& work,
         const Limits& limits, Listener listener);
  ~Family();
  Family(const Family&) = delete;
  Family& operator=(const Family&) = delete;

  void run(const std::vector<std::filesystem::path>& files);

 private:
  struct Room;

  void fork(Room& room, std::size_t firstRequest);
  // Waits for one of the files to be through; its room is free then.
  Room& wait();

  const Limits limits_;
  const Listener listener_;
  std::vector<std::unique_ptr<Room>> rooms_;
};

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_FAMILY_H_
