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
  auto* const items = as::interface_cast<CList>(program->getDataItems());
  const XMLCh* const name = wide(DD::dataItem);
  for (int i = items->find(DD::name, name); i >= 0; i = items->find(DD::name, name, i + 1)) {
    if (auto* const item = as::interface_cast<as::IDataItem>(items->getElement(i))) return item;
  }
  return nullptr;
}
