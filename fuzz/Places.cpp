#include "Places.h"

#include <algorithm>
#include <map>
#include <utility>

namespace fuzz {

namespace {

// The namespace declarations in force at an element.
struct Scope {
  std::map<std::string, std::string, std::less<>> uris;

  std::string uriOf(const Node& node) const {
    const auto found = uris.find(node.prefix());
    return found == uris.end() ? std::string() : found->second;
  }
  // The scope of an element in this one.
  Scope inside(const Node& node) const {
    Scope inner = *this;
    for (const Attribute& attribute : node.attributes) {
      if (attribute.name == "xmlns") inner.uris[""] = attribute.value;
      if (attribute.name.rfind("xmlns:", 0) == 0) {
        inner.uris[attribute.name.substr(6)] = attribute.value;
      }
    }
    return inner;
  }
  static bool declares(const Node& node) {
    return std::any_of(node.attributes.begin(), node.attributes.end(),
                       [](const Attribute& each) { return each.name.rfind("xmlns", 0) == 0; });
  }
};

void collect(const Place& place, const Scope& scope, Places& places) {
  places.push_back(place);
  for (std::size_t i = 0; i < place.node->children.size(); i++) {
    Node& child = place.node->children[i];
    if (!child.isElement()) continue;
    const bool isNew = Scope::declares(child) || child.prefix() != place.node->prefix();
    const Scope inner = isNew ? scope.inside(child) : Scope();
    const Scope& its = isNew ? inner : scope;
    const SchemaRules* const schema =
        isNew ? Vocabulary::shipped().schema(its.uriOf(child)) : place.schema;
    const ElementRule* rule = nullptr;
    const ChildRule* const known =
        place.rule == nullptr ? nullptr : place.rule->child(child.localName());
    if (known != nullptr && schema == place.schema) {
      rule = schema->type(known->type);
    } else if (schema != nullptr) {
      rule = schema->anywhere(child.localName());
    }
    collect({&child, place.node, i, schema, rule, known != nullptr && known->isOnce}, its, places);
  }
}

}  // namespace

Places placesOf(Document& document) {
  Places places;
  Node* const root = document.root();
  if (root == nullptr) return places;
  const Scope scope = Scope().inside(*root);
  const SchemaRules* const schema = Vocabulary::shipped().schema(scope.uriOf(*root));
  const ElementRule* rule = nullptr;
  if (schema != nullptr) {
    rule = root->localName() == schema->root ? schema->type(schema->rootType)
                                             : schema->anywhere(root->localName());
  }
  collect({root, nullptr, 0, schema, rule, true}, scope, places);
  return places;
}

std::string namespaceOf(const Node& root) { return Scope().inside(root).uriOf(root); }

Node* present(const Place& at, const ChildRule& rule) {
  if (!rule.isOnce) return nullptr;
  for (Node& child : at.node->children) {
    if (child.isElement() && child.localName() == rule.name) return &child;
  }
  return nullptr;
}

void insertInOrder(Node& parent, const ElementRule& rule, Node child, int rank) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < parent.children.size(); i++) {
    const ChildRule* const other = rule.child(parent.children[i].localName());
    if (other != nullptr && other->rank <= rank) at = i + 1;
  }
  parent.children.insert(parent.children.begin() + static_cast<std::ptrdiff_t>(at),
                         std::move(child));
}

std::string withPrefixOf(const Node& node, const std::string& name) {
  const std::string_view prefix = node.prefix();
  return prefix.empty() ? name : std::string(prefix) + ":" + name;
}

}  // namespace fuzz
