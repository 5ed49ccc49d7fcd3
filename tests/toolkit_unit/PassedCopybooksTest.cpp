// Tests of copybooks of the system that were passed over between two places.
#include <gtest/gtest.h>

#include <vector>

#include "toolkit/import/PassedCopybooks.h"

namespace {

using as::toolkit::PassedCopybooks;
using as::toolkit::SourcePlace;

// A source that has passed over copybooks at those places.
class PassedSource : public as::toolkit::TokenSource {
 public:
  explicit PassedSource(std::vector<SourcePlace> places) : places_(std::move(places)) {}

  void read(as::toolkit::Token& token) override { token = {}; }
  const std::vector<SourcePlace>& passedCopybooks() const override { return places_; }

  std::vector<SourcePlace> places_;
};

TEST(PassedCopybooks, StandBetweenPlacesOfTheirFile) {
  PassedSource source({{0, 10, 8}, {1, 2, 8}, {0, 20, 8}});
  PassedCopybooks passed(source);
  EXPECT_TRUE(passed.isOneBetween({0, 9, 8}, {0, 11, 8}));
  EXPECT_TRUE(passed.isOneBetween({0, 10, 1}, {0, 10, 20}));
  EXPECT_FALSE(passed.isOneBetween({0, 10, 9}, {0, 11, 8}));
  EXPECT_FALSE(passed.isOneBetween({0, 11, 8}, {0, 20, 8}));
  EXPECT_FALSE(passed.isOneBetween({0, 21, 8}, {}));
  EXPECT_TRUE(passed.isOneBetween({0, 11, 8}, {}));
  EXPECT_TRUE(passed.isOneBetween({0, 11, 8}, {1, 1, 8}));
  EXPECT_TRUE(passed.isOneBetween({1, 1, 8}, {1, 3, 8}));
  EXPECT_FALSE(passed.isOneBetween({2, 1, 8}, {}));
}

TEST(PassedCopybooks, AreThoseThatWerePassedSoFar) {
  PassedSource source({{0, 10, 8}});
  PassedCopybooks passed(source);
  EXPECT_FALSE(passed.isOneBetween({0, 11, 8}, {}));
  source.places_.push_back({0, 13, 8});
  source.places_.push_back({0, 12, 8});
  EXPECT_TRUE(passed.isOneBetween({0, 11, 8}, {0, 13, 1}));
}

// Each question costs little, however many there are: their product would take hours.
TEST(PassedCopybooks, MayBeMany) {
  constexpr std::int32_t count = 200000;
  std::vector<SourcePlace> places;
  for (std::int32_t i = 0; i < count; i++) places.push_back({0, 2 * i + 1, 8});
  PassedSource source(places);
  PassedCopybooks passed(source);
  for (std::int32_t i = 1; i <= count; i++) {
    ASSERT_FALSE(passed.isOneBetween({0, 2 * count + i, 1}, {0, 2 * count + i + 1, 1}));
  }
}

}  // namespace
