// The subscripts of mappings as lists.
#ifndef TOOLKIT_WALK_SUBSCRIPTS_H_
#define TOOLKIT_WALK_SUBSCRIPTS_H_

#include <string>
#include <vector>

namespace as {
class IMapping;
}

namespace as::toolkit {

inline constexpr int everyOccurrence = -1;

// Empty when there are none, and when one is neither "*" nor a number.
std::vector<int> dataItemSubscripts(as::IMapping& mapping);
std::vector<int> interfaceSubscripts(as::IMapping& mapping);
// The same of a mapping whose attribute, "item" or "subscript", is known to be `text`.
std::vector<int> dataItemSubscripts(as::IMapping& mapping, const std::string& text);
std::vector<int> interfaceSubscripts(as::IMapping& mapping, const std::string& text);

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_SUBSCRIPTS_H_
