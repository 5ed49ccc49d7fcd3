// Tests of the pictures of a program.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/import/PictureTable.h"

namespace {

using as::toolkit::CobolProgram;
using as::toolkit::ConstantReader;
using as::toolkit::EntryBudget;
using as::toolkit::EntryProblems;
using as::toolkit::EntryRule;
using as::toolkit::NameReference;
using as::toolkit::NameTable;
using as::toolkit::PictureTable;
using as::toolkit::SourcePlace;
using as::toolkit::WordReader;

// A source without words.
class NoWords : public as::toolkit::TokenSource {
 public:
  void read(as::toolkit::Token& token) override { token = {}; }
};

class PictureTableTest : public testing::Test {
 protected:
  NoWords source_;
  WordReader words_{source_};
  CobolProgram program_;
  NameTable names_;
  EntryProblems problems_{[](EntryRule, const SourcePlace&, const std::string&) {}};
  EntryBudget budget_{{}, problems_};
  ConstantReader constants_{words_, program_, names_, budget_,
                            [](const NameReference&) { return std::nullopt; }};
  PictureTable pictures_{program_, constants_, problems_};
};

TEST_F(PictureTableTest, KnowsConstantsInParentheses) {
  program_.constants[names_.idOf("N")] = {"3", 3, true};
  EXPECT_TRUE(pictures_.isPicture("X(N)"));
  EXPECT_FALSE(pictures_.isPicture("X(M)"));
  EXPECT_FALSE(pictures_.isPicture("X(N"));
  EXPECT_FALSE(pictures_.isPicture("X(N)(N"));
}

// To look for the end of each parenthesis up to the end of the text would take many minutes.
TEST_F(PictureTableTest, LooksOnceForAParenthesisThatIsNotThere) {
  constexpr std::size_t count = 4000000;
  EXPECT_FALSE(pictures_.isPicture("X" + std::string(count, '(')));
}

}  // namespace
