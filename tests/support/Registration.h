// Checks of the identity records that classes are registered for casting with.
#ifndef TESTS_SUPPORT_REGISTRATION_H_
#define TESTS_SUPPORT_REGISTRATION_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "xml/Identity.h"

namespace test {

// The record of a class, with its name and the names of its bases in order.
struct Registered {
  const RTTITypeinfo* record;
  const char* name;
  std::vector<std::string> bases;
};

// A row of Registered for an implementation class, its bases behind it.
#define AS_REGISTERED(name, ...)            \
  {                                         \
    &name::RTTI_obj, #name, { __VA_ARGS__ } \
  }

inline void expectRegistered(const Registered& row) {
  SCOPED_TRACE(row.name);
  ASSERT_NE(row.record->name, nullptr);
  EXPECT_STREQ(row.record->name, row.name);
  EXPECT_EQ(row.record->reserved, 0);
  EXPECT_NE(row.record->scast, nullptr);
  EXPECT_EQ(row.record->derivedCount == 0, row.record->derived == nullptr);
  std::vector<std::string> bases;
  for (RTTITypeinfo** base = row.record->bases; base != nullptr && *base != nullptr; ++base) {
    bases.emplace_back((*base)->name);
    RTTITypeinfo** const end = (*base)->derived + (*base)->derivedCount;
    EXPECT_EQ(std::count((*base)->derived, end, row.record), 1) << (*base)->name;
  }
  EXPECT_EQ(bases, row.bases);
}

}  // namespace test

#endif  // TESTS_SUPPORT_REGISTRATION_H_
