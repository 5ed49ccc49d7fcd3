// Tells what commands find, in the format that the user wants.
#ifndef CLI_FINDINGSREPORT_H_
#define CLI_FINDINGSREPORT_H_

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
  // The option --format.
  void declare(Arguments& arguments);

  // To be called before the rest.
  void begin(const Output& output, std::vector<as::toolkit::RuleDescription> rules);

  // Whether it is for people.
  bool isText() const { return format_ == "text"; }

  void add(const std::string& file, const as::toolkit::Finding& finding);

  // A document that was refused is told on standard error, and is a finding for programs.
  void add(const as::toolkit::Refusal& refusal);

  void end();

 private:
  std::string format_ = "text";
  bool isQuiet_ = false;
  std::unique_ptr<as::toolkit::FindingsWriter> writer_;
};

}  // namespace cli

#endif  // CLI_FINDINGSREPORT_H_
