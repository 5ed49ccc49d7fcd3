// Changes documents so that most of them stay what a schema lets through: what is refused at once
// never gets near the model.
#ifndef FUZZ_MUTATOR_H_
#define FUZZ_MUTATOR_H_

#include <string>
#include <vector>

#include "Random.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

// What the inputs of a target are.
struct Shape {
  // The namespaces that documents are to be of; a document of another is mostly brought home.
  std::vector<std::string> homes;
  // Documents carry an instruction <?edits ...?>, whose text drives what is done with the model.
  bool hasEdits = false;
  // Documents carry files of that kind that stand beside them, each an instruction
  // <?file NAME CONTENT?>: one called copyName for copies, which change by themselves.
  enum class Files { none, schemas, dictionaries, copies };
  Files files = Files::none;
};

constexpr char copyName[] = "copy.xml";

// Each target tells its own.
extern const Shape shape;

class Mutator {
 public:
  Mutator(Random& random, const Shape& inputs) : random_(random), shape_(inputs) {}

  // Changes the document in one or a few ways.
  void mutate(Document& document);
  // Puts a part of `from` into `into`.
  void cross(Document& into, const Document& from);

 private:
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
  struct Scope;

  void mutateTree(Document& document);
  void mend(Document& document);
  void mutateOnce(Document& document);

  Places placesOf(Document& document);
  void collect(const Place& place, const Scope& scope, Places& places);
  void collectNames(const Node& node);

  // Elements.
  void insertElement(const Place& at);
  void removeElement(const Place& at);
  void duplicateElement(const Place& at);
  void moveElement(const Place& at, const Places& places);
  void renameElement(const Place& at);
  void nestElement(const Place& at);
  void insertContent(Node& into);
  Node makeElement(const SchemaRules& schema, const ChildRule& rule, const Node& parent, int depth);
  static Node* present(const Place& at, const ChildRule& rule);
  void insertInOrder(Node& parent, const ElementRule& rule, Node child, int rank);

  // Attributes.
  void setKnownAttribute(const Place& at);
  void setAnyAttribute(Node& node);
  void changeAttribute(Node& node);
  void removeAttribute(Node& node);
  std::string valueFor(const AttributeRule& rule);
  std::string number();
  std::string name();
  std::string path();
  std::string subscripts();
  std::string text();

  // The document as a whole.
  void changeNamespace(Document& document);
  void bringHome(Document& document);
  void setRootNamespace(Node& root, const std::string& uri, bool withLocation);
  void prefixEverything(Node& root);
  void changeLocations(Node& root);
  void changeXsi(Node& node);
  void changeDoctype(Document& document);
  void changeDeclaration(Document& document);
  void changeEdits(Document& document);
  void changeFiles(Document& document);
  void addFile(Document& document);
  static void addCopy(Document& document);
  std::string ownSchema();

  Random& random_;
  const Shape& shape_;
  const Vocabulary& vocabulary_ = Vocabulary::shipped();
  std::vector<std::string> names_;  // Of the document and the files that it carries.
};

}  // namespace fuzz

#endif  // FUZZ_MUTATOR_H_
