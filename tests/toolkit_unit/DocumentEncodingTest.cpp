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

}  // namespace
