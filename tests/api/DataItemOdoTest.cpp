// Tests of the object of OCCURS DEPENDING ON: the data item that holds how many times a table
// occurs.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::labelOf;
using test::parse;
using test::topItem;

// OCCURS DEPENDING ON. The item that is found is told by its line.

struct Odo {
  const char* label;
  const char* odo;
  const char* items;
  int line;  // Of the item found; 0 when none is.
};

void PrintTo(const Odo& odo, std::ostream* out) { *out << odo.odo; }

class DataItemOdo : public testing::TestWithParam<Odo> {};

TEST_P(DataItemOdo, FindsItsObject) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><numeric name='IN-FILE'/>"
                       "</dataItems></fd></fileSection><dataItems><group name=\'ITEM\' odo=\'" +
                       std::string(GetParam().odo) + "'/>" + GetParam().items + "</dataItems>"));
  auto* const table = topItem<as::IDataItem>(*program);
  as::IDataItem* const object = table->getODO();
  EXPECT_EQ(object == nullptr ? 0 : object->getLine(), GetParam().line);
  EXPECT_EQ(table->hasODO(), *GetParam().odo != '\0');
}

constexpr char levels[] =
    "<group name='A' line='1'><numeric name='B' line='2'/>"
    "<group name='C' line='3'><numeric name='D' line='4'/><numeric name='B' line='5'/></group>"
    "</group><numeric name='E' line='6'/>";
constexpr char namesakes[] =
    "<numeric name='X' line='1'/>"
    "<group name='X' line='2'><numeric name='Y' line='3'/></group>"
    "<group name='X' line='4'><numeric name='Y' line='5'/><numeric name='Z' line='6'/></group>";
constexpr char innerNamesakes[] =
    "<group name='A' line='1'><numeric name='B' line='2'/><group name='B' line='3'>"
    "<numeric name='C' line='4'/></group><group name='B' line='5'><numeric name='C' line='6'/>"
    "<numeric name='D' line='7'/></group></group>";

INSTANTIATE_TEST_SUITE_P(
    All, DataItemOdo,
    testing::Values(
        Odo{"Empty", "", levels, 0}, Odo{"TopLevelItem", "E", levels, 6},
        Odo{"TopLevelGroup", "A", levels, 1}, Odo{"ItemOfAGroup", "A.B", levels, 2},
        Odo{"GroupOfAGroup", "A.C", levels, 3}, Odo{"TwoLevelsDown", "A.C.D", levels, 4},
        Odo{"NamesakeOnAnotherLevel", "A.C.B", levels, 5},
        Odo{"ItemOfAGroupWithoutItsPath", "B", levels, 0},
        Odo{"PathFromTheMiddle", "C.D", levels, 0}, Odo{"PathWithAGap", "A.D", levels, 0},
        Odo{"UnknownItem", "UNKNOWN", levels, 0}, Odo{"UnknownInAGroup", "A.UNKNOWN", levels, 0},
        Odo{"UnknownGroup", "UNKNOWN.B", levels, 0}, Odo{"BelowAnElementaryItem", "E.B", levels, 0},
        Odo{"OtherCase", "a.b", levels, 0}, Odo{"BlanksAround", " E ", levels, 0},
        Odo{"ItemOfAFile", "IN-FILE", levels, 0}, Odo{"NoNames", ".", levels, 0},
        Odo{"DotInFront", ".E", levels, 0}, Odo{"TwoDots", "A..B", levels, 0},
        Odo{"DotBehind", "A.B.", levels, 2}, Odo{"Subscripts", "A.B(1)", levels, 2},
        Odo{"SubscriptsWithin", "A(1).B", levels, 1}, Odo{"OnlySubscripts", "(1)", levels, 0},
        Odo{"ItemItself", "ITEM", levels, 0}, Odo{"FirstOfItemAndGroups", "X", namesakes, 1},
        Odo{"GroupBehindAnElementaryNamesake", "X.Y", namesakes, 3},
        Odo{"LaterGroupWhenTheFirstLacksIt", "X.Z", namesakes, 6},
        Odo{"FirstInnerItem", "A.B", innerNamesakes, 2},
        Odo{"InnerGroupBehindAnElementaryNamesake", "A.B.C", innerNamesakes, 4},
        Odo{"LaterInnerGroupWhenTheFirstLacksIt", "A.B.D", innerNamesakes, 7},
        Odo{"NothingInAnyOfThem", "A.B.E", innerNamesakes, 0}),
    labelOf<Odo>);

TEST(DataItemOdo, MayBeTheItemItself) {
  const auto program = parse(dictionaryOf("<numeric name='ITEM' odo='ITEM'/>"));
  EXPECT_EQ(topItem<as::IDataItem>(*program)->getODO(), topItem<as::IDataItem>(*program));
}

TEST(DataItemOdo, MayNameATableItself) {
  const auto program = parse(dictionaryOf(
      "<group name='REC'><numeric name='COUNT'/><group name='TAB' odo='REC.COUNT'/></group>"));
  as::IList* const children = topItem<as::IGroup>(*program)->getChildren();
  EXPECT_EQ(itemOf<as::IDataItem>(children, 1)->getODO(), itemOf<as::IDataItem>(children, 0));
}

TEST(DataItemOdo, OfAFileItemIsFoundAmongTheProgramsItems) {
  const auto program =
      parse(dictionary("<fileSection><fd name='F'><dataItems><group name='R' odo='COUNT'/><numeric "
                       "name='COUNT' line='1'/></dataItems></fd></fileSection>"
                       "<dataItems><numeric name='COUNT' line='2'/></dataItems>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  as::IDataItem* const object = itemOf<as::IDataItem>(records, 0)->getODO();
  EXPECT_EQ(object, topItem<as::IDataItem>(*program));
}

TEST(DataItemOdo, OfAFileItemIsNullInAProgramWithoutDataItems) {
  const auto program = parse(
      dictionary("<fileSection><fd name='F'><dataItems><group name='R' odo='R'/></dataItems></fd>"
                 "</fileSection>"));
  as::IList* const records = itemOf<as::IFD>(program->getFileSection(), 0)->getDataItems();
  EXPECT_TRUE(itemOf<as::IDataItem>(records, 0)->hasODO());
  EXPECT_EQ(itemOf<as::IDataItem>(records, 0)->getODO(), nullptr);
}

TEST(DataItemOdo, MayBeNamedInAnyScript) {
  const auto program =
      parse(dictionaryOf("<group name='S\xC3\xA4tze'><numeric name='\xF0\x9D\x84\x9E'/></group>"
                         "<group name='T' odo='S\xC3\xA4tze.\xF0\x9D\x84\x9E'/>"));
  as::IDataItem* const object = topItem<as::IDataItem>(*program, 1)->getODO();
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(object->getName(), "\xF0\x9D\x84\x9E");
}

}  // namespace
