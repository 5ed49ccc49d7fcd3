#include "Mender.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>

namespace fuzz {

namespace {

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), text) != words.end();
}

bool startsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

template <class Predicate>
void removeChildren(std::vector<Node>& nodes, const Predicate& isBad) {
  nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isBad), nodes.end());
}

bool isCharacter(std::uint32_t code) {
  return code == 0x9 || code == 0xA || code == 0xD || (code >= 0x20 && code < 0xD800) ||
         (code >= 0xE000 && code < 0xFFFE) || (code >= 0x10000 && code < 0x110000);
}

// The length of the character of UTF-8 text that XML may hold at its start; 0 when there is none.
std::size_t characterLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return isCharacter(first) ? 1 : 0;
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  std::uint32_t code = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; i++) {
    const auto tail = static_cast<unsigned char>(text[i]);
    if ((tail & 0xC0) != 0x80) return 0;
    code = code << 6 | (tail & 0x3FU);
  }
  static constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  return code >= least[length] && isCharacter(code) ? length : 0;
}

// Whether "&#...;" refers to a character.
bool isGoodNumber(std::string_view reference) {
  const bool isHex = reference.size() > 2 && reference[2] == 'x';
  const std::string digits(reference.substr(isHex ? 3 : 2, reference.size() - (isHex ? 4 : 3)));
  const std::size_t odd = digits.find_first_not_of(isHex ? "0123456789abcdefABCDEF" : "0123456789");
  if (digits.empty() || digits.size() > 8 || odd != std::string::npos) return false;
  return isCharacter(
      static_cast<std::uint32_t>(std::strtoul(digits.c_str(), nullptr, isHex ? 16 : 10)));
}

// Whether the text is a whole number in that range, as schemas have it.
bool isNumber(const std::string& text, std::int64_t least, std::int64_t most) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return false;
  const std::string number = text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
  const std::size_t sign = number[0] == '-' || number[0] == '+' ? 1 : 0;
  if (number.size() == sign || number.size() > 18 ||
      number.find_first_not_of("0123456789", sign) != std::string::npos) {
    return false;
  }
  const std::int64_t value = std::strtoll(number.c_str(), nullptr, 10);
  return value >= least && value <= most;
}

}  // namespace

void Mender::mendText(Document& document) {
  mendDeclaration(document);
  mendDoctype(document);
  for (Node& node : document.nodes) mendReferences(node);
}

void Mender::mend(Document& document, const SchemaRules& schema) {
  bool hasRoot = false;
  removeChildren(document.nodes, [&](const Node& node) {
    const bool isSecond = hasRoot && node.isElement();
    if (node.isElement()) hasRoot = true;
    return isSecond || node.kind == Node::Kind::text || node.kind == Node::Kind::cdata;
  });
  if (Node* const root = document.root()) mendRoot(*root, schema);
  mendText(document);
}

// --------------------------------------------------------------------------------- Structure

void Mender::mendRoot(Node& root, const SchemaRules& schema) {
  std::string prefix(root.prefix());
  if (isOneOf(prefix, {"xsi", "xml", "xmlns"}) || prefix.find_first_of("&<%\"'") != prefix.npos) {
    prefix = "p";
  }
  root.name = (prefix.empty() ? "" : prefix + ":") + schema.root;
  root.setAttribute(prefix.empty() ? "xmlns" : "xmlns:" + prefix, schema.uri);
  root.setAttribute("xmlns:xsi", xsiUri);
  std::string& location = [&]() -> std::string& {
    if (root.attribute("xsi:schemaLocation") == nullptr) {
      root.setAttribute("xsi:schemaLocation", "");
    }
    return *root.attribute("xsi:schemaLocation");
  }();
  if (!startsWith(location, schema.uri + " ") || random_.chance(90)) {
    location = schema.uri + " " + schema.uri;
  }
  if (const ElementRule* const rule = schema.type(schema.rootType)) {
    mendElement(root, schema, *rule);
  }
}

void Mender::mendElement(Node& node, const SchemaRules& schema, const ElementRule& rule) {
  mendAttributes(node, rule);
  mendChildren(node, schema, rule);
}

void Mender::mendAttributes(Node& node, const ElementRule& rule) {
  std::set<std::string> seen;
  std::vector<Attribute>& attributes = node.attributes;
  const auto isBad = [&](const Attribute& attribute) {
    if (!seen.insert(attribute.name).second) return true;
    // Of namespaces only what the root says counts.
    if (startsWith(attribute.name, "xmlns")) return false;
    if (isOneOf(attribute.name, {"xsi:schemaLocation"})) return false;
    return std::none_of(rule.attributes.begin(), rule.attributes.end(),
                        [&](const AttributeRule& known) { return known.name == attribute.name; });
  };
  attributes.erase(std::remove_if(attributes.begin(), attributes.end(), isBad), attributes.end());
  for (const AttributeRule& known : rule.attributes) {
    std::string* value = node.attribute(known.name);
    if (value == nullptr && known.required) {
      node.setAttribute(known.name, "A");
      value = node.attribute(known.name);
    }
    if (value != nullptr) mendValue(*value, known);
  }
}

void Mender::mendValue(std::string& value, const AttributeRule& rule) {
  if (!rule.words.empty()) {
    if (std::find(rule.words.begin(), rule.words.end(), value) == rule.words.end()) {
      value = random_.oneOf(rule.words);
    }
    return;
  }
  const bool isCount = rule.type == "count";
  const bool isUnsigned = rule.base == "xs:unsignedInt";
  if (isCount || isUnsigned || rule.base == "xs:int" || rule.base == "xs:integer") {
    const std::int64_t least = isCount || isUnsigned ? 0 : INT32_MIN;
    const std::int64_t most = isUnsigned ? UINT32_MAX : INT32_MAX;
    if (!isNumber(value, least, most)) value = std::to_string(random_.below(40));
  } else if (rule.type == "name") {
    if (value.empty()) value = "A";
  } else if (rule.type == "subscripts" || rule.type == "item") {
    // At most sixteen subscripts.
    std::size_t at = rule.type == "item" ? value.find('(') : 0;
    for (std::size_t count = 0; at < value.size() && value[at] != ')'; at++) {
      if (value[at] == ',' && ++count > 15) value[at] = '1';
    }
  } else if (rule.type == "blank") {
    value = " ";
  }
}

void Mender::mendChildren(Node& node, const SchemaRules& schema, const ElementRule& rule) {
  std::set<std::string, std::less<>> seen;
  removeChildren(node.children, [&](const Node& child) {
    if (child.kind == Node::Kind::text || child.kind == Node::Kind::cdata) {
      return child.text.find_first_not_of(" \t\r\n") != std::string::npos ||
             child.kind == Node::Kind::cdata;
    }
    if (!child.isElement()) return child.kind == Node::Kind::doctype;
    const ChildRule* const known = rule.child(child.localName());
    if (known == nullptr) return true;
    return known->isOnce && !seen.insert(known->name).second;
  });
  const std::string prefix(node.prefix());
  int rank = 0;
  bool isInOrder = true;
  for (Node& child : node.children) {
    if (!child.isElement()) continue;
    const ChildRule& known = *rule.child(child.localName());
    isInOrder = isInOrder && known.rank >= rank;
    rank = known.rank;
    child.name = (prefix.empty() ? "" : prefix + ":") + known.name;
    child.attributes.erase(std::remove_if(child.attributes.begin(), child.attributes.end(),
                                          [&](const Attribute& attribute) {
                                            return startsWith(attribute.name, "xmlns") ||
                                                   startsWith(attribute.name, "xsi:");
                                          }),
                           child.attributes.end());
    if (const ElementRule* const inner = schema.type(known.type)) {
      mendElement(child, schema, *inner);
    }
  }
  if (isInOrder) return;
  // What is no element is of no rank: it would have to stay where it is.
  removeChildren(node.children, [](const Node& child) { return !child.isElement(); });
  std::stable_sort(
      node.children.begin(), node.children.end(), [&](const Node& left, const Node& right) {
        return rule.child(left.localName())->rank < rule.child(right.localName())->rank;
      });
}

// -------------------------------------------------------------------------------------- Text

void Mender::mendDeclaration(Document& document) {
  std::vector<Node>& nodes = document.nodes;
  bool isFirst = true;
  removeChildren(nodes, [&](const Node& node) {
    const bool isDeclaration =
        node.kind == Node::Kind::instruction && (node.name == "xml" || node.name == "XML");
    const bool stays = isFirst && node.name == "xml" && startsWith(node.text, "version=\"1.");
    isFirst = false;
    if (!isDeclaration) return false;
    const std::size_t at = node.text.find("encoding=\"");
    if (!stays || at == node.text.npos) return !stays;
    const std::string encoding = node.text.substr(at + 10, node.text.find('"', at + 10) - at - 10);
    if (document.encoding == Encoding::bytes) return !isOneOf(encoding, {"UTF-8", "utf-8"});
    return encoding != "UTF-16";
  });
}

void Mender::mendDoctype(Document& document) {
  entities_ = {"lt", "gt", "amp", "quot", "apos"};
  Node* const root = document.root();
  bool hasOne = false;
  bool isBehindRoot = false;
  removeChildren(document.nodes, [&](Node& node) {
    isBehindRoot = isBehindRoot || node.isElement();
    if (node.kind != Node::Kind::doctype) return false;
    const std::size_t subset = node.text.find('[');
    bool isBad = hasOne || isBehindRoot || root == nullptr || subset == node.text.npos ||
                 !startsWith(node.text, "DOCTYPE ");
    for (const char* const refused :
         {"SYSTEM", "PUBLIC", "%", "ATTLIST", "ELEMENT", "NOTATION", "e \"&e;"}) {
      isBad = isBad || node.text.find(refused) != node.text.npos;
    }
    if (isBad) return true;
    hasOne = true;
    std::map<std::string, std::string> values;
    static constexpr char start[] = "<!ENTITY ";
    for (std::size_t at = 0; (at = node.text.find(start, at)) != node.text.npos;) {
      at += sizeof(start) - 1;
      const std::size_t open = node.text.find('"', at);
      const std::size_t close = open == node.text.npos ? open : node.text.find('"', open + 1);
      if (close == node.text.npos) break;
      std::string name = node.text.substr(at, open - at);
      name.erase(name.find_last_not_of(' ') + 1);
      values.try_emplace(name, node.text.substr(open + 1, close - open - 1));
      at = close;
    }
    // Text that may stand in an attribute. One entity in another is enough.
    for (int round = 0; round < 3; round++) {
      for (const auto& [name, value] : values) {
        if (value.find_first_of("<") == value.npos && value.find("&#60;") == value.npos &&
            mended(value) == value) {
          entities_.insert(name);
        }
      }
    }
    return false;
  });
  if (!hasOne) return;
  for (Node& node : document.nodes) {
    if (node.kind != Node::Kind::doctype) continue;
    node.text = "DOCTYPE " + document.root()->name + " " + node.text.substr(node.text.find('['));
  }
}

void Mender::mendReferences(Node& node) {
  switch (node.kind) {
    case Node::Kind::text:
    case Node::Kind::cdata:
    case Node::Kind::comment:
    case Node::Kind::instruction:
      node.text = mended(node.text);
      if (node.kind == Node::Kind::comment) {
        std::replace(node.text.begin(), node.text.end(), '-', '_');
      }
      return;
    case Node::Kind::doctype:
      return;
    case Node::Kind::element:
      break;
  }
  for (Attribute& attribute : node.attributes) attribute.value = mended(attribute.value);
  for (Node& child : node.children) mendReferences(child);
}

// Without what is no character or refers to nothing.
std::string Mender::mended(std::string_view text) const {
  std::string result;
  while (!text.empty()) {
    std::size_t length = characterLength(text);
    if (length == 0) {
      text.remove_prefix(1);
      continue;
    }
    if (text[0] == '&') {
      const std::size_t end = text.substr(0, 60).find(';');
      const bool isReference = end != text.npos && end > 1;
      const std::string_view whole = text.substr(0, isReference ? end + 1 : 1);
      const bool isGood =
          isReference &&
          (whole[1] == '#' ? isGoodNumber(whole) : entities_.count(whole.substr(1, end - 1)) != 0);
      result += isGood ? whole : "&amp;";
      length = isGood ? whole.size() : 1;
    } else {
      result += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return result;
}

}  // namespace fuzz
