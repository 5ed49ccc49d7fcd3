// Brings mutated documents back to what a schema lets through: without that most of them would be
// refused for one of the things done to them, and the others would never be looked at.
#ifndef FUZZ_MENDER_H_
#define FUZZ_MENDER_H_

#include <set>
#include <string>
#include <string_view>

#include "Random.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

class Mender {
 public:
  explicit Mender(Random& random) : random_(random) {}

  // Mends the encoding, the declarations in front of the root, references and characters.
  void mendText(Document& document);
  // Mends everything, the root being one of that schema.
  void mend(Document& document, const SchemaRules& schema);

 private:
  void mendRoot(Node& root, const SchemaRules& schema);
  void mendElement(Node& node, const SchemaRules& schema, const ElementRule& rule);
  void mendAttributes(Node& node, const ElementRule& rule);
  void mendChildren(Node& node, const SchemaRules& schema, const ElementRule& rule);
  void mendValue(std::string& value, const AttributeRule& rule);
  void mendReferences(Node& node);
  void mendDoctype(Document& document);
  static void mendDeclaration(Document& document);
  std::string mended(std::string_view text) const;

  Random& random_;
  std::set<std::string, std::less<>> entities_;  // Those that may be referred to.
};

}  // namespace fuzz

#endif  // FUZZ_MENDER_H_
