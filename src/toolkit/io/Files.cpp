#include "as/toolkit/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <system_error>

#include "toolkit/io/ServiceText.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& what, int reason) {
  throw FileError(what + ": " + std::generic_category().message(reason));
}

// An open file. Closing it may fail like any other writing.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  ~Descriptor() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }
  int number() const { return descriptor_; }

  bool write(const std::string& content) const {
    std::size_t done = 0;
    while (done < content.size()) {
      const ssize_t written = ::write(descriptor_, content.data() + done, content.size() - done);
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      done += static_cast<std::size_t>(written);
    }
    return true;
  }

  bool close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return ::close(descriptor) == 0;
  }

 private:
  int descriptor_;
};

// A file of a name of its own, removed unless it took the place of another.
class TemporaryFile {
 public:
  // In the folder of that file: only there can it take the file's place.
  explicit TemporaryFile(const std::string& beside)
      : path_((fs::path(beside).parent_path() / ".agentservices-XXXXXX").string()),
        file_(::mkstemp(path_.data())) {}
  ~TemporaryFile() {
    if (!taken_ && file_.isOpen()) ::unlink(path_.c_str());
    if (!taken_ && closed_) ::unlink(path_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isOpen() const { return file_.isOpen(); }

  // False, with errno, when the content is not on the disk.
  bool fill(const std::string& content, mode_t mode) {
    if (!file_.write(content) || ::fchmod(file_.number(), mode) != 0) return false;
    if (::fsync(file_.number()) != 0) return false;
    closed_ = true;
    return file_.close();
  }

  bool takePlaceOf(const std::string& other) {
    taken_ = ::rename(path_.c_str(), other.c_str()) == 0;
    return taken_;
  }

 private:
  std::string path_;
  Descriptor file_;
  bool closed_ = false;
  bool taken_ = false;
};

mode_t modeOfNewFiles() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// Where a chain of links leads that ends in no file.
std::string endOfLinks(fs::path file) {
  constexpr int mostLinks = 40;  // As the system has it.
  std::error_code failure;
  for (int i = 0; i < mostLinks && fs::is_symlink(file, failure); ++i) {
    // An absolute target takes the place of the folder, too.
    file = file.parent_path() / fs::read_symlink(file, failure);
  }
  return file.string();
}

void writeThrough(const std::string& file, const std::string& content) {
  Descriptor target(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
  if (!target.isOpen() || !target.write(content) || !target.close()) {
    fail(file + " cannot be written", errno);
  }
}

}  // namespace

FileError::FileError(const FileError& other) = default;
FileError& FileError::operator=(const FileError& other) = default;
FileError::~FileError() = default;

void replaceFile(const std::string& file, const std::string& content) {
  const std::string unchanged = file + " cannot be written and is as it was";
  struct stat old = {};
  std::string target = file;
  mode_t mode = 0;
  if (::stat(file.c_str(), &old) == 0) {
    if (S_ISDIR(old.st_mode)) fail(unchanged, EISDIR);
    if (!S_ISREG(old.st_mode)) return writeThrough(file, content);
    // A file that must not be written is not to be replaced either.
    if (::access(file.c_str(), W_OK) != 0) fail(unchanged, errno);
    std::error_code failure;
    target = fs::canonical(file, failure).string();  // Links stay links.
    if (failure) fail(unchanged, failure.value());
    mode = old.st_mode & 07777;
  } else if (errno == ENOENT) {
    mode = modeOfNewFiles();
    // A link that leads to nothing yet stays one, too.
    target = endOfLinks(file);
  } else {
    fail(file + " cannot be written", errno);
  }
  TemporaryFile temporary(target);
  if (!temporary.isOpen() || !temporary.fill(content, mode) || !temporary.takePlaceOf(target)) {
    const int reason = errno;
    fail(old.st_nlink > 0 ? unchanged : file + " cannot be written", reason);
  }
}

void writeService(as::IService& service, const std::string& file) {
  replaceFile(file, documentOf(service, file));
}

std::string besideFile(const std::string& file, const std::string& name) {
  const fs::path folder = fs::path(file).parent_path();
  const fs::path plain = folder / name;
  // The library takes ".." out of a name as if folders were no links.
  std::error_code failure;
  if (!fs::exists(plain, failure) || fs::equivalent(plain, plain.lexically_normal(), failure)) {
    return plain.string();
  }
  return (fs::canonical(folder, failure) / name).lexically_normal().string();
}

std::string nameSeenFrom(const std::string& from, const std::string& to) {
  // Folders may be links, which would lead elsewhere on the way back; the file's own name stays.
  std::error_code failure;
  const auto folderOf = [&failure](const std::string& file) {
    return fs::weakly_canonical(fs::absolute(file, failure).parent_path(), failure);
  };
  const fs::path target = folderOf(to) / fs::path(to).filename();
  const fs::path name = target.lexically_proximate(folderOf(from));
  return failure ? to : name.string();
}

}  // namespace as::toolkit
