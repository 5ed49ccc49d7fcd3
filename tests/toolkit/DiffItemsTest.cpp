// Tests of what is told of items that came, went, moved and changed, in small programs: one pair of
// data divisions a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/Diffs.h"
#include "support/Documents.h"

namespace {

namespace toolkit = as::toolkit;
using test::DiffTest;
using test::summaryOf;

struct Row {
  const char* before;
  const char* after;
  const char* expected;  // As summaryOf() has it.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.before << " => " << row.after; }

class DiffItems : public test::DiffTest, public testing::WithParamInterface<Row> {};

TEST_P(DiffItems, AreToldWithWhatFollows) {
  EXPECT_EQ(summaryOf(diffOf(GetParam().before, GetParam().after)), GetParam().expected);
}

const Row rows[] = {
    // A group around items that were there; what is new in it goes without saying.
    {"01 R. 05 A PIC X. 05 B PIC X(2).", "01 R. 05 G. 10 A PIC X. 10 N PIC X. 10 B PIC X(2).",
     "item-regrouped R.A -> R.G.A: R.A -> R.G.A !\n"
     "item-regrouped R.B -> R.G.B: R.B -> R.G.B +2 !\n"
     "item-added  -> R.G:  -> group of 4 bytes\n"},
    {"01 R. 05 A PIC X. 05 B PIC X(2).", "01 R. 05 G. 10 H. 15 A PIC X. 10 B PIC X(2).",
     "item-regrouped R.A -> R.G.H.A: R.A -> R.G.H.A !\n"
     "item-regrouped R.B -> R.G.B: R.B -> R.G.B !\n"
     "item-added  -> R.G:  -> group of 3 bytes\n"},
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(2). 05 C PIC X.",
     "01 R. 05 A PIC X. 05 B PIC X(2). 05 C PIC X.",
     "item-removed R.G -> : group of 3 bytes ->  !\n"
     "item-regrouped R.G.A -> R.A: R.G.A -> R.A !\n"
     "item-regrouped R.G.B -> R.B: R.G.B -> R.B !\n"},
    // Groups with what they hold, whose names are not the only ones of their kind.
    {"01 R. 05 A. 10 C PIC X. 10 O PIC X(3). 05 B. 10 C PIC X(2). 10 D PIC 9.",
     "01 R. 05 W. 10 A. 15 C PIC X. 15 N PIC X(3). 10 B. 15 C PIC 99. 15 D PIC 9.",
     "item-regrouped R.A -> R.W.A: R.A -> R.W.A !\n"
     "item-regrouped R.B -> R.W.B: R.B -> R.W.B !\n"
     "item-added  -> R.W:  -> group of 7 bytes\n"
     "item-renamed R.A.O -> R.W.A.N: O -> N !\n"
     "category-changed R.B.C -> R.W.B.C: alphanumeric X(2) -> numeric 99 !\n"},
    {"01 R. 05 A. 10 B. 15 O PIC X(3). 10 C. 15 D PIC X. 10 E PIC X.",
     "01 R. 05 W. 10 A. 15 B. 20 N PIC X(3). 15 E PIC X.",
     "item-regrouped R.A -> R.W.A: R.A -> R.W.A !\n"
     "item-added  -> R.W:  -> group of 4 bytes\n"
     "item-renamed R.A.B.O -> R.W.A.B.N: O -> N !\n"
     "item-removed R.A.C -> : group of 1 byte ->  +3 !\n"},
    {"01 R. 05 A. 10 B. 15 O PIC X(3). 10 C. 15 D PIC X. 10 E PIC X.",
     "01 R. 05 W. 10 A. 15 B. 20 N PIC X(3). 15 E PIC X. 10 X PIC X. 10 Y PIC X. 10 Z PIC X.",
     "item-regrouped R.A -> R.W.A: R.A -> R.W.A !\n"
     "item-added  -> R.W:  -> group of 7 bytes\n"
     "item-renamed R.A.B.O -> R.W.A.B.N: O -> N !\n"
     "item-removed R.A.C -> : group of 1 byte ->  +3 !\n"},
    // Between groups.
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(2). 05 H. 10 C PIC X.",
     "01 R. 05 G. 10 B PIC X(2). 05 H. 10 A PIC X. 10 C PIC X.",
     "item-regrouped R.G.A -> R.H.A: R.G.A -> R.H.A +5 !\n"},
    // One that is in two groups is not known by its name.
    {"01 R. 05 G. 10 A PIC X. 10 Z PIC 9. 05 H. 10 A PIC X. 05 K. 10 C PIC X.",
     "01 R. 05 G. 10 Z PIC 9. 05 H. 10 Y PIC X(3). 05 K. 10 C PIC X. 10 A PIC X.",
     "item-removed R.G.A -> : alphanumeric X ->  +3 !\n"
     "item-removed R.H.A -> : alphanumeric X ->  !\n"
     "item-added  -> R.H.Y:  -> alphanumeric X(3) +3 !\n"
     "item-added  -> R.K.A:  -> alphanumeric X +2 !\n"},
    {"01 R. 05 G. 10 A PIC X. 10 Z PIC 9. 05 K. 10 C PIC X.",
     "01 R. 05 G. 10 Z PIC 9. 05 K. 10 C PIC X. 10 A. 15 B PIC X.",
     "item-removed R.G.A -> : alphanumeric X ->  +4 !\n"
     "item-added  -> R.K.A:  -> group of 1 byte +1 !\n"},
    // What stands over an item moves with it.
    {"01 R. 05 N PIC X. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4). 05 C PIC X.",
     "01 R. 05 N PIC X(2). 05 A PIC X(4). 05 B REDEFINES A PIC 9(4). 05 C PIC X.",
     "picture-widened R.N: X -> X(2) +5 !\n"},
    {"01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4). 05 C PIC X(4).",
     "01 R. 05 A PIC X(4). 05 C PIC X(4). 05 B REDEFINES C PIC 9(4).",
     "item-reordered R.B: 0 -> 4 +1 !\n"
     "redefinition-changed R.B: A -> C !\n"},
    {"01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4).",
     "01 R. 05 Z PIC X(4). 05 B REDEFINES Z PIC 9(4).", "item-renamed R.A -> R.Z: A -> Z !\n"},
    {"01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4).", "01 R. 05 A PIC X(4).",
     "item-removed R.B -> : numeric 9(4) ->  !\n"},
    {"01 R. 05 A PIC X(4).", "01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4).",
     "item-added  -> R.B:  -> numeric 9(4)\n"},
    {"01 R. 05 A PIC X(4). 05 B PIC 9(4).", "01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4).",
     "redefinition-changed R.B: none -> A +2 !\n"},
    {"01 R. 05 A PIC X(4). 05 Z PIC X(4). 05 B REDEFINES Z PIC 9(4).",
     "01 R. 05 A PIC X(4). 05 B REDEFINES A PIC 9(4).",
     "item-removed R.Z -> : alphanumeric X(4) ->  +2 !\n"},
    {"01 R. 05 A PIC X(4). 05 Z PIC X(3). 05 B REDEFINES Z PIC 9(3).",
     "01 R. 05 A PIC X(4). 05 Y PIC 9(7) COMP-3. 05 B REDEFINES Y PIC 9(3).",
     "item-removed R.Z -> : alphanumeric X(3) ->  !\n"
     "item-added  -> R.Y:  -> numeric 9(7) comp-3 +1 !\n"},
    // A record is another one within a group.
    {"01 R PIC X. 01 A PIC X(7).", "01 R PIC X. 01 G. 05 A PIC X(7).",
     "item-removed A -> : alphanumeric X(7) ->  !\n"
     "item-added  -> G:  -> group of 7 bytes\n"},
    // What renamed others is an item of its own.
    {"01 R. 05 A PIC X. 66 V RENAMES A. 66 W RENAMES A.", "01 R. 05 A PIC X. 05 V PIC X.",
     "renames-changed R.V: yes -> no +2 !\n"
     "item-removed R.W -> : alphanumeric X ->  !\n"},
    // Tables.
    {"01 R. 05 N PIC 9. 05 M PIC 9. 05 T PIC X OCCURS 1 TO 3 DEPENDING ON N.",
     "01 R. 05 N PIC 9. 05 M PIC 9. 05 T PIC X OCCURS 1 TO 5 DEPENDING ON M.",
     "table-longer R.T: 3 -> 5 +1 !\n"
     "table-depending-changed R.T: R.N -> R.M !\n"},
    {"01 R. 05 T OCCURS 3. 10 A PIC X. 10 B PIC X. 05 C PIC X.",
     "01 R. 05 T OCCURS 3. 10 A PIC X(3). 10 B PIC X. 05 C PIC X.",
     "picture-widened R.T.A: X -> X(3) +5 !\n"},
    // Renamed or another one: what has to be the same.
    {"01 R. 05 A PIC X(4). 05 K PIC X.", "01 R. 05 B PIC 9(4). 05 K PIC X.",
     "item-removed R.A -> : alphanumeric X(4) ->  !\n"
     "item-added  -> R.B:  -> numeric 9(4)\n"},
    {"01 R. 05 A PIC X(4). 05 K PIC X.", "01 R. 05 B PIC X(5). 05 K PIC X.",
     "item-removed R.A -> : alphanumeric X(4) ->  !\n"
     "item-added  -> R.B:  -> alphanumeric X(5) +2 !\n"},
    {"01 R. 05 A PIC X(4). 05 K PIC X.", "01 R. 05 B PIC X(4) OCCURS 2. 05 K PIC X.",
     "item-removed R.A -> : alphanumeric X(4) ->  !\n"
     "item-added  -> R.B:  -> alphanumeric X(4) +2 !\n"},
    {"01 R. 05 A PIC 9(4). 05 K PIC X.", "01 R. 05 B PIC 9(8) COMP. 05 K PIC X.",
     "item-removed R.A -> : numeric 9(4) ->  !\n"
     "item-added  -> R.B:  -> numeric 9(8) comp\n"},
    {"01 R. 05 A PIC 9(4). 05 K PIC X.", "01 R. 05 B PIC 99V99. 05 K PIC X.",
     "item-removed R.A -> : numeric 9(4) ->  !\n"
     "item-added  -> R.B:  -> numeric 99V99\n"},
    {"01 R. 05 A PIC 9(4). 05 K PIC X.", "01 R. 05 B PIC S9(4). 05 K PIC X.",
     "item-removed R.A -> : numeric 9(4) ->  !\n"
     "item-added  -> R.B:  -> numeric S9(4)\n"},
    {"01 R. 05 K PIC X(4). 05 A PIC X(4).", "01 R. 05 K PIC X(4). 05 B REDEFINES K PIC X(4).",
     "item-removed R.A -> : alphanumeric X(4) ->  +1 !\n"
     "item-added  -> R.B:  -> alphanumeric X(4)\n"},
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(2). 10 C PIC 9. 05 K PIC X.",
     "01 R. 05 H. 10 A PIC X. 10 Y PIC X(2). 10 Z PIC X. 05 K PIC X.",
     "item-renamed R.G -> R.H: G -> H !\n"
     "item-renamed R.G.B -> R.H.Y: B -> Y !\n"
     "item-removed R.G.C -> : numeric 9 ->  !\n"
     "item-added  -> R.H.Z:  -> alphanumeric X\n"},
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(3). 05 K PIC X.",
     "01 R. 05 H. 10 Y PIC X(3). 10 Z PIC X. 05 K PIC X.",
     "item-removed R.G -> : group of 4 bytes ->  !\n"
     "item-added  -> R.H:  -> group of 4 bytes\n"},
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(3). 05 K PIC X.",
     "01 R. 05 H. 10 B PIC X(3). 10 Z PIC X. 05 K PIC X.",
     "item-renamed R.G -> R.H: G -> H !\n"
     "item-removed R.G.A -> : alphanumeric X ->  +1 !\n"
     "item-added  -> R.H.Z:  -> alphanumeric X\n"},
    {"01 R. 05 G. 10 A PIC X. 10 B PIC X(3). 05 K PIC X.", "01 R. 05 H. 10 Z PIC X(4). 05 K PIC X.",
     "item-removed R.G -> : group of 4 bytes ->  !\n"
     "item-added  -> R.H:  -> group of 4 bytes\n"},
    // Unnamed ones.
    {"01 R. 05 FILLER PIC X. 05 FILLER PIC X(2). 05 A PIC X.",
     "01 R. 05 FILLER PIC X(2). 05 A PIC X.",
     "item-removed R.FILLER -> : alphanumeric X ->  +3 !\n"},
    {"01 R. 05 FILLER PIC X. 05 FILLER PIC X(2). 05 A PIC X.",
     "01 R. 05 FILLER PIC X(2). 05 FILLER PIC X(5). 05 A PIC X.",
     "item-removed R.FILLER -> : alphanumeric X ->  +1\n"
     "item-added  -> R.FILLER:  -> alphanumeric X(5) +2 !\n"},
    {"01 R. 05 FILLER PIC X(3). 05 A PIC X.", "01 R. 05 FILLER. 10 B PIC X(3). 05 A PIC X.",
     "item-removed R.FILLER -> : alphanumeric X(3) -> \n"
     "item-added  -> R.FILLER:  -> group of 3 bytes\n"},
    {"01 R. 05 FILLER PIC X(3). 05 FILLER PIC X(4). 05 A PIC X.",
     "01 R. 05 FILLER PIC X(3). 05 FILLER. 10 B PIC X(4). 05 A PIC X.",
     "item-removed R.FILLER -> : alphanumeric X(4) -> \n"
     "item-added  -> R.FILLER:  -> group of 4 bytes\n"},
    {"01 R. 05 FILLER PIC X(3). 05 FILLER PIC X(4). 05 A PIC X.",
     "01 R. 05 FILLER PIC X(4). 05 FILLER. 10 B PIC X(3). 05 A PIC X.",
     "item-removed R.FILLER -> : alphanumeric X(3) ->  +1\n"
     "item-added  -> R.FILLER:  -> group of 3 bytes\n"},
    // Names in them are lost with them.
    {"01 R. 05 FILLER. 10 B PIC X(3). 05 A PIC X.", "01 R. 05 FILLER PIC X(3). 05 A PIC X.",
     "item-removed R.FILLER -> : group of 3 bytes ->  !\n"
     "item-added  -> R.FILLER:  -> alphanumeric X(3)\n"},
    {"01 R. 05 A PIC X(3). 05 FILLER REDEFINES A. 10 FILLER PIC X. 10 FILLER. 15 B PIC X(2).",
     "01 R. 05 A PIC X(3).", "item-removed R.FILLER -> : group of 3 bytes ->  !\n"},
    {"01 R. 05 A PIC X(3). 05 FILLER REDEFINES A. 10 FILLER PIC X. 10 FILLER PIC X(2).",
     "01 R. 05 A PIC X(3).", "item-removed R.FILLER -> : group of 3 bytes -> \n"},
    // What is told of them holds for what has a name in them.
    {"01 R. 05 N PIC 9. 05 M PIC 9. 05 FILLER OCCURS 1 TO 3 DEPENDING ON N. 10 B PIC X.",
     "01 R. 05 N PIC 9. 05 M PIC 9. 05 FILLER OCCURS 1 TO 3 DEPENDING ON M. 10 B PIC X.",
     "table-depending-changed R.FILLER: R.N -> R.M !\n"},
    {"01 R. 05 N PIC 9. 05 M PIC 9. 05 FILLER OCCURS 1 TO 3 DEPENDING ON N. 10 FILLER PIC X.",
     "01 R. 05 N PIC 9. 05 M PIC 9. 05 FILLER OCCURS 1 TO 3 DEPENDING ON M. 10 FILLER PIC X.",
     "table-depending-changed R.FILLER: R.N -> R.M\n"},
    {"01 R. 05 FILLER. 10 B PIC X(3).", "01 R. 05 FILLER OCCURS 1. 10 B PIC X(3).",
     "table-made R.FILLER: 0 -> 1 !\n"},
    {"01 R. 05 A PIC X(3). 05 K PIC X(3). 05 FILLER REDEFINES K. 10 B PIC X(3).",
     "01 R. 05 K PIC X(3). 05 A PIC X(3). 05 FILLER REDEFINES A. 10 B PIC X(3).",
     "item-reordered R.A: 0 -> 3 +2 !\n"
     "redefinition-changed R.FILLER: K -> A !\n"},
    // Records are known without names.
    {"01 R PIC X. 01 FILLER PIC X(80).", "01 R PIC X. 01 FILLER PIC X(100).",
     "picture-widened FILLER: X(80) -> X(100) +1 !\n"},
    {"01 R PIC X. 01 FILLER PIC X(80).", "01 R PIC X.",
     "item-removed FILLER -> : alphanumeric X(80) ->  !\n"},
    // What an entry point hands over from elsewhere callers see.
    {"01 S PIC X. WORKING-STORAGE SECTION. 01 R. 05 A PIC X(5). 01 W PIC X(5).",
     "01 S PIC X. WORKING-STORAGE SECTION. 01 R. 05 A PIC X(9). 01 W PIC X(9).",
     "picture-widened R.A: X(5) -> X(9) +2 !\n"
     "picture-widened W: X(5) -> X(9) +1\n"},
    // Records.
    {"01 R PIC X. WORKING-STORAGE SECTION. 01 A PIC X(4). 01 B PIC 9.",
     "01 R PIC X. 01 A PIC X(4).",
     "record-moved A: working storage -> linkage section !\n"
     "item-removed B -> : numeric 9 -> \n"},
    {"01 R. 05 A PIC X. 66 V RENAMES A.", "01 R. 05 A PIC X.",
     "item-removed R.V -> : alphanumeric X ->  !\n"},
    {"01 R. 05 A PIC X. 05 B PIC X. 66 V RENAMES A.",
     "01 R. 05 A PIC X. 05 B PIC X. 66 V RENAMES B.", "item-moved R.V: 0 -> 1 !\n"},
    // Numbers without a PICTURE.
    {"01 R. 05 A COMP-1. 05 B PIC X.", "01 R. 05 A COMP-2. 05 B PIC X.",
     "usage-changed R.A: comp-1 -> comp-2 +3 !\n"},
    {"01 R. 05 A COMP-1. 05 B PIC X.", "01 R. 05 A PIC 9(4). 05 B PIC X.",
     "picture-changed R.A: numeric comp-1 of 4 bytes -> 9(4) !\n"
     "usage-changed R.A: comp-1 -> display !\n"
     "sign-changed R.A: signed -> none !\n"},
    {"01 R. 05 B PIC X.", "01 R. 05 A POINTER. 05 B PIC X.",
     "item-added  -> R.A:  -> pointer of 4 bytes +2 !\n"},
    {"01 R. 05 A PIC S9(4).", "01 R. 05 A PIC 9(5).",
     "picture-widened R.A: S9(4) -> 9(5) +2 !\n"
     "sign-changed R.A: signed -> none !\n"},
    {"01 R. 05 A PIC S9(4) SIGN TRAILING SEPARATE. 05 B PIC X.", "01 R. 05 A PIC 9(4). 05 B PIC X.",
     "sign-changed R.A: trailing separate -> none +3 !\n"},
    // On boundaries.
    {"01 R. 05 A PIC X. 05 B PIC S9(9) COMP SYNC. 05 C PIC X.",
     "01 R. 05 A PIC X(2). 05 B PIC S9(9) COMP SYNC. 05 C PIC X.",
     "picture-widened R.A: X -> X(2) +1 !\n"},
    {"01 R. 05 A PIC X. 05 B PIC S9(9) COMP. 05 C PIC X.",
     "01 R. 05 A PIC X. 05 B PIC S9(9) COMP SYNC. 05 C PIC X.",
     "sync-changed R.B: no -> yes +3 !\n"},
};

// How many digits there are, a document may leave out.
TEST_F(DiffTest, DigitsThatAreNotToldAreNoOthers) {
  const auto documentOf = [](const std::string& digits) {
    return test::dictionary("<dataItems><numeric name='N' length='4' picture='9(4)' " + digits +
                            " linkage='true'/></dataItems>");
  };
  const auto summary = [&](const std::string& before, const std::string& after) {
    write("old.xml", documentOf(before));
    write("new.xml", documentOf(after));
    return summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml"));
  };
  EXPECT_EQ(summary("", "digits='4'"), "");
  EXPECT_EQ(summary("digits='4'", ""), "");
  EXPECT_EQ(summary("digits='4'", "digits='5'"), "picture-widened N: 9(4) -> 9(4) !\n");
}

TEST_F(DiffTest, AParameterWithoutItsRecordIsKnownByItsName) {
  const auto documentOf = [](const std::string& items) {
    return test::dictionary("<dataItems>" + items +
                            "</dataItems><entryPoints><entryPoint name='E'><parameter "
                            "dataItem='B'/><parameter dataItem='A'/></entryPoint></entryPoints>");
  };
  write("all.xml", documentOf("<index name='A'/><pointer name='B'/>"));
  write("less.xml", documentOf("<pointer name='B'/>"));
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), "all.xml", "less.xml")),
            "item-removed A -> : index ->  !\n");
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), "less.xml", "all.xml")),
            "item-added  -> A:  -> index\n");
}

TEST_F(DiffTest, LongNamesOfEntryPointsAreShortened) {
  const std::string name(3000, 'E');
  const std::string item(3000, 'R');
  const auto documentOf = [&](const std::string& parameters) {
    return test::dictionary("<dataItems/><entryPoints><entryPoint name='" + name + "'>" +
                            parameters + "</entryPoint></entryPoints>");
  };
  write("old.xml", documentOf(""));
  write("new.xml", documentOf("<parameter dataItem='" + item + "'/>"));
  const toolkit::Diff diff = toolkit::diffFiles(reader(), "old.xml", "new.xml");
  ASSERT_EQ(diff.changes.size(), 1U);
  EXPECT_EQ(diff.changes[0].newPlace.size(), 4003U);
}

// What came in front of an item that has another name.
TEST_F(DiffTest, RenamedItemsAreLookedForNearBy) {
  const auto isFound = [&](int inFront) {
    std::string after = "01 R.";
    for (int i = 0; i < inFront; ++i) after += " 05 N" + std::to_string(i) + " PIC 9.";
    after += " 05 B PIC X(7).";
    return summaryOf(diffOf("01 R. 05 A PIC X(7).", after)).find("item-renamed") !=
           std::string::npos;
  };
  EXPECT_TRUE(isFound(63));
  EXPECT_FALSE(isFound(64));
}

INSTANTIATE_TEST_SUITE_P(Pairs, DiffItems, testing::ValuesIn(rows));

// What dictionaries hold beside items.
class DiffDictionaries : public test::DiffTest, public testing::WithParamInterface<Row> {};

TEST_P(DiffDictionaries, TellWhatElseChanged) {
  const auto documentOf = [](const char* content) {
    return test::dictionary(std::string(content) +
                            "<dataItems><alphanumeric name='A' length='1' linkage='true'/>"
                            "<alphanumeric name='B' length='2' linkage='true'/></dataItems>");
  };
  std::string before = documentOf(GetParam().before);
  std::string after = documentOf(GetParam().after);
  // Entry points stand behind the items.
  for (std::string* const text : {&before, &after}) {
    const std::string mark = "<entryPoints>";
    const std::string end = "</entryPoints>";
    const std::size_t at = text->find(mark);
    if (at == std::string::npos) continue;
    const std::string part = text->substr(at, text->find(end) + end.size() - at);
    text->erase(at, part.size());
    text->insert(text->find("</program>"), part);
  }
  write("old.xml", before);
  write("new.xml", after);
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml")), GetParam().expected);
}

#define PROPERTY(name, value) "<property name='" name "' value='" value "'/>"
#define PROPERTIES(content) "<properties>" content "</properties>"
#define ENTRY(name, content) "<entryPoint name='" name "'>" content "</entryPoint>"
#define ENTRIES(content) "<entryPoints>" content "</entryPoints>"
#define TAKES(item) "<parameter dataItem='" item "' byType='reference'/>"
#define GIVEN(item) "<parameter dataItem='" item "' byType='value'/>"

const Row others[] = {
    // Of two of a name the first counts.
    {PROPERTIES(PROPERTY("p", "1") PROPERTY("p", "2")), PROPERTIES(PROPERTY("p", "1")), ""},
    {PROPERTIES(PROPERTY("p", "1") PROPERTY("q", "2")), PROPERTIES(PROPERTY("p", "3")),
     "property-changed property p: 1 -> 3\nproperty-removed property q -> : 2 -> \n"},
    {ENTRIES(ENTRY("E", TAKES("A")) ENTRY("E", TAKES("B"))), ENTRIES(ENTRY("E", TAKES("A"))), ""},
    // New names, each for the first that is called so.
    {ENTRIES(ENTRY("E", TAKES("A")) ENTRY("F", TAKES("A"))),
     ENTRIES(ENTRY("G", TAKES("A")) ENTRY("H", TAKES("A"))),
     "entry-point-renamed entry point E -> entry point G: E -> G !\n"
     "entry-point-renamed entry point F -> entry point H: F -> H !\n"},
    {ENTRIES(ENTRY("E", TAKES("A")) ENTRY("F", TAKES("B"))),
     ENTRIES(ENTRY("G", TAKES("B")) ENTRY("H", TAKES("A"))),
     "entry-point-renamed entry point E -> entry point H: E -> H !\n"
     "entry-point-renamed entry point F -> entry point G: F -> G !\n"},
    {ENTRIES(ENTRY("E", TAKES("A"))), ENTRIES(ENTRY("F", GIVEN("A"))),
     "entry-point-removed entry point E ->  !\nentry-point-added  -> entry point F\n"},
    // What is no record of the dictionary is known by its name.
    {ENTRIES(ENTRY("E", TAKES("LOST"))), ENTRIES(ENTRY("E", TAKES("LOST"))), ""},
    {ENTRIES(ENTRY("E", TAKES("LOST"))), ENTRIES(ENTRY("E", TAKES("A"))),
     "entry-parameter-removed entry point E LOST -> : reference ->  !\n"
     "entry-parameter-added  -> entry point E A:  -> reference !\n"},
    {ENTRIES(ENTRY("E", TAKES("A"))), ENTRIES(ENTRY("E", TAKES("LOST"))),
     "entry-parameter-removed entry point E A -> : reference ->  !\n"
     "entry-parameter-added  -> entry point E LOST:  -> reference !\n"},
    // The same record twice is two parameters.
    {ENTRIES(ENTRY("E", TAKES("A") TAKES("A"))), ENTRIES(ENTRY("E", TAKES("A") TAKES("A"))), ""},
    {ENTRIES(ENTRY("E", TAKES("A") TAKES("B"))),
     ENTRIES(ENTRY("E", TAKES("B") TAKES("A") TAKES("A"))),
     "entry-parameter-added  -> entry point E A:  -> reference !\n"
     "entry-parameters-reordered entry point E: A, B -> B, A, A !\n"},
    // Each of many is looked for among those that are left.
    {ENTRIES(ENTRY("E", TAKES("A") TAKES("LOST") TAKES("B") TAKES("A") TAKES("LOST"))),
     ENTRIES(ENTRY("E", TAKES("LOST") TAKES("A") TAKES("GONE") TAKES("A") TAKES("B"))),
     "entry-parameter-removed entry point E LOST -> : reference ->  !\n"
     "entry-parameter-added  -> entry point E GONE:  -> reference !\n"
     "entry-parameters-reordered entry point E: A, LOST, B, A, LOST -> LOST, A, GONE, A, B !\n"},
    {ENTRIES(ENTRY("E", TAKES("A") GIVEN("A"))), ENTRIES(ENTRY("E", GIVEN("A") TAKES("A"))),
     "entry-parameter-passing-changed entry point E A: reference -> value !\n"
     "entry-parameter-passing-changed entry point E A: value -> reference !\n"},
    // What COBOL takes the absence of the clauses for.
    {"<fileSection><fd name='F'/></fileSection>",
     "<fileSection><fd name='F' organization='sequential' accessMode='sequential'/></fileSection>",
     ""},
    // Files that are called in another way, and hold nothing that tells them.
    {"<fileSection><fd name='F'/><fd name='G' organization='indexed'/></fileSection>",
     "<fileSection><fd name='G'/></fileSection>",
     "file-organization-changed fd G: indexed -> sequential !\nfile-removed fd F ->  !\n"},
};

INSTANTIATE_TEST_SUITE_P(Documents, DiffDictionaries, testing::ValuesIn(others));

// Many values are told by the first of them.
TEST_F(DiffDictionaries, LongListsOfValuesAreCut) {
  const auto entriesOf = [](int number) {
    std::string values;
    for (int i = 100; i < 100 + number; ++i) values += " " + std::to_string(i);
    return "01 R PIC 9(3). 88 C VALUES" + values + ".";
  };
  const toolkit::Diff diff = diffOf(entriesOf(60), entriesOf(61));
  ASSERT_EQ(diff.changes.size(), 1U);
  EXPECT_EQ(diff.changes[0].oldValue.size(), diff.changes[0].newValue.size());
  EXPECT_EQ(diff.changes[0].newValue.substr(0, 8), "100, 101");
  EXPECT_EQ(diff.changes[0].newValue.substr(diff.changes[0].newValue.size() - 5), ", ...");
  EXPECT_LT(diff.changes[0].newValue.size(), 220U);
}

}  // namespace
