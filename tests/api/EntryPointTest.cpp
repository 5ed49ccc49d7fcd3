// Tests of the entry points of a program, and of the data items that their parameters stand for.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::element;
using test::entryPointOf;
using test::itemOf;
using test::parse;
using test::topItem;

TEST(EntryPoint, HasAName) {
  const auto program = parse(
      dictionary("<entryPoints><entryPoint name='MAIN'/><entryPoint name='NEXT'/></entryPoints>"));
  ASSERT_NE(entryPointOf(*program), nullptr);
  EXPECT_EQ(entryPointOf(*program, 0)->getName(), "MAIN");
  EXPECT_EQ(entryPointOf(*program, 1)->getName(), "NEXT");
}

TEST(EntryPoint, CallConventionIsTheNumberInTheDocument) {
  const struct {
    const char* attribute;
    int number;
  } rows[] = {
      {"", 0},
      {"callConvention='0'", 0},
      {"callConvention='3'", 3},
      {"callConvention='+66'", 66},
      {"callConvention='0016'", 16},
      {"callConvention=' 8 '", 8},
      {"callConvention='-1'", -1},
      {"callConvention='2147483647'", 2147483647},
      {"callConvention='-2147483648'", -2147483647 - 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute);
    const auto program = parse(dictionary("<entryPoints><entryPoint name='E' " +
                                          std::string(row.attribute) + "/></entryPoints>"));
    EXPECT_EQ(entryPointOf(*program)->getCallConv(), row.number);
  }
}

TEST(EntryPoint, IsTheListOfItsParameters) {
  const auto program = parse(
      dictionary("<entryPoints><entryPoint name='E'><parameter dataItem='A'/><!-- and -->"
                 "<parameter dataItem='B'/></entryPoint><entryPoint name='F'/></entryPoints>"));
  as::IEntryPoint* const first = entryPointOf(*program, 0);
  ASSERT_EQ(first->getLength(), 2);
  EXPECT_EQ(first->getItem(0)->getAttributeValue("dataItem"), "A");
  EXPECT_EQ(first->getItem(1)->getAttributeValue("dataItem"), "B");
  EXPECT_NE(itemOf<as::ILinkageItem>(first, 0), nullptr);
  EXPECT_EQ(as::interface_cast<as::IList>(first)->getLength(), 2);
  EXPECT_EQ(entryPointOf(*program, 1)->getLength(), 0);
}

TEST(EntryPointParameter, ByTypeIsTheCodeOfTheWord) {
  const struct {
    const char* attribute;
    int code;
  } rows[] = {
      {"", 0},
      {"byType='reference'", 0},
      {"byType='value'", 1},
      {"byType='returning'", 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute);
    const auto program =
        parse(dictionary("<entryPoints><entryPoint name='E'><parameter dataItem='A' " +
                         std::string(row.attribute) + "/></entryPoint></entryPoints>"));
    EXPECT_EQ(itemOf<as::ILinkageItem>(entryPointOf(*program), 0)->getByType(), row.code);
  }
}

// A program with an entry point of one parameter that names `dataItem`.
std::string programWithParameter(const std::string& dataItem, const std::string& dataItems) {
  return dictionary(
      "<fileSection><fd name='FILE'><dataItems><group name='RECORD'><numeric name='FIELD'/>"
      "</group></dataItems></fd></fileSection>" +
      dataItems + "<entryPoints><entryPoint name='E'><parameter dataItem='" + dataItem +
      "'/></entryPoint></entryPoints>");
}

as::IDataItem* parameterItem(as::IProgram& program) {
  return itemOf<as::ILinkageItem>(entryPointOf(program), 0)->getDataItem();
}

TEST(EntryPointParameter, DataItemIsTheFirstOfThatNameOnTheTopLevel) {
  // The item found is told by its line.
  const std::string dataItems =
      "<dataItems>"
      "<group name='G' line='1'><numeric name='INNER' line='2'/><numeric name='TWICE' line='3'/>"
      "<group name='G2' line='4'/></group>"
      "<numeric name='TWICE' line='5'/><alphanumeric name='TWICE' line='6'/>"
      "<national name='Stra\xC3\x9F"
      "e' line='7'/><numeric name='lower' line='8'/>"
      "<alphanumeric name='WITH BLANK' line='9'/>"
      "</dataItems>";
  constexpr int none = 0;
  const struct {
    const char* dataItem;
    int line;
  } rows[] = {
      {"G", 1},
      {"TWICE", 5},
      {"Stra\xC3\x9F"
       "e",
       7},
      {"lower", 8},
      {"WITH BLANK", 9},
      {"INNER", none},
      {"G2", none},
      {"G.INNER", none},
      {"G(1)", none},
      {"LOWER", none},
      {"g", none},
      {"G ", none},
      {" G", none},
      {"TWIC", none},
      {"TWICES", none},
      {"RECORD", none},
      {"FIELD", none},
      {"FILE", none},
      {"PAYROLL", none},
      {"UNKNOWN", none},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.dataItem);
    const auto program = parse(programWithParameter(row.dataItem, dataItems));
    as::IDataItem* const item = parameterItem(*program);
    EXPECT_EQ(item == nullptr ? none : item->getLine(), row.line);
  }
}

TEST(EntryPointParameter, DataItemIsTheObjectOfTheProgramsList) {
  const auto program = parse(programWithParameter(
      "B", "<dataItems><numeric name='A'/><group name='B'/><group name='B'/></dataItems>"));
  EXPECT_EQ(parameterItem(*program), topItem<as::IDataItem>(*program, 1));
}

TEST(EntryPointParameter, DataItemMayBeOfAnyKind) {
  for (const char* kind : {"group", "numeric", "alphanumeric", "numericEdited", "national",
                           "pointer", "cobolObject", "index"}) {
    SCOPED_TRACE(kind);
    const auto program = parse(
        programWithParameter("A", element("dataItems", "<" + std::string(kind) + " name='A'/>")));
    ASSERT_NE(parameterItem(*program), nullptr);
    EXPECT_EQ(parameterItem(*program)->getName(), "A");
  }
}

TEST(EntryPointParameter, DataItemIsNullInAProgramWithoutDataItems) {
  const auto program = parse(programWithParameter("A", ""));
  EXPECT_EQ(parameterItem(*program), nullptr);
}

TEST(EntryPointParameter, DataItemIsThatOfItsOwnProgram) {
  const std::string dataItems = "<dataItems><numeric name='A'/></dataItems>";
  const auto program = parse(programWithParameter("A", dataItems));
  const auto other = parse(programWithParameter("A", dataItems));
  EXPECT_EQ(parameterItem(*program), topItem<as::IDataItem>(*program));
  EXPECT_EQ(parameterItem(*other), topItem<as::IDataItem>(*other));
  EXPECT_NE(parameterItem(*program), parameterItem(*other));
}

}  // namespace
