// The findings of a check, as lines and numbers.
#ifndef TOOLKIT_FINDINGS_FINDINGS_H_
#define TOOLKIT_FINDINGS_FINDINGS_H_

#include <iosfwd>
#include <string>

// Prints findings, one a line, and counts them.
class Findings {
 public:
  // About the document named `file`.
  Findings(std::ostream& out, const std::string& file);

  // "FILE: error: WHERE: PROBLEM; ADVICE"
  void error(const std::string& where, const std::string& problem, const std::string& advice);
  void warning(const std::string& where, const std::string& problem, const std::string& advice);
  // "FILE: note: WHERE: TEXT": nothing is wrong, but the user should know.
  void note(const std::string& where, const std::string& text);

  // "FILE: N errors, M warnings" or "FILE: clean"
  void printSummary();

  int errors() const { return errors_; }

 private:
  void print(const char* severity, const std::string& where, const std::string& text);

  std::ostream& out_;
  std::string file_;
  int errors_ = 0;
  int warnings_ = 0;
};

#endif  // TOOLKIT_FINDINGS_FINDINGS_H_
