// The files that stand beside the documents of a target: a directory of the process's own.
#ifndef FUZZ_INPUTFILES_H_
#define FUZZ_INPUTFILES_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// In the system's folder for such (TMPDIR). Gone with the process that made it, unless that
// crashes.
class Directory {
 public:
  Directory();
  ~Directory();
  Directory(const Directory&) = delete;
  Directory& operator=(const Directory&) = delete;

  std::string file(const std::string& name) const { return (path_ / name).string(); }
  void write(const std::string& name, std::string_view content) const;
  void remove(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

// A directory for the inputs of a process. It holds the example dictionaries, cut down, for
// services to be read with.
const Directory& workDirectory();

// One input: writes the files that it carries (<?file NAME CONTENT?>) into the work directory, and
// removes them when it goes. Only plain names are written.
class InputFiles {
 public:
  explicit InputFiles(std::string_view input);
  ~InputFiles();
  InputFiles(const InputFiles&) = delete;
  InputFiles& operator=(const InputFiles&) = delete;

 private:
  std::vector<std::string> names_;
};

// Makes the work directory the current one: that is where services look for their dictionaries.
class WorkingThere {
 public:
  WorkingThere();
  ~WorkingThere();
  WorkingThere(const WorkingThere&) = delete;
  WorkingThere& operator=(const WorkingThere&) = delete;

 private:
  int before_;
};

// The shipped schemas without documentation and blanks: they say the same and are read in a
// fraction of the time, which is most of what a small document takes.
std::string schemaDirectory();

}  // namespace fuzz

#endif  // FUZZ_INPUTFILES_H_
