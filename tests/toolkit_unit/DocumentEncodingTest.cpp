// Tests of how the bytes of a document become text.
#include <gtest/gtest.h>
#include <iconv.h>

#include <cstddef>
#include <optional>
#include <string>

#include "toolkit/outline/DocumentEncoding.h"

using as::toolkit::documentInUtf8;

namespace {

struct Row {
  std::string bytes;
  std::optional<std::string> text;  // Nothing for what nobody can read.
};

TEST(DocumentEncoding, IsToldByMarksDeclarationsAndFirstBytes) {
  const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?><a b='";
  for (const Row& row : {
           Row{"<a/>", "<a/>"},
           Row{"<a b='\xC3\xA4'/>", "<a b='\xC3\xA4'/>"},
           Row{latin + "\xE4'/>", latin + "\xC3\xA4'/>"},
           Row{{"\xFF\xFE<\0a\0/\0>\0", 10}, "<a/>"},
           Row{{"\xFE\xFF\0<\0a\0/\0>", 10}, "<a/>"},
           Row{"<?xml version='1.0' encoding='none such'?><a/>", std::nullopt},
           Row{"\xEF\xBB\xBF<a/>", "<a/>"},
           Row{{"\0<\0a\0/\0>", 8}, "<a/>"},
           Row{{"<\0a\0/\0>\0", 8}, "<a/>"},
           Row{{"\0\0\xFE\xFF\0\0\0<\0\0\0>", 12}, "<>"},
           Row{{"\xFF\xFE\0\0<\0\0\0>\0\0\0", 12}, "<>"},
           Row{{"\0\0\0<\0\0\0>", 8}, "<>"},
           Row{{"<\0\0\0>\0\0\0", 8}, "<>"},
           // Half a character.
           Row{{"\xFF\xFE<\0a", 5}, std::nullopt},
       }) {
    EXPECT_EQ(documentInUtf8(row.bytes), row.text) << row.bytes;
  }
}

// Of declarations that name no other encoding, the bytes stay.
TEST(DocumentEncoding, IsUtf8UnlessTheDeclarationTellsOtherwise) {
  for (const char* const declaration :
       {"<?xml version='1.0'?>", "<?xml version='1.0' encoding?>", "<?xml encoding='ISO-8859-1?>",
        "<?xml encoding=\"\"?>", "<?xml encoding='utf-8'?>", "<?xml encoding='UTF8'?>",
        "<?xml encoding='us-ascii'?>", "<?xml encoding=\"ASCII\"?>",
        "<?xml version='1.0'?><a encoding='ISO-8859-1'/>"}) {
    const std::string bytes = std::string(declaration) + "\xE4";
    EXPECT_EQ(documentInUtf8(bytes), bytes);
  }
}

std::string inEbcdic(std::string text) {
  std::string bytes(text.size(), '\0');
  const iconv_t conversion = ::iconv_open("IBM037", "UTF-8");
  char* from = text.data();
  char* to = bytes.data();
  std::size_t left = text.size();
  std::size_t room = bytes.size();
  ::iconv(conversion, &from, &left, &to, &room);
  ::iconv_close(conversion);
  return bytes.substr(0, bytes.size() - room);
}

TEST(DocumentEncoding, OfEbcdicIsThatOfItsDeclaration) {
  const std::string german = "<?xml version='1.0' encoding='IBM273'?><a b='{'/>";
  // What is a brace elsewhere is a letter there.
  EXPECT_EQ(documentInUtf8(inEbcdic(german)),
            "<?xml version='1.0' encoding='IBM273'?><a b='\xC3\xA4'/>");
  EXPECT_EQ(documentInUtf8(inEbcdic("<?xml version='1.0' encoding='none such'?><a/>")),
            std::nullopt);
  EXPECT_EQ(documentInUtf8(inEbcdic("<?xml version='1.0'?><a/>")), std::nullopt);
}

TEST(DocumentEncoding, IsThatOfTheWholeHoweverLong) {
  std::string wide = "\xFF\xFE";
  for (int i = 0; i < 100000; ++i) wide += std::string("a\0", 2);
  EXPECT_EQ(documentInUtf8(wide), std::string(100000, 'a'));
}

// "<a/>" with so many zeros in front of and behind each of its bytes.
std::string wide(std::size_t inFront, std::size_t behind) {
  std::string bytes;
  for (const char one : std::string("<a/>")) {
    bytes += std::string(inFront, '\0') + one + std::string(behind, '\0');
  }
  return bytes;
}

TEST(DocumentEncoding, IsToldByItsFirstBytes) {
  for (const Row& row : {
           Row{std::string("\0\0\xFE\xFF", 4) + wide(3, 0), "<a/>"},
           Row{std::string("\xFF\xFE\0\0", 4) + wide(0, 3), "<a/>"},
           Row{wide(3, 0), "<a/>"},
           Row{wide(0, 3), "<a/>"},
           Row{"\xEF\xBB\xBF<a/>", "<a/>"},
           Row{"\xFE\xFF" + wide(1, 0), "<a/>"},
           Row{"\xFF\xFE" + wide(0, 1), "<a/>"},
           Row{wide(1, 0), "<a/>"},
           Row{wide(0, 1), "<a/>"},
           Row{"", ""},
           Row{"<", "<"},
       }) {
    EXPECT_EQ(documentInUtf8(row.bytes), row.text) << row.bytes;
  }
}

std::string declaring(const std::string& encoding) {
  return "<?xml version='1.0' encoding='" + encoding + "'?><a b='\xC3\xA4'/>";
}

TEST(DocumentEncoding, MayBeUtf8ByAnyOfItsNames) {
  for (const char* const name : {"UTF-8", "utf-8", "UTF8", "US-ASCII", "ASCII", "ascii", ""}) {
    // Whatever bytes it has.
    EXPECT_EQ(documentInUtf8(declaring(name) + "\xFF"), declaring(name) + "\xFF") << name;
  }
  EXPECT_EQ(documentInUtf8(declaring("UTF-7X")), std::nullopt);
}

TEST(DocumentEncoding, IsThatOfTheDeclarationAlone) {
  for (const std::string& text :
       {std::string("<a encoding='none such'/>"), std::string("<?xml version='1.0'?><a b='\xE4'/>"),
        std::string("<?xml version='1.0'?><a encoding='none such'/>"),
        std::string("<?xml encoding='none such"), std::string("<?xml encoding=?><a b='x'/>")}) {
    EXPECT_EQ(documentInUtf8(text), text);
  }
  EXPECT_EQ(documentInUtf8("<?xml version='1.0' encoding=\"ISO-8859-1\"?>\xE4"),
            "<?xml version='1.0' encoding=\"ISO-8859-1\"?>\xC3\xA4");
}

TEST(DocumentEncoding, IsNotThatOfBytesThatAreNoCharacters) {
  EXPECT_EQ(documentInUtf8("\xFF\xFE" + wide(0, 1) + "x"), std::nullopt);
  EXPECT_EQ(documentInUtf8(std::string("\xFF\xFE\0\xDC<\0", 6)), std::nullopt);
  EXPECT_EQ(documentInUtf8("<?xml encoding='EUC-JP'?>\xFF"), std::nullopt);
}

TEST(DocumentEncoding, MayBeThatOfALargeDocument) {
  std::string bytes = "\xFF\xFE";
  std::string text;
  for (int i = 0; i < 50000; ++i) {
    bytes += std::string("<\0\xE4\0", 4);
    text += "<\xC3\xA4";
  }
  EXPECT_EQ(documentInUtf8(bytes), text);
}

TEST(DocumentEncoding, MayBeEbcdic) {
  // <?xml version='1.0' encoding='IBM273'?> and a letter that is another one in IBM037.
  const std::string declaration =
      "\x4C\x6F\xA7\x94\x93\x40\xA5\x85\x99\xA2\x89\x96\x95\x7E\x7D\xF1\x4B\xF0\x7D\x40"
      "\x85\x95\x83\x96\x84\x89\x95\x87\x7E\x7D\xC9\xC2\xD4\xF2\xF7\xF3\x7D\x6F\x6E";
  const std::string text = "<?xml version='1.0' encoding='IBM273'?>";
  EXPECT_EQ(documentInUtf8(declaration + "\xC0"), text + "\xC3\xA4");
  // Its declaration ends long before.
  EXPECT_EQ(documentInUtf8(declaration + std::string(300, '\x40')), text + std::string(300, ' '));
}

}  // namespace
