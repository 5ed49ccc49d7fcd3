#include "cobol/DataItemImpl.h"

#include "cobol/DDVocabulary.h"
#include "cobol/DataItemPath.h"
#include "cobol/GroupImpl.h"
#include "cobol/ProgramImpl.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CDataItemImpl, as::IDataItem, CElementImpl)

namespace {

// "cobolObject", the element that object references have, is missing on purpose: clients know such
// items as alphanumeric ones.
constexpr WordCode dataTypes[] = {
    {DD::group, as::IDataItem::TYPE_GROUP},
    {DD::numeric, as::IDataItem::TYPE_NUMERIC},
    {DD::alphanumeric, as::IDataItem::TYPE_ALPHANUMERIC},
    {DD::object, as::IDataItem::TYPE_OBJECT},
    {DD::pointer, as::IDataItem::TYPE_POINTER},
    {DD::national, as::IDataItem::TYPE_NATIONAL},
    {DD::numericEdited, as::IDataItem::TYPE_NUMERIC_EDITED},
    {DD::alphanumericEdited, as::IDataItem::TYPE_ALPHANUMERIC_EDITED},
    {DD::index, as::IDataItem::TYPE_INDEX},
};

}  // namespace

int CDataItemImpl::getDataType() { return codeOfWord(dataTypes, localName(), TYPE_ALPHANUMERIC); }

std::string CDataItemImpl::getName() { return text(DD::name); }

std::string CDataItemImpl::getPicture() { return text(DD::picture); }

int CDataItemImpl::getLength() { return integer(DD::length); }

int CDataItemImpl::getMinOccurs() { return integer(DD::minOccurs); }

int CDataItemImpl::getMaxOccurs() { return integer(DD::maxOccurs); }

int CDataItemImpl::getOffset() { return integer(DD::offset); }

int CDataItemImpl::getLine() { return integer(DD::line); }

as::IDataItem* CDataItemImpl::getODO() {
  const XMLCh* const path = wide(DD::odo);
  if (*path == 0) return nullptr;
  auto* const program = as::interface_cast<CProgramImpl>(rootOf(getElement()));
  return program == nullptr ? nullptr : findDataItem(path, *program);
}

bool CDataItemImpl::hasODO() { return *wide(DD::odo) != 0; }

bool CDataItemImpl::isLinkage() { return truth(DD::linkage); }

bool CDataItemImpl::isSync() { return truth(DD::sync); }

bool CDataItemImpl::isRedefined() { return truth(DD::redefines); }

bool CDataItemImpl::isRenamed() { return truth(DD::renames); }

as::IList* CDataItemImpl::getConditions() { return &conditions_; }

as::IGroup* CDataItemImpl::getParent() { return parent_; }

void CDataItemImpl::collectChildren() { conditions_.addChildrenOf(*this); }
