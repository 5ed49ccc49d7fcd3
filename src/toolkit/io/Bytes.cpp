#include "toolkit/io/Bytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

namespace {

// What never ends, a device, is not to take all memory.
constexpr std::size_t mostBytes = std::size_t{1} << 30U;

}  // namespace

bool readAll(int descriptor, std::string& bytes) {
  std::array<char, 65536> part{};
  for (;;) {
    if (bytes.size() > mostBytes) {
      errno = EFBIG;
      return false;
    }
    const ssize_t got = ::read(descriptor, part.data(), part.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return got == 0;
    bytes.append(part.data(), static_cast<std::size_t>(got));
  }
}

bool readRegularFile(const std::string& file, std::string& bytes) {
  // A pipe that nobody writes to keeps nobody waiting so.
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return false;
  struct stat state = {};
  const bool isRead =
      ::fstat(descriptor, &state) == 0 && S_ISREG(state.st_mode) && readAll(descriptor, bytes);
  ::close(descriptor);
  return isRead;
}

DocumentSource documentFrom(int descriptor, const std::string& name) {
  DocumentSource source{name, std::string()};
  if (!readAll(descriptor, *source.text)) {
    throw RefusedDocument(
        {name, 0, 0, "cannot be read: " + std::generic_category().message(errno), ""});
  }
  return source;
}

}  // namespace as::toolkit
