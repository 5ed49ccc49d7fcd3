#include "toolkit/io/HeldSource.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace as::toolkit {

namespace {

// An open file, closed in the end, whatever comes.
struct Descriptor {
  explicit Descriptor(const std::string& file)
      : number(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (number >= 0) return;
    const int reason = errno;
    throw RefusedDocument(
        {file, 0, 0, "cannot be read: " + std::generic_category().message(reason), ""});
  }
  ~Descriptor() { ::close(number); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  const int number;
};

}  // namespace

HeldSource::HeldSource(const DocumentSource& source) : source_(&source) {
  std::error_code ignored;
  if (source.text || !std::filesystem::is_fifo(source.name, ignored)) return;
  const Descriptor pipe(source.name);
  piped_ = documentFrom(pipe.number, source.name);
}

}  // namespace as::toolkit
