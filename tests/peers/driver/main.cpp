// Tries the library on documents that were made for other programs: whatever they are, every
// request must end with a model, with nothing, or with one of the library's exceptions, in time,
// within its memory, and without reaching for a network.
#include <CLI/CLI.hpp>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "Child.h"
#include "Family.h"
#include "Files.h"
#include "Report.h"

namespace {

namespace fs = std::filesystem;

// Gone with everything in it at the end.
class WorkFolder {
 public:
  WorkFolder() {
    std::string pattern = fs::temp_directory_path() / "agentservices-peers-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  ~WorkFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

struct Options {
  std::vector<fs::path> roots;
  std::vector<std::string> patterns;
  peers::Limits limits;
  std::size_t processes = std::max(1U, std::thread::hardware_concurrency());
  bool tellUntold = false;
};

// The way so far is told after as many.
constexpr std::size_t filesToTell = 500;

// 0 when all went well, 1 when there are failures, 2 when there is nothing to try.
int tried(const Options& options) {
  const std::vector<fs::path> files = peers::filesBelow(options.roots, options.patterns);
  if (files.empty()) {
    std::cerr << "there is no file to try\n";
    return 2;
  }
  const WorkFolder work;
  peers::Report report(options.tellUntold);
  peers::Family family(
      options.processes, AS_SCHEMA_DIR, work.path(), options.limits,
      [&](const fs::path& file, int status, const peers::Record& record, const std::string& said) {
        report.add(file, status, record, said);
        if (report.files() % filesToTell == 0 && record.done) {
          std::cerr << report.files() << " of " << files.size() << " files\n";
        }
      });
  family.run(files);
  report.print(std::cout);
  return report.hasFailures() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    CLI::App app("tries the library on documents that were made for other programs");
    Options options;
    app.add_option("PATH", options.roots, "files, and folders to look for files in")
        ->required()
        ->check(CLI::ExistingPath);
    app.add_option("--glob", options.patterns, "the names of the files to try (all that are XML)");
    app.add_option("--seconds", options.limits.seconds,
                   "of the processor's that a request may take (10)");
    app.add_option("--patience", options.limits.patience,
                   "in seconds with a request that may only wait (60)");
    app.add_option("--memory", options.limits.memory, "in MiB that a process may take (1024)");
    app.add_option("--processes", options.processes, "at a time (one a processor)")
        ->check(CLI::PositiveNumber);
    app.add_flag("--tell", options.tellUntold, "list the requests that tell nothing of why");
    // For tests: has files misbehave that ask for it.
    app.add_flag("--misbehave", options.limits.mayMisbehave)->group("");
    try {
      app.parse(argc, argv);
    } catch (const CLI::ParseError& problem) {
      return app.exit(problem) == 0 ? 0 : 2;
    }
    return tried(options);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 2;
  }
}
