#include "toolkit/import/WordReader.h"

#include <utility>

namespace as::toolkit {

const Word& WordReader::peek(std::size_t ahead) {
  while (count_ <= ahead) {
    Word& word = ring_[(first_ + count_) % most];
    source_.read(word.token);
    word.meaning = word.token.kind == TokenKind::word ? meaningOf(word.token.text) : WordMeaning();
    ++count_;
  }
  return ring_[(first_ + ahead) % most];
}

Word WordReader::take() {
  peek();
  Word word = std::move(ring_[first_]);
  first_ = (first_ + 1) % most;
  --count_;
  return word;
}

void WordReader::skip() {
  peek();
  first_ = (first_ + 1) % most;
  --count_;
}

bool WordReader::accept(Keyword keyword) {
  const bool isIt = peek().is(keyword);
  if (isIt) skip();
  return isIt;
}

bool WordReader::acceptMark(std::string_view mark) {
  const bool isIt = peek().isMark(mark);
  if (isIt) skip();
  return isIt;
}

void WordReader::skipSentence() {
  while (!peek().is(TokenKind::period) && !atEnd()) skip();
  if (!atEnd()) skip();
}

}  // namespace as::toolkit
