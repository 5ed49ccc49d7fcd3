#include "Report.h"

#include <string.h>
#include <sys/wait.h>

#include <iomanip>
#include <numeric>
#include <ostream>
#include <sstream>

namespace peers {

namespace {

// So many lines of what a child said tell what it died of.
constexpr int linesShown = 12;

std::string firstLines(const std::string& text) {
  std::istringstream in(text);
  std::string result;
  std::string line;
  for (int i = 0; i < linesShown && std::getline(in, line); i++) result += "    " + line + "\n";
  return result;
}

}  // namespace

void Report::add(const std::filesystem::path& file, int status, const Record& record,
                 const std::string& said) {
  files_.insert(file);
  for (std::size_t place = 0; place < placeCount; place++) {
    for (std::size_t outcome = 0; outcome < outcomeCount; outcome++) {
      outcomes_[place][outcome] += record.outcomes[place][outcome];
    }
  }
  const auto fail = [&](const std::string& kind, const char* request,
                        const std::string& more = "") {
    kinds_[kind]++;
    failures_[file].push_back(kind + ": " + request + "\n" + more);
  };
  const bool exhausted = record.exhausted[0] != '\0';
  if (!hasBounds(record.place)) {
    unbounded_ += exhausted || record.timedOut ? 1 : 0;
  } else {
    if (exhausted) fail("memory exhausted", record.exhausted.data());
    if (record.timedOut) fail("timed out", record.request.data());
  }
  if (record.connected[0] != '\0') fail("network attempted", record.connected.data());
  if (record.foreignException[0] != '\0') {
    fail("foreign exception", record.foreignException.data());
  }
  if (record.leaked) fail("memory leaked", "all requests together", firstLines(said));
  if (WIFSIGNALED(status)) {
    const int signal = WTERMSIG(status);
    fail("ended by signal " + std::to_string(signal) + " (" + ::strsignal(signal) + ")",
         record.request.data(), firstLines(said));
  } else if (WEXITSTATUS(status) != 0 && !exhausted && !record.timedOut) {
    fail("exited with " + std::to_string(WEXITSTATUS(status)), record.request.data(),
         firstLines(said));
  }
  if (tellUntold_ && record.untold[0] != '\0') untold_[file] += record.untold.data();
}

void Report::printOutcomes(std::ostream& out) const {
  constexpr int firstWidth = 36;
  constexpr int width = 16;
  out << std::left << std::setw(firstWidth) << "the file as";
  for (const char* const name : outcomeNames) out << std::right << std::setw(width) << name;
  out << '\n';
  for (std::size_t place = 0; place < placeCount; place++) {
    out << std::left << std::setw(firstWidth) << placeNames[place];
    for (const unsigned count : outcomes_[place]) out << std::right << std::setw(width) << count;
    out << '\n';
  }
}

void Report::print(std::ostream& out) const {
  for (const auto& [file, requests] : untold_) out << file.string() << '\n' << requests;
  for (const auto& [file, failures] : failures_) {
    out << file.string() << '\n';
    for (const std::string& failure : failures) out << "  " << failure;
  }
  unsigned requests = 0;
  for (const auto& counts : outcomes_) {
    requests = std::accumulate(counts.begin(), counts.end(), requests);
  }
  printOutcomes(out);
  out << files_.size() << " files, " << requests << " requests answered, " << failures_.size()
      << " files with failures\n";
  if (unbounded_ > 0) {
    out << "  given up, as schemas of the client's own have no bounds: " << unbounded_ << '\n';
  }
  for (const auto& [kind, count] : kinds_) out << "  " << kind << ": " << count << '\n';
}

}  // namespace peers
