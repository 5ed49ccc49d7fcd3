// Names of documents as they are told and made into other names: no longer than anybody reads.
// Places are told of many things, and paths grow with the depth of what they lead to: told in full,
// those of a small document may take more memory than there is.
#ifndef TOOLKIT_GENERATE_SHORTPATH_H_
#define TOOLKIT_GENERATE_SHORTPATH_H_

#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit::gen {

// The name, or the first 200 bytes of it, at the end of a character, and "...".
std::string shortName(std::string_view name);

// The names as shortName() has them, with periods between. Of a path of more than about 4,000 bytes
// the middle is left out, and "..." stands in its place.
std::string shortPath(const std::vector<std::string_view>& names);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SHORTPATH_H_
