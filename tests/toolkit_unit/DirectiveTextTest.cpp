// Tests of the parts that directives are cut into.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "toolkit/import/DirectiveText.h"

namespace {

using as::toolkit::DirectivePart;
using as::toolkit::DirectiveText;

// The parts with blanks between: numbers behind "#", literals in brackets, marks in "<" and ">".
std::string partsOf(std::string_view directive) {
  std::string all;
  DirectiveText text(directive);
  while (!text.isAtEnd()) {
    const DirectivePart part = text.take();
    const std::string shown(part.text);
    all += all.empty() ? "" : " ";
    switch (part.kind) {
      case DirectivePart::Kind::number:
        all += "#" + shown;
        break;
      case DirectivePart::Kind::literal:
        all += "[" + shown + "]";
        break;
      case DirectivePart::Kind::mark:
        all += "<" + shown + ">";
        break;
      default:
        all += shown;
    }
  }
  return all;
}

TEST(DirectiveText, IsCutIntoParts) {
  struct Row {
    const char* text;
    const char* parts;
  };
  for (const Row& row : {
           Row{"", ""},
           Row{" , ", ""},
           Row{"A-1 B,C", "A-1 B C"},
           Row{"A *> B", "A"},
           Row{"A * > B", "A * <>> B"},
           Row{"1 +2 -3.5 .5 5. 1.2.3 + - 1A A1", "#1 #+2 #-3.5 #.5 #5. 1.2.3 + - 1A A1"},
           Row{"'A B' \"C's\" '' 'D", "[A B] [C's] [] [D]"},
           Row{"A'B'C", "A [B] C"},
           Row{"B'1' b\"0\" B'X' B-1", "#1 #0 [X] B-1"},
           Row{"B'", "[]"},
           Row{"B", "B"},
           Row{"X'1'", "X [1]"},
           Row{"A<=1 A>=1 A<>1 A<1 A>1 A=1 A==1",
               "A <<=> #1 A <>=> #1 A <<>> #1 A <<> #1 A <>> #1 "
               "A <=> #1 A <=> <=> #1"},
           Row{"(A)=B", "<(> A <)> <=> B"},
           Row{"=< ><", "<=> <<> <>> <<>"},
           Row{"A(", "A <(>"},
           Row{"A.", "A"},
           Row{"A. B", "A. B"},
           Row{".", "."},
           Row{"5.", "#5"},
           Row{"A.'B'", "A. [B]"},
       }) {
    EXPECT_EQ(partsOf(row.text), row.parts) << row.text;
  }
}

// What stands behind the directive is of another one.
TEST(DirectiveText, EndsWithItsDirective) {
  constexpr std::string_view text = "B'1'<=";
  EXPECT_EQ(partsOf(text.substr(0, 1)), "B");
  EXPECT_EQ(partsOf(text.substr(0, 3)), "#1");
  EXPECT_EQ(partsOf(text.substr(0, 5)), "#1 <<>");
}

TEST(DirectiveText, AcceptsWordsAndMarksAlone) {
  DirectiveText text("Is = 'IS' 1 IS");
  EXPECT_FALSE(text.accept("I"));
  EXPECT_TRUE(text.accept("IS"));
  EXPECT_TRUE(text.accept("="));
  EXPECT_FALSE(text.accept("IS"));
  EXPECT_EQ(text.take().text, "IS");
  EXPECT_FALSE(text.accept("1"));
  EXPECT_EQ(text.peek().text, "1");
  text.take();
  EXPECT_FALSE(text.isAtEnd());
  EXPECT_TRUE(text.accept("IS"));
  EXPECT_TRUE(text.isAtEnd());
  EXPECT_FALSE(text.accept(""));
}

}  // namespace
