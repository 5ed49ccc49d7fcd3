// Tests of what is told of services: fields and operations that were renamed or are others, headers
// and faults, and what a changed program does to mappings and operations.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "support/Diffs.h"
#include "support/Documents.h"

namespace {

namespace toolkit = as::toolkit;
using test::DiffTest;
using test::summaryOf;

struct Row {
  const char* before;  // Within an operation or beside it; see the tests.
  const char* after;
  const char* expected;  // As summaryOf() has it.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.before << " => " << row.after; }

class DiffServices : public test::DiffTest, public testing::WithParamInterface<Row> {
 protected:
  std::string summary(std::string (*documentOf)(const std::string&)) const {
    write("old.xml", documentOf(GetParam().before));
    write("new.xml", documentOf(GetParam().after));
    return summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml"));
  }
};

// A name is all that may differ where a field is to be the same.
class DiffFields : public DiffServices {};

TEST_P(DiffFields, AreToldAsRenamedOrAsOthers) {
  EXPECT_EQ(summary([](const std::string& parameters) {
              return test::parameterDocument(as::namespaces::java.uri, parameters);
            }),
            GetParam().expected);
}

#define A "<parameter name='a' byType='in' dataType='int'"
#define B "<parameter name='b' byType='in' dataType='int'"
#define MAPPED(item) "><mappings><mapping item='" item "'/></mappings></parameter>"

const Row fields[] = {
    {A "/>", B "/>", "parameter-renamed op.a -> op.b: a -> b !\n"},
    {A "/>", "<parameter name='b' byType='in' dataType='long'/>",
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> in long !\n"},
    {A "/>", B " occurs='2'/>",
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> in int !\n"},
    {A "/>", "<parameter name='b' byType='out' dataType='int'/>",
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> out int !\n"},
    {A MAPPED("R.X"), B MAPPED("R.Y"),
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> in int !\n"},
    {A MAPPED("R.X"), B MAPPED("R.X"), "parameter-renamed op.a -> op.b: a -> b !\n"},
    {A " ref='T'/>", B " ref='U'/>",
     "parameter-removed op.a -> : in like T ->  !\n"
     "parameter-added  -> op.b:  -> in like U !\n"},
    {A "><field name='f'/></parameter>", B "><field name='f'/></parameter>",
     "parameter-renamed op.a -> op.b: a -> b !\n"},
    {A "><field name='f'/></parameter>", B "><field name='g'/></parameter>",
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> in int !\n"},
    {A "><field name='f'/></parameter>", B "><field name='f'/><field name='g'/></parameter>",
     "parameter-removed op.a -> : in int ->  !\nparameter-added  -> op.b:  -> in int !\n"},
    {A "/>" B "/>", B "/>" A "/>", "parameter-reordered op.a: 1 -> 2 !\n"},
    {A MAPPED("R.X"),
     A "><mappings><mapping item='R.X'/><mapping item='R.Y'/></mappings></parameter>",
     "mapping-added op.a:  -> R.Y\n"},
};
#undef A
#undef B
#undef MAPPED

// What an absent direction reads as; attributes of XML have no order.
const Row alike[] = {
    {"<parameter name='a' dataType='int'/>", "<parameter name='a' byType='io' dataType='int'/>",
     ""},
    {"<parameter name='a' dataType='int'/>", "<parameter name='a' byType='in' dataType='int'/>",
     "direction-changed op.a: io -> in !\n"},
};

INSTANTIATE_TEST_SUITE_P(Alike, DiffFields, testing::ValuesIn(alike));

TEST_F(DiffTest, FieldAttributesHaveNoOrder) {
  const auto written = [this](const char* file, const std::string& attributes) {
    write(file,
          test::parameterDocument(as::namespaces::ws.uri, "<parameter name='p' dataType='string'>" +
                                                              attributes + "</parameter>"));
  };
  const std::string x = "<fieldAttribute name='x' dataType='string'/>";
  const std::string y = "<fieldAttribute name='y' dataType='string'/>";
  written("old.xml", x + y);
  written("new.xml", y + x);
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml")), "");
  written("new.xml", y);
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml")),
            "field-removed op.p.@x -> : string ->  !\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, DiffFields, testing::ValuesIn(fields));

class DiffOperations : public DiffServices {};

TEST_P(DiffOperations, AreToldAsRenamedOrAsOthers) {
  EXPECT_EQ(summary([](const std::string& operations) {
              return test::javaService("name='s' implementation='java'",
                                       "<operations>" + operations + "</operations>");
            }),
            GetParam().expected);
}

#define OPERATION(name, entry, inside) \
  "<operation name='" name "' entryPoint='" entry "'>" inside "</operation>"
#define PARAMETERS(inside) "<parameters>" inside "</parameters>"
#define HIDDEN(value) \
  "<hiddenParameters><hiddenParameter item='R.X' value='" value "'/></hiddenParameters>"

const Row operations[] = {
    {OPERATION("o", "E", ""), OPERATION("p", "E", ""), "operation-renamed o -> p: o -> p !\n"},
    {OPERATION("o", "E", ""), OPERATION("p", "F", ""),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", HIDDEN("1")), OPERATION("p", "E", HIDDEN("2")),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", PARAMETERS("<parameter name='a' dataType='int'/>")),
     OPERATION("p", "E", PARAMETERS("<parameter name='b' dataType='int'/>")),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", PARAMETERS("<parameter name='a' dataType='int'/>")),
     OPERATION("p", "E", PARAMETERS("<parameter name='a' dataType='long'/>")),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", PARAMETERS("<parameter name='a' byType='in'/>")),
     OPERATION("p", "E", PARAMETERS("<parameter name='a' byType='out'/>")),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", PARAMETERS("<parameter name='a' dataType='int'/>")),
     OPERATION(
         "p", "E",
         PARAMETERS("<parameter name='a' dataType='int'/><parameter name='b' dataType='int'/>")),
     "operation-removed o ->  !\noperation-added  -> p\n"},
    {OPERATION("o", "E", HIDDEN("1")), OPERATION("o", "", HIDDEN("2")),
     "operation-rebound o: E -> none\nhidden-value-changed o (hidden) R.X: 1 -> 2\n"},
    {OPERATION("o", "E", ""), OPERATION("o", "E", HIDDEN("2")),
     "hidden-parameter-added  -> o (hidden) R.X:  -> 2\n"},
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffOperations, testing::ValuesIn(operations));

// Messages have no names: they are known by their first parameter, and then by their order.
class DiffMessages : public DiffServices {};

TEST_P(DiffMessages, AreKnownByWhatTheyHold) {
  EXPECT_EQ(summary([](const std::string& messages) {
              return test::webService(
                  "name='s' implementation='ws'",
                  "<operations><operation name='o'>" + messages + "</operation></operations>");
            }),
            GetParam().expected);
}

#define MESSAGE(kind, name)                      \
  "<" kind "><parameters><parameter name='" name \
  "' byType='in' dataType='int'/></parameters></" kind ">"

const Row messages[] = {
    {MESSAGE("header", "a") MESSAGE("header", "b"), MESSAGE("header", "b") MESSAGE("header", "a"),
     ""},
    {MESSAGE("header", "a"), MESSAGE("header", "b"),
     "parameter-renamed o header.a -> o header.b: a -> b !\n"},
    {MESSAGE("header", "a"), MESSAGE("fault", "a"),
     "header-removed o header of a ->  !\nfault-added  -> o fault of a !\n"},
    {MESSAGE("fault", "a"), MESSAGE("fault", "a") MESSAGE("fault", "b"),
     "fault-added  -> o fault of b !\n"},
    {"<header/>", "<header/><fault/>", "fault-added  -> o fault !\n"},
    {"<header/>" MESSAGE("header", "a"), MESSAGE("header", "a"), "header-removed o header ->  !\n"},
    {"<header use='literal'/>", "<header use='encoded' byType='out'/>",
     "direction-changed o header byType: io -> out !\nuse-changed o header use: literal -> encoded "
     "!\n"},
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffMessages, testing::ValuesIn(messages));

// What a service learns of two programs: what it maps to, and how it calls them.
struct ImpactRow {
  const char* before;
  const char* after;
  const char* item;      // That a parameter is mapped to.
  const char* expected;  // The lines that are about the service.
};

void PrintTo(const ImpactRow& row, std::ostream* out) { *out << row.before << " => " << row.after; }

class DiffImpact : public test::DiffTest, public testing::WithParamInterface<ImpactRow> {};

TEST_P(DiffImpact, IsToldOfTheService) {
  dictionary("old.xml", GetParam().before);
  dictionary("new.xml", GetParam().after);
  write("s.xml",
        test::javaService("name='s' implementation='java'",
                          std::string("<operations><operation name='o' entryPoint='T'><parameters>"
                                      "<parameter name='p'><mappings><mapping item='") +
                              GetParam().item +
                              "'/></mappings></parameter></parameters></operation></operations>"));
  std::string told;
  for (const toolkit::Change& change :
       toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"}).changes) {
    if (!change.service.empty()) told += test::lineOf(change) + (change.breaks ? " !\n" : "\n");
  }
  EXPECT_EQ(told, GetParam().expected);
}

const ImpactRow impacts[] = {
    {"01 R. 05 A PIC X.", "01 R. 05 A PIC X. 05 B PIC X.", "R.A", ""},
    {"01 R. 05 A PIC X.", "01 R. 05 A PIC X(2).", "R.A",
     "mapping-changed o.p: R.A: PICTURE widened from X -> X(2) !\n"},
    // What it is told of a group is that it grew.
    {"01 R. 05 G. 10 A PIC X.", "01 R. 05 G. 10 A PIC X(2).", "R.G",
     "mapping-changed o.p: R.G: size changed from 1 -> 2 !\n"},
    // A table around it counts, other things around it do not.
    {"01 R. 05 G OCCURS 2. 10 A PIC X.", "01 R. 05 G OCCURS 3. 10 A PIC X.", "R.G.A(1)",
     "mapping-changed o.p: R.G: table longer from 2 -> 3 !\n"},
    {"01 R. 05 K PIC X(4). 05 G REDEFINES K. 10 A PIC X(4).",
     "01 R. 05 K PIC X(4). 05 G. 10 A PIC X(4).", "R.G.A", "mapping-moved o.p: 0 -> 4\n"},
    // One more value breaks nobody.
    {"01 R. 05 A PIC X. 88 C VALUE 'A'.", "01 R. 05 A PIC X. 88 C VALUE 'A'. 88 D VALUE 'B'.",
     "R.A", ""},
    {"01 R. 05 A PIC X.", "01 R. 05 B PIC X.", "R.A", "mapping-renamed o.p: R.A -> R.B !\n"},
    {"01 R. 05 A PIC X. 05 K PIC X.", "01 R. 05 K PIC X.", "R.A", "mapping-lost o.p: R.A ->  !\n"},
    {"01 R. 05 A PIC X.", "01 R. 05 A PIC X(2).", "R.NONE", ""},
    {"01 R. 05 FILLER. 10 A PIC X. 05 FILLER. 10 B PIC X.",
     "01 R. 05 FILLER. 10 A PIC X. 05 FILLER. 10 B PIC X(2).", "R.FILLER.B",
     "mapping-changed o.p: R.FILLER.B: PICTURE widened from X -> X(2) !\n"},
    {"01 R. 05 A PIC X.", "01 R. 05 A PIC X(2).", "R.A.",
     "mapping-changed o.p: R.A: PICTURE widened from X -> X(2) !\n"},
    {"01 R. 05 A PIC X.", "01 R. 05 A PIC X(2).", "$stdin", ""},
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffImpact, testing::ValuesIn(impacts));

// As many as a mapping has subscripts.
TEST_F(DiffImpact, OfTablesAroundAnItemIsThatOfSixteen) {
  const auto recordOf = [](int tables, const std::string& times) {
    std::string record = "01 R.";
    for (int i = 0; i < tables; ++i) {
      const std::string number = std::to_string(i + 10);
      record += " " + number + " G" + number + " OCCURS " + times + ".";
    }
    return record + " 49 A PIC X.";
  };
  const auto toldWith = [&](int tables) {
    dictionary("old.xml", recordOf(tables, "2"));
    dictionary("new.xml", recordOf(tables, "3"));
    std::string path = "R";
    for (int i = 0; i < tables; ++i) path += ".G" + std::to_string(i + 10);
    write("s.xml", test::javaService("",
                                     "<operations><operation name='o' entryPoint='T'><parameters>"
                                     "<parameter name='p'><mappings><mapping item='" +
                                         path +
                                         ".A'/></mappings></parameter></parameters></operation>"
                                         "</operations>"));
    const toolkit::Diff diff = toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"});
    return std::count_if(diff.changes.begin(), diff.changes.end(),
                         [](const auto& change) { return change.kind == "mapping-changed"; });
  };
  EXPECT_EQ(toldWith(16), 16);
  EXPECT_EQ(toldWith(17), 16);
}

TEST_F(DiffImpact, EntryPointsMayBeGoneOrCalledInAnotherWay) {
  const auto dictionaryOf = [](const std::string& entryPoints) {
    return test::dictionary(
        "<dataItems><alphanumeric name='A' offset='0' length='1' linkage='true'/></dataItems>"
        "<entryPoints>" +
        entryPoints + "</entryPoints>");
  };
  const std::string taken = "<parameter dataItem='A' byType='reference'/></entryPoint>";
  write("s.xml",
        test::javaService("name='s' implementation='java'",
                          "<operations><operation name='o' entryPoint='E'/></operations>"));
  write("old.xml", dictionaryOf("<entryPoint name='E'>" + taken));
  const auto told = [&](const std::string& entryPoints) {
    write("new.xml", dictionaryOf(entryPoints));
    std::string text;
    for (const toolkit::Change& change :
         toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"}).changes) {
      if (!change.service.empty()) text += test::lineOf(change);
    }
    return text;
  };
  EXPECT_EQ(told("<entryPoint name='E'>" + taken), "");
  EXPECT_EQ(told(""), "entry-point-lost o: E -> ");
  EXPECT_EQ(told("<entryPoint name='F'>" + taken), "entry-point-lost o: E -> F");
  EXPECT_EQ(told("<entryPoint name='F' callConvention='3'>" + taken), "entry-point-lost o: E -> ");
  EXPECT_EQ(told("<entryPoint name='F'/>"), "entry-point-lost o: E -> ");
  EXPECT_EQ(told("<entryPoint name='E' callConvention='3'>" + taken),
            "entry-point-changed o: E -> E");
  EXPECT_EQ(told("<entryPoint name='E'><parameter dataItem='A' byType='value'/></entryPoint>"),
            "entry-point-changed o: E -> E");
}

// Field attributes are mapped as fields are; what stands in a definition is told there alone.
TEST_F(DiffImpact, FieldAttributesAreLookedAtWhereverTheyStand) {
  dictionary("old.xml", "01 R. 05 A PIC X.");
  dictionary("new.xml", "01 R. 05 A PIC X(2).");
  const std::string attribute =
      "<fieldAttribute name='a'><mappings><mapping item='R.A'/></mappings></fieldAttribute>";
  write("s.xml",
        test::webService(
            "name='s' implementation='ws'",
            "<parameterTypeDefs><parameter name='T'>" + attribute + "<field name='f'>" + attribute +
                "</field></parameter><parameter name='U' ref='T'/></parameterTypeDefs>"
                "<operations><operation name='o'><parameters><parameter name='p'>" +
                attribute + "<field name='g'>" + attribute +
                "</field></parameter><parameter name='q' ref='T'/></parameters><header>"
                "<parameters><parameter name='h'>" +
                attribute + "</parameter></parameters></header></operation></operations>"));
  std::vector<std::string> places;
  for (const toolkit::Change& change :
       toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"}).changes) {
    if (!change.service.empty()) places.push_back(change.oldPlace);
  }
  EXPECT_THAT(places, testing::ElementsAre("type T.@a", "type T.f.@a", "o.p.@a", "o.p.g.@a",
                                           "o header.h.@a"));
}

// However long names are, and however deep what they stand in: each of many is told its place.
TEST_F(DiffImpact, PlacesAreNoLongerThanTheyAreRead) {
  dictionary("old.xml", "01 R. 05 A PIC X.");
  dictionary("new.xml", "01 R. 05 A PIC X(2).");
  const auto documentOf = [](const std::string& occurs) {
    return test::javaService("name='s' implementation='java'",
                             "<operations><operation name='" + std::string(5000, 'o') +
                                 "'><parameters><parameter name='" + std::string(5000, 'p') +
                                 "'><field name='f' occurs='" + occurs +
                                 "'><mappings><mapping item='R.A'/></mappings></field></parameter>"
                                 "</parameters></operation></operations>");
  };
  write("s.xml", documentOf("1"));
  write("t.xml", documentOf("2"));
  const std::vector<toolkit::Change> impact =
      toolkit::diffFiles(reader(), "old.xml", "new.xml", {"s.xml"}).changes;
  EXPECT_THAT(impact.back().oldPlace,
              testing::AllOf(testing::StartsWith("ooo"), testing::EndsWith("p.f")));
  EXPECT_EQ(impact.back().oldPlace.size(), 4003U);
  const std::vector<toolkit::Change> changes =
      toolkit::diffFiles(reader(), "s.xml", "t.xml").changes;
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_THAT(changes[0].oldPlace,
              testing::AllOf(testing::StartsWith("ooo"), testing::EndsWith("p.f")));
  EXPECT_LE(changes[0].oldPlace.size(), 4003U);
}

// A place with more behind it.
TEST_F(DiffImpact, HiddenParametersAreAllowedWithTheirOperation) {
  const auto documentOf = [](const char* value) {
    return test::javaService(
        "name='s' implementation='java'",
        std::string("<operations><operation name='o'><hiddenParameters><hiddenParameter item='R' "
                    "value='") +
            value + "'/></hiddenParameters></operation></operations>");
  };
  write("old.xml", documentOf("1"));
  write("new.xml", documentOf("2"));
  toolkit::Diff diff = toolkit::diffFiles(reader(), "old.xml", "new.xml");
  EXPECT_TRUE(toolkit::allow(diff, "hidden-value-changed:o"));
  ASSERT_EQ(diff.changes.size(), 1U);
  EXPECT_TRUE(diff.changes[0].isAllowed);
}

}  // namespace
