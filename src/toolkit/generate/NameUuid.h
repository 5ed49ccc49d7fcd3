// Identifiers made of names: the same for the same name, everywhere and always.
#ifndef TOOLKIT_GENERATE_NAMEUUID_H_
#define TOOLKIT_GENERATE_NAMEUUID_H_

#include <string>
#include <string_view>

namespace as::toolkit::gen {

// The UUID of version 5 of `name` in the toolkit's own namespace, in small letters.
std::string uuidOfName(std::string_view name);

// The UUID that `text` is, with braces around it or without, in small letters; empty for anything
// else.
std::string readUuid(std::string_view text);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMEUUID_H_
