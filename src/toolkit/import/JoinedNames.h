// What COPY says of the names that a copybook defines: JOINING, DISJOINING, PREFIXING, SUFFIXING.
#ifndef TOOLKIT_IMPORT_JOINEDNAMES_H_
#define TOOLKIT_IMPORT_JOINEDNAMES_H_

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

#include "toolkit/import/GluedWords.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// How names become others, with the hyphen that JOINING and DISJOINING put between.
struct NameJoint {
  std::string removed;  // Names without it stay as they are.
  std::string added;
  bool isBehind = false;  // At the ends of names, not at their beginnings.

  bool isNothing() const { return removed.empty() && added.empty(); }
};

inline bool beginsJoint(const TextWord& word) {
  return word.isRun("JOINING") || word.isRun("DISJOINING") || word.isRun("PREFIXING") ||
         word.isRun("SUFFIXING");
}

// Reads the phrase that `word` may begin; `word` is then the one behind. What is wrong is told, and
// `place` is that of the statement.
NameJoint readJoint(TextWordSource& source, TextWord& word, const SourcePlace& place,
                    SourceReport& report);

// The words of a copybook with the names of its items and conditions joined, wherever they stand in
// it. Names that are defined elsewhere stay, and so do pictures. The first word is given when all
// were read: an item may be named in front of its entry.
class JoinedNames : public TextWordSource {
 public:
  // All must outlive it.
  JoinedNames(TextWordSource& source, NameJoint joint, TextArena& arena, ImportBudget& budget)
      : words_(source, arena), joint_(std::move(joint)), arena_(arena), budget_(budget) {}

  void read(TextWord& word) override;

 private:
  void readAll();
  bool isNamed(std::size_t entry) const;
  bool findDefinitions();
  void join();
  std::string joined(std::string_view name) const;

  GluedWords words_;
  const NameJoint joint_;
  TextArena& arena_;
  ImportBudget& budget_;
  std::vector<TextWord> read_;
  std::unordered_set<std::string> defined_;  // In capitals.
  std::size_t given_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_JOINEDNAMES_H_
