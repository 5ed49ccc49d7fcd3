// What documents carry for a target beside the root: the instructions <?edits ...?> and <?file
// ...?>.
#ifndef FUZZ_ATTACHMENTS_H_
#define FUZZ_ATTACHMENTS_H_

#include <string>

#include "Random.h"
#include "Shape.h"
#include "Vocabulary.h"
#include "XmlTree.h"

namespace fuzz {

// The two parts of an instruction <?file NAME CONTENT?>.
struct AttachedFile {
  std::string name;
  std::string content;
};

bool isFile(const Node& node);
// REQUIRES: isFile(instruction).
AttachedFile fileIn(const Node& instruction);

// Makes and changes them.
class Attachments {
 public:
  Attachments(Random& random, const Shape& inputs) : random_(random), shape_(inputs) {}

  void changeEdits(Document& document);
  // Adds a file of the kind that the target is to have, and has the root refer to it.
  void addFile(Document& document);

 private:
  static void addCopy(Document& document);
  std::string ownSchema();

  Random& random_;
  const Shape& shape_;
  const Vocabulary& vocabulary_ = Vocabulary::shipped();
};

}  // namespace fuzz

#endif  // FUZZ_ATTACHMENTS_H_
