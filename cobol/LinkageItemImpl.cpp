#include "cobol/LinkageItemImpl.h"

#include "cobol/DDVocabulary.h"
#include "cobol/DataItemImpl.h"
#include "cobol/ProgramImpl.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CLinkageItemImpl, as::ILinkageItem, CElementImpl)

namespace {

constexpr WordCode byTypes[] = {
    {DD::value, as::ILinkageItem::BY_VALUE},
    {DD::returning, as::ILinkageItem::BY_RETURNING},
};

}  // namespace

CLinkageItemImpl::CLinkageItemImpl(xercesc::DOMElement* element) : CElementImpl(element) {}

CLinkageItemImpl::~CLinkageItemImpl() = default;

int CLinkageItemImpl::getByType() { return codeOfWord(byTypes, wide(DD::byType), BY_REFERENCE); }

as::IDataItem* CLinkageItemImpl::getDataItem() {
  auto* const program = as::interface_cast<CProgramImpl>(rootOf(getElement()));
  if (program == nullptr) return nullptr;
  // The top level only: what can be handed over at a call are whole records.
  as::IList* const items = program->getDataItems();
  const std::string name = text(DD::dataItem);
  const int count = items->getLength();
  for (int i = 0; i < count; i++) {
    auto* const item = as::interface_cast<CDataItemImpl>(items->getItem(i));
    if (item != nullptr && item->getName() == name) return as::interface_cast<as::IDataItem>(item);
  }
  return nullptr;
}
