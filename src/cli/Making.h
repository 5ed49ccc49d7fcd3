// What commands have in common that make a file of each document.
#ifndef CLI_MAKING_H_
#define CLI_MAKING_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/Output.h"

namespace cli {

struct Made {
  as::toolkit::Findings notes;
  std::string text;  // What it is: "Java service, operations 1".
};

// One document goes to the file of the option --output, several go to files in the folder of that
// name, called like the documents.
class Making {
 public:
  void declareInputs(Arguments& arguments, const char* name) { inputs_.declare(arguments, name); }
  void declareOutput(Arguments& arguments);

  // Makes a file of each document. Throws what Inputs::Work may throw.
  using Make = std::function<Made(const as::toolkit::DocumentReader& reader, const Input& input,
                                  const std::string& output)>;

  // The file that a document is read with, besides its own; empty for none. May throw
  // toolkit::RefusedDocument.
  using Need =
      std::function<std::string(const as::toolkit::DocumentReader& reader, const Input& input)>;

  // Has all of them made, and tells what came of it. Returns the exit code. Nothing is made where
  // that would take the place of a file that another document needs.
  int run(const std::optional<std::string>& schemas, const Make& make, const Need& need = nullptr);

 private:
  int makeAll(const as::toolkit::DocumentReader& reader, const Make& make, const Need& need);
  bool sparesWhatIsNeeded(const as::toolkit::DocumentReader& reader,
                          const std::vector<std::string>& targets, const Need& need);
  void tell(const std::string& target, OpenedParcel& parcel) const;

  Inputs inputs_;
  Output output_;
  std::string target_;
};

}  // namespace cli

#endif  // CLI_MAKING_H_
