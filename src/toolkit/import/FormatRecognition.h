// Tells from the text of a source which format it is written in.
#ifndef TOOLKIT_IMPORT_FORMATRECOGNITION_H_
#define TOOLKIT_IMPORT_FORMATRECOGNITION_H_

#include <string_view>

#include "as/toolkit/SourceFormat.h"

namespace as::toolkit {

// Fixed, variable or free, by the votes of the first lines, up to one that sets the format itself:
//
// - Fixed format: a comment by its indicator, or blank columns 1 to 6 or a number in them with an
//   indicator behind.
// - Free format: text across columns 6 and 7 where no indicator can be; a level number or a verb
//   that begins in the columns of sequence numbers; a "*>" in front of column 7.
//
// - What is fixed is variable when lines go on behind column 72: when a literal ends only there and
//   no continuation follows, or when text stands behind column 80 that is no comment, with nothing
//   in columns 73 to 80, or something that runs through them.
//
// Lines that either format may have (blank up to column 7 without more) do not vote, nor does what
// stands behind column 72. When none does, or as many for the one as for the other, it is
// `otherwise`.
SourceFormat recognisedFormat(std::string_view text, SourceFormat otherwise);

// That of a copybook: that in force `around` the statement that copies it, as compilers have it,
// unless its own lines say otherwise: one at least that the other format alone can have, and more
// than twice as many as for the one around. Fixed may become variable unless it was told.
SourceFormat copybookFormat(std::string_view text, SourceFormat around, bool isTold);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_FORMATRECOGNITION_H_
