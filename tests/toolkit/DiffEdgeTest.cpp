// Tests of the comparison of documents at its edges: dictionaries that no import makes, what is
// still renamed and what no longer, and where moves come from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;

struct Row {
  const char* label;
  std::string before;
  std::string after;
  // "KIND OLD PLACE -> NEW PLACE: OLD VALUE -> NEW VALUE", a line each, those that follow from
  // another one indented.
  const char* expected;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

std::string toldOf(const toolkit::Diff& diff) {
  std::string text;
  for (const toolkit::Change& change : diff.changes) {
    if (change.cause) text += " " + diff.changes[*change.cause].kind + " > ";
    text += change.kind + " " + change.oldPlace;
    if (change.newPlace != change.oldPlace) text += " -> " + change.newPlace;
    if (!change.oldValue.empty() || !change.newValue.empty()) {
      text += ": " + change.oldValue + " -> " + change.newValue;
    }
    text += "\n";
  }
  return text;
}

class DiffEdge : public test::ToolkitTest, public testing::WithParamInterface<Row> {
 protected:
  std::string told(const std::string& before, const std::string& after) const {
    write("old.xml", before);
    write("new.xml", after);
    return toldOf(toolkit::diffFiles(reader(), "old.xml", "new.xml"));
  }
};

// Items of a record that is handed over.
class DiffedItems : public DiffEdge {};

std::string recordOf(const std::string& items) {
  return test::dictionary("<dataItems><group name='R' offset='0' length='20' linkage='true'>" +
                          items + "</group></dataItems>");
}

TEST_P(DiffedItems, AreTold) {
  EXPECT_EQ(told(recordOf(GetParam().before), recordOf(GetParam().after)), GetParam().expected);
}

std::string number(const std::string& attributes) {
  return "<numeric name='N' offset='0' length='3' " + attributes + "/>";
}

const std::string three = number("picture='999' digits='3'");

std::string text(const std::string& name, int offset, int length, const std::string& more = "") {
  return "<alphanumeric name='" + name + "' offset='" + std::to_string(offset) + "' length='" +
         std::to_string(length) + "' picture='X(" + std::to_string(length) + ")' " + more + "/>";
}

std::string group(const std::string& name, int offset, int length, const std::string& items) {
  return "<group name='" + name + "' offset='" + std::to_string(offset) + "' length='" +
         std::to_string(length) + "'>" + items + "</group>";
}

// Over what stands in front of it.
std::string over(const std::string& name, int offset, int length, const std::string& more = "") {
  return text(name, offset, length, "redefines='true' " + more);
}

// Of a name and another one: one that has kept all of this, and one that has not.
TEST_F(DiffedItems, AreRenamedWhereNothingElseChanged) {
  const auto item = [](const std::string& name, const std::string& attributes) {
    return "<numeric name='" + name + "' offset='0' picture='999' " + attributes + "/>";
  };
  const std::string all = "length='4' usage='comp' digits='3' alignment='1' sign='true'";
  const std::string kept = told(recordOf(item("A", all)), recordOf(item("B", all)));
  EXPECT_EQ(kept, "item-renamed R.A -> R.B: A -> B\n");
  for (const char* const other :
       {"length='2' usage='comp' digits='3' alignment='1' sign='true'",
        "length='4' usage='comp-5' digits='3' alignment='1' sign='true'",
        "length='4' usage='comp' digits='3' alignment='2' sign='true'",
        "length='4' usage='comp' digits='3' alignment='1' sign='false'",
        "length='4' usage='comp' digits='3' alignment='1' sign='true' minOccurs='2' "
        "maxOccurs='2'"}) {
    EXPECT_THAT(told(recordOf(item("A", all)), recordOf(item("B", other))),
                testing::StartsWith("item-removed R.A -> : "))
        << other;
  }
  // Another category, and what lies over others or is another view of them.
  const std::string before = text("X", 0, 4);
  for (const std::string& other :
       {std::string("<national name='B' offset='0' length='4' picture='N(2)'/>"),
        over("B", 0, 4)}) {
    EXPECT_THAT(told(recordOf(before + text("A", 0, 4)), recordOf(before + other)),
                testing::HasSubstr("item-removed R.A -> : "))
        << other;
  }
}

INSTANTIATE_TEST_SUITE_P(
    OfDictionaries, DiffedItems,
    testing::Values(
        Row{"AnotherPictureOfAsManyDigits", three, number("picture='99Z' digits='3'"),
            "picture-changed R.N: 999 -> 99Z\n"},
        // As no import makes it: the sign is in the picture alone.
        Row{"AnotherPictureOfTheSameSign", number("picture='S999' digits='3'"), three,
            "picture-changed R.N: S999 -> 999\n"},
        Row{"ASignThatComesWithThePicture", number("picture='S999' digits='3' sign='true'"), three,
            "sign-changed R.N: signed -> none\n"},
        Row{"ASignThatComesWithAnotherPicture", number("picture='S999' digits='3' sign='true'"),
            number("picture='99Z' digits='3'"),
            "picture-changed R.N: S999 -> 99Z\nsign-changed R.N: signed -> none\n"},
        Row{"DigitsWithoutAPicture", number("digits='3'"), number("digits='4'"),
            "picture-widened R.N: numeric of 3 bytes -> numeric of 3 bytes\n"},
        Row{"FewerDigitsWithoutAPicture", number("digits='4'"), number("digits='3'"),
            "picture-narrowed R.N: numeric of 3 bytes -> numeric of 3 bytes\n"},
        Row{"AGroupThatBecomesAText", group("G", 0, 1, text("A", 0, 1)), text("G", 0, 1),
            "category-changed R.G: group of 1 byte -> alphanumeric X(1)\n"
            "item-removed R.G.A -> : alphanumeric X(1) -> \n"},
        Row{"AGroupThatIsGone", group("G", 0, 2, text("A", 0, 2)), "",
            "item-removed R.G -> : group of 2 bytes -> \n"},
        Row{"APointerOfNoLength", "<pointer name='P'/>", "", "item-removed R.P -> : pointer -> \n"},
        // What is moved by as much as one in front of it grew moved for that, whatever else it did.
        Row{"AMoveOfWhatChangedItself", text("A", 0, 2) + text("B", 2, 3),
            text("A", 0, 4) + text("B", 4, 3, "justified='right'"),
            "picture-widened R.A: X(2) -> X(4)\n"
            " picture-widened > size-changed R.A: 2 -> 4\n"
            "justification-changed R.B: left -> right\n"
            " picture-widened > item-moved R.B: 2 -> 4\n"},
        Row{"AMoveByMoreThanWhatGrew", text("A", 0, 2) + text("B", 2, 3),
            text("A", 0, 4) + text("B", 5, 3, "justified='right'"),
            "picture-widened R.A: X(2) -> X(4)\n"
            " picture-widened > size-changed R.A: 2 -> 4\n"
            "justification-changed R.B: left -> right\n"
            " justification-changed > item-moved R.B: 2 -> 5\n"},
        Row{"AMoveByATable", text("A", 0, 1) + text("B", 1, 1) + text("C", 2, 1),
            text("Z", 0, 1) + text("B", 1, 1, "minOccurs='2' maxOccurs='2'") + text("C", 3, 1),
            "item-renamed R.A -> R.Z: A -> Z\n"
            "table-made R.B: 0 -> 2\n"
            " table-made > item-moved R.C: 2 -> 3\n"},
        // What lies over others moved with them, whatever it did itself.
        Row{"AMoveOfARedefinition", text("A", 0, 2) + text("B", 2, 3) + over("C", 2, 3),
            text("A", 0, 4) + text("B", 4, 4) + over("C", 4, 3, "justified='right'"),
            "picture-widened R.A: X(2) -> X(4)\n"
            " picture-widened > size-changed R.A: 2 -> 4\n"
            "picture-widened R.B: X(3) -> X(4)\n"
            " picture-widened > item-moved R.B: 2 -> 4\n"
            " picture-widened > size-changed R.B: 3 -> 4\n"
            "justification-changed R.C: left -> right\n"
            " picture-widened > item-moved R.C: 2 -> 4\n"},
        // Half of its members.
        Row{"AGroupOfHalfItsMembers", group("G", 0, 4, text("A", 0, 1) + text("B", 1, 3)),
            group("H", 0, 4, text("C", 0, 2) + text("A", 2, 2)),
            "item-renamed R.G -> R.H: G -> H\n"
            "item-added  -> R.H.C:  -> alphanumeric X(2)\n"
            "picture-widened R.G.A -> R.H.A: X(1) -> X(2)\n"
            " item-added > item-moved R.G.A -> R.H.A: 0 -> 2\n"
            " picture-widened > size-changed R.G.A -> R.H.A: 1 -> 2\n"
            "item-removed R.G.B -> : alphanumeric X(3) -> \n"},
        Row{"AGroupOfLessThanHalfItsMembers",
            group("G", 0, 6, text("A", 0, 1) + text("B", 1, 2) + text("C", 3, 3)),
            group("H", 0, 6, text("D", 0, 3) + text("A", 3, 1) + text("E", 4, 2)),
            "item-removed R.G -> : group of 6 bytes -> \n"
            "item-added  -> R.H:  -> group of 6 bytes\n"
            "item-regrouped R.G.A -> R.H.A: R.G.A -> R.H.A\n"
            " item-regrouped > item-moved R.G.A -> R.H.A: 0 -> 3\n"}),
    test::labelOf<Row>);

// Types of a service.
class DiffTypes : public DiffEdge {
 protected:
  std::string toldOfFields(const std::string& before, const std::string& after) const {
    const auto service = [](const std::string& fields) {
      return test::javaService("name='S' implementation='java' programName='P'",
                               "<parameterTypeDefs><parameter name='T'><mappings/>" + fields +
                                   "</parameter></parameterTypeDefs><operations/>");
    };
    return told(service(before), service(after));
  }
};

TEST_P(DiffTypes, AreTold) {
  EXPECT_EQ(toldOfFields(GetParam().before, GetParam().after), GetParam().expected);
}

std::string field(const std::string& attributes, const std::string& item = "R.A") {
  return "<field " + attributes + "><mappings><mapping item='" + item + "'/></mappings></field>";
}

std::string fieldOf(const std::string& name, const std::string& member) {
  return "<field name='" + name + "'>" + field("name='" + member + "' dataType='int'") + "</field>";
}

// Only what has kept all else is renamed.
INSTANTIATE_TEST_SUITE_P(
    OfServices, DiffTypes,
    testing::Values(
        Row{"AnotherName", field("name='a' dataType='int'"), field("name='b' dataType='int'"),
            "field-renamed type T.a -> type T.b: a -> b\n"},
        Row{"AnotherNameAndType", field("name='a' dataType='int'"),
            field("name='b' dataType='long'"),
            "field-removed type T.a -> : int -> \nfield-added  -> type T.b:  -> long\n"},
        Row{"AnotherNameAndNumber", field("name='a' dataType='int' occurs='2'"),
            field("name='b' dataType='int' occurs='3'"),
            "field-removed type T.a -> : int -> \nfield-added  -> type T.b:  -> int\n"},
        Row{"AnotherNameAndItem", field("name='a' dataType='int'"),
            field("name='b' dataType='int'", "R.B"),
            "field-removed type T.a -> : int -> \nfield-added  -> type T.b:  -> int\n"},
        Row{"AnotherNameAndReference", "<field name='a' ref='T'/>", "<field name='b' ref='U'/>",
            "field-removed type T.a -> : like T -> \nfield-added  -> type T.b:  -> like U\n"},
        Row{"AnotherNameOfAStructure", fieldOf("a", "m"), fieldOf("b", "m"),
            "field-renamed type T.a -> type T.b: a -> b\n"},
        Row{"AnotherNameAndMember", fieldOf("a", "m"), fieldOf("b", "n"),
            "field-removed type T.a -> \nfield-added  -> type T.b\n"}),
    test::labelOf<Row>);

}  // namespace
