// Tests of the rule for names that a language forbids.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <unordered_set>
#include <vector>

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/NameGiver.h"

namespace {

using namespace as::toolkit::gen;
using as::toolkit::ChosenNames;
using as::toolkit::Finding;
using as::toolkit::Findings;
using as::toolkit::Severity;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

bool isStart(char32_t character) { return isAsciiLetter(character) || character == U'_'; }
bool isFurther(char32_t character) { return isStart(character) || isDigit(character); }

const std::unordered_set<std::string_view> reservedWords = {"class", "int"};

NameRule ruleOf(NameRule::Change change, NameRule::Start start = NameRule::Start::asIs) {
  NameRule rule{"Test", isStart, isFurther};
  rule.reserved = &reservedWords;
  rule.change = change;
  rule.start = start;
  return rule;
}

const NameRule underscores = ruleOf(NameRule::Change::toUnderscore);
const NameRule humps = ruleOf(NameRule::Change::toHumps, NameRule::Start::small);
const NameRule capitals = ruleOf(NameRule::Change::toHumps, NameRule::Start::capital);

struct Row {
  const char* name;
  const char* underscored;
  const char* humped;
  const char* capital;
};

class LegalName : public testing::TestWithParam<Row> {};

TEST_P(LegalName, FollowsTheRule) {
  EXPECT_EQ(legalName(underscores, GetParam().name), GetParam().underscored);
  EXPECT_EQ(legalName(humps, GetParam().name), GetParam().humped);
  EXPECT_EQ(legalName(capitals, GetParam().name), GetParam().capital);
}

INSTANTIATE_TEST_SUITE_P(Names, LegalName,
                         testing::Values(Row{"fine", "fine", "fine", "fine"},
                                         Row{"LK-REQ-NO", "LK_REQ_NO", "lkReqNo", "LkReqNo"},
                                         Row{"net amount", "net_amount", "netAmount", "NetAmount"},
                                         Row{"1ST", "_1ST", "_1ST", "_1ST"},
                                         Row{"1-A", "_1_A", "_1A", "_1A"},
                                         Row{"class", "class_", "class_", "class_"},
                                         Row{"", "_", "_", "_"}, Row{"---", "_", "_", "_"},
                                         Row{"Prämie", "Pr_mie", "prMie", "PrMie"},
                                         Row{"a\n*/\"b", "a_b", "aB", "AB"}));

TEST(NameRuleTest, NamesOfOtherScriptsAreCountedInCharacters) {
  NameRule rule{"Test", isXmlNameStart, isXmlNameCharacter};
  rule.reserved = &reservedWords;
  rule.mostCharacters = 4;
  for (const char* const name : {"äbcd", "ä1", "日本語"}) EXPECT_TRUE(isLegal(rule, name)) << name;
  for (const char* const name : {"äbcde", "1ä", "·ä", "ä/", "ä\xFF"}) {
    EXPECT_FALSE(isLegal(rule, name)) << name;
  }
}

TEST(NameRuleTest, LongNamesAreCutAndToldApart) {
  NameRule rule = underscores;
  rule.mostCharacters = 20;
  const std::string one = legalName(rule, std::string(1'000'000, 'a') + "1");
  const std::string other = legalName(rule, std::string(1'000'000, 'a') + "2");
  EXPECT_THAT(one, SizeIs(20));
  EXPECT_THAT(one, HasSubstr("aaaa"));
  EXPECT_NE(one, other);
}

class NameGiverTest : public testing::Test {
 protected:
  std::vector<std::string> names(const std::vector<std::string>& wishes,
                                 const NameRule& rule = underscores) {
    NameGiver giver(rule, chosen_, findings_);
    std::vector<NameWish> all;
    for (const std::string& wish : wishes) all.push_back({wish, "op." + wish});
    return giver.namesIn(all);
  }

  ChosenNames chosen_;
  Findings findings_;
};

TEST_F(NameGiverTest, OneThatNeedsNoChangeKeepsItsNameWhereverItStands) {
  EXPECT_THAT(names({"a_b", "a-b"}), ElementsAre("a_b", "a_b_" + digitsOfText("a-b")));
  EXPECT_THAT(names({"a-b", "a_b"}), ElementsAre("a_b_" + digitsOfText("a-b"), "a_b"));
}

TEST_F(NameGiverTest, NamesStayWhenOthersComeAndGo) {
  const std::vector<std::string> few = names({"x-1", "y 2"});
  const std::vector<std::string> many = names({"w", "x-1", "x", "y 2", "y"});
  EXPECT_EQ(few[0], many[1]);
  EXPECT_EQ(few[1], many[3]);
}

TEST_F(NameGiverTest, CasesAreToldApartWhereTheLanguageDoes) {
  EXPECT_THAT(names({"Total", "TOTAL"}), ElementsAre("Total", "TOTAL"));
  NameRule rule = underscores;
  rule.tellsCases = false;
  EXPECT_THAT(names({"Total", "TOTAL"}, rule),
              ElementsAre("Total_" + digitsOfText("Total"), "TOTAL"));
}

TEST_F(NameGiverTest, TheSameNameTwiceIsTwo) {
  const std::vector<std::string> given = names({"a", "a", "a"});
  EXPECT_EQ(std::unordered_set<std::string>(given.begin(), given.end()).size(), 3U);
}

TEST_F(NameGiverTest, ChangesAreToldOnce) {
  NameGiver giver(underscores, chosen_, findings_);
  const std::vector<NameWish> wishes = {{"a-b", "op.a-b"}, {"fine", "op.fine"}};
  giver.namesIn(wishes);
  giver.namesIn(wishes);
  ASSERT_THAT(findings_, SizeIs(1));
  EXPECT_EQ(findings_[0].rule, "changed-name");
  EXPECT_EQ(findings_[0].severity, Severity::note);
  EXPECT_EQ(findings_[0].place, "op.a-b");
  EXPECT_THAT(findings_[0].problem, HasSubstr("'a_b'"));
}

TEST_F(NameGiverTest, NothingIsToldOfNamesThatAreMadeUp) {
  NameGiver giver(underscores, chosen_, findings_);
  EXPECT_THAT(giver.namesIn({{"op.a", "op.a", true}}), ElementsAre("op_a"));
  EXPECT_THAT(findings_, IsEmpty());
}

TEST_F(NameGiverTest, ChosenNamesGoBeforeTheRule) {
  chosen_ = {{"op.a-b", "first"}, {"c-d", "second"}, {"fine", "third"}};
  EXPECT_THAT(names({"a-b", "c-d", "fine"}), ElementsAre("first", "second", "third"));
  EXPECT_THAT(findings_, IsEmpty());
}

TEST_F(NameGiverTest, ChosenNamesTakePlacesOfOthers) {
  chosen_ = {{"a-b", "taken"}};
  EXPECT_THAT(names({"taken", "a-b"}), ElementsAre("taken_" + digitsOfText("taken"), "taken"));
}

TEST_F(NameGiverTest, ForbiddenChoicesAreErrors) {
  chosen_ = {{"a", "not this"}, {"b", "class"}, {"c", "same"}, {"d", "same"}};
  names({"a", "b", "c", "d"});
  ASSERT_THAT(findings_, SizeIs(3));
  for (const Finding& finding : findings_) {
    EXPECT_EQ(finding.rule, "forbidden-name");
    EXPECT_EQ(finding.severity, Severity::error);
  }
}

TEST(CharactersTest, ComeBackAsTheyWere) {
  const std::string text = "aÄ\u20AC\U0001F4A5z";
  EXPECT_EQ(utf8Of(charactersOf(text)), text);
  EXPECT_THAT(charactersOf(text), SizeIs(5));
}

TEST(CharactersTest, WhatIsNoUtf8CountsAsUnknown) {
  EXPECT_EQ(charactersOf("\xFF\xC3"), std::u32string(2, U'\uFFFD'));
  EXPECT_EQ(charactersOf("\x80\xBF"), std::u32string(2, U'\uFFFD'));
  EXPECT_EQ(charactersOf("\xC3z"), U"\uFFFDz");
}

TEST(CharactersTest, CapitalsAreMadeOfSmallLettersOfAsciiAlone) {
  EXPECT_EQ(capitalOf(U'q'), U'Q');
  EXPECT_EQ(smallOf(U'Q'), U'q');
  for (const char32_t character : U"`{@[7\u00E4") {
    EXPECT_EQ(capitalOf(character), character);
    EXPECT_EQ(smallOf(character), character);
  }
}

// The letters that every version of XML allows in names, range by range.
TEST(CharactersTest, NamesOfXmlStartWithLettersOfAllScripts) {
  constexpr struct {
    char32_t first;
    char32_t last;
  } ranges[] = {{U'A', U'Z'},     {U'_', U'_'},     {U'a', U'z'},     {0xC0, 0xD6},
                {0xD8, 0xF6},     {0xF8, 0x131},    {0x134, 0x13E},   {0x141, 0x148},
                {0x14A, 0x17E},   {0x391, 0x3A1},   {0x3A3, 0x3CE},   {0x410, 0x44F},
                {0x3041, 0x3094}, {0x30A1, 0x30FA}, {0x4E00, 0x9FA5}, {0xAC00, 0xD7A3}};
  for (const auto& range : ranges) {
    for (const char32_t inside : {range.first, range.last}) {
      EXPECT_TRUE(isXmlNameStart(inside)) << std::hex << static_cast<unsigned>(inside);
      EXPECT_TRUE(isXmlNameCharacter(inside)) << std::hex << static_cast<unsigned>(inside);
    }
    for (const char32_t outside : {range.first - 1, range.last + 1}) {
      EXPECT_FALSE(isXmlNameStart(outside)) << std::hex << static_cast<unsigned>(outside);
    }
  }
  for (const char32_t further : U"059-.") {
    if (further == U'\0') continue;
    EXPECT_FALSE(isXmlNameStart(further));
    EXPECT_TRUE(isXmlNameCharacter(further));
  }
  EXPECT_FALSE(isXmlNameCharacter(U'/'));
  EXPECT_FALSE(isXmlNameCharacter(U':'));
}

}  // namespace
