#include "as/toolkit/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <fstream>
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
        file_(::mkstemp(path_.data())),
        isThere_(file_.isOpen()) {}
  ~TemporaryFile() {
    if (isThere_) ::unlink(path_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isThere() const { return isThere_; }

  // False, with errno, when the content is not on the disk.
  bool fill(const std::string& content, mode_t mode) {
    if (!file_.write(content) || ::fchmod(file_.number(), mode) != 0) return false;
    if (::fsync(file_.number()) != 0) return false;
    return file_.close();
  }

  bool takePlaceOf(const std::string& other) {
    isThere_ = ::rename(path_.c_str(), other.c_str()) != 0;
    return !isThere_;
  }

 private:
  std::string path_;
  Descriptor file_;
  bool isThere_;  // Under its own name.
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

// A file on its way to hold something else, which is on the disk already.
class Replacement {
 public:
  // Throws FileError.
  Replacement(const std::string& file, const std::string& content)
      : file_(file), unchanged_(file + " cannot be written and is as it was"), target_(file) {
    mode_t mode = 0;
    struct stat old = {};
    if (::stat(file.c_str(), &old) == 0) {
      isThere_ = true;
      if (S_ISDIR(old.st_mode)) fail(unchanged_, EISDIR);
      if (!S_ISREG(old.st_mode)) {
        device_ = content;
        return;
      }
      // A file that must not be written is not to be replaced either.
      if (::access(file.c_str(), W_OK) != 0) fail(unchanged_, errno);
      std::error_code failure;
      target_ = fs::canonical(file, failure).string();  // Links stay links.
      if (failure) fail(unchanged_, failure.value());
      mode = old.st_mode & 07777;
    } else if (errno == ENOENT) {
      mode = modeOfNewFiles();
      // A link that leads to nothing yet stays one, too.
      target_ = endOfLinks(file);
    } else {
      fail(file + " cannot be written", errno);
    }
    new_.emplace(target_);
    if (!new_->isThere() || !new_->fill(content, mode)) failAsIs(errno);
  }

  // Puts the new content in place. Throws FileError.
  void finish() {
    if (device_) return writeThrough(file_, *device_);
    if (!new_->takePlaceOf(target_)) failAsIs(errno);
    isDone_ = true;
  }

  // Has undo() find what the file holds, where files may have two names.
  void keepOld() {
    if (device_ || !isThere_) return;
    old_ = target_ + ".agentservices-old";
    static_cast<void>(::unlink(old_.c_str()));
    if (::link(target_.c_str(), old_.c_str()) != 0) old_.clear();
  }

  // Best efforts: what fails here leaves what is new.
  void undo() {
    if (isDone_ && !isThere_) static_cast<void>(::unlink(target_.c_str()));
    if (isDone_ && !old_.empty()) static_cast<void>(::rename(old_.c_str(), target_.c_str()));
    dropOld();
  }

  void dropOld() {
    if (!old_.empty()) static_cast<void>(::unlink(old_.c_str()));
    old_.clear();
  }

 private:
  [[noreturn]] void failAsIs(int reason) const {
    fail(isThere_ ? unchanged_ : file_ + " cannot be written", reason);
  }

  std::string file_;
  std::string unchanged_;
  std::string target_;
  bool isThere_ = false;
  bool isDone_ = false;
  std::optional<std::string> device_;  // What goes to something other than a file.
  std::optional<TemporaryFile> new_;
  std::string old_;  // Another name of the file that was there; empty for none.
};

// Whether the file is one and holds that.
bool holds(const std::string& file, const std::string& content) {
  std::error_code failure;
  if (!fs::is_regular_file(file, failure) || fs::file_size(file, failure) != content.size()) {
    return false;
  }
  std::ifstream in(file, std::ios::binary);
  std::string held(content.size(), '\0');
  in.read(held.data(), static_cast<std::streamsize>(held.size()));
  return in.good() && held == content;
}

}  // namespace

FileError::FileError(const FileError& other) = default;
FileError& FileError::operator=(const FileError& other) = default;
FileError::~FileError() = default;

void replaceFile(const std::string& file, const std::string& content) {
  Replacement(file, content).finish();
}

std::vector<std::string> replaceFiles(const std::vector<FileContent>& files) {
  std::vector<std::string> written;
  std::deque<Replacement> replacements;
  for (const FileContent& file : files) {
    if (holds(file.file, file.content)) continue;
    replacements.emplace_back(file.file, file.content);
    written.push_back(file.file);
  }
  // Hardly anything fails now: the new files are on the disk, in the folders of the old ones.
  for (Replacement& replacement : replacements) replacement.keepOld();
  try {
    for (Replacement& replacement : replacements) replacement.finish();
  } catch (const FileError&) {
    for (Replacement& replacement : replacements) replacement.undo();
    throw;
  }
  for (Replacement& replacement : replacements) replacement.dropOld();
  return written;
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
  return (fs::canonical(plain.parent_path(), failure) / plain.filename()).string();
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
