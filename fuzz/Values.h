// Values for attributes and texts: those that are wanted, and those that do harm.
#ifndef FUZZ_VALUES_H_
#define FUZZ_VALUES_H_

#include <string>
#include <vector>

#include "Random.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

class Values {
 public:
  explicit Values(Random& random) : random_(random) {}

  // From now on, names are mostly those of the document and of the files that it carries.
  void takeNames(const Document& document);

  // A value for that attribute; mostly one that the schema lets through.
  std::string valueFor(const AttributeRule& rule);
  std::string name();
  // Any text at all.
  std::string text();

 private:
  void collectNames(const Node& node);
  std::string number();
  // What a mapping leads to, and the subscripts of it.
  std::string path();
  std::string subscripts();

  Random& random_;
  const Vocabulary& vocabulary_ = Vocabulary::shipped();
  std::vector<std::string> names_;
};

}  // namespace fuzz

#endif  // FUZZ_VALUES_H_
