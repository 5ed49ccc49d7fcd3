// Tests of the toolkit's exceptions as values: clients keep copies of what they caught.
#include <gtest/gtest.h>

#include <stdexcept>

#include "as/CASException.h"
#include "as/toolkit/Copybooks.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Files.h"

namespace {

namespace toolkit = as::toolkit;

TEST(ToolkitException, ARefusalIsCopiedWhole) {
  const toolkit::RefusedDocument refused({"a.xml", 2, 3, "wrong", "do it right"});
  const toolkit::RefusedDocument copy(refused);
  EXPECT_STREQ(copy.what(), "a.xml:2:3: wrong");
  EXPECT_EQ(copy.refusal().file, "a.xml");
  EXPECT_EQ(copy.refusal().hint, "do it right");
}

TEST(ToolkitException, ARefusalIsAssignedWhole) {
  const toolkit::RefusedDocument refused({"a.xml", 0, 0, "wrong", ""});
  toolkit::RefusedDocument other({"b.xml", 2, 3, "worse", "do it right"});
  other = refused;
  EXPECT_STREQ(other.what(), "a.xml: wrong");
  EXPECT_EQ(other.refusal().line, 0);
  EXPECT_EQ(other.refusal().hint, "");
}

TEST(ToolkitException, AFileErrorIsCopiedAndAssigned) {
  const toolkit::FileError error("a.xml: full");
  const toolkit::FileError copy(error);
  EXPECT_STREQ(copy.what(), "a.xml: full");
  toolkit::FileError other("b.xml: gone");
  other = copy;
  EXPECT_STREQ(other.what(), "a.xml: full");
}

TEST(ToolkitException, ACopybookErrorIsCopiedAndAssigned) {
  const toolkit::CopybookError error("it is locked");
  const toolkit::CopybookError copy(error);
  EXPECT_STREQ(copy.what(), "it is locked");
  toolkit::CopybookError other("it is gone");
  other = copy;
  EXPECT_STREQ(other.what(), "it is locked");
}

TEST(ToolkitException, BothAreRunTimeErrors) {
  EXPECT_THROW(throw toolkit::FileError("a"), std::runtime_error);
  EXPECT_THROW(throw toolkit::RefusedDocument({"a", 0, 0, "b", ""}), std::runtime_error);
}

TEST(ToolkitException, ACopyOfTheLibrarysHasItsText) {
  const as::CASException exception("AgentServices: no");
  const as::CASException copy(exception);
  EXPECT_EQ(copy.getErrorText(), "AgentServices: no");
}

}  // namespace
