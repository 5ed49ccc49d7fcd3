// Tests of literals and comments in a text that comes in parts.
#include <gtest/gtest.h>

#include <string_view>

#include "toolkit/import/QuoteState.h"

namespace {

using as::toolkit::QuoteState;

constexpr std::size_t nowhere = std::string_view::npos;

struct Row {
  std::string_view part;
  std::size_t comment;
  std::size_t closedAt;
  bool isOpen;
};

TEST(QuoteState, OfAPart) {
  for (const Row& row : {
           Row{"", nowhere, nowhere, false},     Row{"A", nowhere, nowhere, false},
           Row{"'A'", nowhere, 3, false},        Row{"'A' 'B'.", nowhere, 7, false},
           Row{"'A", nowhere, nowhere, true},    Row{"'A' \"", nowhere, 3, true},
           Row{"'A\"'", nowhere, 4, false},      Row{"'A''B'", nowhere, 6, false},
           Row{"'A''", nowhere, nowhere, true},  Row{"A*>'", 1, nowhere, false},
           Row{"'*>'", nowhere, 4, false},       Row{"A*'", nowhere, nowhere, true},
           Row{"A*", nowhere, nowhere, false},   Row{"A>", nowhere, nowhere, false},
           Row{"|'", 0, nowhere, false},         Row{"A|'", 1, nowhere, false},
           Row{"A|", 1, nowhere, false},         Row{"'|'|", 3, 3, false},
           Row{"A||B", nowhere, nowhere, false}, Row{"A|| B", nowhere, nowhere, false},
           Row{"A||", nowhere, nowhere, false},  Row{"\xC3\xA4|'", nowhere, nowhere, true},
       }) {
    QuoteState quotes;
    EXPECT_EQ(quotes.read(row.part), row.comment) << row.part;
    EXPECT_EQ(quotes.closedAt(), row.closedAt) << row.part;
    EXPECT_EQ(quotes.isOpen(), row.isOpen) << row.part;
  }
}

// What stands behind the part is of another one.
TEST(QuoteState, OfAPartEndsWithIt) {
  constexpr std::string_view text = "'A''|*>";
  QuoteState quotes;
  EXPECT_EQ(quotes.read(text.substr(0, 3)), nowhere);
  EXPECT_FALSE(quotes.isOpen());
  EXPECT_EQ(quotes.read(text.substr(5, 1)), nowhere);
  constexpr std::string_view bars = "||";
  EXPECT_EQ(quotes.read(bars.substr(0, 1)), 0U);
  EXPECT_EQ(quotes.read(bars.substr(1)), 0U);
}

TEST(QuoteState, GoesOnInTheNextPart) {
  QuoteState quotes;
  quotes.read("\"A");
  EXPECT_EQ(quotes.quote(), '"');
  EXPECT_EQ(quotes.read("'*>"), nowhere);
  EXPECT_TRUE(quotes.isOpen());
  quotes.read("\"");
  EXPECT_EQ(quotes.closedAt(), 1U);
  quotes.read("A");
  EXPECT_EQ(quotes.closedAt(), nowhere);
}

TEST(QuoteState, MayBeOpened) {
  QuoteState quotes;
  quotes.open('\'');
  EXPECT_TRUE(quotes.isOpen());
  EXPECT_EQ(quotes.quote(), '\'');
  quotes.read("\"'");
  EXPECT_FALSE(quotes.isOpen());
}

TEST(QuoteState, IsOpenedAgainByTheOtherHalfOfAQuote) {
  QuoteState quotes;
  quotes.read("'A'");
  quotes.reopen();
  EXPECT_TRUE(quotes.isOpen());
  EXPECT_EQ(quotes.read("'B*>"), nowhere);
  EXPECT_TRUE(quotes.isOpen());
  quotes.read("'");
  EXPECT_FALSE(quotes.isOpen());
}

// The first half of that part counts once.
TEST(QuoteState, IsOpenedAgainForOnePart) {
  for (const std::string_view part : {"'", "'A'*>"}) {
    QuoteState quotes;
    quotes.read("'A'");
    quotes.reopen();
    quotes.read(part);
    const bool wasOpen = quotes.isOpen();
    quotes.read("'");
    EXPECT_NE(quotes.isOpen(), wasOpen) << part;
  }
}

}  // namespace
