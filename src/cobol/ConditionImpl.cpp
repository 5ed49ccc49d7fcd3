#include "cobol/ConditionImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CConditionImpl, as::ICondition, CList)

std::string CConditionImpl::getName() { return text(DD::name); }
