// Writes findings for people and for programs: as text, as JSON, as SARIF.
#ifndef AS_TOOLKIT_FINDINGSWRITER_H_
#define AS_TOOLKIT_FINDINGSWRITER_H_

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "as/Export.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/SourceLocation.h"

namespace as::toolkit {

// A rule as reports describe it: its findings carry the id.
struct RuleDescription {
  std::string id;                       // "lost-data-item"
  Severity severity = Severity::error;  // That of its findings, unless the user wants another.
  std::string summary;  // One line: what the rule wants ("a mapping leads to a data item").
  std::string help;     // Whatever else is to be known; may be empty.
};

// A finding with the file that it is about.
struct FileFinding {
  std::string file;  // As the user named it.
  Finding finding;   // With its place in that file.
  // Places that have to do with it: where the copybook was copied that it stands in.
  std::vector<SourceLocation> copiedAt{};
};

// Whose findings are written, and how.
struct FindingsOptions {
  std::string tool;                    // Its name ...
  std::string version;                 // ... and version: "1.0.0".
  std::vector<RuleDescription> rules;  // That findings may name.
  bool isColored = false;              // Text only: severities in a terminal's colours.
};

// Writes to a stream, which must outlive it, finding by finding. Whether everything arrived is for
// the caller to ask of the stream.
class AS_EXPORT FindingsWriter {
 public:
  FindingsWriter() = default;
  virtual ~FindingsWriter();
  FindingsWriter(const FindingsWriter&) = delete;
  FindingsWriter& operator=(const FindingsWriter&) = delete;

  // Writes one; reports keep their order.
  virtual void add(const FileFinding& finding) = 0;

  // Completes what was written; to be called once, behind the last finding.
  virtual void end() = 0;
};

// A format of reports. Text of static duration.
struct FindingsFormat {
  const char* word;     // As in --format: "sarif".
  const char* summary;  // One line.
  // A writer of it; never null.
  std::unique_ptr<FindingsWriter> (*makeWriter)(std::ostream& out, const FindingsOptions& options);
};

// All formats:
// - text: "FILE:LINE:COLUMN: error: PLACE: PROBLEM; ADVICE", a line each, and a line "...: note:
//   copied here" for each place of copiedAt. Control characters are written as \u001B.
// - json: one object: "tool", "version", "findings", each with the members of Finding and "file",
//   and "copiedAt" where there is something to tell, and "errors", "warnings", "notes", how many.
// - sarif: a log of SARIF 2.1.0 with one run. Names of files that are relative stay so.
AS_EXPORT const std::vector<FindingsFormat>& findingsFormats();

// The one of that word; null when there is none.
AS_EXPORT const FindingsFormat* findFindingsFormat(std::string_view word);

// The reference to a file of that name: relative where the name is, everything but letters, digits,
// "/" and "-._~" percent-encoded, byte by byte.
AS_EXPORT std::string uriOf(std::string_view file);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_FINDINGSWRITER_H_
