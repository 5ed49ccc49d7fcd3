// Tests of the words of COM and .NET services, those that no valid document holds among them.
#include <gtest/gtest.h>

#include <string>

#include "com/COMParameterImpl.h"
#include "dotnet/DNSVocabulary.h"
#include "dotnet/DotNETParameterImpl.h"
#include "support/Dom.h"

namespace {

using test::narrow;

// COM.

TEST(ComWords, OfTheDataTypes) {
  const char* const words[] = {"byte",   "short",    "int",    "long", "float",
                               "double", "currency", "string", "date", "object"};
  for (int type = 0; type < 10; type++) {
    EXPECT_EQ(narrow(CCOMParameterImpl::DataTypeToString(static_cast<as::ICOMField::TYPE>(type))),
              words[type]);
  }
  for (const int other : {-1, 10, 12, 99}) {
    EXPECT_EQ(narrow(CCOMParameterImpl::DataTypeToString(static_cast<as::ICOMField::TYPE>(other))),
              "string")
        << other;
  }
}

TEST(ComWords, ReadExactly) {
  const struct {
    const char* attributes;
    int type;
  } rows[] = {{"", 9},
              {"dataType=''", 9},
              {"dataType=' '", 7},
              {"dataType='object'", 7},
              {"dataType='Byte'", 7},
              {"dataType='byte '", 7},
              {"dataType='bytes'", 7},
              {"dataType='dat'", 7},
              {"dataType='decimal'", 7},
              {"dataType='byte'", 0},
              {"dataType='date'", 8}};
  for (const auto& row : rows) {
    test::Dom dom("<parameter " + std::string(row.attributes) + "/>");
    CCOMParameterImpl parameter(dom.root());
    EXPECT_EQ(parameter.getType(), row.type) << row.attributes;
  }
}

TEST(ComWords, ReturnValueIsFalseForEverythingUnknown) {
  const struct {
    const char* value;
    bool isReturn;
  } rows[] = {{"1", true},      {"True", true}, {"0", false},  {"", false},   {"yes", false},
              {"true ", false}, {"2", false},   {"11", false}, {"01", false}, {"-1", false}};
  for (const auto& row : rows) {
    test::Dom dom("<parameter returnParameter='" + std::string(row.value) + "'/>");
    CCOMParameterImpl parameter(dom.root());
    EXPECT_EQ(parameter.isReturnParameter(), row.isReturn) << row.value;
  }
}

// .NET.

TEST(DotNetWords, OfTheDataTypes) {
  const struct {
    const XMLCh* constant;
    const char* word;
  } rows[] = {{DNS::byte, "Byte"},      {DNS::sByte, "SByte"},     {DNS::int16, "Int16"},
              {DNS::int32, "Int32"},    {DNS::int64, "Int64"},     {DNS::uint16, "UInt16"},
              {DNS::uint32, "UInt32"},  {DNS::uint64, "UInt64"},   {DNS::single_, "Single"},
              {DNS::double_, "Double"}, {DNS::decimal, "Decimal"}, {DNS::string, "String"}};
  int type = 0;
  for (const auto& row : rows) {
    EXPECT_EQ(narrow(row.constant), row.word);
    EXPECT_EQ(CDotNETParameterImpl::StringToDataType(row.constant), type) << row.word;
    EXPECT_EQ(
        narrow(CDotNETParameterImpl::DataTypeToString(static_cast<as::IDotNETField::TYPE>(type++))),
        row.word);
  }
  EXPECT_EQ(narrow(DNS::dataType), "dataType");
}

TEST(DotNetWords, ReadExactly) {
  const struct {
    const char* attributes;
    int type;
    const char* word;
  } rows[] = {{"", 0, "Byte"},
              {"dataType=''", 0, "Byte"},
              {"dataType='int32'", 0, "Byte"},
              {"dataType='Int32'", 3, "Int32"},
              {"dataType='Int32 '", 0, "Byte"},
              {"dataType='Int'", 0, "Byte"},
              {"dataType='UInt322'", 0, "Byte"},
              {"dataType='object'", 0, "Byte"},
              {"dataType='STRING'", 0, "Byte"},
              {"dataType='String'", 11, "String"}};
  for (const auto& row : rows) {
    test::Dom dom("<field " + std::string(row.attributes) + "/>");
    CDotNETParameterImpl field(dom.root());
    EXPECT_EQ(field.getType(), row.type) << row.attributes;
    EXPECT_EQ(field.getTypeToString(), row.word) << row.attributes;
  }
}

TEST(DotNetWordsDeathTest, NumberWithoutAWordEndsTheProcess) {
  for (const int number : {-1, 12, 13, 1000}) {
    EXPECT_DEATH(
        CDotNETParameterImpl::DataTypeToString(static_cast<as::IDotNETField::TYPE>(number)),
        "DotnetParameterImpl:68: static const XMLCh\\* "
        "CDotNETParameterImpl::DataTypeToString\\(as::IDotNETField::TYPE\\): "
        "Assertion `false' failed")
        << number;
  }
}

}  // namespace
