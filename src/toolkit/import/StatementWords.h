// The words that begin what the reader of words does by itself, or leaves out.
#ifndef TOOLKIT_IMPORT_STATEMENTWORDS_H_
#define TOOLKIT_IMPORT_STATEMENTWORDS_H_

#include <string_view>

#include "toolkit/import/SourceLines.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

// What may come in the place of a word; all but `none` are looked at closer.
enum class Statement {
  none,
  copy,
  exec,
  eject,
  title,
  basis,
  insert,
  include,
  identification,
  otherDivision,
  commentEntry,
};

// REQUIRES: the word is a run.
Statement statementOf(const TextWord& word);

// The first word of `text`, without a period at its end.
std::string_view firstWord(std::string_view text);

// Whether a paragraph that is a comment ends in front of that line.
bool endsCommentEntry(const SourceLine& line);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_STATEMENTWORDS_H_
