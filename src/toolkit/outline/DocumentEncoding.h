// The text of an XML document out of its bytes.
#ifndef TOOLKIT_OUTLINE_DOCUMENTENCODING_H_
#define TOOLKIT_OUTLINE_DOCUMENTENCODING_H_

#include <optional>
#include <string>

namespace as::toolkit {

// The document in UTF-8, without a byte order mark. Its encoding is told from the mark, from how
// its first characters are coded, and from its XML declaration. Nothing where it is not known, or
// the bytes are not of it. UTF-8 itself is not looked at.
std::optional<std::string> documentInUtf8(std::string bytes);

}  // namespace as::toolkit

#endif  // TOOLKIT_OUTLINE_DOCUMENTENCODING_H_
