// Replaces words in a text.
#ifndef TOOLKIT_IMPORT_REPLACER_H_
#define TOOLKIT_IMPORT_REPLACER_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "toolkit/import/GluedWords.h"
#include "toolkit/import/ImportBudget.h"
#include "toolkit/import/Replacement.h"
#include "toolkit/import/TextArena.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// At each word of the source the replacements are tried in their order; what stands in the place of
// others is not looked at again. Replaced words have the place of the first of those that they
// stand for. Barriers end what is compared, and are handed on.
class Replacer : public TextWordSource {
 public:
  // All must outlive it.
  Replacer(TextWordSource& source, const Replacements& replacements, TextArena& arena,
           ImportBudget& budget);

  void read(TextWord& word) override;

 private:
  void fill(std::size_t count);
  bool matches(const Replacement& replacement);
  void replace(const Replacement& replacement);
  void drop(std::size_t count);
  void put(TextWord word);

  const Replacements& replacements_;
  ImportBudget& budget_;
  GluedWords words_;
  // What was read and not given yet, from `first_` on.
  std::vector<TextWord> window_;
  std::size_t first_ = 0;
  // What stands in the place of words, from `given_` on.
  std::vector<TextWord> output_;
  std::size_t given_ = 0;
  std::size_t comparisons_ = 0;
  // Of replaced words without anything in their place.
  bool owesSpace_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_REPLACER_H_
