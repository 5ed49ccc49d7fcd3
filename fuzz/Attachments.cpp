#include "Attachments.h"

#include <algorithm>

#include "Places.h"
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

}  // namespace

bool isFile(const Node& node) {
  return node.kind == Node::Kind::instruction && node.name == "file";
}

AttachedFile fileIn(const Node& instruction) {
  const std::size_t end = instruction.text.find_first_of(" \n");
  if (end == std::string::npos) return {instruction.text, std::string()};
  return {instruction.text.substr(0, end), instruction.text.substr(end + 1)};
}

void Attachments::changeEdits(Document& document) {
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

void Attachments::addFile(Document& document) {
  Node& root = *document.root();
  if (shape_.files == Shape::Files::copies) return addCopy(document);
  if (shape_.files == Shape::Files::dictionaries) {
    root.setAttribute("dataDictFilename", "own.xml");
    document.nodes.push_back(instruction("file", std::string("own.xml ") + smallDictionary));
    return;
  }
  static const char* const names[] = {"own.xsd", "other.xsd"};
  const std::string file = random_.oneOf(names);
  const std::string uri = namespaceOf(root);
  const std::string* const old = root.attribute("xsi:schemaLocation");
  std::string location = uri + " " + file;
  if (random_.chance(40)) location = (old == nullptr ? "" : *old + " ") + "urn:x " + file;
  root.setAttribute("xmlns:xsi", xsiUri);
  root.setAttribute("xsi:schemaLocation", location);
  document.nodes.push_back(instruction("file", file + " " + ownSchema()));
}

// Takes the place of the copy that there is.
void Attachments::addCopy(Document& document) {
  document.nodes.erase(std::remove_if(document.nodes.begin(), document.nodes.end(), isFile),
                       document.nodes.end());
  Document copy;
  copy.nodes = {*document.root()};
  document.nodes.push_back(instruction("file", copyName + (" " + printTree(copy))));
}

// A schema that lets in what ours do not.
std::string Attachments::ownSchema() {
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
