// Tests of the currency symbols of a program.
#include <gtest/gtest.h>

#include <string>

#include "toolkit/import/CurrencyTable.h"

namespace {

using as::toolkit::CurrencyTable;

std::string symbolIn(const CurrencyTable& table, const std::string& text) {
  const CurrencyTable::Currency* const found = table.lastIn(text);
  return found == nullptr ? "" : found->symbol + std::to_string(found->characters);
}

TEST(CurrencyTable, HasEachSymbolOnce) {
  CurrencyTable table;
  EXPECT_TRUE(table.empty());
  EXPECT_EQ(table.first(), nullptr);
  table.add("E", 3);
  table.add("#", 1);
  table.add("E", 4);
  EXPECT_EQ(table.size(), 2U);
  EXPECT_EQ(table.first()->symbol, "E");
  EXPECT_EQ(symbolIn(table, "EE9"), "E4");
}

TEST(CurrencyTable, FindsThatOfAText) {
  CurrencyTable table;
  table.add("E", 3);
  table.add("\xE2\x82\xAC", 1);
  table.add("#", 2);
  EXPECT_EQ(symbolIn(table, "ZZ9"), "");
  EXPECT_EQ(symbolIn(table, ""), "");
  EXPECT_EQ(symbolIn(table, "9E"), "E3");
  EXPECT_EQ(symbolIn(table,
                     "Z\xE2\x82\xAC"
                     "9"),
            "\xE2\x82\xAC"
            "1");
  EXPECT_EQ(symbolIn(table, "#E9"), "#2");
}

}  // namespace
