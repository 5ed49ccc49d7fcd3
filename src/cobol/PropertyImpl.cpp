#include "cobol/PropertyImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CPropertyImpl, as::IProperty, CElementImpl)

std::string CPropertyImpl::getValue() { return text(DD::value); }

std::string CPropertyImpl::getName() { return text(DD::name); }
