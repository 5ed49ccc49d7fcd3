#include "cobol/LinkageItemImpl.h"

#include "as/IDataItem.h"
#include "cobol/DDVocabulary.h"
#include "cobol/ProgramImpl.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CLinkageItemImpl, as::ILinkageItem, CElementImpl)

namespace {

constexpr WordCode byTypes[] = {
    {DD::value, as::ILinkageItem::BY_VALUE},
    {DD::returning, as::ILinkageItem::BY_RETURNING},
};

}  // namespace

int CLinkageItemImpl::getByType() { return codeOfWord(byTypes, wide(DD::byType), BY_REFERENCE); }

as::IDataItem* CLinkageItemImpl::getDataItem() {
  auto* const program = as::interface_cast<CProgramImpl>(rootOf(getElement()));
  if (program == nullptr) return nullptr;
  // The top level only: what can be handed over at a call are whole records.
  const NameIndex::Entry* const entry = program->dataItems(nullptr, wide(DD::dataItem));
  return entry == nullptr ? nullptr : as::interface_cast<as::IDataItem>(entry->first);
}
