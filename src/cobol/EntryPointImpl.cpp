#include "cobol/EntryPointImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CEntryPointImpl, as::IEntryPoint, CList)

std::string CEntryPointImpl::getName() { return text(DD::name); }

int CEntryPointImpl::getCallConv() { return integer(DD::callConvention); }
