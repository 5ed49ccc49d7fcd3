#include "cobol/DataItemIndex.h"

#include <cstddef>

#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "cobol/DDVocabulary.h"

namespace {

// Null for an item that is no group.
CList* membersOf(CElementImpl* item) {
  auto* const group = as::interface_cast<as::IGroup>(item);
  return group == nullptr ? nullptr : as::interface_cast<CList>(group->getChildren());
}

}  // namespace

const NameIndex::Entry* DataItemIndex::find(const NameIndex::Entry* around, NameIndex::View name) {
  if (seen_.insert(around).second) lookInto(around);
  return names_.find(around, name);
}

void DataItemIndex::lookInto(const NameIndex::Entry* around) {
  if (around == nullptr) {
    if (topLevel_ != nullptr) names_.reserve(static_cast<std::size_t>(topLevel_->getLength()));
    add(nullptr, topLevel_);
    return;
  }
  add(around, membersOf(around->first));
  // Adding makes others of other entries only, and leaves these where they are.
  const auto others = others_.find(around);
  if (others == others_.end()) return;
  const std::vector<CElementImpl*>& items = others->second;
  for (CElementImpl* const item : items) add(around, membersOf(item));
}

void DataItemIndex::add(const NameIndex::Entry* around, CList* members) {
  const int count = members == nullptr ? 0 : members->getLength();
  for (int i = 0; i < count; i++) {
    CElementImpl* const member = members->getElement(i);
    if (as::interface_cast<as::IDataItem>(member) == nullptr) continue;
    const NameIndex::Entry* const entry = names_.add(around, member->wide(DD::name), member);
    if (entry->first != member) others_[entry].push_back(member);
  }
}
