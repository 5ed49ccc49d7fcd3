// Reads the words of a source with a view of those that come next.
#ifndef TOOLKIT_IMPORT_WORDREADER_H_
#define TOOLKIT_IMPORT_WORDREADER_H_

#include <array>
#include <cstddef>
#include <string_view>

#include "toolkit/import/Keywords.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

struct Word {
  Token token;
  WordMeaning meaning;  // Of a token that is a word.

  bool is(Keyword keyword) const { return meaning.keyword == keyword; }
  bool is(TokenKind kind) const { return token.kind == kind; }
  bool isMark(std::string_view mark) const {
    return token.kind == TokenKind::punctuation && token.text == mark;
  }
};

class WordReader {
 public:
  explicit WordReader(TokenSource& source) : source_(source) {}

  // The word that comes next, and the ones behind it. REQUIRES: ahead <= 2.
  const Word& peek(std::size_t ahead = 0);

  // Takes the next one.
  Word take();
  void skip();

  // Takes the next word if it is that one.
  bool accept(Keyword keyword);
  bool acceptMark(std::string_view mark);

  // Takes what comes up to the end of the sentence, with its period.
  void skipSentence();

  const TokenSource& source() const { return source_; }

  bool atEnd() { return peek().is(TokenKind::end); }

 private:
  static constexpr std::size_t most = 4;

  TokenSource& source_;
  std::array<Word, most> ring_;
  std::size_t first_ = 0;
  std::size_t count_ = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_WORDREADER_H_
