// The numbers of the enumerators. Clients have them built in: another number breaks every client
// that was built before.
#include <gtest/gtest.h>

#include <initializer_list>
#include <type_traits>

#include "as/AgentServices.h"

namespace as {
namespace {

// The enumerators count up from 0 in the order given. Getters may answer a number that is no
// enumerator, and setters may be handed one, which only an enumeration of a fixed type allows.
template <class Enum>
void expectCountedFromZero(std::initializer_list<Enum> enumerators) {
  static_assert(std::is_same_v<std::underlying_type_t<Enum>, int>);
  int value = 0;
  for (const Enum enumerator : enumerators) EXPECT_EQ(static_cast<int>(enumerator), value++);
}

TEST(EnumerationTest, ConditionValueType) {
  expectCountedFromZero({IConditionValue::TYPE_CONSTANT, IConditionValue::TYPE_RANGE});
}

TEST(EnumerationTest, DataItemType) {
  expectCountedFromZero(
      {IDataItem::TYPE_GROUP, IDataItem::TYPE_NUMERIC, IDataItem::TYPE_ALPHANUMERIC,
       IDataItem::TYPE_OBJECT, IDataItem::TYPE_POINTER, IDataItem::TYPE_NATIONAL,
       IDataItem::TYPE_NUMERIC_EDITED, IDataItem::TYPE_ALPHANUMERIC_EDITED, IDataItem::TYPE_INDEX});
}

TEST(EnumerationTest, NumericUsage) {
  expectCountedFromZero({INumeric::USAGE_COMP, INumeric::USAGE_COMP_X, INumeric::USAGE_COMP_1,
                         INumeric::USAGE_COMP_2, INumeric::USAGE_COMP_3, INumeric::USAGE_COMP_4,
                         INumeric::USAGE_COMP_5, INumeric::USAGE_COMP_6,
                         INumeric::USAGE_EXTERNAL_FLOAT, INumeric::USAGE_DISPLAY});
}

TEST(EnumerationTest, NumericSign) {
  expectCountedFromZero({INumeric::SIGN_LEADING, INumeric::SIGN_LEADING_SEPARATE,
                         INumeric::SIGN_TRAILING, INumeric::SIGN_TRAILING_SEPARATE,
                         INumeric::SIGN_SIGNED, INumeric::SIGN_NONE});
}

TEST(EnumerationTest, NationalUsage) {
  expectCountedFromZero({INational::USAGE_DISPLAY, INational::USAGE_UNICODE});
}

TEST(EnumerationTest, AlphanumericJustification) {
  expectCountedFromZero({IAlphanumeric::JUSTIFIED_LEFT, IAlphanumeric::JUSTIFIED_RIGHT});
}

TEST(EnumerationTest, LinkageItemByType) {
  expectCountedFromZero(
      {ILinkageItem::BY_REFERENCE, ILinkageItem::BY_VALUE, ILinkageItem::BY_RETURNING});
}

TEST(EnumerationTest, ParameterByType) {
  expectCountedFromZero({IParameter::BY_IN, IParameter::BY_OUT, IParameter::BY_IO});
}

TEST(EnumerationTest, ServiceType) {
  expectCountedFromZero({IService::TYPE_WS, IService::TYPE_JAVA, IService::TYPE_COM,
                         IService::TYPE_XD, IService::TYPE_DOTNET});
}

TEST(EnumerationTest, MappingType) {
  expectCountedFromZero({IMapping::MAP_DATA_ITEM, IMapping::MAP_COMMAND_LINE,
                         IMapping::MAP_RETURN_CODE, IMapping::MAP_STDIN, IMapping::MAP_STDOUT});
}

TEST(EnumerationTest, WSOperationUse) {
  expectCountedFromZero({IWSOperation::USE_LITERAL, IWSOperation::USE_ENCODED});
}

TEST(EnumerationTest, WSOperationStyle) {
  expectCountedFromZero({IWSOperation::STYLE_RPC, IWSOperation::STYLE_DOCUMENT});
}

TEST(EnumerationTest, WSHeaderByType) {
  expectCountedFromZero({IWSHeader::BY_IN, IWSHeader::BY_OUT, IWSHeader::BY_IO});
}

TEST(EnumerationTest, WSHeaderUse) {
  expectCountedFromZero({IWSHeader::USE_LITERAL, IWSHeader::USE_ENCODED});
}

TEST(EnumerationTest, WSFaultUse) {
  expectCountedFromZero({IWSFault::USE_LITERAL, IWSFault::USE_ENCODED});
}

TEST(EnumerationTest, WSFieldType) {
  expectCountedFromZero({IWSField::WS_BYTE, IWSField::WS_UNSIGNED_BYTE, IWSField::WS_SHORT,
                         IWSField::WS_UNSIGNED_SHORT, IWSField::WS_INT, IWSField::WS_UNSIGNED_INT,
                         IWSField::WS_LONG, IWSField::WS_UNSIGNED_LONG, IWSField::WS_FLOAT,
                         IWSField::WS_DOUBLE, IWSField::WS_DECIMAL, IWSField::WS_INTEGER,
                         IWSField::WS_STRING, IWSField::WS_ARRAY, IWSField::WS_XML});
}

TEST(EnumerationTest, WSFieldForm) {
  expectCountedFromZero({IWSField::FORM_QUALIFIED, IWSField::FORM_UNQUALIFIED});
}

TEST(EnumerationTest, COMFieldType) {
  expectCountedFromZero({ICOMField::COM_BYTE, ICOMField::COM_SHORT, ICOMField::COM_INT,
                         ICOMField::COM_LONG, ICOMField::COM_FLOAT, ICOMField::COM_DOUBLE,
                         ICOMField::COM_CURRENCY, ICOMField::COM_STRING, ICOMField::COM_DATE,
                         ICOMField::COM_OBJECT});
}

TEST(EnumerationTest, JavaFieldType) {
  expectCountedFromZero({IJavaField::JAVA_BYTE, IJavaField::JAVA_SHORT, IJavaField::JAVA_INT,
                         IJavaField::JAVA_LONG, IJavaField::JAVA_FLOAT, IJavaField::JAVA_DOUBLE,
                         IJavaField::JAVA_BIG_DECIMAL, IJavaField::JAVA_STRING,
                         IJavaField::JAVA_BYTE_ARRAY, IJavaField::JAVA_BIG_INTEGER});
}

TEST(EnumerationTest, JavaOperationTransType) {
  expectCountedFromZero({IJavaOperation::TRANS_NOT_SUPPORTED, IJavaOperation::TRANS_MANDATORY,
                         IJavaOperation::TRANS_NEVER, IJavaOperation::TRANS_REQUIRES,
                         IJavaOperation::TRANS_REQUIRES_NEW, IJavaOperation::TRANS_SUPPORTS});
}

TEST(EnumerationTest, DotNETFieldType) {
  expectCountedFromZero({IDotNETField::NET_BYTE, IDotNETField::NET_SBYTE, IDotNETField::NET_INT16,
                         IDotNETField::NET_INT32, IDotNETField::NET_INT64, IDotNETField::NET_UINT16,
                         IDotNETField::NET_UINT32, IDotNETField::NET_UINT64,
                         IDotNETField::NET_SINGLE, IDotNETField::NET_DOUBLE,
                         IDotNETField::NET_DECIMAL, IDotNETField::NET_STRING});
}

}  // namespace
}  // namespace as
