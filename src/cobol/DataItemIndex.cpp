#include "cobol/DataItemIndex.h"

#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "cobol/DDVocabulary.h"

const NameIndex::Entry* DataItemIndex::find(const NameIndex::Entry* around, const XMLCh* name) {
  const auto unseen = unseen_.find(around);
  if (unseen != unseen_.end()) {
    // Adding leaves the lists where they are, though not what leads to them.
    const std::vector<CList*>& lists = unseen->second;
    for (CList* const members : lists) {
      if (members != nullptr) add(around, *members);
    }
    unseen_.erase(around);
  }
  return names_.find(around, name);
}

void DataItemIndex::add(const NameIndex::Entry* around, CList& members) {
  const int count = members.getLength();
  for (int i = 0; i < count; i++) {
    CElementImpl* const member = members.getElement(i);
    if (as::interface_cast<as::IDataItem>(member) == nullptr) continue;
    const NameIndex::Entry* const entry = names_.add(around, member->wide(DD::name), member);
    if (auto* const group = as::interface_cast<as::IGroup>(member)) {
      unseen_[entry].push_back(as::interface_cast<CList>(group->getChildren()));
    }
  }
}
