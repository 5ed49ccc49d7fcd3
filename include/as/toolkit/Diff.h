// Tells what changed between two dictionaries or two services, in the terms of their users.
#ifndef AS_TOOLKIT_DIFF_H_
#define AS_TOOLKIT_DIFF_H_

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "as/Export.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

// A kind of change. Text of static duration.
struct ChangeKind {
  const char* id;      // "picture-widened"; does not change from one version to the next.
  const char* mirror;  // The id of the kind that it is when old and new change places.
  bool breaks;         // Whether it breaks callers as a rule.
  const char* text;    // What happened: "PICTURE widened".
  const char* why;     // Why it breaks callers, or why it does not.
};

// All kinds, in the order in which they are documented; ids are unique.
AS_EXPORT const std::vector<ChangeKind>& changeKinds();

// The kind of that id; null when there is none.
AS_EXPORT const ChangeKind* findChangeKind(const std::string& id);

// One change. All text is UTF-8 and may hold whatever the documents hold.
struct Change {
  std::string kind;  // Its id; see changeKinds().
  // Where it is in the terms of the documents: "RECORD.GROUP.ITEM", "fd FILE", "entry point NAME",
  // "quote.serial", "type Address.street". Empty where there is no such place.
  std::string oldPlace;
  std::string newPlace;
  std::string oldValue;  // What it was,
  std::string newValue;  // and what it is; both empty where the kind says all.
  // Whether it breaks callers, by itself or by what follows from it. What happens in working
  // storage breaks nobody, unless the program has no entry points (a copybook), nor do unnamed
  // items.
  bool breaks = false;
  bool isAllowed = false;  // By allow().
  // The change that this one follows from (an index): the last one in front of it that has moved
  // what stands behind.
  std::optional<std::size_t> cause;
  std::string service;  // The file of the service that it touches; empty for the documents' own.
};

// What changed between two documents.
struct Diff {
  bool isOfServices = false;  // Or of dictionaries.
  // In the order in which they were found, which is nearly that of the documents.
  std::vector<Change> changes;
  // The services of diffPair() that counted.
  std::vector<std::string> services{};
};

// From `before` to `after`. Lines of the source do not count. Dictionaries tell conditions as far
// as the model does: those of numeric values.
AS_EXPORT Diff diff(as::IProgram& before, as::IProgram& after);
AS_EXPORT Diff diff(as::IService& before, as::IService& after);

// The same of files, with all conditions; and, for dictionaries, what becomes of the mappings and
// operations of the services in `services`, which are made for the program of `before`. Throws
// RefusedDocument, also for two documents of different kinds.
AS_EXPORT Diff diffFiles(const DocumentReader& reader, const std::string& before,
                         const std::string& after, const std::vector<std::string>& services = {});

// The same of documents that need not be files.
AS_EXPORT Diff diffDocuments(const DocumentReader& reader, const DocumentSource& before,
                             const DocumentSource& after,
                             const std::vector<std::string>& services = {});

// Two documents to compare; the name of one that is not there is empty.
struct DocumentPair {
  std::string name;    // As seen from the folders.
  std::string before;  // The old file,
  std::string after;   // and the new one.
};

// The documents *.xml in two folders and those below, by their names, sorted. Throws
// RefusedDocument for a folder that cannot be read.
AS_EXPORT std::vector<DocumentPair> pairsIn(const std::string& before, const std::string& after);

// A service, and the program that it names; empty for none.
struct ServiceOfProgram {
  std::string file;
  std::string program;
};

// Those of the files. Throws RefusedDocument.
AS_EXPORT std::vector<ServiceOfProgram> servicesWithPrograms(const DocumentReader& reader,
                                                             const std::vector<std::string>& files);

// What became of one of them; of `services`, those count whose program it is the dictionary of.
// Throws RefusedDocument.
AS_EXPORT Diff diffPair(const DocumentReader& reader, const DocumentPair& pair,
                        const std::vector<ServiceOfProgram>& services = {});

// What became of one document of many.
struct DocumentDiff {
  std::string name;  // That of the pair.
  Diff diff;         // See diffPair().
};

// Accepts what `rule` says, "KIND" or "KIND:PLACE", with "*" for every kind; a place stands for
// what is below it, too. What follows from an accepted change is accepted with it. False when there
// is no such kind.
AS_EXPORT bool allow(Diff& diff, const std::string& rule);

// The rules in a text: one a line, without blank lines and those that begin with "#".
AS_EXPORT std::vector<std::string> allowRulesIn(const std::string& text);

// Whether a change breaks callers that is not accepted.
AS_EXPORT bool breaksCallers(const Diff& diff);

// "PLACE: PICTURE widened from 9(4) to 9(6)"
AS_EXPORT std::string textOf(const Change& change);

// For reading: each change that follows from no other on a line of its own, with what follows from
// it summed up below; then services; then a line that counts. Nothing but that for no change.
AS_EXPORT void renderText(std::ostream& out, const Diff& diff);

// The same of many: those with changes, with their names in front, then a line that counts.
AS_EXPORT void renderText(std::ostream& out, const std::vector<DocumentDiff>& diffs);

// For programs: all changes, one object each; "follows" is the index of the change that one follows
// from, or null.
AS_EXPORT void renderJson(std::ostream& out, const Diff& diff);

// The same of many, those without changes too: "documents" holds an object for each, with its name.
AS_EXPORT void renderJson(std::ostream& out, const std::vector<DocumentDiff>& diffs);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_DIFF_H_
