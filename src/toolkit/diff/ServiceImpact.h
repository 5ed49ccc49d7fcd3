// What becomes of a service when the dictionary of its program changes.
#ifndef TOOLKIT_DIFF_SERVICEIMPACT_H_
#define TOOLKIT_DIFF_SERVICEIMPACT_H_

#include <string>
#include <unordered_map>
#include <vector>

#include "as/IField.h"
#include "as/IMapping.h"
#include "as/IService.h"
#include "toolkit/diff/ChangeList.h"
#include "toolkit/diff/ItemComparison.h"
#include "toolkit/diff/ItemMatch.h"
#include "toolkit/facts/DictionaryFacts.h"
#include "toolkit/facts/ItemPaths.h"
#include "toolkit/flavour/FlavourProfile.h"

namespace as::toolkit {

class ServiceImpact {
 public:
  using EntryChanges = std::unordered_map<std::string, std::vector<ChangeNumber>>;

  ServiceImpact(const DictionaryFacts& before, const DictionaryFacts& after, const ItemMatch& match,
                const ItemComparison& items, const EntryChanges& entryChanges, ChangeList& changes);

  void compare(as::IService& service, const std::string& file);

 private:
  // At parameters or type definitions with all below them. Their names stand behind `place`, the
  // operation's with what is between.
  void compareFields(as::IList* fields, const std::string& place, const FlavourProfile& flavour);
  void compareMappings(as::IField& field, const std::string& place,
                       const std::vector<std::string>& names);
  void compareMapping(as::IMapping& mapping, const std::string& place);
  void tell(const char* kind, const std::string& place, std::string oldValue, std::string newValue,
            bool breaks, ChangeNumber cause);

  const DictionaryFacts& before_;
  const DictionaryFacts& after_;
  const ItemMatch& match_;
  const ItemComparison& items_;
  const EntryChanges& entryChanges_;
  ChangeList& changes_;
  ItemPaths paths_;
  std::string file_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_DIFF_SERVICEIMPACT_H_
