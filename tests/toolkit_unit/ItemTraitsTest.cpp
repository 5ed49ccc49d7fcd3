// Tests of what is told of two items of one name: their pictures, however they are spelled, and
// what else they have.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/diff/ItemTraits.h"

namespace as::toolkit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NormalPicture, CountsWhatIsRepeated) {
  struct Row {
    const char* picture;
    const char* normal;
  };
  for (const Row& row :
       {Row{"X(3)", "X3"}, Row{"XXX", "X3"}, Row{"X(2)X", "X3"}, Row{"x(02)x", "X3"},
        Row{"S9(5)V99", "S195V192"}, Row{"", ""}, Row{"X(0)", ""}, Row{"X(0)9", "91"},
        Row{"(3)X", "X1"}, Row{"X()", ""}, Row{"X(99999999999)", "X1000000000"},
        // What is no number of times is left as it is.
        Row{"X(a)", "X(a)"}, Row{"X(3", "X3"}, Row{"X(-1)", "X(-1)"}}) {
    EXPECT_EQ(normalPicture(row.picture), row.normal) << row.picture;
  }
}

ItemFacts numberOf(const char* picture, int digits, int length) {
  ItemFacts item;
  item.category = as::IDataItem::TYPE_NUMERIC;
  item.usage = "display";
  item.sign = "none";
  item.picture = picture;
  item.digits = digits;
  item.length = length;
  return item;
}

ItemFacts textOf(const char* picture, int length) {
  ItemFacts item = numberOf(picture, 0, length);
  item.category = as::IDataItem::TYPE_ALPHANUMERIC;
  return item;
}

std::vector<std::string> told(const ItemFacts& before, const ItemFacts& after) {
  std::vector<std::string> texts;
  for (const TraitChange& change : traitChanges(before, after)) {
    texts.push_back(std::string(change.kind) + ": " + change.oldValue + " -> " + change.newValue);
  }
  return texts;
}

TEST(ItemTraits, TellWhatHappenedToThePicture) {
  EXPECT_THAT(told(numberOf("9(4)", 4, 4), numberOf("9(4)", 4, 4)), IsEmpty());
  // The digits are what a number holds, whatever its picture says.
  EXPECT_THAT(told(numberOf("9(4)", 4, 4), numberOf("9(4)", 5, 4)),
              ElementsAre("picture-widened: 9(4) -> 9(4)"));
  EXPECT_THAT(told(numberOf("9(4)", 5, 4), numberOf("9(4)", 4, 4)),
              ElementsAre("picture-narrowed: 9(4) -> 9(4)"));
  EXPECT_THAT(told(numberOf("9(4)", 4, 4), numberOf("9999", 4, 4)),
              ElementsAre("picture-respelled: 9(4) -> 9999"));
  EXPECT_THAT(told(textOf("X(4)", 4), textOf("X(6)", 6)),
              ElementsAre("picture-widened: X(4) -> X(6)"));
  EXPECT_THAT(told(textOf("X(4)", 4), textOf("A(4)", 4)),
              ElementsAre("picture-changed: X(4) -> A(4)"));
  EXPECT_THAT(told(textOf("", 4), textOf("X(6)", 6)),
              ElementsAre("picture-widened: alphanumeric of 4 bytes -> X(6)"));
  EXPECT_THAT(told(textOf("", 1), textOf("X", 1)),
              ElementsAre("picture-changed: alphanumeric of 1 byte -> X"));
  EXPECT_THAT(told(textOf("", -1), textOf("X", 1)),
              ElementsAre("picture-widened: alphanumeric -> X"));
}

TEST(ItemTraits, TellSignsByThemselves) {
  const ItemFacts plain = numberOf("9(4)", 4, 4);
  ItemFacts with = numberOf("S9(4)", 4, 4);
  with.sign = "signed";
  EXPECT_THAT(told(plain, with), ElementsAre("sign-changed: none -> signed"));
  EXPECT_THAT(told(with, plain), ElementsAre("sign-changed: signed -> none"));
  // A picture that differs in more than that has changed itself, and one whose sign did not.
  ItemFacts other = numberOf("S99P(2)", 4, 4);
  other.sign = "signed";
  EXPECT_THAT(told(plain, other),
              ElementsAre("picture-changed: 9(4) -> S99P(2)", "sign-changed: none -> signed"));
  EXPECT_THAT(told(plain, numberOf("S9(4)", 4, 4)), ElementsAre("picture-changed: 9(4) -> S9(4)"));
}

TEST(ItemTraits, TellWhatElseThereIs) {
  const ItemFacts plain = numberOf("9", 1, 1);
  ItemFacts other = plain;
  other.usage = "comp";
  other.isJustified = other.isBlankWhenZero = other.isSync = other.renames = true;
  EXPECT_THAT(told(plain, other),
              ElementsAre("usage-changed: display -> comp", "justification-changed: left -> right",
                          "blank-when-zero-changed: no -> yes", "sync-changed: no -> yes",
                          "renames-changed: no -> yes"));
  EXPECT_THAT(told(other, textOf("X", 1)),
              ElementsAre("category-changed: numeric 9 comp -> alphanumeric X"));
}

}  // namespace
}  // namespace as::toolkit
