// How places and paths are told with each of many things: whole, unless they are longer than any
// that is read.
#ifndef TOOLKIT_TEXT_SHOWNPLACE_H_
#define TOOLKIT_TEXT_SHOWNPLACE_H_

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit {

// In bytes. A path of COBOL has 49 names of 31 characters at most. Whatever is told of each element
// of a document must not grow with what stands around the element: names of any length, levels of
// any number.
inline constexpr std::size_t longestPlace = 4000;

// The parts behind one another. Of what would be longer than `longestPlace` "..." takes the place
// of the middle, without all of it being put together.
std::string shownPlace(const std::vector<std::string_view>& parts);
std::string shownPlace(std::initializer_list<std::string_view> parts);

// The same of the names with periods between.
std::string shownPath(const std::vector<std::string_view>& names);
std::string shownPath(const std::vector<std::string>& names);

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_SHOWNPLACE_H_
