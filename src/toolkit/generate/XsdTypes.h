// What XML Schema calls types and names, for all kinds of output that hold schemas.
#ifndef TOOLKIT_GENERATE_XSDTYPES_H_
#define TOOLKIT_GENERATE_XSDTYPES_H_

#include <string>
#include <string_view>

#include "toolkit/generate/NameRule.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

// The built-in types, smallest first.
const TypeTable& xsdTypes();

// Names of elements, attributes and types.
const NameRule& xmlNames();

// `text` as it stands in an attribute's value or an element's content. Characters that XML cannot
// hold become U+FFFD.
std::string xmlText(std::string_view text);

// ` name="value"`
std::string xmlAttribute(std::string_view name, std::string_view value);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_XSDTYPES_H_
