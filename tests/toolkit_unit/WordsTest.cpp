// Tests of the words that text is cut into.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "toolkit_unit/ReadSource.h"
#include "toolkit_unit/ReadingRowTest.h"

namespace {

using test::ReadingRow;

const ReadingRow rows[] = {
    {"Nothing", {""}, ""},
    {"WordsAndPeriods", {"01 A-1_x$#@.\n05 12AB. 7"}, "01 A-1_x$#@ . 05 12AB . 7"},
    {"LettersOfOtherLanguages", {"01 \xC3\x84-\xE6\x97\xA5."}, "01 \xC3\x84-\xE6\x97\xA5 ."},
    {"SeparatorsAreLeftOut", {"A, B; C ,D,E;F"}, "A B C D E F"},
    {"Marks",
     {"A(1:2) = B & C < > + - * / ** <= >= <>"},
     "A ( 1 : 2 ) = B & C < > + - * / ** <= >= <>"},
    {"MarksWithoutBlanks", {"A=B+C*D-E"}, "A = B + C * D-E"},
    {"Numbers",
     {"+1 -30.0 1.5 .5 +.5 1.5E3 -1.5e+3 2.0E-7 5"},
     "#+1 #-30.0 #1.5 #.5 #+.5 #1.5E3 #-1.5e+3 #2.0E-7 5"},
    {"NumbersThatEndASentence",
     {"VALUE 1. VALUE -1.\nVALUE 1.5."},
     "VALUE 1 . VALUE #-1 . VALUE #1.5 ."},
    {"NumbersInParentheses", {"(-1,+2 3.5)"}, "( #-1 #+2 #3.5 )"},
    {"NoNumbers", {"1E3 - 1 + 1.5EX"}, "1E3 - 1 + 1 . 5EX"},
    {"CommaBetweenNumbers", {"(1,2)"}, "( 1 2 )"},
    {"PeriodTwice", {"A.. B\nC..\nPIC 9.."}, "A . . B C . . PIC <9> . ."},
    {"PeriodBetweenWords", {"A.B"}, "A . B"},
    {"DecimalPointIsComma",
     {"1,5 DECIMAL-POINT IS COMMA. 1,5 -,5 +1,5E-3 1, 2 1,\nPIC Z.ZZ9,99."},
     "1 5 DECIMAL-POINT IS COMMA . #1.5 #-.5 #+1.5E-3 1 2 1 PIC <Z.ZZ9,99> ."},
    {"DecimalPointWithoutIs", {"decimal-point comma 1,5"}, "decimal-point comma #1.5"},
    {"CommaBehindAnotherWord", {"DECIMAL-POINT A COMMA 1,5"}, "DECIMAL-POINT A COMMA 1 5"},
    {"CommentsBehindABar", {"A|B.\n| C's\nD | \"E\nPIC 99.|it\nF"}, "A D PIC <99> . F"},
    {"BarsThatAreNoComments", {"\"|\" A|| B X\xC3\xA4|Y"}, "\"|\" A | | B X\xC3\xA4 | Y"},
    {"TwoBarsBeginAComment", {"A || B\nC. || D"}, "A C ."},
    {"TagsAreWords",
     {"01 :T:-A. 05 B-:U:-C. (1:2) D : E"},
     "01 T-A . 05 B-U-C . ( 1 : 2 ) D : E",
     "unreplaced-tag main:1:5\nunreplaced-tag main:1:17"},
    {"TagsInParenthesesAreWords",
     {"01 (T)-A. 05 B REDEFINES (t)-A. 77 C (D) -E (F)"},
     "01 T-A . 05 B REDEFINES t-A . 77 C ( D ) - E ( F )",
     "unreplaced-tag main:1:5\nunreplaced-tag main:1:27"},
    {"TagsInQuotesAreWords",
     {"'X'-A 'X' -B 'Y Z'-C"},
     "X-A 'X' - B 'Y Z' - C",
     "unreplaced-tag main:1:1"},
    {"TagsWithBlanksAreNone", {":A : B (A )-B"}, ": A : B ( A ) - B"},
    {"SubscriptsInFrontOfNumbersAreNoTags", {"X (I)-1 (J)-"}, "X ( I ) #-1 ( J ) -"},
    {"LiteralsInFrontOfNamesAreNoTags", {"X'41'-A ''-B 'C'-"}, "X'41' - A '' - B 'C' -"},
    {"Literals", {"\"a\" 'b' \"\" '' \"it's\" '\"'"}, "\"a\" 'b' \"\" '' \"it's\" '\"'"},
    {"DoubledQuotes", {"\"a\"\"b\" '''' \"\"\"\" \"''\""}, "\"a\"b\" ''' \"\"\" \"''\""},
    {"Prefixes",
     {"X\"0a\" n'b' NX\"00\" z\"c\" G\"d\" U\"e\" UX\"f\" B\"1\" BX\"0\" H\"1\" nc\"g\" O\"7\""},
     "X\"0a\" N'b' NX\"00\" Z\"c\" G\"d\" U\"e\" UX\"f\" B\"1\" BX\"0\" H\"1\" NC\"g\" O\"7\""},
    {"WordsInFrontOfLiterals", {"VALUE\"a\"\"b\".X \"c\""}, "VALUE \"a\"b\" . X \"c\""},
    {"JoinedLiteralsStayApart", {"\"a\"&\"b\" & 'c'"}, "\"a\" & \"b\" & 'c'"},
    {"LiteralThatDoesNotEnd",
     {"A \"b. C.\nD.\n'e\nF"},
     "A \"b. C.\" D . 'e' F",
     "unterminated-literal main:1:3\nunterminated-literal main:3:1"},
    {"QuoteAtTheEnd", {"A \""}, "A \"\"", "unterminated-literal main:1:3"},
    {"Pictures",
     {"PIC X. PIC IS S9(4)V99.\npicture 9(5)CR. PICTURE IS ZZ,ZZ9.99-.\nPIC $$,$$9.99, A"},
     "PIC <X> . PIC IS <S9(4)V99> . picture <9(5)CR> . PICTURE IS <ZZ,ZZ9.99-> . PIC <$$,$$9.99> "
     "A"},
    {"PicturesOfMarks",
     {"PIC +(5)9.9(2) PIC --9 PIC **9.9/99 PIC (3) PIC 9(3),99;"},
     "PIC <+(5)9.9(2)> PIC <--9> PIC <**9.9/99> PIC <(3)> PIC <9(3),99>"},
    {"PictureOnTheNextLine", {"PIC\n  IS\n X(3)\n."}, "PIC IS <X(3)> ."},
    {"NoPicture", {"PIC. A PIC \"a\" PIC"}, "PIC . A PIC \"a\" PIC"},
    {"PictureSymbol",
     {"CURRENCY SIGN IS \"x\" WITH PICTURE SYMBOL \"y\""},
     "CURRENCY SIGN IS \"x\" WITH PICTURE SYMBOL \"y\""},
    {"CommentEntries",
     {"ID DIVISION.\nAUTHOR. O'BRIEN. COPY X.\n \"and so on\nDATE-WRITTEN. Y.\nREMARKS.\n COPY "
      "Y\nDATA DIVISION.\nA"},
     "ID DIVISION . DATA DIVISION . A"},
    {"CommentEntryEndsInAreaA",
     {"       ID DIVISION.\n       AUTHOR. X.\n           Y'.\n        SPECIAL-NAMES. A.\n",
      {},
      as::toolkit::SourceFormat::fixed},
     "ID DIVISION . SPECIAL-NAMES . A ."},
    {"WordsOfCommentEntriesElsewhere",
     {"PROGRAM-ID. X.\nDATA DIVISION.\n05\nAUTHOR. A\nSECURITY. B"},
     "PROGRAM-ID . X . DATA DIVISION . 05 AUTHOR . A SECURITY . B"},
    {"NameOfACommentEntry", {"ID DIVISION.\nAUTHOR PIC X.\n"}, "ID DIVISION . AUTHOR PIC <X> ."},
    {"ListingStatements", {"A.\nEJECT\nskip1.\nSKIP2\nSKIP3 .\nTITLE 'it''s'.\nB.\n"}, "A . B ."},
    {"NamesOfListingStatements",
     {"05 EJECT PIC X.\n05\nEJECT PIC X.\n05\nTITLE PIC X.\n"},
     "05 EJECT PIC <X> . 05 EJECT PIC <X> . 05 TITLE PIC <X> ."},
    {"Basis",
     {"BASIS LIB\nDELETE 100-200\nINSERT 300\nA.\n"},
     "A .",
     "unsupported-statement main:1:1\nunsupported-statement main:2:1\nunsupported-statement "
     "main:3:1"},
    {"DeleteWithoutBasis",
     {"DELETE A.\nINSERT B.\n05\nBASIS PIC X.\n"},
     "DELETE A . INSERT B . 05 BASIS PIC <X> ."},
    {"SqlType", {"USAGE SQL TYPE IS CLOB(1M)."}, "USAGE SQL TYPE IS CLOB ( 1M ) ."},
    {"ControlCharacters",
     {std::string("A\0B\x01\"c\x02\"\f.", 11)},
     "A B \"c\x02\" .",
     "control-character main:1:2"},
};
AS_READING_ROWS(Words, rows);

TEST(WordSequence, TagsAreToldUpToAHundred) {
  std::string text;
  for (int i = 0; i < 150; i++) text += "01 :T" + std::to_string(i) + ":-A. ";
  const test::Reading reading = test::readingOf({text + text});
  EXPECT_EQ(std::count(reading.findings.begin(), reading.findings.end(), '\n') + 1, 100);
  EXPECT_THAT(reading.words, testing::EndsWith("01 T149-A ."));
}

TEST(WordSequence, EndStays) {
  test::MemoryCopybooks copybooks(std::map<std::string, std::string>{});
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceReader reader("", "main", {}, &copybooks, map, findings);
  EXPECT_EQ(test::nextOf(reader).kind, as::toolkit::TokenKind::end);
  EXPECT_EQ(test::nextOf(reader).kind, as::toolkit::TokenKind::end);
}

TEST(WordSequence, WordsHaveAKilobyteAtMost) {
  const std::string longest(1024, 'A');
  EXPECT_EQ(test::readingOf({longest + " B"}).words, longest + " B");
  EXPECT_EQ(test::readingOf({longest + " B"}).findings, "");
  const test::Reading reading = test::readingOf({"C " + longest + "A B"});
  EXPECT_EQ(reading.words, "C " + longest + " B");
  EXPECT_EQ(reading.findings, "source-limit main:1:3");
}

TEST(WordSequence, WordsAreCutBehindACharacter) {
  const std::string some(1023, 'A');
  EXPECT_EQ(test::readingOf({some + "\xC3\xA4 B"}).words, some + " B");
  EXPECT_EQ(test::readingOf({some + "A\xC3\xA4 B"}).words, some + "A B");
}

TEST(WordSequence, CommaIsTold) {
  EXPECT_FALSE(test::readingOf({"A"}).decimalPointIsComma);
  EXPECT_TRUE(test::readingOf({"DECIMAL-POINT IS COMMA"}).decimalPointIsComma);
  EXPECT_FALSE(test::readingOf({"PROGRAM-ID. A. DECIMAL-POINT IS COMMA. END PROGRAM A."})
                   .decimalPointIsComma);
}

TEST(SameWord, IsSoWhateverTheCaseOfItsLetters) {
  EXPECT_TRUE(as::toolkit::sameWord("Ab-1", "aB-1"));
  EXPECT_FALSE(as::toolkit::sameWord("A", "AB"));
  EXPECT_FALSE(as::toolkit::sameWord("\xC3\x84", "\xC3\xA4"));
  EXPECT_FALSE(as::toolkit::sameWord("[", "{"));
}

}  // namespace
