// Tests of what is told of items that came, went, moved and changed, in small programs: one pair of
// data divisions a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/Diffs.h"

namespace {

namespace toolkit = as::toolkit;
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

INSTANTIATE_TEST_SUITE_P(Pairs, DiffItems, testing::ValuesIn(rows));

}  // namespace
