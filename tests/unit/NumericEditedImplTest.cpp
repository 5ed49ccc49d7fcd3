// Tests of what numeric edited items answer beyond their interface.
#include <gtest/gtest.h>

#include "cobol/NumericEditedImpl.h"
#include "support/Dom.h"

namespace {

TEST(NumericEditedImpl, AlignmentIsTheAttributesNumber) {
  test::Dom dom("<numericEdited alignment='2'/>");
  EXPECT_EQ(CNumericEditedImpl(dom.root()).getAlignment(), 2);
}

TEST(NumericEditedImpl, AlignmentIsZeroWhenAbsent) {
  test::Dom dom("<numericEdited digits='3'/>");
  EXPECT_EQ(CNumericEditedImpl(dom.root()).getAlignment(), 0);
}

}  // namespace
