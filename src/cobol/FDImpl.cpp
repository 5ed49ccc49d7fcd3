#include "cobol/FDImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CFDImpl, as::IFD, CElementImpl)

std::string CFDImpl::getName() { return text(DD::name); }

int CFDImpl::getAccessMode() { return 1; }

int CFDImpl::getOrganization() { return 0; }

as::IList* CFDImpl::getDataItems() { return as::interface_cast<as::IList>(dataItems_); }

void CFDImpl::collectChildren() { collectNamedList(DD::dataItems, dataItems_); }
