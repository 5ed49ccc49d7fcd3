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
#include "cli/Parcel.h"

namespace cli {

struct Input {
  as::toolkit::DocumentSource source;
  bool isSearched = false;  // Found in a folder, not named: it may be a document of any kind.
  std::string place{};      // Its name below the folder that was searched, or without any folder.
};

// The refusal of an input, with what helps where that is a folder.
as::toolkit::Refusal withFolderHint(as::toolkit::Refusal refusal, const Input& input);

class Inputs {
 public:
  // `name` is what help calls them. What is to be worked through takes a number of processes, too.
  void declareNames(Arguments& arguments, const char* name);
  void declare(Arguments& arguments, const char* name);

  // Finds them, and tells what cannot be found. False when there was something like that; the
  // others are there all the same.
  bool find();

  // Reads those that are pipes to their ends: they give their documents only once, and are to be
  // read more than once. What cannot be read stays as it is.
  void holdPipes();

  const std::vector<Input>& all() const { return inputs_; }
  bool areSeveral() const { return inputs_.size() > 1; }

  // What is done with a document: puts what came of it into the parcel, or throws
  // toolkit::RefusedDocument or toolkit::FileError.
  using Work = std::function<void(const Input&, Parcel&)>;

  // What is to be told of it: what came of it, or else why nothing did.
  struct Tellers {
    std::function<void(const Input&, OpenedParcel&)> done;
    std::function<void(const Input&, const as::toolkit::Refusal&)> refused;
    // A search found it, and it is of another kind than the command is about.
    std::function<void()> passedOver;
  };

  // Does `work` for each of them, in as many processes as the user wants, and tells on a terminal
  // how far it is. The tellers are called in the order of the inputs.
  void workThrough(const Output& output, const Work& work, const Tellers& tellers) const;

  // The files that commands write which make a document of each of theirs: `output` itself for one
  // that was named, files in the folder `output` for others. Empty, after a message, when two would
  // be written to the same, or one in the place of another that is to be read.
  std::vector<std::string> targetsIn(const std::string& output) const;

 private:
  bool add(const std::string& name);

  std::vector<std::string> names_;
  bool isRecursive_ = false;
  std::size_t jobs_ = 1;
  std::vector<Input> inputs_;
};

}  // namespace cli

#endif  // CLI_INPUTS_H_
