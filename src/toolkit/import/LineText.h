// What lines of a source begin and end with.
#ifndef TOOLKIT_IMPORT_LINETEXT_H_
#define TOOLKIT_IMPORT_LINETEXT_H_

#include <string_view>

namespace as::toolkit {

// Without the blanks at its ends. Control characters are blanks.
std::string_view trimmed(std::string_view text);
std::string_view withoutBlanksInFront(std::string_view text);
std::string_view withoutBlanksBehind(std::string_view text);

// Whether `text` begins with the word, in letters of any case, and no longer one.
bool beginsWord(std::string_view text, std::string_view word);

// Whether `text`, which begins with "$", is a directive.
bool isDollarDirective(std::string_view text);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_LINETEXT_H_
