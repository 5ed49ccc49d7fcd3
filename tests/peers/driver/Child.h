// The life of the process that is given one file.
#ifndef TESTS_PEERS_DRIVER_CHILD_H_
#define TESTS_PEERS_DRIVER_CHILD_H_

#include <cstddef>
#include <filesystem>

#include "Record.h"

namespace peers {

struct Limits {
  unsigned seconds = 10;   // Of the processor's time, of one request.
  unsigned patience = 60;  // In seconds that go by, whoever has the processor.
  unsigned memory = 1024;  // In MiB.
  bool mayMisbehave = false;
};

struct Surroundings {
  std::filesystem::path schemas;  // The folder of the shipped schemas.
  std::filesystem::path work;     // One that the child has for itself; see Requests.
};

// Makes the requests about `file`, from number `first` on, and notes in `record` what they come to.
// A request that takes too long, or more memory than it may, ends the process.
void liveFor(const std::filesystem::path& file, std::size_t first, const Surroundings& surroundings,
             const Limits& limits, Record& record);

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_CHILD_H_
