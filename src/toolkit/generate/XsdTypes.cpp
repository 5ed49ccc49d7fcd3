#include "toolkit/generate/XsdTypes.h"

#include <algorithm>

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

// Whether it cannot stand in XML as it is.
bool isMarked(char byte) {
  return byte == '&' || byte == '<' || byte == '>' || byte == '"' ||
         static_cast<unsigned char>(byte) < 0x20;
}

// Most texts hold nothing of the kind.
bool isPlain(std::string_view text) { return std::none_of(text.begin(), text.end(), isMarked); }

}  // namespace

const TypeTable& xsdTypes() {
  static const TypeTable table = {
      {"xs:byte", integerOf(8)},
      {"xs:unsignedByte", integerOf(8, false)},
      {"xs:short", integerOf(16)},
      {"xs:unsignedShort", integerOf(16, false)},
      {"xs:int", integerOf(32)},
      {"xs:unsignedInt", integerOf(32, false)},
      {"xs:long", integerOf(64)},
      {"xs:unsignedLong", integerOf(64, false)},
      {"xs:integer", {Kind::decimal, 0, 0, true, 0}},
      {"xs:decimal", {Kind::decimal}},
      {"xs:float", {Kind::floating, 6}},
      {"xs:double", {Kind::floating, 15}},
      {"xs:string", {Kind::text}},
      {"xs:base64Binary", {Kind::bytes}},
      {"xs:dateTime", {Kind::open}, "date"},
      {"xs:anyType", {Kind::open}, "object"},
      {"xs:anyType", {Kind::open}, "XML"},
  };
  return table;
}

const NameRule& xmlNames() {
  static const NameRule rule = {"XML", isXmlNameStart, isXmlNameCharacter};
  return rule;
}

std::string xmlText(std::string_view text) {
  if (isPlain(text)) return std::string(text);
  std::string result;
  result.reserve(text.size());
  for (const char byte : text) {
    switch (byte) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\t':
        result += "&#9;";
        break;
      case '\n':
        result += "&#10;";
        break;
      case '\r':
        result += "&#13;";
        break;
      default:
        if (static_cast<unsigned char>(byte) < 0x20) {
          result += "\xEF\xBF\xBD";
        } else {
          result += byte;
        }
    }
  }
  return result;
}

std::string xmlAttribute(std::string_view name, std::string_view value) {
  std::string result;
  result.reserve(name.size() + value.size() + 4);
  result.append(" ").append(name).append("=\"");
  if (isPlain(value)) {
    result.append(value);
  } else {
    result.append(xmlText(value));
  }
  return result.append("\"");
}

}  // namespace as::toolkit::gen
