// Text words with those put together that nothing stands between: what is left of words that were
// replaced in part.
#ifndef TOOLKIT_IMPORT_GLUEDWORDS_H_
#define TOOLKIT_IMPORT_GLUEDWORDS_H_

#include <string>

#include "toolkit/import/TextArena.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// Reads one word ahead of what it gives, but none beyond a barrier before that was given.
class GluedWords : public TextWordSource {
 public:
  GluedWords(TextWordSource& source, TextArena& arena) : source_(source), arena_(arena) {}

  void read(TextWord& word) override {
    if (!hasAhead_) source_.read(ahead_);
    word = ahead_;
    hasAhead_ = word.kind != TextWord::Kind::barrier && word.kind != TextWord::Kind::end;
    if (!hasAhead_) return;
    source_.read(ahead_);
    if (belongsTo(word)) glue(word);
  }

  // The word behind the last one. REQUIRES: that was no barrier and no end.
  const TextWord& ahead() const { return ahead_; }

 private:
  bool belongsTo(const TextWord& word) const {
    return !ahead_.space && ahead_.kind == TextWord::Kind::run && word.kind == TextWord::Kind::run;
  }

  void glue(TextWord& word) {
    std::string whole(word.text);
    while (belongsTo(word)) {
      whole += ahead_.text;
      word.simple = word.simple && ahead_.simple;
      source_.read(ahead_);
    }
    word.text = arena_.keep(whole);
  }

  TextWordSource& source_;
  TextArena& arena_;
  TextWord ahead_;
  bool hasAhead_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_GLUEDWORDS_H_
