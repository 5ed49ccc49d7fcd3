// What JSON calls types and definitions, for all kinds of output that hold JSON Schemas.
#ifndef TOOLKIT_GENERATE_JSONTYPES_H_
#define TOOLKIT_GENERATE_JSONTYPES_H_

#include <string_view>

#include "toolkit/generate/NameRule.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

// What JSON knows: numbers that are exact in every reader, and strings for all others.
const TypeTable& jsonTypes();

// Keys of definitions and components.
const NameRule& jsonNames();

// Types of the table that are strings to JSON.
inline constexpr std::string_view integerText = "string of digits";
inline constexpr std::string_view decimalText = "string of a decimal number";
inline constexpr std::string_view bytesText = "string in base 64";
inline constexpr std::string_view dateText = "string of a date-time";
inline constexpr std::string_view xmlDocument = "string of XML";
inline constexpr std::string_view anything = "anything";

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONTYPES_H_
