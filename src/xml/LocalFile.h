// A file of this machine, opened once: what is known of it and what is read is of one and the same.
#ifndef XML_LOCALFILE_H_
#define XML_LOCALFILE_H_

#include <sys/types.h>

#include <cstddef>
#include <string>

class LocalFile {
 public:
  enum class Kind { missing, regular, directory, special };

  // What stands at `path` now, without opening it: opening a FIFO or a device is felt at its other
  // end.
  static Kind kindAt(const std::string& path);

  // Whether to open whatever is there, waiting for the writer of a FIFO as readers do, or regular
  // files only: of others no more is learned than the kind.
  enum class Opening { any, regular };

  LocalFile(const std::string& path, Opening opening);
  ~LocalFile();
  LocalFile(const LocalFile&) = delete;
  LocalFile& operator=(const LocalFile&) = delete;

  // "missing" for what is not there or cannot be opened, or of which nothing can be read.
  Kind kind() const { return kind_; }

  // Reads up to `size` bytes, fewer only at the end, at a place in a regular file; of another, the
  // next ones. A regular file ends where it ended when it was opened, however it may grow; files
  // that tell no length, as those of /proc, end where reading does. Throws
  // xercesc::XMLPlatformUtilsException when reading fails.
  std::size_t read(void* bytes, std::size_t size, std::size_t place) const;

 private:
  int descriptor_ = -1;
  Kind kind_ = Kind::missing;
  std::size_t end_ = 0;  // 0 for none known.
};

#endif  // XML_LOCALFILE_H_
