#include "toolkit/import/EntryWords.h"

#include <string>

namespace as::toolkit {

int levelOf(const Word& word) {
  const std::string& text = word.token.text;
  if (!word.is(TokenKind::word) || text.empty() || text.size() > 2) return -1;
  int level = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return -1;
    level = 10 * level + (digit - '0');
  }
  return level;
}

bool isEntryLevel(const Word& word) {
  const int level = levelOf(word);
  return (level >= 1 && level <= 49) || level == 66 || level == 77 || level == 78 || level == 88;
}

bool isClause(const Word& word) {
  return word.meaning.role == KeywordRole::clause || word.meaning.role == KeywordRole::usage ||
         word.meaning.role == KeywordRole::softClause;
}

bool isAtEndOfUnit(WordReader& words) {
  if (!words.peek().is(Keyword::end)) return false;
  switch (words.peek(1).meaning.keyword) {
    case Keyword::program:
    case Keyword::function:
    case Keyword::method:
    case Keyword::classWord:
    case Keyword::interface:
    case Keyword::factory:
    case Keyword::object:
      return true;
    default:
      return false;
  }
}

bool isAtNextEntry(WordReader& words) {
  const Word& word = words.peek();
  if (word.is(TokenKind::end)) return true;
  if (!word.is(TokenKind::word)) return false;
  if (isEntryLevel(word) || word.meaning.role == KeywordRole::unit) return true;
  const Word& next = words.peek(1);
  return next.is(Keyword::section) || next.is(Keyword::division);
}

}  // namespace as::toolkit
