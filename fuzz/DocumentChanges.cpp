#include "DocumentChanges.h"

#include <algorithm>
#include <cstddef>

#include "Places.h"

namespace fuzz {

void DocumentChanges::bringHome(Document& document) {
  Node& root = *document.root();
  if (homes_.empty()) return;
  const std::string uri = namespaceOf(root);
  if (std::find(homes_.begin(), homes_.end(), uri) != homes_.end()) return;
  setRootNamespace(root, random_.oneOf(homes_), true);
}

void DocumentChanges::setRootNamespace(Node& root, const std::string& uri, bool withLocation) {
  const std::string prefix(root.prefix());
  root.setAttribute(prefix.empty() ? "xmlns" : "xmlns:" + prefix, uri);
  if (!withLocation) return;
  if (const SchemaRules* const schema = vocabulary_.schema(uri)) {
    root.name = withPrefixOf(root, schema->root);
  }
  root.setAttribute("xmlns:xsi", xsiUri);
  root.setAttribute("xsi:schemaLocation", uri + " " + (random_.chance(80) ? uri : fileNameOf(uri)));
}

void DocumentChanges::changeNamespace(Document& document) {
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

void DocumentChanges::prefixEverything(Node& root) {
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

void DocumentChanges::changeLocations(Node& root) {
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

void DocumentChanges::changeXsi(Node& node) {
  switch (random_.below(4)) {
    case 0:
      return node.setAttribute("xsi:nil", random_.chance(70) ? "true" : values_.text());
    case 1:
      return node.setAttribute("xsi:schemaLocation",
                               random_.oneOf(vocabulary_.schemas()).uri + " " +
                                   (random_.chance(50) ? "own.xsd" : "vorws.xsd"));
    default:
      return node.setAttribute("xsi:type", withPrefixOf(node, random_.oneOf(vocabulary_.words())));
  }
}

void DocumentChanges::changeDoctype(Document& document) {
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

void DocumentChanges::changeDeclaration(Document& document) {
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

}  // namespace fuzz
