// Tells what commands find, in the format that the user wants.
#ifndef CLI_FINDINGSREPORT_H_
#define CLI_FINDINGSREPORT_H_

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/FindingsWriter.h"
#include "cli/Arguments.h"
#include "cli/Output.h"

namespace cli {

// The report goes to standard output. In a format for programs nothing else may go there.
class FindingsReport {
 public:
  void declare(Arguments& arguments, const char* option = "--format");

  // One of these is to be called before the rest. The second has what is for people go to standard
  // error.
  void begin(const Output& output, std::vector<as::toolkit::RuleDescription> rules);
  void beginBesideResults(bool isQuiet, std::vector<as::toolkit::RuleDescription> rules);

  // Whether it is for people.
  bool isText() const { return format_ == "text"; }

  void add(const std::string& file, const as::toolkit::Finding& finding) { add({file, finding}); }
  void add(const as::toolkit::FileFinding& finding);

  // A document that was refused is told on standard error, and is a finding for programs.
  void add(const as::toolkit::Refusal& refusal);

  void end();

 private:
  void begin(std::ostream& out, bool isColored, std::vector<as::toolkit::RuleDescription> rules);

  std::string format_ = "text";
  bool isQuiet_ = false;
  std::unique_ptr<as::toolkit::FindingsWriter> writer_;
};

}  // namespace cli

#endif  // CLI_FINDINGSREPORT_H_
