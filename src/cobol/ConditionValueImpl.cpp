#include "cobol/ConditionValueImpl.h"

#include "cobol/DDVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CConditionValueImpl, as::IConditionValue, CElementImpl)

namespace {

constexpr WordCode types[] = {
    {DD::alphanumericConstant, as::IConditionValue::TYPE_CONSTANT},
    {DD::numericConstant, as::IConditionValue::TYPE_CONSTANT},
};

}  // namespace

int CConditionValueImpl::getType() { return codeOfWord(types, localName(), TYPE_RANGE); }

std::string CConditionValueImpl::getConstant() { return text(DD::value); }

std::string CConditionValueImpl::getFrom() { return text(DD::from); }

std::string CConditionValueImpl::getTo() { return text(DD::to); }
