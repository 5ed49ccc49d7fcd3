// How much a command says, and how it looks.
#ifndef CLI_OUTPUT_H_
#define CLI_OUTPUT_H_

#include <string>

#include "cli/Arguments.h"

namespace cli {

class Output {
 public:
  void declare(Arguments& arguments);

  // Whether only what is wrong is to be said.
  bool isQuiet() const { return isQuiet_; }

  // Whether what goes to standard output is to be coloured.
  bool isColored() const;

 private:
  bool isQuiet_ = false;
  std::string color_ = "auto";
};

}  // namespace cli

#endif  // CLI_OUTPUT_H_
