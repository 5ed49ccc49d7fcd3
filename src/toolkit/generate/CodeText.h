// Text of documents inside of source code.
#ifndef TOOLKIT_GENERATE_CODETEXT_H_
#define TOOLKIT_GENERATE_CODETEXT_H_

#include <string>
#include <string_view>

namespace as::toolkit::gen {

// `text` as it stands in comments of which documentation is made, as HTML or XML has it, on one
// line. Nothing in it ends the comment, or means something to javadoc or to a compiler.
std::string docText(std::string_view text);

// `text` as it stands in comments of any language, on one line: with what ends or breaks one ("*/",
// "--", "??/", control characters) made harmless.
std::string commentText(std::string_view text);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_CODETEXT_H_
