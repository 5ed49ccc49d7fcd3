#include "toolkit/generate/JsonTypes.h"

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

bool isDefinitionCharacter(char32_t character) {
  return isAsciiLetter(character) || isDigit(character) || character == U'-' || character == U'.' ||
         character == U'_';
}

}  // namespace

const TypeTable& jsonTypes() {
  // Numbers are doubles to many readers, which hold 53 bits.
  static const TypeTable table = {
      {"integer", integerOf(53)},
      {integerText.data(), {Kind::decimal, 0, 0, true, 0}},
      {decimalText.data(), {Kind::decimal}},
      {"number", {Kind::floating, 15}},
      {"string", {Kind::text}},
      {bytesText.data(), {Kind::bytes}},
      {dateText.data(), {Kind::open}, "date"},
      {anything.data(), {Kind::open}, "object"},
      {xmlDocument.data(), {Kind::open}, "XML"},
  };
  return table;
}

const NameRule& jsonNames() {
  static const NameRule rule = {"JSON Schema", isDefinitionCharacter, isDefinitionCharacter};
  return rule;
}

}  // namespace as::toolkit::gen
