#include "Mutator.h"

#include <algorithm>
#include <map>
#include <utility>

#include "Mender.h"
#include "as/Namespaces.h"

namespace fuzz {

namespace {

// A small dictionary with something of every kind.
constexpr char smallDictionary[] =
    "<program xmlns='http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd' "
    "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
    "xsi:schemaLocation='http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd "
    "vorcobol.xsd' name='OWN'><dataItems><group name='R'><group name='T' maxOccurs='3'>"
    "<numeric name='N' digits='5' usage='comp-3' maxOccurs='2'/>"
    "<alphanumeric name='A' length='4'/></group><national name='W' length='2'/>"
    "<numericEdited name='E' digits='3'/></group><pointer name='P'/><index name='I'/>"
    "<numeric name='F' usage='comp-1'/></dataItems><entryPoints><entryPoint name='OWN'>"
    "<parameter dataItem='R'/><parameter dataItem='F' byType='value'/></entryPoint></entryPoints>"
    "</program>";

// Characters of an <?edits ...?> instruction: any but those that end it.
constexpr char editCharacters[] =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/";

std::string repeated(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; i++) result += text;
  return result;
}

std::string withPrefixOf(const Node& node, const std::string& name) {
  const std::string_view prefix = node.prefix();
  return prefix.empty() ? name : std::string(prefix) + ":" + name;
}

// Calls `change` for the element and every one below it.
template <class Change>
void forEach(Node& node, const Change& change) {
  if (!node.isElement()) return;
  change(node);
  for (Node& child : node.children) forEach(child, change);
}

std::string fileNameOf(const std::string& uri) { return uri.substr(uri.rfind('/') + 1); }

// The two parts of a <?file NAME CONTENT?> instruction.
std::pair<std::string, std::string> fileIn(const Node& instruction) {
  const std::size_t end = instruction.text.find_first_of(" \n");
  if (end == std::string::npos) return {instruction.text, std::string()};
  return {instruction.text.substr(0, end), instruction.text.substr(end + 1)};
}

}  // namespace

// The namespace declarations in force at an element.
struct Mutator::Scope {
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

void Mutator::mutate(Document& document) {
  if (document.root() == nullptr) {
    document.nodes.push_back(element("service"));
    bringHome(document);
  }
  if (random_.chance(90)) bringHome(document);
  if (shape_.hasEdits && (document.instruction("edits") == nullptr || random_.chance(40))) {
    changeEdits(document);
    if (random_.chance(60)) return;
  }
  if (shape_.files != Shape::Files::none && random_.chance(35)) {
    changeFiles(document);
    if (random_.chance(60)) return;
  }
  mutateTree(document);
}

void Mutator::mutateTree(Document& document) {
  names_.clear();
  for (const Node& node : document.nodes) {
    if (node.isElement()) collectNames(node);
    if (node.kind != Node::Kind::instruction || node.name != "file") continue;
    const Document file = readTree(fileIn(node).second);
    if (file.root() != nullptr) collectNames(*file.root());
  }
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
  const SchemaRules* const schema = vocabulary_.schema(Scope().inside(*root).uriOf(*root));
  const bool isOfOurs = schema != nullptr && !schema->rootType.empty() && schema->uri != xsdUri;
  if (isOfOurs && random_.chance(shape_.homes.empty() ? 40 : 94)) {
    mender.mend(document, *schema);
  } else {
    mender.mendText(document);
  }
}

void Mutator::collectNames(const Node& node) {
  for (const Attribute& attribute : node.attributes) {
    if (names_.size() < 500 && attribute.name == "name") names_.push_back(attribute.value);
  }
  for (const Node& child : node.children) {
    if (child.isElement()) collectNames(child);
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
      return insertElement(at);
    case 6:
    case 7:
    case 8:
      return removeElement(at);
    case 9:
    case 10:
    case 11:
      return duplicateElement(at);
    case 12:
    case 13:
    case 14:
      return moveElement(at, places);
    case 15:
    case 16:
      return renameElement(at);
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
    case 22:
    case 23:
      return setKnownAttribute(at);
    case 24:
    case 25:
    case 26:
      return changeAttribute(*at.node);
    case 27:
    case 28:
      return removeAttribute(*at.node);
    case 29:
      return setAnyAttribute(*at.node);
    case 30:
      return nestElement(at);
    case 31:
    case 32:
      return insertContent(*at.node);
    case 33:
      return changeNamespace(document);
    case 34:
      return changeLocations(root);
    case 35:
      return changeXsi(*at.node);
    case 36:
      return changeDoctype(document);
    case 37:
      return changeDeclaration(document);
    case 38:
      return prefixEverything(root);
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

// ------------------------------------------------------------------------------------- Elements

Mutator::Places Mutator::placesOf(Document& document) {
  Places places;
  Node* const root = document.root();
  if (root == nullptr) return places;
  const Scope scope = Scope().inside(*root);
  const SchemaRules* const schema = vocabulary_.schema(scope.uriOf(*root));
  const ElementRule* rule = nullptr;
  if (schema != nullptr) {
    rule = root->localName() == schema->root ? schema->type(schema->rootType)
                                             : schema->anywhere(root->localName());
  }
  collect({root, nullptr, 0, schema, rule, true}, scope, places);
  return places;
}

void Mutator::collect(const Place& place, const Scope& scope, Places& places) {
  places.push_back(place);
  for (std::size_t i = 0; i < place.node->children.size(); i++) {
    Node& child = place.node->children[i];
    if (!child.isElement()) continue;
    const bool isNew = Scope::declares(child) || child.prefix() != place.node->prefix();
    const Scope inner = isNew ? scope.inside(child) : Scope();
    const Scope& its = isNew ? inner : scope;
    const SchemaRules* const schema = isNew ? vocabulary_.schema(its.uriOf(child)) : place.schema;
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

Node Mutator::makeElement(const SchemaRules& schema, const ChildRule& rule, const Node& parent,
                          int depth) {
  Node made = element(withPrefixOf(parent, rule.name));
  const ElementRule* const own = schema.type(rule.type);
  if (own == nullptr) return made;
  for (const AttributeRule& attribute : own->attributes) {
    if (!attribute.required && !random_.chance(25)) continue;
    made.setAttribute(attribute.name, valueFor(attribute));
  }
  if (depth >= 3) return made;
  for (const ChildRule& child : own->children) {
    if (!random_.chance(depth == 0 ? 50 : 25)) continue;
    made.children.push_back(makeElement(schema, child, made, depth + 1));
  }
  return made;
}

// The child that leaves no room for another one of that rule; null when there is room.
Node* Mutator::present(const Place& at, const ChildRule& rule) {
  if (!rule.isOnce) return nullptr;
  for (Node& child : at.node->children) {
    if (child.isElement() && child.localName() == rule.name) return &child;
  }
  return nullptr;
}

// Behind the last child that may stand in front of it.
void Mutator::insertInOrder(Node& parent, const ElementRule& rule, Node child, int rank) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < parent.children.size(); i++) {
    const ChildRule* const other = rule.child(parent.children[i].localName());
    if (other != nullptr && other->rank <= rank) at = i + 1;
  }
  parent.children.insert(parent.children.begin() + static_cast<std::ptrdiff_t>(at),
                         std::move(child));
}

void Mutator::insertElement(const Place& at) {
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

void Mutator::removeElement(const Place& at) {
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

void Mutator::duplicateElement(const Place& at) {
  if (at.parent == nullptr || (at.isOnce && random_.chance(95))) return;
  std::size_t times = 1;
  while (times < 300 && random_.chance(25)) times *= 3;
  const Node copy = *at.node;
  if (copy.children.size() > 20) times = 1;
  at.parent->children.insert(at.parent->children.begin() + static_cast<std::ptrdiff_t>(at.index),
                             times, copy);
}

void Mutator::moveElement(const Place& at, const Places& places) {
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

void Mutator::renameElement(const Place& at) {
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
void Mutator::nestElement(const Place& at) {
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

void Mutator::insertContent(Node& into) {
  Node made;
  switch (random_.below(8)) {
    case 0:
      made = node(Node::Kind::comment, random_.chance(50) ? " c " : text());
      break;
    case 1:
      made = instruction("pi", text());
      break;
    case 2:
      made = node(Node::Kind::cdata, random_.chance(50) ? " " : text());
      break;
    case 3:
      made = node(Node::Kind::text, text());
      break;
    case 4:
      made = node(Node::Kind::text, "&e;");
      break;
    case 5:
      made = node(Node::Kind::text, "&#13;");
      break;
    case 6:
      made = node(Node::Kind::text, repeated(" ", 1 + random_.below(2000)));
      break;
    default:
      made = node(Node::Kind::text, "\r\n\t");
  }
  const auto where = static_cast<std::ptrdiff_t>(random_.below(into.children.size() + 1));
  into.children.insert(into.children.begin() + where, std::move(made));
}

// ----------------------------------------------------------------------------------- Attributes

void Mutator::setKnownAttribute(const Place& at) {
  if (at.rule == nullptr || at.rule->attributes.empty()) return setAnyAttribute(*at.node);
  const AttributeRule& rule = random_.oneOf(at.rule->attributes);
  at.node->setAttribute(rule.name, valueFor(rule));
}

void Mutator::setAnyAttribute(Node& node) {
  if (random_.chance(5)) {
    for (std::size_t i = 0; i < 1010; i++) node.attributes.push_back({"a" + std::to_string(i), ""});
    return;
  }
  node.setAttribute(random_.oneOf(vocabulary_.words()), text());
}

void Mutator::changeAttribute(Node& node) {
  if (node.attributes.empty()) return;
  Attribute& attribute = node.attributes[random_.below(node.attributes.size())];
  if (random_.chance(40) && attribute.value.size() > 1) {
    // A part of what it was.
    const std::size_t from = random_.below(attribute.value.size());
    attribute.value.insert(from, random_.chance(50) ? text() : attribute.value.substr(from));
  } else {
    attribute.value = text();
  }
}

void Mutator::removeAttribute(Node& node) {
  if (node.attributes.empty()) return;
  const std::size_t at = random_.below(node.attributes.size());
  if (node.attributes[at].name.rfind("xmlns", 0) == 0 && random_.chance(80)) return;
  node.attributes.erase(node.attributes.begin() + static_cast<std::ptrdiff_t>(at));
}

std::string Mutator::valueFor(const AttributeRule& rule) {
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

std::string Mutator::number() {
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

std::string Mutator::name() {
  if (!names_.empty() && random_.chance(85)) return random_.oneOf(names_);
  static const char* const made[] = {"A", "B", "FILLER", "N1", "A-B", "T\xC3\xA4g", "a b", "."};
  return random_.oneOf(made);
}

std::string Mutator::path() {
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

std::string Mutator::subscripts() {
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

std::string Mutator::text() {
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

// --------------------------------------------------------------------------- The whole document

void Mutator::bringHome(Document& document) {
  Node& root = *document.root();
  if (shape_.homes.empty()) return;
  const std::string uri = Scope().inside(root).uriOf(root);
  if (std::find(shape_.homes.begin(), shape_.homes.end(), uri) != shape_.homes.end()) return;
  setRootNamespace(root, random_.oneOf(shape_.homes), true);
}

void Mutator::setRootNamespace(Node& root, const std::string& uri, bool withLocation) {
  const std::string prefix(root.prefix());
  root.setAttribute(prefix.empty() ? "xmlns" : "xmlns:" + prefix, uri);
  if (!withLocation) return;
  if (const SchemaRules* const schema = vocabulary_.schema(uri)) {
    root.name = withPrefixOf(root, schema->root);
  }
  root.setAttribute("xmlns:xsi", xsiUri);
  root.setAttribute("xsi:schemaLocation", uri + " " + (random_.chance(80) ? uri : fileNameOf(uri)));
}

void Mutator::changeNamespace(Document& document) {
  const Places places = placesOf(document);
  Node& root = *document.root();
  const std::string& uri = random_.oneOf(vocabulary_.schemas()).uri;
  switch (random_.below(5)) {
    case 0:
      return setRootNamespace(root, uri, true);
    case 1:
      return setRootNamespace(root, uri, false);
    case 2:
      // An element, with all that stands in it, of another namespace or of none.
      return random_.oneOf(places).node->setAttribute("xmlns", random_.chance(70) ? uri : "");
    case 3: {
      // The same under a prefix, which the root declares.
      const std::string prefix = random_.chance(50) ? "p" : "q";
      root.setAttribute("xmlns:" + prefix, uri);
      Node& chosen = *random_.oneOf(places).node;
      chosen.name = prefix + ":" + std::string(chosen.localName());
      return;
    }
    default:
      return random_.oneOf(places).node->setAttribute(random_.chance(50) ? "xmlns:xsi" : "xmlns:p",
                                                      random_.chance(50) ? uri : "urn:x");
  }
}

void Mutator::prefixEverything(Node& root) {
  const std::string old(root.prefix());
  const std::string prefix = old.empty() ? (random_.chance(80) ? "p" : "xsi") : "";
  const std::string declaration = old.empty() ? "xmlns" : "xmlns:" + old;
  const std::string* const uri = root.attribute(declaration);
  if (uri != nullptr) {
    const std::string kept = *uri;
    if (random_.chance(70)) {
      root.attributes.erase(
          std::find_if(root.attributes.begin(), root.attributes.end(),
                       [&](const Attribute& attribute) { return attribute.name == declaration; }));
    }
    root.setAttribute(prefix.empty() ? "xmlns" : "xmlns:" + prefix, kept);
  }
  forEach(root, [&](Node& node) {
    if (node.prefix() != old) return;
    const std::string local(node.localName());
    node.name = prefix.empty() ? local : prefix + ":" + local;
  });
}

void Mutator::changeLocations(Node& root) {
  root.setAttribute("xmlns:xsi", xsiUri);
  if (random_.chance(20)) {
    static const char* const files[] = {"own.xsd", "vorws.xsd", "vorcobol.xsd", "", "x y"};
    return root.setAttribute("xsi:noNamespaceSchemaLocation", random_.oneOf(files));
  }
  std::string pairs;
  const std::size_t count = random_.below(5);
  for (std::size_t i = 0; i < count; i++) {
    const std::string& uri = random_.oneOf(vocabulary_.schemas()).uri;
    static const char* const others[] = {"own.xsd",     "other.xsd", "missing.xsd",
                                         ".",           "/dev/null", "http://127.0.0.1:9/x.xsd",
                                         "document.xml"};
    pairs += uri + " ";
    if (random_.chance(5)) continue;
    pairs += random_.chance(50)   ? random_.oneOf(vocabulary_.schemas()).uri
             : random_.chance(50) ? fileNameOf(uri)
                                  : std::string(random_.oneOf(others));
    pairs += random_.chance(80) ? " " : "&#10;\t";
  }
  const std::string* const old = root.attribute("xsi:schemaLocation");
  if (old != nullptr && random_.chance(70)) pairs = *old + " " + pairs;
  root.setAttribute("xsi:schemaLocation", pairs);
}

void Mutator::changeXsi(Node& node) {
  switch (random_.below(4)) {
    case 0:
      return node.setAttribute("xsi:nil", random_.chance(70) ? "true" : text());
    case 1:
      return node.setAttribute("xsi:schemaLocation",
                               random_.oneOf(vocabulary_.schemas()).uri + " " +
                                   (random_.chance(50) ? "own.xsd" : "vorws.xsd"));
    default:
      return node.setAttribute("xsi:type", withPrefixOf(node, random_.oneOf(vocabulary_.words())));
  }
}

void Mutator::changeDoctype(Document& document) {
  static const char* const declarations[] = {
      "<!ENTITY e \"x\">",
      "<!ENTITY e \"&f;&f;&f;\"><!ENTITY f \"&g;&g;\"><!ENTITY g \"y\">",
      "<!ENTITY e \"&#13;&#60;field name='z'/>\">",
      "<!ENTITY e \"<field name='e'/>\">",
      "<!ENTITY e \"<numeric name='E'/>\">",
      "<!ENTITY e \"&e;\">",
      "<!ENTITY e \"\">",
      "<!ENTITY e SYSTEM \"own.xsd\">",
      "<!ENTITY e PUBLIC \"p\" \"MOTPREM.xml\">",
      "<!ENTITY % p \"<!ENTITY e 'q'>\"> %p;",
      "<!ENTITY e SYSTEM \"x\" NDATA n>",
      "<!NOTATION n SYSTEM \"n\">",
      "<!ELEMENT service ANY>",
      "<!ELEMENT program (dataItems)>",
      "<!ATTLIST service name CDATA \"defaulted\">",
      "<!ATTLIST parameter ref IDREF #IMPLIED>",
      "<!-- c -->",
      "<?pi x?>",
      "<!ENTITY e \"<mapping item='A.B(1)'/>\">"};
  const auto isDoctype = [](const Node& node) { return node.kind == Node::Kind::doctype; };
  std::vector<Node>& nodes = document.nodes;
  const auto old = std::find_if(nodes.begin(), nodes.end(), isDoctype);
  if (old != nodes.end()) {
    if (random_.chance(50)) {
      nodes.erase(old);
    } else {
      const std::size_t end = old->text.rfind(']');
      if (end != std::string::npos) old->text.insert(end, random_.oneOf(declarations));
    }
    return;
  }
  std::string made = "DOCTYPE " + std::string(document.root()->name);
  if (random_.chance(6)) made += " SYSTEM \"own.dtd\"";
  made += " [";
  const std::size_t count = 1 + random_.below(3);
  for (std::size_t i = 0; i < count; i++) made += random_.oneOf(declarations);
  const auto root =
      std::find_if(nodes.begin(), nodes.end(), [](const Node& node) { return node.isElement(); });
  nodes.insert(root, node(Node::Kind::doctype, made + "]"));
  if (random_.chance(70)) {
    const Places places = placesOf(document);
    Node& user = *random_.oneOf(places).node;
    if (random_.chance(60) && !user.attributes.empty()) {
      user.attributes[random_.below(user.attributes.size())].value += "&e;";
    } else {
      user.children.push_back(node(Node::Kind::text, "&e;"));
    }
  }
}

void Mutator::changeDeclaration(Document& document) {
  static const char* const encodings[] = {"UTF-8",    "utf-8",        "UTF-16",       "ISO-8859-1",
                                          "US-ASCII", "windows-1252", "EBCDIC-CP-US", "UCS-4",
                                          "x",        "UTF-16LE"};
  std::vector<Node>& nodes = document.nodes;
  if (!nodes.empty() && nodes.front().name == "xml") nodes.erase(nodes.begin());
  document.encoding = Encoding::bytes;
  if (random_.chance(20)) return;
  std::string made = random_.chance(60) ? "version=\"1.0\"" : "version=\"1.1\"";
  if (random_.chance(30)) {
    document.encoding = random_.chance(50) ? Encoding::utf16LittleEndian : Encoding::utf16BigEndian;
    if (random_.chance(70)) made += " encoding=\"UTF-16\"";
  } else if (random_.chance(70)) {
    made += std::string(" encoding=\"") + random_.oneOf(encodings) + "\"";
  }
  if (random_.chance(30)) made += " standalone=\"yes\"";
  nodes.insert(nodes.begin(), instruction("xml", made));
}

void Mutator::changeEdits(Document& document) {
  const auto character = [&] { return editCharacters[random_.below(sizeof(editCharacters) - 1)]; };
  Node* edits = document.instruction("edits");
  if (edits == nullptr) {
    document.nodes.push_back(instruction("edits", ""));
    edits = &document.nodes.back();
    for (std::size_t i = 8 + random_.below(80); i > 0; i--) edits->text += character();
    return;
  }
  std::string& script = edits->text;
  for (std::size_t times = 1 + random_.below(4); times > 0; times--) {
    const std::size_t at = random_.below(script.size() + 1);
    switch (random_.below(4)) {
      case 0:
        script.insert(at, 1, character());
        break;
      case 1:
        script.erase(at, 1 + random_.below(6));
        break;
      case 2:
        if (at < script.size()) script[at] = character();
        break;
      default:
        if (script.size() < 2000) script += script.substr(at);
        for (std::size_t i = random_.below(12); i > 0; i--) script += character();
    }
  }
}

void Mutator::changeFiles(Document& document) {
  std::vector<Node*> files;
  for (Node& node : document.nodes) {
    if (node.kind == Node::Kind::instruction && node.name == "file") files.push_back(&node);
  }
  if (files.empty() || random_.chance(10)) return addFile(document);
  Node& file = *files[random_.below(files.size())];
  if (random_.chance(3)) {
    file.text = fileIn(file).first;
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

void Mutator::addFile(Document& document) {
  Node& root = *document.root();
  if (shape_.files == Shape::Files::copies) return addCopy(document);
  if (shape_.files == Shape::Files::dictionaries) {
    root.setAttribute("dataDictFilename", "own.xml");
    document.nodes.push_back(instruction("file", std::string("own.xml ") + smallDictionary));
    return;
  }
  static const char* const names[] = {"own.xsd", "other.xsd"};
  const std::string file = random_.oneOf(names);
  const std::string uri = Scope().inside(root).uriOf(root);
  const std::string* const old = root.attribute("xsi:schemaLocation");
  std::string location = uri + " " + file;
  if (random_.chance(40)) location = (old == nullptr ? "" : *old + " ") + "urn:x " + file;
  root.setAttribute("xmlns:xsi", xsiUri);
  root.setAttribute("xsi:schemaLocation", location);
  document.nodes.push_back(instruction("file", file + " " + ownSchema()));
}

// Takes the place of the copy that there is.
void Mutator::addCopy(Document& document) {
  document.nodes.erase(std::remove_if(document.nodes.begin(), document.nodes.end(),
                                      [](const Node& node) {
                                        return node.kind == Node::Kind::instruction &&
                                               node.name == "file";
                                      }),
                       document.nodes.end());
  Document copy;
  copy.nodes = {*document.root()};
  document.nodes.push_back(instruction("file", copyName + (" " + printTree(copy))));
}

// A schema that lets in what ours do not.
std::string Mutator::ownSchema() {
  std::string uri = random_.oneOf(vocabulary_.schemas()).uri;
  if (!shape_.homes.empty() && random_.chance(60)) uri = random_.oneOf(shape_.homes);
  if (random_.chance(15)) uri = "urn:x";
  const std::string other = random_.oneOf(vocabulary_.schemas()).uri;
  const std::string process = random_.chance(50) ? "lax" : random_.chance(50) ? "skip" : "strict";
  const std::string any = "<xs:sequence><xs:any processContents='" + process + "' namespace='" +
                          (random_.chance(70) ? "##any" : "##other") +
                          "' minOccurs='0' maxOccurs='unbounded'/></xs:sequence>"
                          "<xs:anyAttribute processContents='lax'/>";
  std::string content;
  const auto import = [&] {
    content += "<xs:import namespace='" + other + "'";
    if (random_.chance(50)) content += " schemaLocation='" + fileNameOf(other) + "'";
    content += "/>";
  };
  if (random_.chance(30)) import();
  if (random_.chance(10)) content += "<xs:include schemaLocation='other.xsd'/>";
  if (random_.chance(10)) {
    content += "<xs:redefine schemaLocation='" + fileNameOf(uri) + "'/>";
  }
  const std::string root = uri == as::namespaces::dd.uri ? "program" : "service";
  content += "<xs:element name='" + root + "' type='anything'/>";
  content += "<xs:complexType name='anything'" +
             std::string(random_.chance(20) ? " mixed='true'" : "") + ">" + any +
             "</xs:complexType>";
  const std::size_t more = random_.below(8);
  for (std::size_t i = 0; i < more; i++) {
    content += "<xs:element name='" + random_.oneOf(vocabulary_.words()) + "' type='anything'";
    if (random_.chance(10)) content += " substitutionGroup='" + root + "'";
    if (random_.chance(10)) content += " nillable='true'";
    content += "/>";
  }
  if (random_.chance(20)) {
    content += "<xs:attribute name='name' type='xs:string' default='by default'/>";
  }
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='" + uri +
         "' targetNamespace='" + uri + "' elementFormDefault='" +
         (random_.chance(80) ? "qualified" : "unqualified") + "'>" + content + "</xs:schema>";
}

}  // namespace fuzz
