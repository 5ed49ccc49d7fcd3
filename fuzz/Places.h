// The elements of a document with what the schemas know of them.
#ifndef FUZZ_PLACES_H_
#define FUZZ_PLACES_H_

#include <cstddef>
#include <string>
#include <vector>

#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

// An element with what is known of it.
struct Place {
  Node* node;
  Node* parent;  // Null for the root.
  std::size_t index;
  const SchemaRules* schema;  // Null when no schema knows its namespace.
  const ElementRule* rule;    // Null when the schema does not know the element.
  bool isOnce;                // Whether its parent has room for no other one.
};
using Places = std::vector<Place>;

// All elements, the root first; none when there is no root.
Places placesOf(Document& document);

// The namespace of a root; empty for none.
std::string namespaceOf(const Node& root);

// The child that leaves no room for another one of that rule; null when there is room.
Node* present(const Place& at, const ChildRule& rule);
// Inserts `child` behind the last child that may stand in front of it.
void insertInOrder(Node& parent, const ElementRule& rule, Node child, int rank);

// `name` with the prefix that the element has.
std::string withPrefixOf(const Node& node, const std::string& name);

// Calls `change` for the element and every one below it.
template <class Change>
void forEach(Node& node, const Change& change) {
  if (!node.isElement()) return;
  change(node);
  for (Node& child : node.children) forEach(child, change);
}

}  // namespace fuzz

#endif  // FUZZ_PLACES_H_
