// Tables of an attribute's words and their codes: how enumerations are read and written.
#ifndef XML_WORDTABLE_H_
#define XML_WORDTABLE_H_

#include <cstddef>
#include <xercesc/util/XMLString.hpp>

// One row: the text in the document and the code in the interface.
struct WordCode {
  const XMLCh* word;
  int code;
};

// The code of the first row whose word equals `text` exactly; `fallback` when there is none.
template <std::size_t N>
int codeOfWord(const WordCode (&table)[N], const XMLCh* text, int fallback) {
  if (text == nullptr) return fallback;
  for (const WordCode& row : table) {
    // Nearly all are told apart by their first letters.
    if (*row.word == *text && xercesc::XMLString::equals(row.word, text)) return row.code;
  }
  return fallback;
}

// The word of the first row whose code is `code`; null when there is none.
template <std::size_t N>
const XMLCh* wordOfCode(const WordCode (&table)[N], int code) {
  for (const WordCode& row : table) {
    if (row.code == code) return row.word;
  }
  return nullptr;
}

#endif  // XML_WORDTABLE_H_
