// Tests of the numbers of names.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/import/NameTable.h"

namespace {

using as::toolkit::Index;
using as::toolkit::NameTable;

TEST(NameTable, NumbersNamesInTheirOrder) {
  NameTable names;
  EXPECT_EQ(names.idOf("A"), 0);
  EXPECT_EQ(names.idOf("B"), 1);
  EXPECT_EQ(names.idOf(""), 2);
  EXPECT_EQ(names.idOf("A"), 0);
  EXPECT_EQ(names.idOf(""), 2);
  EXPECT_EQ(names.nameOf("b").id, 1);
  EXPECT_EQ(names.nameOf("b").text, "b");
}

TEST(NameTable, KnowsNamesInLettersOfAnyCase) {
  const std::string small = "abcdefghijklmnopqrstuvwxyz-0";
  const std::string capital = "ABCDEFGHIJKLMNOPQRSTUVWXYZ-0";
  NameTable names;
  EXPECT_EQ(names.idOf(small), names.idOf(capital));
  for (std::size_t i = 0; i < small.size(); i++) {
    EXPECT_EQ(names.idOf(small.substr(i, 1)), names.idOf(capital.substr(i, 1))) << small[i];
  }
}

TEST(NameTable, TellsOtherNamesApart) {
  const std::vector<std::string> all = {"A", "AB", "ABC", "B",        "BA",       "A-B", "A_B",
                                        "@", "`",  "[",   "{",        "Z",        "1",   "-",
                                        "+", "",   "AA",  "\xC3\xA4", "\xC3\x84", "M"};
  NameTable names;
  for (std::size_t i = 0; i < all.size(); i++) {
    EXPECT_EQ(names.idOf(all[i]), static_cast<Index>(i)) << all[i];
  }
}

TEST(NameTable, HoldsAnyNumberOfNames) {
  constexpr Index many = 20000;
  NameTable names;
  for (Index i = 0; i < many; i++) ASSERT_EQ(names.idOf("NAME-" + std::to_string(i)), i);
  for (Index i = 0; i < many; i++) ASSERT_EQ(names.idOf("name-" + std::to_string(i)), i);
}

}  // namespace
