// Tests of how the bytes of a source become text where encodings have their edges.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/import/SourceText.h"
#include "toolkit/text/Utf8.h"
#include "toolkit_unit/ReadSource.h"

namespace {

struct Decoded {
  as::toolkit::SourceText text;
  std::string findings;  // "PLACE: PROBLEM; ADVICE", one a line.
};

Decoded decoded(const std::string& bytes, const std::string& encoding = "") {
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceReport report(findings);
  Decoded result;
  result.text = as::toolkit::decodeSource(bytes, encoding, map.add("main"), report);
  for (const auto& finding : findings) {
    result.findings += map.textOf(finding.place) + ": " + finding.problem +
                       (finding.advice.empty() ? "" : "; " + finding.advice) + "\n";
  }
  return result;
}

std::string utf16(const std::vector<std::uint32_t>& units, bool bigEnd) {
  std::string bytes = bigEnd ? "\xFE\xFF" : "\xFF\xFE";
  for (const std::uint32_t unit : units) {
    const auto high = static_cast<char>(unit >> 8U);
    const auto low = static_cast<char>(unit & 0xFFU);
    bytes += bigEnd ? std::string{high, low} : std::string{low, high};
  }
  return bytes;
}

constexpr std::uint32_t none = 0xFFFD;

TEST(Utf16Source, IsReadByPairs) {
  struct Row {
    std::vector<std::uint32_t> units;
    std::vector<std::uint32_t> characters;
  };
  for (const Row& row : {
           Row{{0x41}, {0x41}},
           Row{{0x7FF, 0x800}, {0x7FF, 0x800}},
           Row{{0xD7FF, 0xDC00}, {0xD7FF, none}},
           Row{{0xD800, 0xDC00}, {0x10000}},
           Row{{0xD83D, 0xDE00}, {0x1F600}},
           Row{{0xDBFF, 0xDFFF}, {0x10FFFF}},
           Row{{0xD800, 0xDBFF}, {none, none}},
           Row{{0xD800, 0xE000}, {none, 0xE000}},
           Row{{0xD800, 0x41}, {none, 0x41}},
           Row{{0xDC00, 0xDC00}, {none, none}},
           Row{{0xDFFF, 0x41}, {none, 0x41}},
           Row{{0xE000, 0xDC00}, {0xE000, none}},
           Row{{0xD800}, {none}},
       }) {
    std::string text;
    for (const std::uint32_t character : row.characters) as::toolkit::appendUtf8(text, character);
    EXPECT_EQ(decoded(utf16(row.units, false)).text.text, text);
    EXPECT_EQ(decoded(utf16(row.units, true)).text.text, text);
  }
}

TEST(Utf16Source, EndsInTheMiddleOfACharacter) {
  EXPECT_EQ(decoded("\xFF\xFE" + std::string("A\0B", 3)).text.text, "A\xEF\xBF\xBD");
  EXPECT_EQ(decoded("\xFF\xFE\x3D\xD8\x01").text.text, "\xEF\xBF\xBD\xEF\xBF\xBD");
}

const std::string record = "000100 01  A PIC X." + std::string(61, ' ');
constexpr const char* recordsTold =
    "main: the file has no line ends and is read in records of 80 characters\n";

TEST(SourceRecords, HaveAnIndicatorEach) {
  for (const char indicator : std::string(" *-/Dd$")) {
    std::string second = record;
    second[6] = indicator;
    const Decoded records = decoded(record + second);
    EXPECT_EQ(records.text.text, record + "\n" + second + "\n");
    EXPECT_EQ(records.findings, recordsTold);
  }
  for (const char other : std::string("Ax0+")) {
    std::string second = record;
    second[6] = other;
    EXPECT_EQ(decoded(record + second).text.text, record + second);
    EXPECT_EQ(decoded(second + record).text.text, second + record);
  }
}

TEST(SourceRecords, AreTwoAtLeastAndWhole) {
  EXPECT_EQ(decoded(record).text.text, record);
  EXPECT_EQ(decoded(record + record).text.text, record + "\n" + record + "\n");
  for (const std::string& text :
       {record + record + " ", record + record.substr(1), record + record.substr(1) + "\n",
        record + record.substr(1) + "\t\n", record + record.substr(2) + "\xC3\xA4"}) {
    EXPECT_EQ(decoded(text).text.text, text);
    EXPECT_EQ(decoded(text).findings, "");
  }
}

TEST(EbcdicRecords, AreToldOfMoreThanOne) {
  const std::string line(80, '\xC1');
  EXPECT_EQ(decoded(line, "IBM037").text.text, std::string(80, 'A'));
  EXPECT_EQ(decoded(line, "IBM037").findings, "");
  EXPECT_EQ(decoded(line + "\xC2", "IBM037").text.text, std::string(80, 'A') + "\nB\n");
  EXPECT_EQ(decoded(line + "\xC2", "IBM037").findings, recordsTold);
  for (const char end : {'\x15', '\x25', '\x0D'}) {
    EXPECT_EQ(decoded(line + "\xC2" + end, "IBM037").findings, "") << static_cast<int>(end);
  }
}

TEST(SourceEnd, IsWithoutMarksAndZeros) {
  EXPECT_EQ(decoded(std::string("A\0\x1A\0", 4)).text.text, "A");
  EXPECT_EQ(decoded(std::string("\0\0", 2)).text.text, "");
  EXPECT_EQ(decoded("A\x1A ").text.text, "A\x1A ");
}

TEST(SourceEnds, OfLinesBecomeLineFeeds) {
  EXPECT_EQ(decoded("\rA\r\n\r\rB\r").text.text, "\nA\n\n\nB\n");
}

TEST(SourceControls, AreFewInAText) {
  const auto text = [](std::size_t size, std::size_t controls) {
    return std::string(size - controls, 'A') + std::string(controls, '\x01');
  };
  constexpr const char* advice = "; name its encoding if it is a source\n";
  EXPECT_EQ(decoded(text(16, 16)).text.text.size(), 16U);
  EXPECT_EQ(decoded(text(17, 17)).text.text, "");
  EXPECT_EQ(decoded(text(17, 17)).findings,
            std::string("main: the file is no text: of its 17 bytes, 17 are control characters") +
                advice);
  EXPECT_EQ(decoded(text(272, 17)).text.text.size(), 272U);
  EXPECT_EQ(decoded(text(271, 17)).text.text, "");
}

TEST(SourceControls, AreThoseThatAreNoLayout) {
  for (int byte = 0; byte < 0x80; byte++) {
    const auto character = static_cast<char>(byte);
    if (character == '\r') continue;  // An end of a line.
    const bool isTold =
        (byte < 0x20 && character != '\n' && character != '\t' && character != '\f') ||
        byte == 0x7F;
    const Decoded result = decoded(std::string("A") + character + "B");
    EXPECT_EQ(result.findings,
              isTold ? "main:1:2: the file has 1 control character, this is the first; they count "
                       "as blanks unless they are in literals\n"
                     : "")
        << byte;
    EXPECT_EQ(result.text.plain, character != '\t') << byte;
  }
}

TEST(SourceControls, HaveTheirPlace) {
  EXPECT_EQ(decoded("A\n\xC3\xA4\x01\nB\x01").findings,
            "main:2:2: the file has 2 control characters, this is the first; they count as blanks "
            "unless they are in literals\n");
  // What shifts to two bytes and back is told where nothing has two bytes.
  EXPECT_EQ(decoded("A\x0E\x0F").findings,
            "main:1:2: the file has 2 control characters, this is the first; they count as blanks "
            "unless they are in literals\n");
}

TEST(SourceEncodings, AreToldInFull) {
  struct Row {
    std::string bytes;
    const char* encoding;
    const char* findings;
  };
  for (const Row& row : {
           Row{std::string("\xFF\xFE"
                           "A\0",
                           4),
               "", "main: the file is read as UTF-16\n"},
           Row{"\xC1\x40\xC1\x15", "",
               "main: the file is read as EBCDIC of code page 1047; name the encoding if it is "
               "another\n"},
           Row{"\x93\xFA\x96\x7B\n", "",
               "main: the file is read as Shift-JIS; name the encoding if it is another\n"},
           Row{"A\xE4", "",
               "main: the file is read as Latin-1, since it is not valid UTF-8; name the encoding "
               "if it is another\n"},
           Row{"A\xE4", "UTF-8", "main: the file is not valid UTF-8: what is none is replaced\n"},
           Row{"\xC1\x0E\x45\x5D\x0F\xC2\x15", "IBM-1047",
               "main:1:2: the file has characters of two bytes, which the code page IBM-1047 does "
               "not have: nobody can read them; name the encoding that has them, IBM-939 for "
               "one\n"},
       }) {
    EXPECT_EQ(decoded(row.bytes, row.encoding).findings, row.findings);
  }
}

TEST(SourceEncodings, TakeTwoColumnsForTwoBytesWhereTheySaySo) {
  EXPECT_FALSE(decoded("\xE6\x97\xA5").text.wide);
  EXPECT_TRUE(decoded("\x93\xFA", "CP932").text.wide);
  EXPECT_TRUE(decoded("\xC1\x0E\x45\x5D\x0F\x15", "IBM-1047").text.wide);
  EXPECT_FALSE(decoded("\xC1\x15", "IBM-1047").text.wide);
}

TEST(SourceEncodings, MendWhatIsNoCharacter) {
  EXPECT_EQ(decoded("\xEF\xBB\xBF\xC3\xA4\xFF\xE6\x97\xA5\xE6\x97", "UTF-8").text.text,
            "\xC3\xA4\xEF\xBF\xBD\xE6\x97\xA5\xEF\xBF\xBD\xEF\xBF\xBD");
}

}  // namespace
