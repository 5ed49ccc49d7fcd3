// Which encoding the bytes of a source that does not say are in.
#ifndef TOOLKIT_IMPORT_ENCODINGRECOGNITION_H_
#define TOOLKIT_IMPORT_ENCODINGRECOGNITION_H_

#include <string_view>

namespace as::toolkit {

// Whether most of it are characters that COBOL is written with in EBCDIC, and more than in ASCII.
bool looksLikeEbcdic(std::string_view bytes);

// Whether all of it is Shift-JIS, and Japanese: letters of Europe make pairs that are Shift-JIS,
// too, but seldom with a second byte above 127, and their first ones are elsewhere.
bool looksLikeShiftJis(std::string_view bytes);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_ENCODINGRECOGNITION_H_
