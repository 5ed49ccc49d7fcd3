// What became of all the files.
#ifndef TESTS_PEERS_DRIVER_REPORT_H_
#define TESTS_PEERS_DRIVER_REPORT_H_

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Record.h"

namespace peers {

class Report {
 public:
  // With `tellUntold`, requests that end in nothing, or in an exception that tells nothing, are
  // listed: they are no failures.
  explicit Report(bool tellUntold) : tellUntold_(tellUntold) {}

  // What a child that ended with `status` (see wait) said to the standard error, and noted about
  // `file`.
  void add(const std::filesystem::path& file, int status, const Record& record,
           const std::string& said);

  std::size_t files() const { return files_.size(); }
  bool hasFailures() const { return !failures_.empty(); }
  void print(std::ostream& out) const;

 private:
  void printOutcomes(std::ostream& out) const;

  const bool tellUntold_;
  std::set<std::filesystem::path> files_;
  Record::Counts outcomes_ = {};
  std::map<std::string, unsigned> kinds_;  // Of failures.
  unsigned unbounded_ = 0;                 // Requests that were given up and are no failures.
  std::map<std::filesystem::path, std::vector<std::string>> failures_;
  std::map<std::filesystem::path, std::string> untold_;
};

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_REPORT_H_
