// The text of a source out of the bytes of its file.
#ifndef TOOLKIT_IMPORT_SOURCETEXT_H_
#define TOOLKIT_IMPORT_SOURCETEXT_H_

#include <cstdint>
#include <string>

#include "toolkit/import/SourceReport.h"

namespace as::toolkit {

struct SourceText {
  std::string text;    // UTF-8; every line ends with a line feed, the last one may go without.
  bool plain = false;  // Only ASCII, no tabs: a column is a byte.
  bool wide = false;   // What was two bytes is one character, and takes two columns.
};

// Reads `bytes` in `encoding` (see SourceOptions). When that is empty: UTF-8 and UTF-16 by their
// marks; EBCDIC when that is what most bytes mean, by code page 1047, from which 037 differs only
// in characters that COBOL has no use for (national ones look the same as others: they need to be
// told); UTF-8 when it is valid, Shift-JIS when it is Japanese, else Latin-1. Lines end with LF, CR
// LF or CR, of EBCDIC with NEL, too; a text of 80 bytes a record without any is cut into its
// records. Other control characters stay, and are told once; where they are many, the file is no
// text, which is an error, and nothing is left of it. Throws std::invalid_argument for an encoding
// that is not known.
SourceText decodeSource(std::string bytes, const std::string& encoding, std::int32_t file,
                        SourceReport& report);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCETEXT_H_
