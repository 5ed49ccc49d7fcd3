#include "Mutator.h"

#include <algorithm>
#include <utility>

#include "Mender.h"

namespace fuzz {

void Mutator::mutate(Document& document) {
  if (document.root() == nullptr) {
    document.nodes.push_back(element("service"));
    whole_.bringHome(document);
  }
  if (random_.chance(90)) whole_.bringHome(document);
  if (shape_.hasEdits && (document.instruction("edits") == nullptr || random_.chance(40))) {
    attachments_.changeEdits(document);
    if (random_.chance(60)) return;
  }
  if (shape_.files != Shape::Files::none && random_.chance(35)) {
    changeFiles(document);
    if (random_.chance(60)) return;
  }
  mutateTree(document);
}

void Mutator::mutateTree(Document& document) {
  values_.takeNames(document);
  std::size_t times = 1;
  while (times < 6 && random_.chance(45)) times++;
  for (std::size_t i = 0; i < times; i++) mutateOnce(document);
  mend(document);
}

// Most of the time: what is refused must be refused well, too.
void Mutator::mend(Document& document) {
  const Node* const root = document.root();
  if (root == nullptr || random_.chance(15)) return;
  Mender mender(random_);
  // Documents of all kinds stay what they have become, mostly.
  const SchemaRules* const schema = Vocabulary::shipped().schema(namespaceOf(*root));
  const bool isOfOurs = schema != nullptr && !schema->rootType.empty() && schema->uri != xsdUri;
  if (isOfOurs && random_.chance(shape_.homes.empty() ? 40 : 94)) {
    mender.mend(document, *schema);
  } else {
    mender.mendText(document);
  }
}

void Mutator::mutateOnce(Document& document) {
  const Places places = placesOf(document);
  if (places.empty()) return;
  Node& root = *places.front().node;
  const Place& at = random_.oneOf(places);
  switch (random_.below(40)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
      return elements_.insert(at);
    case 6:
    case 7:
    case 8:
      return elements_.remove(at);
    case 9:
    case 10:
    case 11:
      return elements_.duplicate(at);
    case 12:
    case 13:
    case 14:
      return elements_.move(at, places);
    case 15:
    case 16:
      return elements_.rename(at);
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
    case 22:
    case 23:
      return elements_.setKnownAttribute(at);
    case 24:
    case 25:
    case 26:
      return elements_.changeAttribute(*at.node);
    case 27:
    case 28:
      return elements_.removeAttribute(*at.node);
    case 29:
      return elements_.setAnyAttribute(*at.node);
    case 30:
      return elements_.nest(at);
    case 31:
    case 32:
      return elements_.insertContent(*at.node);
    case 33:
      return whole_.changeNamespace(document);
    case 34:
      return whole_.changeLocations(root);
    case 35:
      return whole_.changeXsi(*at.node);
    case 36:
      return whole_.changeDoctype(document);
    case 37:
      return whole_.changeDeclaration(document);
    case 38:
      return whole_.prefixEverything(root);
    default:
      std::shuffle(at.node->children.begin(), at.node->children.end(),
                   std::mt19937(static_cast<unsigned int>(random_.below(1U << 30))));
  }
}

void Mutator::cross(Document& into, const Document& from) {
  Document other = from;
  for (const char* const name : {"edits", "file"}) {
    const Node* const theirs = other.instruction(name);
    if (theirs == nullptr || !random_.chance(30)) continue;
    Node* const ours = into.instruction(name);
    if (ours != nullptr && random_.chance(70)) {
      *ours = *theirs;
    } else {
      into.nodes.push_back(*theirs);
    }
    if (random_.chance(70)) return;
  }
  const Places ours = placesOf(into);
  const Places theirs = placesOf(other);
  if (ours.empty() || theirs.empty()) return;
  // Somewhere a part of the other document fits: tried often enough to find it.
  for (int attempt = 0; attempt < 50; attempt++) {
    const Place& part = random_.oneOf(theirs);
    const Place& at = random_.oneOf(ours);
    if (part.parent == nullptr || at.rule == nullptr) continue;
    const ChildRule* const child = at.rule->child(part.node->localName());
    if (child == nullptr || present(at, *child) != nullptr) continue;
    Node copy = std::move(*part.node);
    forEach(copy,
            [&](Node& node) { node.name = withPrefixOf(*at.node, std::string(node.localName())); });
    insertInOrder(*at.node, *at.rule, std::move(copy), child->rank);
    return mend(into);
  }
  Node& root = *ours.front().node;
  root.children.insert(root.children.end(), theirs.front().node->children.begin(),
                       theirs.front().node->children.end());
  mend(into);
}

void Mutator::changeFiles(Document& document) {
  std::vector<Node*> files;
  for (Node& node : document.nodes) {
    if (isFile(node)) files.push_back(&node);
  }
  if (files.empty() || random_.chance(10)) return attachments_.addFile(document);
  Node& file = *files[random_.below(files.size())];
  if (random_.chance(3)) {
    file.text = fileIn(file).name;
    return;
  }
  const auto [fileName, content] = fileIn(file);
  Document inner = readTree(content);
  if (inner.root() == nullptr) return;
  mutateTree(inner);
  // An instruction cannot hold another.
  inner.encoding = Encoding::bytes;
  inner.nodes.erase(
      std::remove_if(inner.nodes.begin(), inner.nodes.end(),
                     [](const Node& node) { return node.kind == Node::Kind::instruction; }),
      inner.nodes.end());
  file.text = fileName + " " + printTree(inner);
}

}  // namespace fuzz
