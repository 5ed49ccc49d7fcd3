// What the words of data description entries begin.
#ifndef TOOLKIT_IMPORT_ENTRYWORDS_H_
#define TOOLKIT_IMPORT_ENTRYWORDS_H_

#include "toolkit/import/WordReader.h"

namespace as::toolkit {

// The number of a level; negative when the word is no number of two digits at most.
int levelOf(const Word& word);

// Whether it is the number of a level that entries have.
bool isEntryLevel(const Word& word);

// Whether the word may begin a clause.
bool isClause(const Word& word);

// Whether what comes next ends a program, or another unit: END alone may stand elsewhere, too
// ("RERUN EVERY END OF REEL").
bool isAtEndOfUnit(WordReader& words);

// Whether what comes next begins another entry, section or division.
bool isAtNextEntry(WordReader& words);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENTRYWORDS_H_
