// Tries an action with one allocation after the other failing.
#ifndef TESTS_MEMORY_ATTEMPTS_H_
#define TESTS_MEMORY_ATTEMPTS_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "as/CASException.h"
#include "memory/Allocations.h"

namespace memory {

// How an attempt ended.
enum class End { well, inBadAlloc, inException, inOther };

template <class Action>
End endOf(const Action& action) {
  try {
    action();
  } catch (const std::bad_alloc&) {
    return End::inBadAlloc;
  } catch (const as::CASException&) {
    return End::inException;
  } catch (...) {
    return End::inOther;
  }
  return End::well;
}

// The allocation to fail after number `n`: the next one. Where there are many, far on, some are
// passed over, unless the variable AS_EXHAUST is set (./run exhaust).
inline long following(long n) {
  static const bool exhausts = std::getenv("AS_EXHAUST") != nullptr;
  constexpr long all = 100;
  return exhausts || n < all ? n + 1 : n + n / 16;
}

// Tries `action` until nothing fails any more. Each time `arm`, which is given the number of the
// allocation, has made another one fail; `look` sees how the attempt ended. Answers how many
// attempts failed.
template <class Arm, class Action, class Look>
int untilNothingFails(const Arm& arm, const Action& action, const Look& look) {
  int failures = 0;
  for (long n = 1;; n = following(n)) {
    End end = End::well;
    {
      const Failing failing = arm(n);
      end = endOf(action);
    }
    if (!Failing::happened()) {
      EXPECT_EQ(end, End::well) << "though no allocation failed";
      return failures;
    }
    failures++;
    look(end);
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "when allocation " << n << " failed";
      return failures;
    }
  }
}

// The same with the allocations counted, those of anybody unless told.
template <class Action, class Look>
int untilNothingFails(const Action& action, const Look& look,
                      Failing::Whose whose = Failing::anybodys) {
  return untilNothingFails([whose](long n) { return Failing(n, whose); }, action, look);
}

}  // namespace memory

#endif  // TESTS_MEMORY_ATTEMPTS_H_
