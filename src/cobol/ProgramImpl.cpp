#include "cobol/ProgramImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CProgramImpl, as::IProgram, CElementImpl)

std::string CProgramImpl::getName() { return text(DD::name); }

as::IList* CProgramImpl::getFileSection() { return CList::orEmpty(fileSection_); }

as::IList* CProgramImpl::getDataItems() { return CList::orEmpty(dataItems_); }

as::IList* CProgramImpl::getProperties() { return CList::orEmpty(properties_); }

as::IList* CProgramImpl::getEntryPoints() { return CList::orEmpty(entryPoints_); }

void CProgramImpl::collectChildren() {
  collectNamedList(DD::properties, properties_);
  collectNamedList(DD::fileSection, fileSection_);
  collectNamedList(DD::dataItems, dataItems_);
  collectNamedList(DD::entryPoints, entryPoints_);
}
