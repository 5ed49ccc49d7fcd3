// Tests of how whole files are read.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>

#include "toolkit/io/Bytes.h"

namespace {

TEST(Bytes, OfAPipeEndWhereItEndsWhateverFailedBefore) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  ASSERT_EQ(::write(ends[1], "abc", 3), 3);
  ::close(ends[1]);
  std::string bytes;
  errno = EINTR;
  EXPECT_TRUE(as::toolkit::readAll(ends[0], bytes));
  EXPECT_EQ(bytes, "abc");
  ::close(ends[0]);
}

}  // namespace
