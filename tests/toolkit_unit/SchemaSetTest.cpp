// Tests of which elements of schemas are the same.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "toolkit/generate/SchemaSet.h"

namespace {

using namespace as::toolkit::gen;

// Each was compared with all others of its name.
TEST(SchemaSetTest, TellsElementsOfOneNameByTheirShapes) {
  constexpr std::size_t many = 30'000;
  ServiceModel model;
  model.program = "P";
  model.types.resize(many);
  std::vector<Field> fields(many);
  for (std::size_t i = 0; i < many; ++i) {
    Field inner;
    inner.name = "x" + std::to_string(i);
    model.types[i].fields = {inner};
    fields[i].name = "p";
    fields[i].structure = i;
  }
  const std::vector<Field> same = fields;
  const as::toolkit::GenerateOptions options;
  as::toolkit::Generated made;
  const Job job{model, xsdGenerator().kind(), options, made};
  SchemaSet set(job);
  for (std::size_t i = 0; i < many; ++i) ASSERT_EQ(set.addElement("urn:a", fields[i], "p"), i);
  for (std::size_t i = 0; i < many; ++i) ASSERT_EQ(set.addElement("urn:a", same[i], "p"), i);
  EXPECT_EQ(set.addElement("urn:b", fields.front(), "p"), many);
}

}  // namespace
