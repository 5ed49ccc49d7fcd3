// The documents that a command is to look at: files, folders, standard input.
#ifndef CLI_INPUTS_H_
#define CLI_INPUTS_H_

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "cli/Arguments.h"
#include "cli/Output.h"
#include "cli/Workers.h"

namespace cli {

struct Input {
  as::toolkit::DocumentSource source;
  bool isSearched = false;  // Found in a folder, not named: it may be a document of any kind.
};

class Inputs {
 public:
  // `name` is what help calls them.
  void declare(Arguments& arguments, const char* name);

  // Finds them, and tells what cannot be found. False when there was something like that; the
  // others are there all the same.
  bool find();

  const std::vector<Input>& all() const { return inputs_; }
  bool areSeveral() const { return inputs_.size() > 1; }

  // Does `work` for each of them, in as many processes as the user wants, and tells on a terminal
  // how far it is. `done` gets what came of it, in the order of the inputs; what came to no end has
  // no results.
  void workThrough(const Output& output, const std::function<WorkOutcome(const Input&)>& work,
                   const std::function<void(const Input&, const WorkOutcome&)>& done) const;

 private:
  bool add(const std::string& name);

  std::vector<std::string> names_;
  bool isRecursive_ = false;
  std::size_t jobs_ = 1;
  std::vector<Input> inputs_;
};

}  // namespace cli

#endif  // CLI_INPUTS_H_
