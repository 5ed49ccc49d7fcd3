// Makes data dictionaries from COBOL sources.
#ifndef AS_TOOLKIT_IMPORT_H_
#define AS_TOOLKIT_IMPORT_H_

#include <memory>
#include <string>
#include <vector>

#include "as/Export.h"
#include "as/toolkit/Copybooks.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/SourceFormat.h"
#include "as/toolkit/SourceLocation.h"

namespace as::toolkit {

// What was found in a source. A value; all text is UTF-8 and may hold whatever the source holds.
struct ImportFinding {
  // The stable id of the rule that found it; see importRules().
  std::string rule;
  Severity severity = Severity::error;  // The rule's.
  SourceLocation location;              // In the source, or in a copybook.
  // Where the copybook was copied that holds the place, and so on up to the source.
  std::vector<SourceLocation> copiedAt;
  std::string problem;  // What is the matter, without a full stop.
  std::string advice;   // What to do about it; may be empty.
};

// In the order in which they were found, which is nearly that of the source.
using ImportFindings = std::vector<ImportFinding>;

// "FILE:LINE:COLUMN: error: PROBLEM; ADVICE", and a line "FILE:LINE:COLUMN: note: copied here" for
// each place that it was copied at.
AS_EXPORT std::string textOf(const ImportFinding& finding);

// How many of them are of that severity.
AS_EXPORT std::size_t countOf(const ImportFindings& findings, Severity severity);

// A rule of import. Text of static duration.
struct ImportRule {
  const char* id;       // What findings carry.
  Severity severity;    // That of its findings.
  const char* summary;  // One line: what is the matter.
};

// All rules, those of reading a source first; ids are unique.
AS_EXPORT const std::vector<ImportRule>& importRules();

// How a source is read.
struct ImportOptions {
  // How its lines are laid out.
  SourceFormat format = SourceFormat::recognised;

  // The code page of source and copybooks: a name that iconv knows, or empty: recognised.
  std::string encoding;

  // The word of a dialect; see dialects() in Storage.h.
  std::string dialect = "ibm";

  // The bytes of a POINTER, 4 or 8; 0 for what the dialect has.
  int pointerSize = 0;

  // Reads the source as a copybook, whatever it begins with. One that begins with entries is read
  // so anyway: its records become those of a program called like the file, and a copybook that
  // begins below level 01 gets a record called like the file.
  bool isCopybook = false;
};

class ImportDetails;

// A program of a source.
struct ImportedProgram {
  std::string name;  // The PROGRAM-ID, as the dictionary holds it.
  // The text of the dictionary, valid for its schema; empty when errors were found in the program:
  // where an entry is not understood, what stands behind it may stand elsewhere.
  std::string dictionary;
  std::size_t items = 0;  // Of the dictionary.
  // For explainItem().
  std::shared_ptr<const ImportDetails> details;

  // Whether errors were found in it, so that there is no dictionary.
  bool isRefused() const { return dictionary.empty(); }
};

// What a source came to.
struct Imported {
  // In the order in which they begin, contained ones too.
  std::vector<ImportedProgram> programs;
  // Those of all programs.
  ImportFindings findings;
};

// The dictionaries of the programs in a COBOL source of these bytes, which messages and
// dictionaries call `name`. Copybooks come from `copybooks`; null when there are none. Throws
// std::invalid_argument for a dialect or pointer size that is none, and what the provider throws.
//
// Dictionaries hold files with organization and access mode, the items of all sections with
// conditions, and the entry points. "line" is the line of the file that the entry stands in, which
// may be a copybook. Values, indexes, keys and constants are not held.
AS_EXPORT Imported importCobol(std::string source, const std::string& name,
                               CopybookProvider* copybooks = nullptr,
                               const ImportOptions& options = {});

// The same, with what was written of it.
struct ImportedFile {
  Imported imported;                 // What the source came to.
  std::vector<std::string> written;  // The names of the dictionaries' files.
};

// The same from file to file, with copybooks from `folders` and from that of the source (see
// FolderCopybooks). The first program goes to the file `output`, others beside it to one with the
// PROGRAM-ID in its name: OUT.xml and OUT-OTHER.xml. Programs with errors leave what is there, and
// an empty `output` has nothing written. Throws RefusedDocument for a source that cannot be read
// and for a file that would take the place of the source or of a copybook that it has, FileError
// (see Files.h), and what importCobol() throws.
AS_EXPORT ImportedFile importCobolFile(const DocumentSource& source, const std::string& output,
                                       const std::vector<std::string>& folders = {},
                                       const ImportOptions& options = {});
AS_EXPORT ImportedFile importCobolFile(const std::string& file, const std::string& output,
                                       const std::vector<std::string>& folders = {},
                                       const ImportOptions& options = {});

// The COBOL sources in a folder and those below it, by their names: *.cbl, *.cob, *.cobol and
// *.pco, in letters of any case; as seen from that folder, sorted. Throws RefusedDocument for a
// folder that cannot be read.
AS_EXPORT std::vector<std::string> cobolSourcesIn(const std::string& folder);

// How the size and the place of an item came about.
struct ItemExplanation {
  // One of the reasons.
  struct Step {
    SourceLocation location;  // Of the entry that is the reason.
    std::string text;         // "PICTURE S9(5)V99: 7 digits, 2 of them behind the point"
  };
  std::string item;         // Its name, dotted from the record down.
  int offset = 0;           // Of its first byte in the record.
  int length = 0;           // Its bytes; of a table's item, those of one element.
  std::vector<Step> steps;  // In the order in which they count.
};

// Those of all items of that name: "COUNT", or as much of "RECORD.GROUP.COUNT" as tells which one,
// in letters of any case. Empty when there is none, or the program is refused.
AS_EXPORT std::vector<ItemExplanation> explainItem(const ImportedProgram& program,
                                                   const std::string& item);

// "RECORD.COUNT: bytes 4 to 5" and a line for each step.
AS_EXPORT std::string textOf(const ItemExplanation& explanation);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_IMPORT_H_
