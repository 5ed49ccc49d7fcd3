// Tests of which fields can share what is made of one.
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <string>

#include "toolkit/generate/FieldShape.h"
#include "toolkit/generate/ShapeHashes.h"

namespace {

using namespace as::toolkit::gen;

// Two structures alike, 0 and 1, of a field and a field attribute each, which are mapped to items
// alike, 0 and 1; a declared type, 2; and a field of each of the structures.
struct Pair {
  Pair() {
    model.items.resize(2);
    model.types.resize(3);
    for (std::size_t i = 0; i < 2; i++) {
      Field inner;
      inner.name = "inner";
      inner.dataType = "int";
      inner.item = i;
      model.types[i].fields = {inner};
      inner.name = "attribute";
      model.types[i].attributes = {inner};
    }
    model.types[2].isDeclared = true;
    left.name = "left";
    left.structure = 0;
    right.name = "right";
    right.structure = 1;
  }

  Field& inner() { return model.types[1].fields.front(); }
  Field& attribute() { return model.types[1].attributes.front(); }

  ServiceModel model;
  Field left;
  Field right;
};

struct Change {
  const char* name;
  void (*make)(Pair& pair);
  bool areOfOneShape;
};

const Change changes[] = {
    {"nothing", [](Pair&) {}, true},
    {"itsOwnNumber", [](Pair& p) { p.right.occurs = 5; }, true},
    {"theSameStructure", [](Pair& p) { p.right.structure = 0; }, true},
    {"noStructure", [](Pair& p) { p.right.structure = none; }, false},
    {"neitherHasOne", [](Pair& p) { p.left.structure = p.right.structure = none; }, true},
    {"anotherDataType", [](Pair& p) { p.right.dataType = "string"; }, false},
    {"anotherElementForm", [](Pair& p) { p.right.elementForm = Form::qualified; }, false},
    {"anotherAttributeForm", [](Pair& p) { p.right.attributeForm = Form::qualified; }, false},
    {"anItem", [](Pair& p) { p.right.item = 1; }, false},
    {"itemsAlike", [](Pair& p) { p.left.item = 0, p.right.item = 1; }, true},
    {"aReference", [](Pair& p) { p.right.reference = 2; }, false},
    {"theSameReference", [](Pair& p) { p.left.reference = p.right.reference = 2; }, true},
    {"aFieldMore", [](Pair& p) { p.model.types[1].fields.emplace_back(); }, false},
    {"anAttributeLess", [](Pair& p) { p.model.types[1].attributes.clear(); }, false},
    {"anotherNameInIt", [](Pair& p) { p.inner().name = "other"; }, false},
    {"anotherNumberInIt", [](Pair& p) { p.inner().occurs = 2; }, false},
    {"anotherLeastNumberInIt", [](Pair& p) { p.inner().least = 0; }, false},
    {"anotherTypeInIt", [](Pair& p) { p.inner().dataType = "long"; }, false},
    {"anotherItemInIt", [](Pair& p) { p.model.items[1].digits = 7; }, false},
    {"anotherTypeOfAnAttribute", [](Pair& p) { p.attribute().dataType = "long"; }, false},
};

class FieldShapeTest : public testing::TestWithParam<Change> {};

TEST_P(FieldShapeTest, IsThatOfValuesAlike) {
  Pair pair;
  GetParam().make(pair);
  EXPECT_EQ(areOfOneShape(pair.model, pair.left, pair.right), GetParam().areOfOneShape);
  EXPECT_EQ(areOfOneShape(pair.model, pair.right, pair.left), GetParam().areOfOneShape);
  const ShapeHashes hashes(pair.model);
  EXPECT_EQ(hashes.of(pair.left) == hashes.of(pair.right), GetParam().areOfOneShape);
}

INSTANTIATE_TEST_SUITE_P(Changes, FieldShapeTest, testing::ValuesIn(changes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FieldShapeTest, IsAFieldsOwn) {
  const Pair pair;
  EXPECT_TRUE(areOfOneShape(pair.model, pair.left, pair.left));
}

TEST(ItemTest, IsLikeOneWithTheSameValues) {
  void (*const differences[])(Item & item) = {[](Item& item) { item.kind = Item::Kind::number; },
                                              [](Item& item) { item.digits = 1; },
                                              [](Item& item) { item.scale = 1; },
                                              [](Item& item) { item.isSigned = true; },
                                              [](Item& item) { item.bits = 8; },
                                              [](Item& item) { item.floatingDigits = 6; },
                                              [](Item& item) { item.characters = 3; },
                                              [](Item& item) { item.bytes = 3; }};
  for (std::size_t i = 0; i < std::size(differences); i++) {
    Item item;
    Item other;
    other.name = other.path = other.picture = "OTHER";
    EXPECT_TRUE(item.isLike(other));
    differences[i](other);
    EXPECT_FALSE(item.isLike(other)) << i;
    differences[i](item);
    EXPECT_TRUE(item.isLike(other)) << i;
  }
}

}  // namespace
