// Tests of what data types can hold: of the items that lint finds too large for theirs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "as/toolkit/Lint.h"
#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

// An item in the linkage, the data type of a field for it, and why that cannot hold it; empty when
// it can.
struct Row {
  std::string label;
  std::string item;
  const char* flavour;
  const char* type;
  std::string problem;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

const char* namespaceOf(const std::string& flavour) {
  if (flavour == "com") return as::namespaces::com.uri;
  if (flavour == "dotnet") return as::namespaces::dotnet.uri;
  return flavour == "java" ? as::namespaces::java.uri : as::namespaces::ws.uri;
}

class CapacityTest : public test::ToolkitTest {
 protected:
  void expect(const Row& row) const {
    SCOPED_TRACE(row.label + " " + row.flavour + " " + row.type + " " + row.item);
    write("P.xml",
          test::dictionary("<dataItems>" + row.item +
                           "</dataItems><entryPoints><entryPoint name='E'><parameter "
                           "dataItem='I' byType='reference'/></entryPoint></entryPoints>"));
    const bool isWeb = std::string(row.flavour) == "ws";
    const std::string operation =
        std::string("<operations><operation name='o' entryPoint='E' ") +
        (isWeb ? "style='rpc' inputUse='literal' outputUse='literal' inputNamespace='urn:i' "
                 "outputNamespace='urn:o'"
               : "") +
        "><parameters><parameter name='p' dataType='" + row.type +
        "'><mappings><mapping item='I'/></mappings></parameter></parameters></operation>"
        "</operations>";
    write("s.xml", test::serviceDocument(namespaceOf(row.flavour),
                                         std::string("name='S' implementation='") + row.flavour +
                                             "' programName='PAYROLL' dataDictFilename='P.xml'",
                                         operation));
    std::vector<std::string> problems;
    for (const toolkit::Finding& finding : toolkit::lintFile(reader(), "s.xml")) {
      problems.push_back(finding.problem);
    }
    if (row.problem.empty()) {
      EXPECT_THAT(problems, IsEmpty());
    } else {
      EXPECT_THAT(problems, ElementsAre(std::string("data type '") + row.type +
                                        "' cannot hold I: it " + row.problem));
    }
  }
};

class CapacityRow : public CapacityTest, public testing::WithParamInterface<Row> {};

TEST_P(CapacityRow, IsThatOfTheTable) { expect(GetParam()); }

std::string numeric(const std::string& attributes) {
  return "<numeric name='I' linkage='true' " + attributes + "/>";
}

std::string edited(const std::string& attributes) {
  return "<numericEdited name='I' linkage='true' " + attributes + "/>";
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, CapacityRow,
    testing::Values(
        Row{"DigitsThatFit", numeric("digits='4' length='4' picture='9(4)'"), "java", "short", ""},
        Row{"OneDigitMore", numeric("digits='5' length='5' picture='9(5)'"), "java", "short",
            "holds 4 digits, the item has 5"},
        Row{"DigitsOfTheBytesWhenNoneAreTold", numeric("length='3' usage='comp-3'"), "java",
            "short", "holds 4 digits, the item has 5"},
        Row{"ToldDigitsBeforeThoseOfTheBytes", numeric("length='3' usage='comp-3' digits='4'"),
            "java", "short", ""},
        Row{"MoreDigitsThanThereAre", numeric("digits='2000000000' picture='9'"), "java", "short",
            "holds 4 digits, the item has 1000000000"},
        Row{"LongMantissa", numeric("picture='+9(20)E+99' digits='20' usage='externalFloat'"),
            "java", "double", "holds 15 digits, the item has 20"},
        Row{"MantissaThatFits", numeric("picture='+9(15)E+99' digits='15' usage='externalFloat'"),
            "java", "double", ""},
        Row{"MantissaOfADouble", numeric("picture='+9(6)E+99' digits='6' usage='externalFloat'"),
            "java", "float", "is too short for a double"},
        Row{"FloatingPointAsAnInteger", numeric("usage='comp-1' length='4'"), "java", "long",
            "holds no floating-point numbers"},
        Row{"NothingToldIsHeld", numeric("picture='?'"), "java", "short", ""},
        Row{"BinaryOfAnUnreadablePicture",
            numeric("length='4' usage='comp-5' sign='true' picture='?'"), "java", "int", ""},
        Row{"BinaryThatFits", numeric("length='2' usage='comp-5' sign='true' picture='S9(4)'"),
            "java", "short", ""},
        Row{"BinaryWithoutASignNeedsABitMore", numeric("length='2' usage='comp-5' picture='9(4)'"),
            "java", "short", "has 16 bits, the item needs 17"},
        Row{"BinaryOfTrailingZeros",
            numeric("length='2' usage='comp-5' sign='true' picture='S9(4)PP'"), "java", "short",
            "holds 4 digits, the item has 7"}),
    test::labelOf<Row>);

// A type for whole numbers: so many digits, and so many bytes of a binary item.
struct WholeNumbers {
  const char* flavour;
  const char* type;
  int digits;
  int bytes;
  bool isSigned = true;
};

TEST_F(CapacityTest, OfTypesForWholeNumbersAreTheirDigitsAndBits) {
  const WholeNumbers types[] = {
      {"com", "byte", 2, 1, false},
      {"com", "short", 4, 2},
      {"com", "int", 9, 4},
      {"com", "long", 9, 4},
      {"dotnet", "Byte", 2, 1, false},
      {"dotnet", "SByte", 2, 1},
      {"dotnet", "Int16", 4, 2},
      {"dotnet", "UInt16", 4, 2, false},
      {"dotnet", "Int32", 9, 4},
      {"dotnet", "UInt32", 9, 4, false},
      {"dotnet", "Int64", 18, 8},
      {"dotnet", "UInt64", 19, 8, false},
      {"java", "byte", 2, 1},
      {"java", "short", 4, 2},
      {"java", "int", 9, 4},
      {"java", "long", 18, 8},
      {"ws", "byte", 2, 1},
      {"ws", "unsignedByte", 2, 1, false},
      {"ws", "short", 4, 2},
      {"ws", "unsignedShort", 4, 2, false},
      {"ws", "int", 9, 4},
      {"ws", "unsignedInt", 9, 4, false},
      {"ws", "long", 18, 8},
      {"ws", "unsignedLong", 19, 8, false},
  };
  for (const WholeNumbers& type : types) {
    const auto digits = [](int number) {
      return numeric("picture='9' digits='" + std::to_string(number) + "'");
    };
    const auto binary = [&type](int bytes) {
      return numeric("picture='9' usage='comp-5' length='" + std::to_string(bytes) + "' sign='" +
                     (type.isSigned ? "true'" : "false'"));
    };
    expect({"digits", digits(type.digits), type.flavour, type.type, ""});
    expect({"one more", digits(type.digits + 1), type.flavour, type.type,
            "holds " + std::to_string(type.digits) + " digits, the item has " +
                std::to_string(type.digits + 1)});
    expect({"bytes", binary(type.bytes), type.flavour, type.type, ""});
    expect({"a byte more", binary(type.bytes + 1), type.flavour, type.type,
            "has " + std::to_string(8 * type.bytes) + " bits, the item needs " +
                std::to_string(8 * (type.bytes + 1))});
    if (!type.isSigned) {
      expect({"a sign", numeric("picture='S9' digits='1' sign='true'"), type.flavour, type.type,
              "holds no negative numbers, the item does"});
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    EditedNumbers, CapacityRow,
    testing::Values(
        Row{"DigitsThatFit", edited("picture='Z(3)9' digits='4' length='4'"), "java", "short", ""},
        Row{"OneDigitMore", edited("picture='Z(4)9' digits='5' length='5'"), "java", "short",
            "holds 4 digits, the item has 5"},
        Row{"DecimalPlaces", edited("picture='ZZ9.99' digits='5' alignment='2' length='6'"), "java",
            "int", "holds no decimal places, the item has 2"},
        Row{"ASign", edited("picture='Z(3)9-' digits='4' length='5'"), "ws", "unsignedInt",
            "holds no negative numbers, the item does"},
        Row{"ASignWhereTheDecimalPointIsAComma",
            edited("picture='Z.ZZZ.ZZ9-' digits='7' length='10'"), "ws", "unsignedInt",
            "holds no negative numbers, the item does"},
        Row{"NoSign", edited("picture='Z(3)9' digits='4' length='4'"), "ws", "unsignedInt", ""},
        Row{"NoSignInAnUnreadablePicture", edited("picture='?-' digits='4' length='4'"), "ws",
            "unsignedInt", ""},
        Row{"Text", edited("picture='Z(4)9' digits='5' length='5'"), "java", "String", ""}),
    test::labelOf<Row>);

INSTANTIATE_TEST_SUITE_P(
    Others, CapacityRow,
    testing::Values(
        Row{"AnAddressAsANumberThatFits", "<pointer name='I' linkage='true' length='4'/>", "ws",
            "unsignedInt", ""},
        Row{"AnAddressAsANumber", "<pointer name='I' linkage='true' length='8'/>", "ws",
            "unsignedInt", "is too small for an item of 64 bits"},
        Row{"AnIndexAsANumber", "<index name='I' linkage='true' length='4'/>", "java", "short",
            "is too small for an item of 32 bits"},
        Row{"AnAddressAsText", "<pointer name='I' linkage='true' length='4'/>", "java", "String",
            "is text, the item is pointer"},
        Row{"AnObjectAsText", "<cobolObject name='I' linkage='true' length='4'/>", "java", "String",
            "is a value, the item is an object reference"},
        Row{"TextAsAGroup", "<alphanumeric name='I' linkage='true' length='4'/>", "ws", "Array",
            "is for groups, the item is alphanumeric"},
        Row{"AnObjectAsAGroup", "<cobolObject name='I' linkage='true' length='4'/>", "ws", "Array",
            "is a value, the item is an object reference"},
        Row{"AnythingAsXml", "<cobolObject name='I' linkage='true' length='4'/>", "ws", "XML", ""},
        Row{"TextAsBytes", "<alphanumeric name='I' linkage='true' length='4'/>", "java",
            "byteArray", ""},
        Row{"AnAddressOfNoLength", "<pointer name='I' linkage='true'/>", "java", "byte", ""},
        Row{"TextAsANumber", "<alphanumeric name='I' linkage='true' length='4'/>", "java", "int",
            "is a number, the item is alphanumeric"},
        Row{"NationalTextAsANumber", "<national name='I' linkage='true' length='4'/>", "java",
            "int", "is a number, the item is national"}),
    test::labelOf<Row>);

}  // namespace
