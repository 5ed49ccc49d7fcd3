// Tests of names and paths as they are told, and of places that are put into words when they are
// told: what is made of a small document stays small, however deeply it nests.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/ShortPath.h"

namespace {

using namespace as::toolkit::gen;
using testing::HasSubstr;
using testing::StartsWith;

std::string letters(std::size_t count) { return std::string(count, 'n'); }

TEST(ShortName, IsWholeUpToItsLimit) {
  EXPECT_EQ(shortName(""), "");
  EXPECT_EQ(shortName(letters(200)), letters(200));
  EXPECT_EQ(shortName(letters(201)), letters(200) + "...");
}

TEST(ShortName, EndsWithACharacter) {
  EXPECT_EQ(shortName(letters(199) + "\u00e4n"), letters(199) + "...");
  EXPECT_EQ(shortName(letters(198) + "\u00e4n"), letters(198) + "\u00e4...");
}

std::string pathOf(std::size_t count, const std::string& name) {
  return shortPath(std::vector<std::string_view>(count, name));
}

TEST(ShortPath, IsWholeUpToItsLimit) {
  EXPECT_EQ(pathOf(0, "n"), "");
  EXPECT_EQ(shortPath({"a", "b", "c"}), "a.b.c");
  EXPECT_EQ(pathOf(20, letters(199)).size(), 20U * 200 - 1);
  EXPECT_EQ(pathOf(20, letters(199)).find("..."), std::string::npos);
}

TEST(ShortPath, LeavesOutTheMiddle) {
  const std::string path = pathOf(21, letters(199));
  EXPECT_EQ(path.size(), 20U * 200 + 3);
  EXPECT_EQ(path.find("....."), 10U * 200 - 1);
}

TEST(ShortPath, HasShortNames) {
  EXPECT_EQ(shortPath({letters(300), "b"}), letters(200) + "....b");
}

constexpr std::size_t deepest = 500;

// Structures in one another, whose names are as long, and in the last one fields that want other
// names, as do the parameters of an operation with a long name of its own.
ServiceModel deepModel() {
  constexpr std::size_t many = 5'000;
  ServiceModel model;
  model.name = model.program = "DEEP";
  model.flavour = as::toolkit::findFlavour("ws");
  Operation& operation = model.operations.emplace_back();
  operation.name = letters(100'000);
  operation.style = Operation::Style::rpc;
  model.types.resize(deepest);
  Field field;
  field.name = letters(1000);
  for (std::size_t i = 0; i < deepest; ++i) {
    model.types[i].name = field.name;
    if (i == 0) model.types[i].operation = 0;
    if (i > 0) model.types[i].owner = i - 1;
    field.structure = i;
    (i == 0 ? operation.parameters : model.types[i - 1].fields).push_back(field);
  }
  Field leaf;
  leaf.dataType = "int";
  leaf.capacity = as::toolkit::integerOf(32);
  for (std::size_t i = 0; i < many; ++i) {
    leaf.name = "f" + std::to_string(i);
    model.types.back().fields.push_back(leaf);
    if (i < many / 2) operation.parameters.push_back(leaf);
  }
  return model;
}

class DeepPlaces : public testing::TestWithParam<const Generator& (*)()> {};

// In full, the places of all fields have more than two gigabytes.
TEST_P(DeepPlaces, AreToldShort) {
  const ServiceModel model = deepModel();
  const as::toolkit::GenerateOptions options;
  as::toolkit::Generated made;
  const Generator& generator = GetParam()();
  generator.generate({model, generator.kind(), options, made});
  ASSERT_FALSE(made.files.empty());
  for (const auto& finding : made.findings) ASSERT_LE(finding.place.size(), 5000U);
  for (const auto& file : made.files) EXPECT_LE(file.content.size(), 10'000'000U) << file.name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, DeepPlaces,
                         testing::Values(&wsdlGenerator, &xsdGenerator, &jsonSchemaGenerator,
                                         &openApiGenerator, &markdownGenerator, &csharpGenerator,
                                         &idlGenerator),
                         [](const auto& kind) { return std::string(kind.param().kind().word); });

TEST(DeepPlace, IsThatOfWhereItStands) {
  const ServiceModel model = deepModel();
  EXPECT_EQ(Spot(model, model.types[1]).of("f").with(" type").text(),
            letters(200) + "...." + letters(200) + "...." + letters(200) + "....f type");
  EXPECT_THAT(model.placeOf(model.types.back()), HasSubstr("....."));
}

}  // namespace
