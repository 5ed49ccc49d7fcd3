// Changes documents so that most of them stay what a schema lets through: what is refused at once
// never gets near the model.
#ifndef FUZZ_MUTATOR_H_
#define FUZZ_MUTATOR_H_

#include "Attachments.h"
#include "DocumentChanges.h"
#include "ElementChanges.h"
#include "Random.h"
#include "Shape.h"
#include "Values.h"
#include "XmlTree.h"

namespace fuzz {

// Which change is made how often; what they are stands with the classes that make them.
class Mutator {
 public:
  Mutator(Random& random, const Shape& inputs) : random_(random), shape_(inputs) {}

  // Changes the document in one or a few ways.
  void mutate(Document& document);
  // Puts a part of `from` into `into`.
  void cross(Document& into, const Document& from);

 private:
  void mutateTree(Document& document);
  void mend(Document& document);
  void mutateOnce(Document& document);
  void changeFiles(Document& document);

  Random& random_;
  const Shape& shape_;
  Values values_{random_};
  ElementChanges elements_{random_, values_};
  DocumentChanges whole_{random_, values_, shape_.homes};
  Attachments attachments_{random_, shape_};
};

}  // namespace fuzz

#endif  // FUZZ_MUTATOR_H_
