// Tests of comparing in rounds.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Rounds.h"

namespace {

TEST(Rounds, TheMedianIsTheValueInTheMiddle) {
  EXPECT_EQ(bench::median({3}), 3);
  EXPECT_EQ(bench::median({5, 1, 3}), 3);
  EXPECT_EQ(bench::median({4, 1, 2, 100}), 3);
}

TEST(Rounds, EverySideRunsOnceARoundAndAnotherBegins) {
  std::string order;
  const auto side = [&](const std::string& name) {
    return bench::Side{name, [&order, name] {
                         order += name;
                         return 1.0;
                       }};
  };
  bench::Rounds rounds({side("a"), side("b"), side("c")});
  for (int i = 0; i < 4; i++) rounds.run();
  EXPECT_EQ(order,
            "abc"
            "bca"
            "cab"
            "abc");
}

TEST(Rounds, RatiosAreTakenRoundByRound) {
  std::vector<double> ours = {2, 40, 6};
  std::vector<double> others = {1, 10, 6};
  std::size_t round = 0;
  bench::Rounds rounds(
      {{"ours", [&] { return ours[round]; }}, {"other", [&] { return others[round]; }}});
  for (; round < ours.size(); round++) EXPECT_EQ(rounds.run(), ours[round]);
  EXPECT_EQ(rounds.firstTo(1), 2);
  EXPECT_EQ(rounds.seconds(0), 6);
}

TEST(Rounds, WhatIsTimedIsDone) {
  bool isDone = false;
  EXPECT_GE(bench::timed([&] { isDone = true; }), 0);
  EXPECT_TRUE(isDone);
}

}  // namespace
