// What the REPLACING phrase of COPY, or REPLACE, puts in the place of what.
#ifndef TOOLKIT_IMPORT_REPLACEMENT_H_
#define TOOLKIT_IMPORT_REPLACEMENT_H_

#include <deque>
#include <optional>
#include <string_view>
#include <vector>

#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

struct Replacement {
  enum class Part : std::uint8_t { whole, leading, trailing };
  // With LEADING the last of the words needs only begin the one that it is compared with, with
  // TRAILING the first needs only end it.
  Part part = Part::whole;
  std::vector<TextWord> words;  // At least one.
  std::vector<TextWord> by;
};

using Replacements = std::deque<Replacement>;

// Whether two words are compared as equal: runs whatever the case of their letters, literals by
// what is in their quotes.
bool isSame(const TextWord& one, const TextWord& other);

// What the text of a literal is made of.
struct LiteralParts {
  std::string_view prefix;
  char quote = '"';
  std::string_view content;  // Doubled quotes as they stand.
};

LiteralParts partsOf(const TextWord& literal);

// Words of which the last one can be read again.
class ReturnableWords : public TextWordSource {
 public:
  // The source must outlive it.
  explicit ReturnableWords(TextWordSource& source) : source_(source) {}

  void read(TextWord& word) override {
    if (returned_) {
      word = *returned_;
      returned_.reset();
    } else {
      source_.read(word);
    }
  }
  void giveBack(const TextWord& word) { returned_ = word; }

 private:
  TextWordSource& source_;
  std::optional<TextWord> returned_;
};

// Reads replacements up to the period, and that, too. `word` is the first word of the first, and in
// the end what was read last: the period unless something is wrong, which is told, or the end.
// `place` is that of the statement.
Replacements readReplacements(TextWordSource& source, TextWord& word, const SourcePlace& place,
                              SourceReport& report);

// The same of a COPY statement, where they may end in front of JOINING or its like as well, which
// is `word` then.
Replacements readCopyReplacements(ReturnableWords& source, TextWord& word, const SourcePlace& place,
                                  SourceReport& report);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_REPLACEMENT_H_
