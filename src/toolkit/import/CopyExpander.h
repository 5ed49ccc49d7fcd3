// The words of a source with those of its copybooks in the places where it copies them, and without
// statements that are not for the reader of entries.
#ifndef TOOLKIT_IMPORT_COPYEXPANDER_H_
#define TOOLKIT_IMPORT_COPYEXPANDER_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/import/CopybookLibrary.h"
#include "toolkit/import/Directives.h"
#include "toolkit/import/DivisionTracker.h"
#include "toolkit/import/ExecStatements.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/JoinedNames.h"
#include "toolkit/import/Replacement.h"
#include "toolkit/import/Replacer.h"
#include "toolkit/import/SourceLines.h"
#include "toolkit/import/SourceReader.h"
#include "toolkit/import/StatementWords.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/WordScanner.h"

namespace as::toolkit {

// What a COPY statement changes in what it copies.
struct CopyChanges {
  Replacements replacements;
  NameJoint joint;  // Of what the replacements leave.
};

// COPY, EXEC SQL INCLUDE, "++INCLUDE" and "-INC" name copybooks. What REPLACING says of a copybook
// holds for the ones that it copies, too, behind what their own says. Passed over are other EXEC
// statements, EJECT, SKIP1 to SKIP3, TITLE, BASIS with its INSERT and DELETE, and what stands in
// paragraphs that are comments, AUTHOR for one.
class CopyExpander : public TextWordSource {
 public:
  // All must outlive it.
  CopyExpander(const SourceOptions& options, CopybookProvider* copybooks, SourceMap& map,
               TextArena& arena, ImportBudget& budget, SourceReport& report);
  ~CopyExpander() override;

  // The source to begin with. Throws std::invalid_argument for an encoding that is not known.
  void open(std::string bytes, const std::string& name);

  // That of the source, at its beginning.
  SourceFormat format() const { return format_; }

  void read(TextWord& word) override { readFrame(0, word); }

  // Lines for debugging are code from here on.
  void setDebugging();

  // Null when no directive defined the name.
  const DirectiveValue* findDefinition(const std::string& name) const {
    return directives_.find(name);
  }
  // Where copybooks of the system were passed over.
  const std::vector<SourcePlace>& passedCopybooks() const { return passedCopybooks_; }

  // Tells what is to be told when all is read.
  void finish();

 private:
  class Frame;

  void readFrame(std::size_t depth, TextWord& word);
  void readRaw(std::size_t depth, TextWord& word);
  bool takeStatement(Frame& frame, Statement statement, const TextWord& word);
  bool takeCopy(Frame& frame, const TextWord& word);
  bool takeExec(Frame& frame, const TextWord& word);
  void takeInclude(Frame& frame, const TextWord& word);
  bool takeCommentEntry(Frame& frame);
  void skipPeriod(Frame& frame) const;
  void include(const TextWord& name, const std::string& library, const SourcePlace& place,
               CopyChanges changes);
  void push(const SourceText& text, SourceFormat format, const std::string& name, std::int32_t file,
            CopyChanges changes);
  bool isOpen(const std::string& name) const;
  std::string chainTo(const std::string& name) const;
  void tellMissing(SourceRule rule, const std::string& problem, const std::string& advice,
                   const SourcePlace& place);

  const SourceOptions& options_;
  SourceMap& map_;
  TextArena& arena_;
  ImportBudget& budget_;
  SourceReport& report_;
  Directives directives_;
  CopybookLibrary library_;
  SourceText text_;
  SourceFormat format_ = SourceFormat::fixed;
  std::vector<std::unique_ptr<Frame>> frames_;
  bool debugging_ = false;
  bool inIdentification_ = false;
  DivisionTracker division_;
  bool basisSeen_ = false;
  bool sentenceOpen_ = false;  // The last word was none that ends a sentence.

  ExecStatements exec_;
  std::vector<SourcePlace> passedCopybooks_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_COPYEXPANDER_H_
