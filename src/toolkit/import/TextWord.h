// Words as COPY and REPLACE compare them: what stands between separators.
#ifndef TOOLKIT_IMPORT_TEXTWORD_H_
#define TOOLKIT_IMPORT_TEXTWORD_H_

#include <cstdint>
#include <string_view>

#include "toolkit/import/Token.h"

namespace as::toolkit {

struct TextWord {
  enum class Kind : std::uint8_t {
    run,      // What stands together: a word, a number, a part of a picture.
    literal,  // With its prefix and its quotes; without the second one if that is wanting.
    mark,     // "(", ")", ":", "&", "=", "==", "<" or ">".
    period,   // The separator.
    barrier,  // No word: what is replaced changes from here on.
    end,
  };

  std::string_view text;
  SourcePlace place;
  Kind kind = Kind::end;
  bool space = false;      // Something separates it from the word before.
  bool lineStart = false;  // The first of its line; of no account once it is replaced.
  bool simple = false;     // Of a run: only letters, digits, "-" and the like.
  bool areaA = false;      // The first of its line, and in columns 8 to 11 of a line that has some.

  bool isRun(std::string_view word) const { return kind == Kind::run && sameWord(text, word); }
  bool isMark(std::string_view mark) const { return kind == Kind::mark && text == mark; }
};

// Text words one after the other. Views stay good as long as the import.
class TextWordSource {
 public:
  TextWordSource() = default;
  TextWordSource(const TextWordSource&) = delete;
  TextWordSource& operator=(const TextWordSource&) = delete;
  virtual ~TextWordSource() = default;
  virtual void read(TextWord& word) = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_TEXTWORD_H_
