// The condition names of a dictionary's document, those of text values too, which the model leaves
// out.
#ifndef TOOLKIT_FACTS_DOCUMENTCONDITIONS_H_
#define TOOLKIT_FACTS_DOCUMENTCONDITIONS_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

// Reads a document once more that the library has let pass; it knows no items when that fails, as
// when the document has changed since.
class DocumentConditions {
 public:
  explicit DocumentConditions(const DocumentSource& source);

  // How many data items the document has.
  std::size_t itemCount() const { return conditions_.size(); }
  // The conditions of one of them, by its place in the document.
  std::vector<ConditionFacts> takeOf(ItemNumber number) { return std::move(conditions_[number]); }

 private:
  void read(const DocumentSource& source);

  std::vector<std::vector<ConditionFacts>> conditions_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_FACTS_DOCUMENTCONDITIONS_H_
