#include "cobol/NumericImpl.h"

#include "cobol/DDVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CNumericImpl, as::INumeric, CDataItemImpl)

namespace {

constexpr WordCode usages[] = {
    {DD::compx, as::INumeric::USAGE_COMP_X},
    {DD::comp, as::INumeric::USAGE_COMP},
    {DD::comp1, as::INumeric::USAGE_COMP_1},
    {DD::comp2, as::INumeric::USAGE_COMP_2},
    {DD::comp3, as::INumeric::USAGE_COMP_3},
    {DD::comp4, as::INumeric::USAGE_COMP_4},
    {DD::comp5, as::INumeric::USAGE_COMP_5},
    {DD::comp6, as::INumeric::USAGE_COMP_6},
    {DD::externalFloat, as::INumeric::USAGE_EXTERNAL_FLOAT},
};

// clang-format off
constexpr WordCode signs[] = {
    {DD::li, as::INumeric::SIGN_LEADING},
    {DD::ls, as::INumeric::SIGN_LEADING_SEPARATE},
    {DD::ti, as::INumeric::SIGN_TRAILING},
    {DD::ts, as::INumeric::SIGN_TRAILING_SEPARATE},
    {DD::true_, as::INumeric::SIGN_SIGNED},
};
// clang-format on

}  // namespace

int CNumericImpl::getUsage() { return codeOfWord(usages, wide(DD::usage), USAGE_DISPLAY); }

int CNumericImpl::getSign() { return codeOfWord(signs, wide(DD::sign), SIGN_NONE); }

int CNumericImpl::getDigits() { return integer(DD::digits); }

int CNumericImpl::getAlignment() { return integer(DD::alignment); }
