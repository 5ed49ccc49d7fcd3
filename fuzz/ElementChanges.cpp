#include "ElementChanges.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace fuzz {

Node ElementChanges::makeElement(const SchemaRules& schema, const ChildRule& rule,
                                 const Node& parent, int depth) {
  Node made = element(withPrefixOf(parent, rule.name));
  const ElementRule* const own = schema.type(rule.type);
  if (own == nullptr) return made;
  for (const AttributeRule& attribute : own->attributes) {
    if (!attribute.required && !random_.chance(25)) continue;
    made.setAttribute(attribute.name, values_.valueFor(attribute));
  }
  if (depth >= 3) return made;
  for (const ChildRule& child : own->children) {
    if (!random_.chance(depth == 0 ? 50 : 25)) continue;
    made.children.push_back(makeElement(schema, child, made, depth + 1));
  }
  return made;
}

void ElementChanges::insert(const Place& at) {
  const bool isKnown = at.rule != nullptr && !at.rule->children.empty();
  if (isKnown && random_.chance(93)) {
    const ChildRule& child = random_.oneOf(at.rule->children);
    Node made = makeElement(*at.schema, child, *at.node, 0);
    if (Node* const old = random_.chance(95) ? present(at, child) : nullptr) {
      // More of what it holds instead.
      if (made.children.empty()) return;
      Node held = random_.oneOf(made.children);
      if (const ElementRule* const inner = at.schema->type(child.type)) {
        if (const ChildRule* const its = inner->child(held.localName())) {
          return insertInOrder(*old, *inner, std::move(held), its->rank);
        }
      }
      return;
    }
    return insertInOrder(*at.node, *at.rule, std::move(made), child.rank);
  }
  if (!random_.chance(30)) return setKnownAttribute(at);
  // Something that does not belong there, or stands in another order.
  const SchemaRules& schema = random_.oneOf(vocabulary_.schemas());
  std::vector<ChildRule> candidates;
  for (const auto& [name, rule] : schema.types) {
    candidates.insert(candidates.end(), rule.children.begin(), rule.children.end());
  }
  Node made = makeElement(schema, random_.oneOf(candidates), *at.node, 1);
  if (random_.chance(60)) made.setAttribute("xmlns", schema.uri);
  std::vector<Node>& siblings = at.node->children;
  const auto where = static_cast<std::ptrdiff_t>(random_.below(siblings.size() + 1));
  siblings.insert(siblings.begin() + where, std::move(made));
}

void ElementChanges::remove(const Place& at) {
  if (at.parent == nullptr) return;
  const auto where = at.parent->children.begin() + static_cast<std::ptrdiff_t>(at.index);
  if (random_.chance(20)) {
    // What it held takes its place.
    std::vector<Node> held = std::move(at.node->children);
    const auto after = at.parent->children.erase(where);
    at.parent->children.insert(after, std::make_move_iterator(held.begin()),
                               std::make_move_iterator(held.end()));
    return;
  }
  at.parent->children.erase(where);
}

void ElementChanges::duplicate(const Place& at) {
  if (at.parent == nullptr || (at.isOnce && random_.chance(95))) return;
  std::size_t times = 1;
  while (times < 300 && random_.chance(25)) times *= 3;
  const Node copy = *at.node;
  if (copy.children.size() > 20) times = 1;
  at.parent->children.insert(at.parent->children.begin() + static_cast<std::ptrdiff_t>(at.index),
                             times, copy);
}

void ElementChanges::move(const Place& at, const Places& places) {
  if (at.parent == nullptr) return;
  const Node moved = *at.node;
  for (int attempt = 0; attempt < 20; attempt++) {
    const Place& target = random_.oneOf(places);
    const ChildRule* const child =
        target.rule == nullptr ? nullptr : target.rule->child(moved.localName());
    if (child == nullptr && !random_.chance(3)) continue;
    if (child != nullptr && present(target, *child) != nullptr && random_.chance(95)) continue;
    // A copy moves: the target may stand below it.
    if (child != nullptr) {
      insertInOrder(*target.node, *target.rule, moved, child->rank);
    } else {
      target.node->children.push_back(moved);
    }
    return;
  }
}

void ElementChanges::rename(const Place& at) {
  std::string renamed = random_.oneOf(vocabulary_.words());
  if (random_.chance(85) && at.schema != nullptr && at.parent != nullptr) {
    // Another name that may stand in its place.
    for (const auto& [name, rule] : at.schema->types) {
      if (rule.child(at.node->localName()) == nullptr || rule.children.size() < 2) continue;
      renamed = random_.oneOf(rule.children).name;
      if (random_.chance(50)) break;
    }
  }
  at.node->name = withPrefixOf(*at.node, renamed);
}

// The element in copies of itself: fields in fields, groups in groups.
void ElementChanges::nest(const Place& at) {
  if (at.rule == nullptr || at.rule->child(at.node->localName()) == nullptr) return;
  std::size_t times = 1 + random_.below(5);
  if (random_.chance(8)) times = 1900 + random_.below(300);
  Node shell = element(at.node->name, at.node->attributes);
  if (times > 100) {
    shell.attributes.clear();
    if (const std::string* const named = at.node->attribute("name")) {
      shell.attributes = {{"name", named->substr(0, 1)}};
    }
  }
  for (std::size_t i = 0; i < times; i++) {
    Node outer = shell;
    outer.children.push_back(std::move(*at.node));
    *at.node = std::move(outer);
  }
}

void ElementChanges::insertContent(Node& into) {
  Node made;
  switch (random_.below(8)) {
    case 0:
      made = node(Node::Kind::comment, random_.chance(50) ? " c " : values_.text());
      break;
    case 1:
      made = instruction("pi", values_.text());
      break;
    case 2:
      made = node(Node::Kind::cdata, random_.chance(50) ? " " : values_.text());
      break;
    case 3:
      made = node(Node::Kind::text, values_.text());
      break;
    case 4:
      made = node(Node::Kind::text, "&e;");
      break;
    case 5:
      made = node(Node::Kind::text, "&#13;");
      break;
    case 6:
      made = node(Node::Kind::text, std::string(1 + random_.below(2000), ' '));
      break;
    default:
      made = node(Node::Kind::text, "\r\n\t");
  }
  const auto where = static_cast<std::ptrdiff_t>(random_.below(into.children.size() + 1));
  into.children.insert(into.children.begin() + where, std::move(made));
}

void ElementChanges::setKnownAttribute(const Place& at) {
  if (at.rule == nullptr || at.rule->attributes.empty()) return setAnyAttribute(*at.node);
  const AttributeRule& rule = random_.oneOf(at.rule->attributes);
  at.node->setAttribute(rule.name, values_.valueFor(rule));
}

void ElementChanges::setAnyAttribute(Node& node) {
  if (random_.chance(5)) {
    for (std::size_t i = 0; i < 1010; i++) node.attributes.push_back({"a" + std::to_string(i), ""});
    return;
  }
  node.setAttribute(random_.oneOf(vocabulary_.words()), values_.text());
}

void ElementChanges::changeAttribute(Node& node) {
  if (node.attributes.empty()) return;
  Attribute& attribute = node.attributes[random_.below(node.attributes.size())];
  if (random_.chance(40) && attribute.value.size() > 1) {
    // A part of what it was.
    const std::size_t from = random_.below(attribute.value.size());
    attribute.value.insert(from,
                           random_.chance(50) ? values_.text() : attribute.value.substr(from));
  } else {
    attribute.value = values_.text();
  }
}

void ElementChanges::removeAttribute(Node& node) {
  if (node.attributes.empty()) return;
  const std::size_t at = random_.below(node.attributes.size());
  if (node.attributes[at].name.rfind("xmlns", 0) == 0 && random_.chance(80)) return;
  node.attributes.erase(node.attributes.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace fuzz
