// Tests of how the bytes of a source become text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iconv.h>

#include <stdexcept>
#include <string>

#include "toolkit/import/SourceText.h"
#include "toolkit_unit/ReadSource.h"

namespace {

using testing::HasSubstr;

// What iconv makes of `text` in another encoding; lines end as `lineEnd` says.
std::string encoded(const std::string& text, const char* encoding, const std::string& lineEnd) {
  std::string result;
  const iconv_t converter = iconv_open(encoding, "UTF-8");
  std::string in = text;
  char* from = in.data();
  std::size_t left = in.size();
  while (left > 0) {
    char out[16];
    char* to = out;
    std::size_t room = sizeof out;
    std::size_t one = *from == '\n' ? 0 : 1;
    while (one > 0 && one < left && (static_cast<unsigned char>(from[one]) & 0xC0U) == 0x80U) one++;
    if (one == 0) {
      result += lineEnd;
      from++;
      left--;
      continue;
    }
    left -= one;
    iconv(converter, &from, &one, &to, &room);
    result.append(out, static_cast<std::size_t>(to - out));
  }
  iconv_close(converter);
  return result;
}

struct Row {
  const char* name;
  std::string bytes;
  std::string encoding;
  std::string text;
  std::string findings = "";
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

// Enough of it to be recognised.
const std::string program = "       IDENTIFICATION DIVISION.\n       01  A PIC X(3) VALUE \"b\".\n";
const std::string card = "000100 01  A PIC X." + std::string(53, ' ') + "CARD0001";

std::string padded(std::string line) {
  line.resize(80, ' ');
  return line;
}

// "A", a character of two bytes between the shifts, and "B".
const std::string japaneseEbcdic = "\xC1\x0E\x45\x5D\x0F\xC2\x15";

// So many characters that stand for what is none.
std::string replaced(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "\xEF\xBF\xBD";
  return text;
}

const Row rows[] = {
    {"Nothing", "", "", ""},
    {"Ascii", "A\nB\n", "", "A\nB\n"},
    {"Utf8", "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80", "", "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80"},
    {"Utf8WithMark",
     "\xEF\xBB\xBF"
     "A\n",
     "", "A\n"},
    {"Utf8WithMarkThatIsNone",
     "\xEF\xBB\xBF"
     "A\xFF"
     "B",
     "",
     "A\xEF\xBF\xBD"
     "B",
     "source-encoding main"},
    {"Latin1", "A\xE4\n", "", "A\xC3\xA4\n", "source-encoding main"},
    {"OverlongIsNoUtf8", "A\xC0\x80", "", "A\xC3\x80\xC2\x80", "source-encoding main"},
    {"SurrogateIsNoUtf8", "\xED\xA0\x80", "", "\xC3\xAD\xC2\xA0\xC2\x80", "source-encoding main"},
    {"HalfACharacterIsNoUtf8", "A\xC3", "", "A\xC3\x83", "source-encoding main"},
    {"Utf16",
     std::string("\xFF\xFE"
                 "A\0\xE4\0\x3D\xD8\0\xDE\n\0",
                 12),
     "", "A\xC3\xA4\xF0\x9F\x98\x80\n", "source-encoding main"},
    {"Utf16BigEnd", std::string("\xFE\xFF\0A\0\n\xDC\0\0", 9), "", "A\n\xEF\xBF\xBD\xEF\xBF\xBD",
     "source-encoding main"},
    {"LineEnds", "A\r\nB\rC\nD\r\r\nE", "", "A\nB\nC\nD\n\nE"},
    {"EndOfFileMark", "A\n\x1A\x1A", "", "A\n"},
    {"Ebcdic", encoded(program, "IBM-1047", "\x15"), "", program, "source-encoding main"},
    {"EbcdicWithLineFeeds", encoded(program, "IBM-1047", "\x25"), "", program,
     "source-encoding main"},
    {"EbcdicWithCrNel", encoded(program, "IBM-1047", "\x0D\x15"), "", program,
     "source-encoding main"},
    {"EbcdicOf037", encoded(program, "IBM037", "\x15"), "", program, "source-encoding main"},
    {"EbcdicRecords", encoded(card + card, "IBM-1047", ""), "", card + "\n" + card + "\n",
     "source-encoding main\nsource-records main"},
    {"EbcdicRecordsWithAShortOne", encoded(card + "       B.", "IBM-1047", ""), "",
     card + "\n       B.\n", "source-encoding main\nsource-records main"},
    {"AsciiRecords", card + padded("       B"), "", card + "\n" + padded("       B") + "\n",
     "source-records main"},
    {"LineOf160CharactersIsNoRecord", std::string(160, 'A'), "", std::string(160, 'A')},
    {"LongLineIsNoRecord", card + "       B", "", card + "       B"},
    {"Told", "A\xE4", "ISO-8859-1", "A\xC3\xA4"},
    {"ToldUtf8", "A\xC3\xA4", "UTF-8", "A\xC3\xA4"},
    {"ToldUtf8ThatIsNone", "A\xE4", "UTF-8", "A\xEF\xBF\xBD", "source-encoding main"},
    {"Utf8OfThreeBytes", "\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBD", "UTF-8",
     "\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBD"},
    {"Utf8OfFourBytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", "UTF-8",
     "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
    {"ToldUtf8OverlongInThree", "\xE0\x9F\xBF", "UTF-8", replaced(3), "source-encoding main"},
    {"ToldUtf8OverlongInFour", "\xF0\x8F\xBF\xBF", "UTF-8", replaced(4), "source-encoding main"},
    {"ToldUtf8Surrogate", "\xED\xA0\x80", "UTF-8", replaced(3), "source-encoding main"},
    {"ToldUtf8BeyondAll", "\xF4\x90\x80\x80\xF5\x80\x80\x80", "UTF-8", replaced(8),
     "source-encoding main"},
    {"ToldUtf8CutInTwo",
     "\xC3"
     "A",
     "UTF-8", replaced(1) + "A", "source-encoding main"},
    {"ToldUtf8CutInThree",
     "\xE6"
     "A\xE6\x97"
     "A",
     "UTF-8", replaced(1) + "A" + replaced(2) + "A", "source-encoding main"},
    {"ToldUtf8CutInFour",
     "\xF0"
     "A\xF0\x9F"
     "A\xF0\x9F\x98"
     "A",
     "UTF-8", replaced(1) + "A" + replaced(2) + "A" + replaced(3) + "A", "source-encoding main"},
    {"ToldUtf8Cut", "A\xF0\x9F\x98", "UTF-8", "A" + replaced(3), "source-encoding main"},
    {"ToldUtf8WithMark",
     "\xEF\xBB\xBF"
     "A",
     "UTF-8", "A"},
    {"Utf16WithHalfAPair",
     std::string("\xFF\xFE\x3D\xD8"
                 "A\0",
                 6),
     "", replaced(1) + "A", "source-encoding main"},
    {"Utf16WithHalvesInTheWrongOrder", std::string("\xFF\xFE\0\xDC\x3D\xD8\0\xE0", 8), "",
     replaced(2) + "\xEE\x80\x80", "source-encoding main"},
    {"ToldEbcdicOfOneLine", "\xC1\xC2", "IBM-1047", "AB"},
    {"LinesOf160CharactersAreNoRecords", std::string(79, ' ') + "\n" + std::string(80, ' '), "",
     std::string(79, ' ') + "\n" + std::string(80, ' ')},
    {"ToldWindows", "\x80\x81", "WINDOWS-1252", "\xE2\x82\xAC\xEF\xBF\xBD"},
    {"ToldGermanEbcdic", encoded("       01 \xC3\xA4\xC3\x96\xC3\x9F#.\n", "IBM273", "\x15"),
     "IBM273", "       01 \xC3\xA4\xC3\x96\xC3\x9F#.\n"},
    {"ShiftJis", "A\x93\xFA\x96\x7B\x8C\xEA\n", "", "A\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\n",
     "source-encoding main"},
    {"QuotesOfWindowsAreNoShiftJis", "don\x92t it\x92s we\x92re", "",
     "don\xC2\x92t it\xC2\x92s we\xC2\x92re", "source-encoding main"},
    {"LettersOfFrenchAreNoShiftJis", "pr\xE9nom m\xE8re n\xE9\xE0", "",
     "pr\xC3\xA9nom m\xC3\xA8re n\xC3\xA9\xC3\xA0", "source-encoding main"},
    {"ToldShiftJis", "\x8E\x9A\xB1\x81", "CP932", "\xE5\xAD\x97\xEF\xBD\xB1\xEF\xBF\xBD"},
    {"ToldJapaneseEbcdic", japaneseEbcdic, "IBM939", "A\x0E\xE5\xB0\x8F\x0F\x42\n"},
    {"EbcdicWithPairsThatAreNotKnown", japaneseEbcdic, "IBM-1047",
     "A\x0E\xF3\xB4\x95\x9D\x0F\x42\n", "two-byte-text main:1:2"},
    {"ShiftThatDoesNotEnd", "\xC1\x0E\x45\x5D\xC2\x15", "IBM-1047", "A\x0E\xC3\xA1)B\n",
     "control-character main:1:2"},
    {"ShiftBehindHalfAPair", "\xC1\x0E\x45\x0F\xC2\x15", "IBM-1047",
     "A\x0E\xC3\xA1\x0F"
     "B\n",
     "control-character main:1:2"},
    {"ShiftWithAByteOfNoPair", "\xC1\x0E\x45\xFF\x0F\xC2\x15", "IBM-1047",
     "A\x0E\xC3\xA1\xC2\x9F\x0F"
     "B\n",
     "control-character main:1:2"},
    {"ShiftAtTheEnd", "\xC1\x0E\x45\x5D", "IBM-1047", "A\x0E\xC3\xA1)",
     "control-character main:1:2"},
    {"PairThatIsNoCharacter", "\xC1\x0E\xFE\xFE\x0F\xC2\x15", "IBM939",
     "A\x0E\xEF\xBF\xBD \x0F"
     "B\n"},
    {"PaddedWithZeros", std::string("A\n\0\0\0", 5), "", "A\n"},
    {"NoText", "A" + std::string(100, '\1'), "", "", "source-not-text main"},
    {"Controls", std::string("A\n\xC3\xA4\0\x01\tB\f\x7F", 10), "",
     std::string("A\n\xC3\xA4\0\x01\tB\f\x7F", 10), "control-character main:2:2"},
};

class DecodedSource : public testing::TestWithParam<Row> {
 protected:
  as::toolkit::SourceText decode(const Row& row) {
    as::toolkit::SourceReport report(findings_);
    return as::toolkit::decodeSource(row.bytes, row.encoding, map_.add("main"), report);
  }

  as::toolkit::SourceMap map_;
  as::toolkit::SourceFindings findings_;
};

TEST_P(DecodedSource, IsTheText) {
  EXPECT_EQ(decode(GetParam()).text, GetParam().text);
  std::string findings;
  for (const auto& finding : findings_) {
    findings += (findings.empty() ? "" : "\n") + std::string(finding.rule) + " " +
                map_.textOf(finding.place);
  }
  EXPECT_EQ(findings, GetParam().findings);
}

TEST_P(DecodedSource, IsPlainWhenEveryColumnIsAByte) {
  const as::toolkit::SourceText decoded = decode(GetParam());
  bool isPlain = true;
  for (const char one : decoded.text) {
    isPlain = isPlain && one != '\t' && static_cast<unsigned char>(one) < 0x80;
  }
  EXPECT_EQ(decoded.plain, isPlain);
}

INSTANTIATE_TEST_SUITE_P(Rows, DecodedSource, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SourceEncoding, MustBeKnown) {
  EXPECT_THROW(test::readingOf({"A", {}, as::toolkit::SourceFormat::free, "no-such"}),
               std::invalid_argument);
}

TEST(SourceEncoding, IsTold) {
  EXPECT_EQ(test::readingOf({encoded(program, "IBM-1047", "\x15")}).texts,
            "note: main: the file is read as EBCDIC of code page 1047; name the encoding if it is "
            "another\n");
  EXPECT_THAT(test::readingOf({"\1\1"}).texts,
              HasSubstr("the file has 2 control characters, this is the first"));
}

}  // namespace
