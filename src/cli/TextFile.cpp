#include "cli/TextFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "as/toolkit/DocumentReader.h"

namespace cli {

namespace {

class OpenFile {
 public:
  explicit OpenFile(const std::string& file)
      : descriptor_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ >= 0) return;
    throw as::toolkit::RefusedDocument(
        {file, 0, 0, "cannot be read: " + std::generic_category().message(errno), ""});
  }
  ~OpenFile() { ::close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

}  // namespace

std::string textOfFile(const std::string& file) {
  const OpenFile open(file);
  return *as::toolkit::documentFrom(open.descriptor(), file).text;
}

}  // namespace cli
