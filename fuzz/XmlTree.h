// XML text as a tree that mutations work on. Reads anything at all, leniently and without the
// library: what is fuzzed must not decide what it is fed with.
#ifndef FUZZ_XMLTREE_H_
#define FUZZ_XMLTREE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// All text is as it stands in the document: references are not resolved.
struct Attribute {
  std::string name;
  std::string value;
};

struct Node {
  enum class Kind { element, text, cdata, comment, instruction, doctype };

  Kind kind = Kind::text;
  std::string name;  // Of an element or an instruction.
  std::string text;  // Of everything else, and what follows the name of an instruction.
  std::vector<Attribute> attributes;
  std::vector<Node> children;

  bool isElement() const { return kind == Kind::element; }
  // The value of the attribute; null when there is none.
  std::string* attribute(std::string_view wanted);
  const std::string* attribute(std::string_view wanted) const;
  void setAttribute(const std::string& attributeName, const std::string& value);
  // The names of an element without and with only the prefix.
  std::string_view localName() const;
  std::string_view prefix() const;
};

Node element(std::string name, std::vector<Attribute> attributes = {},
             std::vector<Node> children = {});
Node node(Node::Kind kind, std::string text);
// An instruction, <?NAME TEXT?>.
Node instruction(std::string name, std::string text);

enum class Encoding { bytes, utf16LittleEndian, utf16BigEndian };

struct Document {
  Encoding encoding = Encoding::bytes;
  std::vector<Node> nodes;  // The XML declaration is an instruction named "xml".

  // The first element of all; null when there is none.
  Node* root();
  const Node* root() const;
  // Whether it may hold what XML 1.0 does not, and what is not written: control characters.
  bool isOtherXml() const;
  // The first instruction of that name beside the root; null when there is none.
  Node* instruction(std::string_view name);
  const Node* instruction(std::string_view name) const;
};

// Elements that are deeper than this are read as if they held nothing.
constexpr std::size_t maxTreeDepth = 4000;

Document readTree(std::string_view text);
std::string printTree(const Document& document);

}  // namespace fuzz

#endif  // FUZZ_XMLTREE_H_
