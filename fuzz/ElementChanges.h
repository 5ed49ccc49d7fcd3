// Changes of one element, of what it holds and of its attributes.
#ifndef FUZZ_ELEMENTCHANGES_H_
#define FUZZ_ELEMENTCHANGES_H_

#include "Places.h"
#include "Random.h"
#include "Values.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

class ElementChanges {
 public:
  ElementChanges(Random& random, Values& values) : random_(random), values_(values) {}

  // Of what stands in it.
  void insert(const Place& at);
  void insertContent(Node& into);
  // Of the element itself.
  void remove(const Place& at);
  void duplicate(const Place& at);
  void move(const Place& at, const Places& places);
  void rename(const Place& at);
  void nest(const Place& at);
  // Of its attributes.
  void setKnownAttribute(const Place& at);
  void setAnyAttribute(Node& node);
  void changeAttribute(Node& node);
  void removeAttribute(Node& node);

 private:
  Node makeElement(const SchemaRules& schema, const ChildRule& rule, const Node& parent, int depth);

  Random& random_;
  Values& values_;
  const Vocabulary& vocabulary_ = Vocabulary::shipped();
};

}  // namespace fuzz

#endif  // FUZZ_ELEMENTCHANGES_H_
