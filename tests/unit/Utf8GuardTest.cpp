// Bytes that no UTF-8 has, in texts of this and of other encodings.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Encodings.h"
#include "support/Labels.h"
#include "xml/Utf8Guard.h"

namespace {

using test::encoded;

// What the parser gets of a text that comes in these pieces.
std::string guarded(std::vector<std::string> pieces) {
  Utf8Guard guard;
  std::string got;
  for (std::string& piece : pieces) {
    guard.look(reinterpret_cast<XMLByte*>(piece.data()), piece.size());
    got += piece;
  }
  return got;
}

struct Beginning {
  const char* label;
  std::string text;
  bool isUtf8;
};

void PrintTo(const Beginning& beginning, std::ostream* out) { *out << beginning.label; }

class Utf8GuardBeginning : public testing::TestWithParam<Beginning> {};

TEST_P(Utf8GuardBeginning, TellsWhetherATextIsGuarded) {
  const std::string text = GetParam().text;
  const std::string bad = GetParam().isUtf8 ? "\xC1" : "\xF6";
  EXPECT_EQ(guarded({text + "\xF6", "\xF6"}), text + bad + bad);
}

const std::string mark = "\xEF\xBB\xBF";

INSTANTIATE_TEST_SUITE_P(
    All, Utf8GuardBeginning,
    testing::Values(
        Beginning{"Nothing", "", true}, Beginning{"NoDeclaration", "<a>", true},
        Beginning{"AMark", mark + "<a>", true},
        Beginning{"NoEncoding", "<?xml version='1.0'?>", true},
        Beginning{"Declared", "<?xml version='1.0' encoding='UTF-8'?>", true},
        Beginning{"DeclaredInQuotes", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>", true},
        Beginning{"DeclaredInSmallLetters", "<?xml version='1.0' encoding='utf-8'?>", true},
        Beginning{"DeclaredWithoutAHyphen", "<?xml version='1.0' encoding='Utf8'?>", true},
        Beginning{"DeclaredWithBlanks", "<?xml version='1.0' encoding \n=\t'UTF-8' ?>", true},
        Beginning{"DeclaredBehindAMark", mark + "<?xml version='1.0' encoding='UTF-8'?>", true},
        Beginning{"LongerName", "<?xml version='1.0' encoding='UTF-88'?>", false},
        Beginning{"ShorterName", "<?xml version='1.0' encoding='UTF'?>", false},
        Beginning{"Latin1", "<?xml version='1.0' encoding='ISO-8859-1'?>", false},
        Beginning{"Latin1BehindATab", "<?xml\tversion='1.0' encoding='ISO-8859-1'?>", false},
        Beginning{"Latin1BehindALineEnd", "<?xml\nversion='1.0' encoding='ISO-8859-1'?>", false},
        Beginning{"Latin1BehindAReturn", "<?xml\rversion='1.0' encoding='ISO-8859-1'?>", false},
        Beginning{"Latin1BehindAMark", mark + "<?xml version='1.0' encoding='ISO-8859-1'?>", false},
        Beginning{"Latin1OfAnInstruction", "<?xmls encoding='ISO-8859-1'?>", true},
        Beginning{"Latin1BehindTheDeclaration", "<?xml version='1.0'?><a encoding='ISO-8859-1'>",
                  true},
        Beginning{"Latin1BehindABlank", " <?xml version='1.0' encoding='ISO-8859-1'?>", true},
        Beginning{"EncodingWithoutAValue", "<?xml version='1.0' encoding?>", true},
        Beginning{"EncodingWithoutAnEnd", "<?xml version='1.0' encoding='ISO", false},
        Beginning{"Utf16", encoded(mark + "<a>", "UTF-16LE"), false},
        Beginning{"Utf16OfOtherOrder", encoded(mark + "<a>", "UTF-16BE"), false},
        Beginning{"Utf16WithoutAMark", encoded("<?xml version='1.0'?>", "UTF-16LE"), false},
        Beginning{"Ucs4", encoded(mark + "<a>", "UCS-4LE"), false},
        Beginning{"Ucs4OfOtherOrder", encoded("<?xml version='1.0'?>", "UCS-4BE"), false},
        Beginning{"Ebcdic", encoded("<?xml version='1.0' encoding='IBM037'?>", "IBM037"), false}),
    test::labelOf<Beginning>);

TEST(Utf8Guard, ChangesOnlyBytesThatNoUtf8Has) {
  for (int byte = 0; byte <= 0xFF; byte++) {
    const std::string text = "<a>" + std::string(1, static_cast<char>(byte));
    EXPECT_EQ(guarded({text}), byte <= 0xF4 ? text : "<a>\xC1") << byte;
  }
}

TEST(Utf8Guard, PiecesOfNothingTellNothing) {
  EXPECT_EQ(guarded({"", "<?xml version='1.0' encoding='ISO-8859-1'?>\xF6"}),
            "<?xml version='1.0' encoding='ISO-8859-1'?>\xF6");
}

}  // namespace
