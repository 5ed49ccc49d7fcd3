// Tests of which types of target languages are taken for which values, from both sides of each
// limit.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/flavour/Capacity.h"
#include "toolkit/generate/CSharpLanguage.h"
#include "toolkit/generate/IdlLanguage.h"
#include "toolkit/generate/JavaLanguage.h"
#include "toolkit/generate/JsonTypes.h"
#include "toolkit/generate/XsdTypes.h"

namespace {

namespace gen = as::toolkit::gen;
using as::toolkit::Capacity;
using as::toolkit::integerOf;
using Kind = Capacity::Kind;

std::string typeFor(const gen::TypeTable& table, const Capacity& capacity,
                    const std::string& word = "") {
  gen::Field field;
  field.capacity = capacity;
  field.dataType = word;
  const gen::TypeRow* const row = gen::rowFor(table, field);
  return row == nullptr ? "nothing" : row->type;
}

// "TYPE to LAST SIZE, TYPE to ...": what is taken for sizes from 1 on.
template <class CapacityOf>
std::string typesOf(const gen::TypeTable& table, int last, const CapacityOf& capacityOf) {
  std::string text;
  std::string type = typeFor(table, capacityOf(1));
  for (int size = 1; size <= last; ++size) {
    const std::string next = typeFor(table, capacityOf(size + 1));
    if (next == type && size < last) continue;
    text += (text.empty() ? "" : ", ") + type + " to " + std::to_string(size);
    type = next;
  }
  return text;
}

std::string ofDigits(const gen::TypeTable& table, bool isSigned, int places = 0) {
  return typesOf(table, 40, [=](int digits) {
    return Capacity{Kind::decimal, digits, 0, isSigned, places};
  });
}
std::string ofBits(const gen::TypeTable& table, bool isSigned) {
  return typesOf(table, 128, [=](int bits) { return integerOf(bits, isSigned); });
}
std::string floating(const gen::TypeTable& table) {
  return typesOf(table, 20, [](int digits) { return Capacity{Kind::floating, digits}; });
}

TEST(IntegerOf, HoldsAllNumbersOfItsDigits) {
  const struct {
    int bits;
    bool isSigned;
    int digits;
  } rows[] = {{8, true, 2},   {8, false, 2},  {16, true, 4},  {16, false, 4}, {32, true, 9},
              {32, false, 9}, {53, true, 15}, {64, true, 18}, {64, false, 19}};
  for (const auto& row : rows) {
    const Capacity capacity = integerOf(row.bits, row.isSigned);
    EXPECT_EQ(capacity.digits, row.digits) << row.bits;
    EXPECT_EQ(capacity.bits, row.bits);
    EXPECT_EQ(capacity.isSigned, row.isSigned);
    EXPECT_EQ(capacity.kind, Kind::integer);
  }
}

TEST(TypeTable, OfJavaTakesWhatHoldsAll) {
  const gen::TypeTable& java = gen::javaLanguage().values;
  const char* const digits = "byte to 2, short to 4, int to 9, long to 18, BigInteger to 40";
  EXPECT_EQ(ofDigits(java, true), digits);
  EXPECT_EQ(ofDigits(java, false), digits);
  EXPECT_EQ(ofBits(java, true), "byte to 8, short to 16, int to 32, long to 64, BigInteger to 128");
  EXPECT_EQ(ofBits(java, false),
            "byte to 7, short to 15, int to 31, long to 63, BigInteger to 128");
  EXPECT_EQ(ofDigits(java, true, 1), "BigDecimal to 40");
  EXPECT_EQ(floating(java), "float to 6, double to 15, nothing to 20");
  EXPECT_EQ(typeFor(java, {Kind::text}), "String");
  EXPECT_EQ(typeFor(java, {Kind::bytes}), "byte[]");
  EXPECT_EQ(typeFor(java, {Kind::open}, "date"), "nothing");
  EXPECT_EQ(typeFor(java, {Kind::group}), "nothing");
}

TEST(TypeTable, OfCSharpTakesWhatHoldsAll) {
  const gen::TypeTable& csharp = gen::csharpLanguage().values;
  EXPECT_EQ(ofDigits(csharp, true),
            "sbyte to 2, short to 4, int to 9, long to 18, decimal to 28, "
            "global::System.Numerics.BigInteger to 40");
  EXPECT_EQ(ofDigits(csharp, false),
            "sbyte to 2, short to 4, int to 9, long to 18, ulong to 19, decimal to 28, "
            "global::System.Numerics.BigInteger to 40");
  EXPECT_EQ(ofBits(csharp, false).substr(0, 100),
            std::string("sbyte to 7, byte to 8, short to 15, ushort to 16, int to 31, uint to 32, "
                        "long to 63, ulong to 64, decimal to 93")
                .substr(0, 100));
  EXPECT_EQ(ofDigits(csharp, true, 1), "decimal to 28, nothing to 40");
  EXPECT_EQ(floating(csharp), "float to 6, double to 15, nothing to 20");
  EXPECT_EQ(typeFor(csharp, {Kind::text}), "string");
  EXPECT_EQ(typeFor(csharp, {Kind::bytes}), "byte[]");
}

TEST(TypeTable, OfIdlTakesWhatHoldsAll) {
  const gen::TypeTable& idl = gen::idlLanguage().values;
  EXPECT_EQ(ofDigits(idl, true), "short to 4, long to 9, CY to 14, DECIMAL to 28, nothing to 40");
  EXPECT_EQ(ofDigits(idl, false).substr(0, 40), "unsigned char to 2, short to 4, long to ");
  EXPECT_EQ(ofBits(idl, false).substr(0, 61),
            "unsigned char to 8, short to 15, long to 31, CY to 46, DECIMA");
  EXPECT_EQ(ofDigits(idl, true, 4), "CY to 18, DECIMAL to 28, nothing to 40");
  EXPECT_EQ(ofDigits(idl, true, 5), "DECIMAL to 28, nothing to 40");
  EXPECT_EQ(floating(idl), "float to 6, double to 15, nothing to 20");
  EXPECT_EQ(typeFor(idl, {Kind::text}), "BSTR");
  EXPECT_EQ(typeFor(idl, {Kind::open}, "date"), "DATE");
  EXPECT_EQ(typeFor(idl, {Kind::open}, "object"), "VARIANT");
  EXPECT_EQ(typeFor(idl, {Kind::bytes}), "nothing");
}

TEST(TypeTable, OfXmlSchemaTakesWhatHoldsAll) {
  const gen::TypeTable& xsd = gen::xsdTypes();
  EXPECT_EQ(ofDigits(xsd, true),
            "xs:byte to 2, xs:short to 4, xs:int to 9, xs:long to 18, xs:integer to 40");
  EXPECT_EQ(ofDigits(xsd, false),
            "xs:byte to 2, xs:short to 4, xs:int to 9, xs:long to 18, xs:unsignedLong to 19, "
            "xs:integer to 40");
  EXPECT_EQ(ofBits(xsd, true),
            "xs:byte to 8, xs:short to 16, xs:int to 32, xs:long to 64, xs:integer to 128");
  EXPECT_EQ(ofBits(xsd, false),
            "xs:byte to 7, xs:unsignedByte to 8, xs:short to 15, xs:unsignedShort to 16, xs:int to "
            "31, xs:unsignedInt to 32, xs:long to 63, xs:unsignedLong to 64, xs:integer to 128");
  EXPECT_EQ(ofDigits(xsd, true, 1), "xs:decimal to 40");
  EXPECT_EQ(floating(xsd), "xs:float to 6, xs:double to 15, nothing to 20");
  EXPECT_EQ(typeFor(xsd, {Kind::text}), "xs:string");
  EXPECT_EQ(typeFor(xsd, {Kind::bytes}), "xs:base64Binary");
  EXPECT_EQ(typeFor(xsd, {Kind::open}, "date"), "xs:dateTime");
  EXPECT_EQ(typeFor(xsd, {Kind::open}, "object"), "xs:anyType");
  EXPECT_EQ(typeFor(xsd, {Kind::open}, "XML"), "xs:anyType");
  EXPECT_EQ(typeFor(xsd, {Kind::open}, "other"), "nothing");
}

TEST(TypeTable, OfJsonTakesWhatHoldsAll) {
  const gen::TypeTable& json = gen::jsonTypes();
  const std::string whole(gen::integerText);
  EXPECT_EQ(ofDigits(json, true), "integer to 15, " + whole + " to 40");
  EXPECT_EQ(ofBits(json, true), "integer to 53, " + whole + " to 128");
  EXPECT_EQ(ofBits(json, false), "integer to 52, " + whole + " to 128");
  EXPECT_EQ(ofDigits(json, true, 1), std::string(gen::decimalText) + " to 40");
  EXPECT_EQ(floating(json), "number to 15, nothing to 20");
  EXPECT_EQ(typeFor(json, {Kind::text}), "string");
}

}  // namespace
