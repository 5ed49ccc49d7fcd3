// Tests of how changes read: by themselves, and summed up with what follows from them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/Diffs.h"
#include "support/Documents.h"

namespace {

namespace toolkit = as::toolkit;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Kind, places and values.
struct ChangeRow {
  const char* kind;
  const char* oldPlace;
  const char* newPlace;
  const char* oldValue;
  const char* newValue;
  const char* text;
};

void PrintTo(const ChangeRow& row, std::ostream* out) { *out << row.text; }

class DiffChangeText : public testing::TestWithParam<ChangeRow> {};

TEST_P(DiffChangeText, TellsPlaceAndValues) {
  const ChangeRow& row = GetParam();
  toolkit::Change change;
  change.kind = row.kind;
  change.oldPlace = row.oldPlace;
  change.newPlace = row.newPlace;
  change.oldValue = row.oldValue;
  change.newValue = row.newValue;
  EXPECT_EQ(textOf(change), row.text);
}

const ChangeRow changes[] = {
    {"picture-widened", "R.A", "R.A", "9", "99", "R.A: PICTURE widened from 9 to 99"},
    {"item-added", "", "R.A", "", "numeric 9", "R.A: item added, numeric 9"},
    {"item-added", "", "R.A", "", "", "R.A: item added"},
    {"item-removed", "R.A", "", "numeric 9", "", "R.A: item removed, numeric 9"},
    {"item-removed", "R.A", "", "", "numeric 9", "R.A: item removed"},
    {"mapping-removed", "op.a", "op.a", "R.A", "", "op.a: mapping removed, R.A"},
    {"mapping-added", "op.a", "op.a", "", "R.A", "op.a: mapping added, R.A"},
    {"item-moved", "R.A", "R.A", "1", "2", "R.A: item moved from offset 1 to 2"},
    {"item-reordered", "R.A", "R.A", "1", "2",
     "R.A: item put elsewhere among its siblings from offset 1 to 2"},
    {"mapping-changed", "op.a", "op.a", "R.A: PICTURE widened from 9", "99",
     "op.a: mapped item R.A: PICTURE widened from 9 to 99"},
    {"of-tomorrow", "R.A", "R.A", "1", "2", "R.A: changed from 1 to 2"},
    {"of-tomorrow", "", "", "1", "2", "changed, 2"},
    {"of-tomorrow", "", "", "", "", "changed"},
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffChangeText, testing::ValuesIn(changes));

struct SummaryRow {
  const char* before;
  const char* after;
  const char* summary;  // Of what follows.
};

void PrintTo(const SummaryRow& row, std::ostream* out) { *out << row.summary; }

class DiffSummary : public test::DiffTest, public testing::WithParamInterface<SummaryRow> {};

TEST_P(DiffSummary, TellsHowFarAndHowMuch) {
  EXPECT_THAT(textOf(diffOf(GetParam().before, GetParam().after)),
              HasSubstr(std::string("]\n            ") + GetParam().summary + "\n"));
}

const SummaryRow summaries[] = {
    {"01 R. 05 A PIC X. 05 B PIC X.", "01 R. 05 A PIC X(3). 05 B PIC X.",
     "1 item behind it moves by 2 bytes; 2 items become 2 bytes longer"},
    {"01 R. 05 A PIC X(3). 05 B PIC X.", "01 R. 05 A PIC X. 05 B PIC X.",
     "1 item behind it moves by 2 bytes to the front; 2 items become 2 bytes shorter"},
    // What repeats grows more than once.
    {"01 R. 05 T OCCURS 3. 10 A PIC X. 10 B PIC X. 05 C PIC X.",
     "01 R. 05 T OCCURS 3. 10 A PIC X(2). 10 B PIC X. 05 C PIC X.",
     "2 items behind it move by 1 to 3 bytes; 3 items become 1 to 3 bytes longer"},
    {"01 R. 05 T OCCURS 3. 10 A PIC X(2). 10 B PIC X. 05 C PIC X.",
     "01 R. 05 T OCCURS 3. 10 A PIC X. 10 B PIC X. 05 C PIC X.",
     "2 items behind it move by 1 to 3 bytes to the front; 3 items become 1 to 3 bytes shorter"},
    // One group loses what another gains.
    {"01 R. 05 G. 10 A PIC X(2). 10 B PIC X. 05 H. 10 C PIC X.",
     "01 R. 05 G. 10 B PIC X. 05 H. 10 A PIC X(2). 10 C PIC X.",
     "3 items behind it move by 1 to 2 bytes; 2 items become 2 bytes longer or "
     "shorter"},
    {"01 R. 05 A PIC X. 05 B PIC X(2).", "01 R. 05 B PIC X(2). 05 A PIC X.",
     "2 items behind it move by 1 to 2 bytes"},
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffSummary, testing::ValuesIn(summaries));

class DiffText : public test::DiffTest {};

TEST_F(DiffText, MappingsThatFindTheirItemsAreCountedOnly) {
  dictionary("old.xml", "01 R. 05 A PIC X. 05 B PIC X. 05 C PIC X.");
  dictionary("new.xml", "01 R. 05 A PIC X(2). 05 B PIC X. 05 C PIC X.");
  const auto mapped = [](const std::string& item) {
    return "<parameter name='" + item + "'><mappings><mapping item='R." + item +
           "'/></mappings></parameter>";
  };
  const auto serviceOf = [](const std::string& parameters) {
    return test::javaService("name='s' implementation='java'",
                             "<operations><operation name='o' entryPoint='T'><parameters>" +
                                 parameters + "</parameters></operation></operations>");
  };
  write("many.xml", serviceOf(mapped("A") + mapped("B") + mapped("C")));
  write("one.xml", serviceOf(mapped("B")));
  const std::string text =
      textOf(toolkit::diffFiles(reader(), "old.xml", "new.xml", {"many.xml", "one.xml"}));
  EXPECT_THAT(text, HasSubstr("\nmany.xml\n          2 mapped items moved; they are found by their "
                              "names  [mapping-moved]\nBREAKS    o.A: mapped item R.A: PICTURE "
                              "widened from X to X(2)  [mapping-changed]\n"));
  EXPECT_THAT(text, HasSubstr("\none.xml\n          1 mapped item moved; "));
  EXPECT_THAT(text, HasSubstr("\n2 changes, 2 of them breaking callers; 7 others follow\n"));
}

TEST_F(DiffText, DocumentsWithoutChangesAreCountedOnly) {
  std::ostringstream out;
  toolkit::renderText(out, std::vector<toolkit::DocumentDiff>{{"a.xml", {}}, {"b.xml", {}}});
  EXPECT_EQ(out.str(), "2 documents, 0 of them changed, 0 breaking callers\n");
}

TEST_F(DiffText, JsonTellsKindsOfTomorrow) {
  toolkit::Diff diff;
  diff.changes.resize(1);
  diff.changes[0].kind = "of-tomorrow";
  diff.changes[0].service = "s.xml";
  const nlohmann::json change = jsonOfDiff(diff)["changes"][0];
  EXPECT_EQ(change["text"], "changed");
  EXPECT_EQ(change["why"], "");
  EXPECT_EQ(change["service"], "s.xml");
}

TEST_F(DiffText, AllowedChangesAreCounted) {
  toolkit::Diff diff =
      diffOf("01 R. 05 A PIC 9(4). 05 B PIC 9(4).", "01 R. 05 A PIC S9(4). 05 B PIC S9(4).");
  EXPECT_TRUE(toolkit::allow(diff, "sign-changed:R.B"));
  EXPECT_THAT(textOf(diff), HasSubstr("2 changes, 1 of them breaking callers, 1 allowed\n"));
}

// What comes with an item is at its place, and below.
TEST_F(DiffText, WhatIsAllowedIsAllowedBelow) {
  toolkit::Diff diff = diffOf("01 R. 05 G. 10 A PIC 9.", "01 R. 05 G. 10 A PIC 9. 10 B PIC 9.");
  EXPECT_TRUE(toolkit::allow(diff, "item-added:R.G"));
  EXPECT_FALSE(toolkit::breaksCallers(diff));
  toolkit::Diff entry = diffOf("01 R PIC X. 01 S PIC X.", "01 R PIC X.");
  EXPECT_TRUE(toolkit::allow(entry, "*:R"));
  EXPECT_TRUE(toolkit::breaksCallers(entry));
}

TEST_F(DiffText, ServicesHaveNoServices) {
  const std::string service = test::javaService("name='s' implementation='java'", "<operations/>");
  write("s.xml", service);
  EXPECT_EQ(
      test::refusalOf([&] { toolkit::diffFiles(reader(), "s.xml", "s.xml", {"s.xml"}); }).text,
      "is a service");
  dictionary("d.xml", "01 R PIC X.");
  EXPECT_EQ(test::refusalOf([&] { toolkit::diffFiles(reader(), "s.xml", "d.xml"); }).text,
            "is a dictionary, which cannot be compared with a service");
}

TEST_F(DiffText, AFolderThatThereIsNotIsRefused) {
  EXPECT_EQ(test::refusalOf([] { toolkit::pairsIn("none", "."); }).file, "none");
}

// Services come and go as dictionaries do; nothing is mapped to them.
TEST_F(DiffText, ServicesOfFoldersAreComparedToo) {
  for (const char* const folder : {"old", "new"}) {
    std::filesystem::create_directory(folder);
    write(std::string(folder) + "/s.xml",
          test::javaService(std::string("name='") + folder + "' implementation='java'",
                            "<operations/>"));
  }
  const std::vector<toolkit::DocumentPair> pairs = toolkit::pairsIn("old", "new");
  ASSERT_EQ(pairs.size(), 1U);
  const toolkit::Diff diff = toolkit::diffPair(reader(), pairs[0], {{"old/s.xml", ""}});
  EXPECT_TRUE(diff.isOfServices);
  EXPECT_THAT(test::summaryOf(diff), HasSubstr("service-renamed service: old -> new !\n"));
}

// Dictionaries need not tell where items stand and how long they are.
TEST_F(DiffText, UnknownOffsetsAndLengthsAreNoChanges) {
  const auto of = [](const std::string& items) {
    return test::dictionaryOf("<group name='R'>" + items + "</group>");
  };
  const std::string a = "<alphanumeric name='A' picture='X'/>";
  const std::string b = "<alphanumeric name='B' picture='X(2)'/>";
  const std::string placed = "<alphanumeric name='A' picture='X' offset='3' length='1'/>";
  const auto told = [&](const std::string& before, const std::string& after) {
    write("old.xml", of(before));
    write("new.xml", of(after));
    return test::summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml"));
  };
  EXPECT_EQ(told(a + b, b + a), "item-reordered R.A: unknown -> unknown !\n");
  EXPECT_EQ(told(a, placed), "");
  EXPECT_EQ(told(placed, a), "");
  EXPECT_EQ(told(a + b, a), "item-removed R.B -> : alphanumeric X(2) ->  !\n");
}

// A dictionary may tell sizes that its items do not account for.
TEST_F(DiffText, SizesThatNothingAccountsForAreToldByThemselves) {
  const auto of = [](const std::string& length, const std::string& more = "") {
    return test::dictionaryOf("<group name='R' offset='0' length='" + length +
                              "'><alphanumeric name='A' picture='X' offset='0' length='1'/>" +
                              more + "</group>");
  };
  write("old.xml", of("4"));
  write("new.xml", of("8"));
  EXPECT_EQ(test::summaryOf(toolkit::diffFiles(reader(), "old.xml", "new.xml")),
            "size-changed R: 4 -> 8 !\n");
}

}  // namespace
