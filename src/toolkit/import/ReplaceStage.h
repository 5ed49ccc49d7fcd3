// Does what REPLACE statements say.
#ifndef TOOLKIT_IMPORT_REPLACESTAGE_H_
#define TOOLKIT_IMPORT_REPLACESTAGE_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/Replacement.h"
#include "toolkit/import/Replacer.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// A REPLACE holds up to the next one, or to REPLACE OFF. REPLACE ALSO adds to what holds, and
// REPLACE LAST OFF takes back what the last one that holds said.
class ReplaceStage : public TextWordSource {
 public:
  // All must outlive it.
  ReplaceStage(TextWordSource& source, TextArena& arena, ImportBudget& budget,
               SourceReport& report);

  void read(TextWord& word) override;

 private:
  // The words up to the next REPLACE, for which a barrier stands.
  class Input : public TextWordSource {
   public:
    explicit Input(TextWordSource& source) : source_(source) {}
    void read(TextWord& word) override;
    // Behind a barrier: the first word of what it says.
    const TextWord& statement() const { return *next_; }
    void readStatement(TextWord& word);
    void pushBack(const TextWord& word) { next_ = word; }
    TextWordSource& source() { return source_; }

   private:
    TextWordSource& source_;
    std::optional<TextWord> next_;
  };

  void takeStatement(const SourcePlace& place);
  void add(Replacements replacements);
  void takeBack();
  void renew();

  TextArena& arena_;
  ImportBudget& budget_;
  SourceReport& report_;
  Input input_;
  // What holds, that of the last statement in front, and how much came of each.
  Replacements replacements_;
  std::vector<std::size_t> counts_;
  std::unique_ptr<Replacer> replacer_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_REPLACESTAGE_H_
