// Tests of what fields have of the declared types that they refer to.
#include <gtest/gtest.h>

#include <cstddef>

#include "toolkit/generate/References.h"
#include "toolkit/generate/ServiceModel.h"

namespace {

using as::toolkit::gen::completeReferences;
using as::toolkit::gen::Field;
using as::toolkit::gen::none;
using as::toolkit::gen::ServiceModel;
using as::toolkit::gen::Type;

// Declared types, each of which refers to the one in front; the first is a structure.
ServiceModel chainOf(std::size_t types) {
  ServiceModel model;
  model.types.resize(types);
  for (std::size_t i = 0; i < types; ++i) {
    Type& type = model.types[i];
    type.isDeclared = true;
    type.self.reference = i == 0 ? none : i - 1;
  }
  model.types.front().self.structure = 0;
  return model;
}

TEST(References, LeadToTheEndOfTheirChain) {
  ServiceModel model = chainOf(4);
  model.types[0].self.mappings.push_back({{}, "RECORD.ITEM"});
  model.types[0].self.item = 7;
  completeReferences(model);
  for (const Type& type : model.types) {
    EXPECT_EQ(type.self.structure, 0U);
    EXPECT_EQ(type.self.item, 7U);
    ASSERT_EQ(type.self.mappings.size(), 1U);
  }
}

TEST(References, HaveTheOccurrencesOfTheNearestType) {
  ServiceModel model = chainOf(3);
  model.types[0].self.occurs = 9;
  model.types[1].self.occurs = 5;
  completeReferences(model);
  EXPECT_EQ(model.types[1].self.least, 9);
  EXPECT_EQ(model.types[2].self.least, 5);
}

// To walk the whole way from each of them would take minutes.
TEST(References, AreFollowedInTimeThatGrowsWithTheirNumber) {
  constexpr std::size_t many = 200'000;
  ServiceModel model = chainOf(many);
  completeReferences(model);
  EXPECT_EQ(model.types.back().self.structure, 0U);
}

TEST(References, ThatLeadRoundEnd) {
  ServiceModel model = chainOf(3);
  model.types[0].self.reference = 2;
  completeReferences(model);
  for (const Type& type : model.types) EXPECT_EQ(type.self.item, none);
}

TEST(References, OfAFieldToTheTypeAroundItMakeThatRecursive) {
  ServiceModel model = chainOf(1);
  Field& inner = model.types[0].fields.emplace_back();
  inner.reference = 0;
  completeReferences(model);
  EXPECT_TRUE(model.types[0].isRecursive);
  EXPECT_EQ(model.types[0].fields[0].structure, 0U);
  EXPECT_EQ(model.types[0].fields[0].least, 0);
}

}  // namespace
