// Changes of what concerns a document as a whole: its namespaces, schemas, DOCTYPE and encoding.
#ifndef FUZZ_DOCUMENTCHANGES_H_
#define FUZZ_DOCUMENTCHANGES_H_

#include <string>
#include <vector>

#include "Random.h"
#include "Values.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

class DocumentChanges {
 public:
  // `homes` as in Shape.
  DocumentChanges(Random& random, Values& values, const std::vector<std::string>& homes)
      : random_(random), values_(values), homes_(homes) {}

  // Makes a document of a foreign namespace one of the homes'.
  void bringHome(Document& document);

  void changeNamespace(Document& document);
  void prefixEverything(Node& root);
  void changeLocations(Node& root);
  void changeXsi(Node& node);
  void changeDoctype(Document& document);
  void changeDeclaration(Document& document);

 private:
  void setRootNamespace(Node& root, const std::string& uri, bool withLocation);

  Random& random_;
  Values& values_;
  const std::vector<std::string>& homes_;
  const Vocabulary& vocabulary_ = Vocabulary::shipped();
};

}  // namespace fuzz

#endif  // FUZZ_DOCUMENTCHANGES_H_
