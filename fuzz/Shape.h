// What the inputs of a target look like.
#ifndef FUZZ_SHAPE_H_
#define FUZZ_SHAPE_H_

#include <string>
#include <vector>

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

}  // namespace fuzz

#endif  // FUZZ_SHAPE_H_
