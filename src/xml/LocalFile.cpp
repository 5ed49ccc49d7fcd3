#include "xml/LocalFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

using xercesc::XMLExcepts;
using xercesc::XMLPlatformUtils;
using xercesc::XMLPlatformUtilsException;

namespace {

LocalFile::Kind kindOf(const struct stat& status) {
  if (S_ISREG(status.st_mode)) return LocalFile::Kind::regular;
  return S_ISDIR(status.st_mode) ? LocalFile::Kind::directory : LocalFile::Kind::special;
}

// Calls until no signal cuts the call short.
template <class Call>
auto uninterrupted(const Call& call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace

LocalFile::Kind LocalFile::kindAt(const std::string& path) {
  struct stat status = {};
  return ::stat(path.c_str(), &status) == 0 ? kindOf(status) : Kind::missing;
}

LocalFile::LocalFile(const std::string& path, Opening opening) {
  if (opening == Opening::regular) {
    kind_ = kindAt(path);
    if (kind_ != Kind::regular) return;
  }
  const int waiting = opening == Opening::regular ? O_NONBLOCK : 0;
  descriptor_ = uninterrupted(
      [&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | waiting); });
  struct stat status = {};
  if (descriptor_ < 0 || ::fstat(descriptor_, &status) != 0) {
    // A directory that may not be listed is one all the same.
    kind_ = kindAt(path) == Kind::directory ? Kind::directory : Kind::missing;
    return;
  }
  kind_ = kindOf(status);
  if (kind_ != Kind::regular) return;
  end_ = static_cast<std::size_t>(status.st_size);
  // Of what cannot be read the parser would never free what it makes for it.
  char first = 0;
  if (uninterrupted([&] { return ::pread(descriptor_, &first, 1, 0); }) < 0) kind_ = Kind::missing;
}

LocalFile::~LocalFile() {
  // Not again after a signal: the descriptor is gone, and may be somebody else's by then.
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::size_t LocalFile::read(void* bytes, std::size_t size, std::size_t place) const {
  if (end_ != 0) size = std::min(size, end_ - std::min(place, end_));
  std::size_t filled = 0;
  while (filled < size) {
    char* const at = static_cast<char*>(bytes) + filled;
    const ssize_t got = uninterrupted([&] {
      return kind_ == Kind::regular
                 ? ::pread(descriptor_, at, size - filled, static_cast<off_t>(place + filled))
                 : ::read(descriptor_, at, size - filled);
    });
    if (got < 0) {
      throw XMLPlatformUtilsException(__FILE__, __LINE__, XMLExcepts::File_CouldNotReadFromFile,
                                      XMLPlatformUtils::fgMemoryManager);
    }
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  return filled;
}
