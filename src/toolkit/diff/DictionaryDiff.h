// Compares two dictionaries, and tells what that means for services.
#ifndef TOOLKIT_DIFF_DICTIONARYDIFF_H_
#define TOOLKIT_DIFF_DICTIONARYDIFF_H_

#include <string>
#include <string_view>
#include <unordered_map>

#include "as/IService.h"
#include "toolkit/diff/ChangeList.h"
#include "toolkit/diff/ItemComparison.h"
#include "toolkit/diff/ItemMatch.h"
#include "toolkit/facts/DictionaryFacts.h"

namespace as::toolkit {

// Properties of two documents, in the order of the old ones and then of what is new.
void compareProperties(ChangeList& changes,
                       const std::vector<std::pair<std::string, std::string>>& before,
                       const std::vector<std::pair<std::string, std::string>>& after);

class DictionaryDiff {
 public:
  // Both have to outlive this object.
  DictionaryDiff(const DictionaryFacts& before, const DictionaryFacts& after);

  // What becomes of what the service, which was read from `file`, says of the old program.
  void compareService(as::IService& service, const std::string& file);

  std::vector<Change> take() { return changes_.take(); }

 private:
  void compareFiles();
  void compareFile(const SectionFacts& before, const SectionFacts& after);
  void compareEntryPoints();
  void compareEntryPoint(const EntryPointFacts& before, const EntryPointFacts& after);
  std::vector<std::size_t> parameterPartners(const EntryPointFacts& before,
                                             const EntryPointFacts& after) const;
  bool isSameItem(const EntryParameterFacts& before, const EntryParameterFacts& after) const;
  bool haveSameParameters(const EntryPointFacts& before, const EntryPointFacts& after) const;

  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  ItemMatch match_;
  ChangeList changes_;
  ItemComparison items_;
  ChangeNumber programRenamed_ = noChange;
  // The changes of each entry point of the old program, by its name.
  std::unordered_map<std::string, std::vector<ChangeNumber>> entryChanges_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_DICTIONARYDIFF_H_
