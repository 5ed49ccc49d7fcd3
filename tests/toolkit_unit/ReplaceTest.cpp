// Tests of what COPY REPLACING and REPLACE put in the place of words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using as::toolkit::SourceFormat;
using test::ReadingRow;

// COPY B with the phrase, where B is the text.
ReadingRow copying(const char* name, const std::string& phrase, const std::string& text,
                   const std::string& words, const std::string& findings = "") {
  return {name, {"COPY B REPLACING " + phrase + ". Z", {{"B", text}}}, words + " Z", findings};
}

const ReadingRow copyRows[] = {
    copying("PseudoText", "==A== BY ==C D==", "A B a", "C D B C D"),
    copying("Words", "A BY C D BY E", "A D AD", "C E AD"),
    copying("PartsOfWordsStay", "==A== BY ==C==", "A-A AA A", "A-A AA C"),
    copying("Tags", "==:TAG:== BY ==WS==", "01 :TAG:-REC. 05 X-:TAG:-Y. 05 :tag:.",
            "01 WS-REC . 05 X-WS-Y . 05 WS ."),
    copying("TagsInParentheses", "==(TAG)== BY ==WS==", "01 (TAG)-REC.", "01 WS-REC ."),
    copying("TagsSideBySide", "==:A:== BY ==B== ==:C:== BY ==D==", ":A::C: :A:-:C:", "BD B-D"),
    copying("TagByNothing", "==:TAG:== BY ====", "01 :TAG:REC. 05 A:TAG: B", "01 REC . 05 A B"),
    copying("ByNothing", "==A B== BY ====", "X A B Y", "X Y"),
    copying("Leading", "LEADING ==A-== BY ==C-==", "A-B B-A a-c A-", "C-B B-A C-c C-"),
    copying("LeadingByNothing", "LEADING ==A-== BY ====", "A-B A-", "B"),
    copying("Trailing", "TRAILING ==-A== BY ==-C==", "B-A A-B -A", "B-C A-B - C"),
    copying("TrailingByNothing", "TRAILING ==-A== BY ====", "B-A X", "B X"),
    copying("WhatReplacesIsNoStatement", "==A== BY ==COPY C==", "A B", "COPY C B"),
    copying("LeadingTag", "LEADING ==:T:-== BY ==W-==", ":T:-A", "W-A"),
    copying("Literals", "\"A\" BY \"C\"", "\"A\" 'A' \"a\" A X\"A\"", "\"C\" \"C\" \"a\" A X\"A\""),
    copying("LiteralsAreNotLookedInto", "==A== BY ==C==", "\"A\"", "\"A\""),
    copying("QuotesWithinLiterals", "\"a''b\" BY \"C\"", "'a''b' \"a''b\"", "'a'b' \"C\""),
    copying("PrefixesOfLiterals", "X\"41\" BY \"C\"", "X'41' x\"41\" \"41\" N\"41\"",
            "\"C\" \"C\" \"41\" N\"41\""),
    copying("QualifiedByALiteral", "A OF 'B' BY C", "A", "A", "copy-syntax main:1:23"),
    copying("Numbers", "==1.5== BY ==2.5== 7 BY 8", "1.5 7 77", "#2.5 8 77"),
    copying("NumberInAPicture", "LEN BY 5", "PIC X(LEN).", "PIC <X(5)> ."),
    copying("PartOfAPicture", "==X(1)== BY ==X(2)==", "PIC X(1).", "PIC <X(2)> ."),
    copying("WholeClause", "==PIC X== BY ==PIC 9(3).==", "A PIC\n X.", "A PIC <9(3)> . ."),
    copying("SeparatorsDoNotCount", "==A, B== BY ==C==", "A B A; B A,\n B", "C C C"),
    copying("PeriodsCount", "==A. B== BY ==C==", "A B A. B", "A B C"),
    copying("Identifiers", "A OF B BY C A IN B (1, 2) BY D(I)", "A OF B A IN B(1 2)", "C D ( I )"),
    copying("QualifiedByOther", "A BY C OF D", "A", "C OF D"),
    copying("FirstThatMatches", "==A== BY ==1== ==A B== BY ==2==", "A B A", "1 B 1"),
    copying("LongerOneFirst", "==A B== BY ==2== ==A== BY ==1==", "A B A A B", "2 1 2"),
    copying("NotReplacedAgain", "==A== BY ==B== ==B== BY ==A==", "A B", "B A"),
    copying("NotGrowing", "==A== BY ==A A==", "A A", "A A A A"),
    copying("OverTheEndOfLines", "==A B C== BY ==D==", "A\n\nB *> x\nC", "D"),
    copying("NearlyAMatch", "==A A B== BY ==D==", "A A A B A A", "A D A A"),
    copying("NoBy", "==A== ==B==", "A", "A", "copy-syntax main:1:24"),
    copying("NoText", "BY B", "A", "A", "copy-syntax main:1:21"),
    copying("EmptyText", "==== BY ==B==", "A", "A", "copy-syntax main:1:23"),
    copying("NothingBehindBy", "==A== BY", "A", "A", "copy-syntax main:1:26"),
    copying("WrongSubscripts", "A(1 BY B", "A", "A", "copy-syntax main:1:26"),
    copying("NothingAtAll", "", "A", "A"),
    {"PseudoTextOverLines",
     {"       COPY B REPLACING ==A\n      * x\n           B== BY ==C\n      -    D\n           "
      "E==.\n",
      {{"B", "       A B\n"}},
      SourceFormat::fixed},
     "CD E"},
    {"PseudoTextThatDoesNotEnd",
     {"COPY B REPLACING ==A BY B.\nC", {{"B", "A"}}},
     "A",
     "unterminated-text main:1:18\ncopy-syntax main:2:1"},
    {"WithoutAPeriod", {"COPY B REPLACING A BY C", {{"B", "A"}}}, "C", "copy-period main:1:1"},
    {"LibraryAndReplacing", {"COPY B OF L SUPPRESS REPLACING A BY C.", {{"L/B", "A"}}}, "C"},
    {"HoldsInNestedCopybooks",
     {"COPY B REPLACING ==:T:== BY ==W==. :T:", {{"B", ":T:-A COPY C. :T:-B"}, {"C", ":T:-C"}}},
     "W-A W-C W-B T",
     "unreplaced-tag main:1:37"},
    {"BehindThatOfNestedCopybooks",
     {"COPY B REPLACING ==:T:== BY ==W== ==D== BY ==E==.",
      {{"B", "D COPY C REPLACING ==:U:== BY ==:T:-X==."}, {"C", ":U:-C D"}}},
     "E W-X-C E"},
    {"InnerHoldsInsideOnly",
     {"COPY B.", {{"B", "A COPY C REPLACING A BY X. A"}, {"C", "A"}}},
     "A X A"},
    {"CopyStatementsAreNotReplaced",
     {"COPY B REPLACING C BY D.", {{"B", "COPY C. C"}, {"C", "A"}, {"D", "X"}}},
     "A D"},
};
AS_READING_ROWS(CopyReplacing, copyRows);

const ReadingRow replaceRows[] = {
    {"Replace", {"A REPLACE ==A== BY ==B==. A REPLACE OFF. A"}, "A B A"},
    {"AnotherTakesItsPlace",
     {"REPLACE ==A== BY ==B==. A C REPLACE ==C== BY ==D==. A C"},
     "B C A D"},
    {"Leading", {"REPLACE LEADING ==A== BY ==B== TRAILING ==C== BY ==D==. AX XC"}, "BX XD"},
    {"Also",
     {"REPLACE ==A== BY ==1==. REPLACE ALSO ==B== BY ==2== ==A== BY ==3==. A B REPLACE LAST OFF. A "
      "B REPLACE LAST OFF. A"},
     "3 2 1 B A"},
    {"OffEndsAll",
     {"REPLACE ==A== BY ==1==. REPLACE ALSO ==B== BY ==2==. REPLACE OFF. A B"},
     "A B"},
    {"OffWithoutAPeriod", {"REPLACE OFF A"}, "A", "copy-period main:1:1"},
    {"LastWithoutOff", {"REPLACE LAST ==A== BY ==B==. A"}, "B", "copy-syntax main:1:14"},
    {"Literals", {"REPLACE \"A\" BY \"B\". \"A\""}, "\"B\""},
    {"LastOffOfNothing", {"REPLACE LAST OFF. A"}, "A"},
    {"APeriodInFrontOfALinesLastMark", {"REPLACE ==A.==\nBY ==B==. A. C"}, "B C"},
    {"ReachesIntoCopybooks", {"REPLACE ==A== BY ==B==. COPY C.", {{"C", "A"}}}, "B"},
    {"ReachesOutOfCopybooks", {"COPY C. A", {{"C", "REPLACE ==A== BY ==B==."}}}, "B"},
    {"BehindReplacing",
     {"REPLACE ==W-A== BY ==X==. COPY C REPLACING ==:T:== BY ==W==.", {{"C", ":T:-A"}}},
     "X"},
    {"DoesNotMatchOverTheNext", {"REPLACE ==A B== BY ==C==. A REPLACE OFF. B"}, "A B"},
    {"NoStatement", {"REPLACE A. REPLACE"}, "REPLACE A . REPLACE"},
    {"WrongSyntax", {"REPLACE ==A== BY. A"}, "A", "copy-syntax main:1:17"},
    {"WithoutAPeriodAtTheEnd", {"REPLACE ==A== BY ==B=="}, "", "copy-period main:1:1"},
    {"PlacesOfPictures", {"REPLACE ==P== BY ==PIC X(3)==. A P. B"}, "A PIC <X(3)> . B"},
};
AS_READING_ROWS(Replace, replaceRows);

TEST(ReplacedWords, HaveThePlaceOfThoseThatTheyStandFor) {
  EXPECT_EQ(test::readingOf({"COPY B REPLACING ==A== BY ==C D==.", {{"B", "\n A B"}}}, true).words,
            "C at B:2:2, copied at main:1:1; D at B:2:2, copied at main:1:1; "
            "B at B:2:4, copied at main:1:1;");
}

TEST(ReplaceLimits, WhatStandsInThePlaceIsBounded) {
  std::string text;
  for (int i = 0; i < 700; i++) text += "A ";
  const test::Reading reading =
      test::readingOf({"REPLACE ==A== BY ==" + std::string(100000, 'B') + "==. " + text + "C"});
  EXPECT_THAT(reading.texts, testing::HasSubstr("more than 67108864 bytes of copybooks"));
}

TEST(ReplaceLimits, ComparisonsAreBounded) {
  std::string some;
  for (int i = 0; i < 80; i++) some += "A ";
  test::Source source{"REPLACE ==" + some + "B== BY ==C==. " + some + some};
  source.most.comparisons = 5000;
  const test::Reading reading = test::readingOf(source);
  EXPECT_THAT(reading.texts, testing::HasSubstr("more than 5000 words compared to replace some"));
}

// Pieces that are put together cost their length, not its square.
TEST(ReplaceLimits, GluedWordsAreLinear) {
  std::string text;
  for (int i = 0; i < 100000; i++) text += ":A:";
  const test::Reading reading = test::readingOf({"REPLACE ==:A:== BY ==x==. " + text});
  EXPECT_EQ(reading.words, std::string(1024, 'x'));
  EXPECT_EQ(reading.findings, "source-limit main:1:27");
}

}  // namespace
