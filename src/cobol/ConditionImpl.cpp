#include "cobol/ConditionImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CConditionImpl, as::ICondition, CList)

CConditionImpl::CConditionImpl(xercesc::DOMElement* element)
    : CElementImpl(element), CList(element) {}

CConditionImpl::~CConditionImpl() = default;

std::string CConditionImpl::getName() { return text(DD::name); }
