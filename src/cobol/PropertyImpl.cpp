#include "cobol/PropertyImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CPropertyImpl, as::IProperty, CElementImpl)

CPropertyImpl::CPropertyImpl(xercesc::DOMElement* element) : CElementImpl(element) {}

CPropertyImpl::~CPropertyImpl() = default;

std::string CPropertyImpl::getValue() { return text(DD::value); }

std::string CPropertyImpl::getName() { return text(DD::name); }
