#include "Values.h"

#include <cstddef>

#include "Attachments.h"

namespace fuzz {

namespace {

std::string repeated(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; i++) result += text;
  return result;
}

}  // namespace

void Values::takeNames(const Document& document) {
  names_.clear();
  for (const Node& node : document.nodes) {
    if (node.isElement()) collectNames(node);
    if (!isFile(node)) continue;
    const Document file = readTree(fileIn(node).content);
    if (file.root() != nullptr) collectNames(*file.root());
  }
}

void Values::collectNames(const Node& node) {
  for (const Attribute& attribute : node.attributes) {
    if (names_.size() < 500 && attribute.name == "name") names_.push_back(attribute.value);
  }
  for (const Node& child : node.children) {
    if (child.isElement()) collectNames(child);
  }
}

std::string Values::valueFor(const AttributeRule& rule) {
  if (random_.chance(4)) return text();
  if (!rule.words.empty() && random_.chance(95)) return random_.oneOf(rule.words);
  if (rule.base == "xs:int" || rule.base == "xs:integer" || rule.base == "xs:unsignedInt") {
    return number();
  }
  if (rule.name == "item") return path();
  if (rule.name == "subscript") return subscripts();
  if (rule.name == "odo") return random_.chance(50) ? name() : path();
  if (rule.name == "name" && random_.chance(60)) return name();
  if (rule.name == "ref" || rule.name == "dataItem" || rule.name == "entryPoint") {
    return random_.chance(90) ? name() : text();
  }
  if (rule.name == "dataDictFilename" && random_.chance(80)) {
    static const char* const files[] = {"MOTPREM.xml",
                                        "PAYSLIP.xml",
                                        "WHSLOTS.xml",
                                        "DEPINT01.xml",
                                        "own.xml",
                                        "missing.xml",
                                        "document.xml",
                                        "",
                                        "."};
    return random_.oneOf(files);
  }
  if (rule.name == "schemaLocation" && random_.chance(90)) {
    static const char* const files[] = {"own.xsd",      "other.xsd", "missing.xsd",
                                        "document.xml", "",          "http://127.0.0.1:9/x.xsd",
                                        "vorws.xsd"};
    return random_.oneOf(files);
  }
  if ((rule.name == "targetNamespace" || rule.name == "namespace") && random_.chance(70)) {
    return random_.oneOf(vocabulary_.schemas()).uri;
  }
  return text();
}

std::string Values::number() {
  static const char* const numbers[] = {"0",
                                        "1",
                                        "2",
                                        "3",
                                        "7",
                                        "16",
                                        "17",
                                        "100",
                                        "2147483647",
                                        "2147483646",
                                        "4294967295",
                                        "-1",
                                        "+1",
                                        " 5 ",
                                        "00000000012",
                                        "1000000",
                                        "-2147483648",
                                        "2147483648",
                                        "99999999999999999999",
                                        "1.5",
                                        "1e9",
                                        "0x10",
                                        ""};
  return random_.chance(40) ? std::to_string(random_.below(40)) : random_.oneOf(numbers);
}

std::string Values::name() {
  if (!names_.empty() && random_.chance(85)) return random_.oneOf(names_);
  static const char* const made[] = {"A", "B", "FILLER", "N1", "A-B", "T\xC3\xA4g", "a b", "."};
  return random_.oneOf(made);
}

std::string Values::path() {
  static const char* const special[] = {
      "$command_line", "$return_code", "$stdin", "$stdout", "$STDIN", "$", "$stdin "};
  if (random_.chance(12)) return random_.oneOf(special);
  std::string result = name();
  while (random_.chance(55)) result += "." + name();
  if (random_.chance(10)) result += ".";
  if (random_.chance(35)) result += "(" + subscripts() + (random_.chance(95) ? ")" : "");
  if (random_.chance(4)) result += "." + name();
  return result;
}

std::string Values::subscripts() {
  static const char* const subscript[] = {"*",  "*",  "*",          "1",          "2",  "0",
                                          "-1", "+3", "2147483647", "2147483648", " 1", "1 ",
                                          "",   "x",  "**",         "+-1",        "007"};
  std::string result = random_.oneOf(subscript);
  std::size_t more = random_.below(3);
  if (random_.chance(10)) more = 13 + random_.below(6);
  for (std::size_t i = 0; i < more; i++) {
    result += ",";
    result += random_.oneOf(subscript);
  }
  return result;
}

std::string Values::text() {
  static const char* const texts[] = {"",
                                      " ",
                                      "x",
                                      "true",
                                      "TRUE",
                                      "1",
                                      "&#13;",
                                      "&#10;",
                                      "&#9;",
                                      "&#xD;&#xA;",
                                      "&#x1;",
                                      "&#0;",
                                      "&#x7F;",
                                      "&#x85;",
                                      "&#x2028;",
                                      "&#xFFFD;",
                                      "&#xFFFE;",
                                      "&#x10FFFF;",
                                      "&#x10000;",
                                      "&#xD800;",
                                      "&e;",
                                      "&f;",
                                      "&lt;",
                                      "&amp;",
                                      "&gt;",
                                      "&quot;",
                                      "&amp;#13;",
                                      "]]>",
                                      "&undefined;",
                                      "%p;",
                                      "\xC3\xA9",
                                      "\xE2\x82\xAC",
                                      "\xF0\x9F\x98\x80",
                                      "\xEF\xBF\xBF",
                                      "\xED\xA0\x80",
                                      "\xC0\x80",
                                      "\xFF",
                                      "\x01",
                                      "\t",
                                      "\r",
                                      "\n",
                                      "\r\n",
                                      "<",
                                      ">",
                                      "'",
                                      "&",
                                      "../../etc/passwd",
                                      "/dev/null",
                                      "urn:x",
                                      "http://127.0.0.1:9/",
                                      "file:///dev/zero",
                                      "a:b",
                                      ":a",
                                      "%",
                                      "%s%n",
                                      "$stdin",
                                      "http://agentservices.example/schema/ws/v1.0/vorws.xsd"};
  switch (random_.below(8)) {
    case 0:
      return number();
    case 1:
      return path();
    case 2:
      return subscripts();
    case 3:
      return random_.oneOf(vocabulary_.words());
    case 4:
      return name();
    case 5:
      if (random_.chance(80)) return text();
      return repeated(random_.oneOf(texts), 1 + random_.below(random_.chance(20) ? 20000 : 300));
    default:
      return random_.oneOf(texts);
  }
}

}  // namespace fuzz
