#include "Family.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <new>
#include <sstream>
#include <system_error>
#include <utility>

#include "Requests.h"

namespace peers {

namespace fs = std::filesystem;

namespace {

// A file on which so many processes end is bad enough.
constexpr int maxLives = 6;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

Record* newSharedRecord() {
  void* const memory =
      ::mmap(nullptr, sizeof(Record), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) fail("mmap");
  return new (memory) Record;
}

std::string contentOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

}  // namespace

// Where one process at a time lives.
struct Family::Room {
  Room(const fs::path& schemas, const fs::path& work)
      : surroundings{schemas, work}, said(work / "stderr"), record(newSharedRecord()) {
    fs::create_directory(work);
    Requests::prepareFolder(schemas, work);
  }
  ~Room() { ::munmap(record, sizeof(Record)); }
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  const Surroundings surroundings;
  const fs::path said;
  Record* const record;
  fs::path file;
  int lives = 0;      // How many processes may still try the file.
  pid_t process = 0;  // 0 for none.
};

Family::Family(std::size_t size, const fs::path& schemas, const fs::path& work,
               const Limits& limits, Listener listener)
    : limits_(limits), listener_(std::move(listener)) {
  for (std::size_t i = 0; i < size; i++) {
    rooms_.push_back(std::make_unique<Room>(schemas, work / std::to_string(i)));
  }
}

Family::~Family() = default;

void Family::run(const std::vector<fs::path>& files) {
  std::vector<Room*> idle;
  for (const auto& room : rooms_) idle.push_back(room.get());
  for (const fs::path& file : files) {
    if (idle.empty()) idle.push_back(&wait());
    idle.back()->file = file;
    idle.back()->lives = maxLives;
    fork(*idle.back(), 0);
    idle.pop_back();
  }
  for (std::size_t left = rooms_.size() - idle.size(); left > 0; left--) wait();
}

void Family::fork(Room& room, std::size_t firstRequest) {
  *room.record = Record();
  room.lives--;
  // What stands in buffers would be written twice.
  std::fflush(nullptr);
  room.process = ::fork();
  if (room.process < 0) fail("fork");
  if (room.process > 0) return;
  const int said = ::open(room.said.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (said < 0 || ::dup2(said, STDERR_FILENO) < 0) ::_exit(EXIT_FAILURE);
  liveFor(room.file, firstRequest, room.surroundings, limits_, *room.record);
  // Without the parent's ends.
  ::_exit(EXIT_SUCCESS);
}

Family::Room& Family::wait() {
  for (;;) {
    int status = 0;
    const pid_t process = ::wait(&status);
    if (process < 0) fail("wait");
    const auto found = std::find_if(rooms_.begin(), rooms_.end(),
                                    [&](const auto& each) { return each->process == process; });
    if (found == rooms_.end()) continue;
    Room& room = **found;
    room.process = 0;
    listener_(room.file, status, *room.record, contentOf(room.said));
    if (room.record->done || room.lives == 0) return room;
    fork(room, room.record->next);
  }
}

}  // namespace peers
