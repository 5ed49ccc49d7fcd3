#include "cobol/ProgramImpl.h"

#include <memory>

#include "as/IEntryPoint.h"
#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CProgramImpl, as::IProgram, CElementImpl)

namespace {

std::unique_ptr<const NameIndex> indexOfEntryPoints(CList* entryPoints) {
  auto names = std::make_unique<NameIndex>();
  const int count = entryPoints == nullptr ? 0 : entryPoints->getLength();
  for (int i = 0; i < count; i++) {
    CElementImpl* const member = entryPoints->getElement(i);
    if (as::interface_cast<as::IEntryPoint>(member) != nullptr) {
      names->add(nullptr, member->wide(DD::name), member);
    }
  }
  return names;
}

}  // namespace

std::string CProgramImpl::getName() { return text(DD::name); }

as::IList* CProgramImpl::getFileSection() { return CList::orEmpty(fileSection_); }

as::IList* CProgramImpl::getDataItems() { return CList::orEmpty(dataItems_); }

as::IList* CProgramImpl::getProperties() { return CList::orEmpty(properties_); }

as::IList* CProgramImpl::getEntryPoints() { return CList::orEmpty(entryPoints_); }

void CProgramImpl::collectChildren() {
  dataItemsByName_.reset();
  entryPointsByName_.reset();
  collectNamedList(DD::properties, properties_);
  collectNamedList(DD::fileSection, fileSection_);
  collectNamedList(DD::dataItems, dataItems_);
  collectNamedList(DD::entryPoints, entryPoints_);
}

CProgramImpl* CProgramImpl::own(as::IProgram* program) {
  auto* const own = as::interface_cast<CProgramImpl>(program);
  // A client's program may show one of the library's behind it: what it answers itself counts.
  return static_cast<as::IProgram*>(own) == program ? own : nullptr;
}

const NameIndex::Entry* CProgramImpl::dataItems(const NameIndex::Entry* around,
                                                NameIndex::View name) {
  try {
    if (!dataItemsByName_) dataItemsByName_ = std::make_unique<DataItemIndex>(dataItems_);
    return dataItemsByName_->find(around, name);
  } catch (...) {
    dataItemsByName_.reset();
    throw;
  }
}

const NameIndex& CProgramImpl::entryPointsByName() {
  if (!entryPointsByName_) entryPointsByName_ = indexOfEntryPoints(entryPoints_);
  return *entryPointsByName_;
}
