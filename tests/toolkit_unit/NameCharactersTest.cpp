// Tests of which characters names may hold, at both ends of each range.
#include <gtest/gtest.h>

#include <utility>

#include "toolkit/generate/NameCharacters.h"

namespace {

using namespace as::toolkit::gen;

TEST(NameCharacters, OfXmlStandInRanges) {
  const struct {
    char32_t first;
    char32_t last;
  } ranges[] = {{U'A', U'Z'},     {U'_', U'_'},     {U'a', U'z'},     {0xC0, 0xD6},
                {0xD8, 0xF6},     {0xF8, 0x131},    {0x134, 0x13E},   {0x141, 0x148},
                {0x14A, 0x17E},   {0x391, 0x3A1},   {0x3A3, 0x3CE},   {0x410, 0x44F},
                {0x3041, 0x3094}, {0x30A1, 0x30FA}, {0x4E00, 0x9FA5}, {0xAC00, 0xD7A3}};
  for (const auto& range : ranges) {
    EXPECT_FALSE(isXmlNameStart(range.first - 1)) << static_cast<unsigned>(range.first);
    EXPECT_TRUE(isXmlNameStart(range.first)) << static_cast<unsigned>(range.first);
    EXPECT_TRUE(isXmlNameStart(range.last)) << static_cast<unsigned>(range.last);
    EXPECT_FALSE(isXmlNameStart(range.last + 1)) << static_cast<unsigned>(range.last);
  }
  for (const char32_t character : {U'0', U'9', U'-', U'.'}) {
    EXPECT_FALSE(isXmlNameStart(character));
    EXPECT_TRUE(isXmlNameCharacter(character));
  }
  for (const char32_t character : {U'/', U':', U','}) EXPECT_FALSE(isXmlNameCharacter(character));
}

TEST(NameCharacters, HaveCapitalAndSmallForms) {
  for (const auto& [small, capital] : {std::pair{U'a', U'A'}, {U'z', U'Z'}}) {
    EXPECT_EQ(capitalOf(small), capital);
    EXPECT_EQ(smallOf(capital), small);
    EXPECT_EQ(capitalOf(capital), capital);
    EXPECT_EQ(smallOf(small), small);
  }
  for (const char32_t character : {U'@', U'[', U'`', U'{', U'\u00e4', U'\u00c4'}) {
    EXPECT_EQ(capitalOf(character), character);
    EXPECT_EQ(smallOf(character), character);
  }
}

}  // namespace
