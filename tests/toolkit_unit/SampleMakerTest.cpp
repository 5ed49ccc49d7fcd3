// Tests of samples: of numbers of any size, which their items can hold, and of structures of any
// depth.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <regex>
#include <string>

#include "support/SmallStack.h"
#include "toolkit/generate/SampleMaker.h"

namespace {

using namespace as::toolkit::gen;
using as::toolkit::Capacity;

struct Row {
  const char* label;
  int digits;
  int scale;
  const char* sample;
  const char* whole;  // Of an integer.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

class SampleOfNumber : public testing::TestWithParam<Row> {
 protected:
  SampleOfNumber() {
    Item item;
    item.kind = Item::Kind::number;
    item.digits = GetParam().digits;
    item.scale = GetParam().scale;
    model_.items.push_back(item);
    field_.item = 0;
  }

  std::string sampleAs(const Capacity& capacity) {
    field_.capacity = capacity;
    return SampleMaker(model_).valueOf(field_);
  }
  std::string pattern() const { return facetsOf(model_, field_).pattern; }

 private:
  ServiceModel model_;
  Field field_;
};

TEST_P(SampleOfNumber, IsOneThatTheItemHolds) {
  const std::string sample = sampleAs({Capacity::Kind::decimal});
  EXPECT_EQ(sample, GetParam().sample);
  EXPECT_EQ(sampleAs({Capacity::Kind::integer, 18, 64}), GetParam().whole);
}

TEST_P(SampleOfNumber, MatchesThePatternOfATextThatStandsForIt) {
  const std::string sample = sampleAs({Capacity::Kind::text});
  EXPECT_EQ(sample, GetParam().sample);
  EXPECT_TRUE(std::regex_match(sample, std::regex(pattern()))) << pattern();
}

INSTANTIATE_TEST_SUITE_P(
    Items, SampleOfNumber,
    testing::Values(Row{"Whole", 3, 0, "123", "123"}, Row{"OneDigit", 1, 0, "1", "1"},
                    Row{"ManyDigits", 12, 0, "123456789012", "123456789012"},
                    Row{"Fraction", 5, 2, "123.45", "123"}, Row{"FractionAlone", 2, 2, "0.12", "0"},
                    Row{"ZerosBehindThePoint", 2, 4, "0.0012", "0"},
                    Row{"OneZeroBehindThePoint", 1, 2, "0.01", "0"},
                    Row{"ManyZerosBehindThePoint", 1, 12, "0.000000000001", "0"},
                    Row{"ZerosInFrontOfThePoint", 2, -3, "12000", "12000"},
                    Row{"OneZeroInFrontOfThePoint", 1, -1, "10", "10"}),
    [](const auto& row) { return std::string(row.param.label); });

// Of a field that holds less than its item.
TEST(SampleOfLess, IsWhatTheFieldHolds) {
  const auto sampleOf = [](int digits, int scale, const Capacity& capacity) {
    ServiceModel model;
    Item item;
    item.kind = Item::Kind::number;
    item.digits = digits;
    item.scale = scale;
    model.items.push_back(item);
    Field field;
    field.item = 0;
    field.capacity = capacity;
    return SampleMaker(model).valueOf(field);
  };
  using Kind = Capacity::Kind;
  EXPECT_EQ(sampleOf(5, 2, {Kind::decimal, 0, 0, true, 0}), "123");
  EXPECT_EQ(sampleOf(5, 2, {Kind::decimal, 0, 0, true, 1}), "123.4");
  EXPECT_EQ(sampleOf(5, 2, {Kind::decimal, 0, 0, true, 4, 2}), "12.34");
  EXPECT_EQ(sampleOf(2, 2, {Kind::decimal, 0, 0, true, 0}), "0");
  EXPECT_EQ(sampleOf(5, 0, as::toolkit::integerOf(8)), "20");
}

// A type in each of the next, the last one in the field.
class SampleOfChain : public testing::Test {
 protected:
  explicit SampleOfChain(std::size_t types = 0) { make(types); }

  void make(std::size_t types) {
    model_.types.assign(types, Type());
    for (std::size_t i = 0; i < types; ++i) {
      Field inner;
      if (i > 0) inner.structure = i - 1;
      model_.types[i].fields = {inner};
    }
    last_.structure = types - 1;
  }
  std::size_t count(std::size_t most) { return SampleMaker(model_).countOf(last_, most); }

  ServiceModel model_;
  Field last_;
};

constexpr std::size_t most = 100'000;

// Each structure counts for itself.
TEST_F(SampleOfChain, IsCountedUpToTheLevelsThatAnybodyReads) {
  make(200);
  EXPECT_EQ(count(most), 201U);
  make(201);
  EXPECT_EQ(count(most), most);
}

TEST_F(SampleOfChain, MayHaveAnyLength) {
  make(50'000);
  test::onASmallStack([this] { EXPECT_EQ(count(most), most); });
}

TEST_F(SampleOfChain, CountsNoLevelsThatItLeavesOut) {
  make(201);
  model_.types[100].fields.front().least = 0;
  EXPECT_EQ(count(most), 101U);
}

// A table occurs once at least, but where it would have no end.
TEST(SampleOfTable, IsNotInItself) {
  Field table;
  table.occurs = 5;
  table.least = 0;
  EXPECT_EQ(SampleMaker::occurrencesOf(table), 1U);
  table.isInItself = true;
  EXPECT_EQ(SampleMaker::occurrencesOf(table), 0U);
}

}  // namespace
