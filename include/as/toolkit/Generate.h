// Makes what callers of a service need in their own language: schemas, interfaces, pages.
#ifndef AS_TOOLKIT_GENERATE_H_
#define AS_TOOLKIT_GENERATE_H_

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "as/Export.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"

namespace as::toolkit {

// Something that a kind lets its user choose. Text of static duration.
struct GeneratorOption {
  const char* name;     // "schema"
  const char* values;   // The words it takes, with "|" between, the first of them unless told;
                        // empty for any text.
  const char* summary;  // What it is for.
};

// A kind of output. Text of static duration.
struct GeneratorKind {
  const char* word;                      // Names it: "xsd".
  const char* summary;                   // What it makes.
  std::vector<const char*> flavours;     // The words of the flavours of services it takes.
  bool takesDictionaries = false;        // Whether it also makes something of a record.
  std::vector<GeneratorOption> options;  // Of its own.
};

// All of them, in the order in which they are documented; words are unique.
AS_EXPORT const std::vector<GeneratorKind>& generatorKinds();

// The kind of that word; null when there is none.
AS_EXPORT const GeneratorKind* findGeneratorKind(std::string_view word);

// What names become, chosen by the user, in place of what the rule of the language makes of them.
// Keys are places as findings tell them ("quote.serial", "type Claim.year"), or names alone
// ("LK-REQ-NO"), which hold wherever no place does.
using ChosenNames = std::map<std::string, std::string, std::less<>>;

// Reads "KEY = NAME", one a line; empty lines and those that start with # count for nothing.
// Throws RefusedDocument, which calls the text `file`.
AS_EXPORT ChosenNames readChosenNames(const std::string& text, const std::string& file);

// What is to be made, and what things are to be called in it.
struct GenerateOptions {
  // Values of the kind's options by their names.
  std::map<std::string, std::string, std::less<>> values;
  ChosenNames names;  // Empty for those that the rule of the language makes.
  // The file that they were read from, which no output takes the place of; empty for none.
  std::string namesFile;
  // What the output calls the document that it was made of; empty for the service's or program's
  // name.
  std::string source;
  // Of a dictionary: the record (level 01 or 77) to make something of; empty for all of them.
  std::string record;
};

// A file of the output.
struct GeneratedFile {
  std::string name;     // Without a folder.
  std::string content;  // Its bytes.
};

// What was made.
struct Generated {
  // None when there are errors among the findings.
  std::vector<GeneratedFile> files;
  // Names that were changed, what the kind cannot say, and, as errors, why nothing was made.
  Findings findings;
};

// Makes that kind of output for a service. `program` is where mappings lead, null for the
// service's own program, if any. The output is the same whenever the input is. A service in which
// lint finds errors gives these errors and no files; types that refer to themselves are no
// hindrance.
AS_EXPORT Generated generate(const GeneratorKind& kind, as::IService& service,
                             const GenerateOptions& options = {}, as::IProgram* program = nullptr);

// The same for the records of a dictionary. REQUIRES: kind.takesDictionaries.
AS_EXPORT Generated generate(const GeneratorKind& kind, as::IProgram& program,
                             const GenerateOptions& options = {});

// What is wrong with the options for that kind: a name it does not know, a value it does not take.
// Empty when nothing is.
AS_EXPORT std::string wrongOption(const GeneratorKind& kind, const GenerateOptions& options);

// The same from a document: a service, with the program of `dictionary` or else of the one that it
// names, or a dictionary. Throws RefusedDocument.
AS_EXPORT Generated generateFrom(const DocumentReader& reader, const GeneratorKind& kind,
                                 const DocumentSource& source, const GenerateOptions& options = {},
                                 const std::optional<std::string>& dictionary = std::nullopt);

// What was made and written.
struct GeneratedOutput {
  std::vector<std::string> files;    // All of the output, by their whole names.
  std::vector<std::string> written;  // Those of them that were not there, or held something else.
  Findings findings;                 // As in Generated.
};

// The same to files: in the folder `output` when it is one or ends with "/", or when there are
// several files; else in the file `output`. All of them are written or, when something fails, none;
// those that hold the same already are left alone. Throws RefusedDocument and FileError.
AS_EXPORT GeneratedOutput
generateFiles(const DocumentReader& reader, const GeneratorKind& kind, const DocumentSource& source,
              const std::string& output, const GenerateOptions& options = {},
              const std::optional<std::string>& dictionary = std::nullopt);
AS_EXPORT GeneratedOutput
generateFiles(const DocumentReader& reader, const GeneratorKind& kind, const std::string& file,
              const std::string& output, const GenerateOptions& options = {},
              const std::optional<std::string>& dictionary = std::nullopt);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_GENERATE_H_
