// Tests of how much memory is asked for: in proportion to the document, the same for each addition,
// and nothing for what is only read. Counts of blocks, which are the same in every run.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/CASException.h"
#include "as/CAgentServicesFactory.h"
#include "fuzz/DictionaryWalk.h"
#include "memory/Allocations.h"
#include "memory/Models.h"

namespace {

// Records of nine fields.
std::string recordsOf(int records) {
  std::string items;
  for (int record = 0; record < records; record++) {
    items += "<group name=\"RECORD-" + std::to_string(record) + "\" length=\"36\">\n";
    for (int field = 0; field < 9; field++) {
      items += "  <numeric name=\"FIELD-" + std::to_string(field) +
               "\" picture=\"9(4)\" length=\"4\" digits=\"4\" offset=\"" +
               std::to_string(4 * field) + "\"/>\n";
    }
    items += "</group>\n";
  }
  return test::dictionaryOf(items);
}

// How many blocks were allocated for what `action` does, and still are: ours, and those that the
// XML parser was given.
struct Blocks {
  long ours = 0;
  long parsers = 0;
};

template <class Action>
Blocks blocksFor(const Action& action) {
  const Blocks before = {memory::held(), memory::givenToParser()};
  action();
  return {memory::held() - before.ours, memory::givenToParser() - before.parsers};
}

Blocks blocksToParse(int records) {
  const std::string text = recordsOf(records);
  std::unique_ptr<as::IProgram> program;
  return blocksFor([&] { program = test::parse(text); });
}

TEST(Growth, ParsingTakesBlocksInProportionToTheDocument) {
  blocksToParse(1);  // What is made once.
  const Blocks none = blocksToParse(1);
  const Blocks some = blocksToParse(200);
  const Blocks more = blocksToParse(800);
  const auto parsersBeyond = [&](const Blocks& blocks) { return blocks.parsers - none.parsers; };
  EXPECT_LE(parsersBeyond(more), 5 * parsersBeyond(some));
  EXPECT_LE(more.ours, 5 * some.ours);
  // Elements and wrappers come from large blocks. A group has its list, and to check the numbers of
  // an item the XML parser takes four blocks for a moment.
  EXPECT_LE(more.ours, 800 + 100);
  EXPECT_LE(parsersBeyond(more), 5 * 800 * 10);
}

// The DOM would allocate what the accessors asked it for.
TEST(Growth, ReadingTakesNothingFromTheDom) {
  const auto program = test::parse(recordsOf(400));
  const Blocks blocks =
      blocksFor([&] { fuzz::DictionaryWalk(fuzz::Schemas::shipped).walk(*program); });
  EXPECT_EQ(blocks.parsers, 0);
  EXPECT_EQ(blocks.ours, 0);
}

// A client that tries again and again would pay for each layout that is not kept.
TEST(Growth, AWriteThatIsRefusedForItsDepthTakesNothingFromTheDom) {
  const memory::Model model = memory::newModel(test::flavours::java);
  as::IField* field = model.parameter();
  for (int i = 0; i < 2048; i++) field = field->addField("f", 1);
  const Blocks blocks = blocksFor([&] {
    EXPECT_THROW(as::CAgentServicesFactory::SerializeToString(model.service.get()),
                 as::CASException);
  });
  EXPECT_EQ(blocks.parsers, 0);
}

class GrowthByFlavour : public testing::TestWithParam<test::Flavour> {};

// Where a container has to grow now and then, what many additions take counts.
TEST_P(GrowthByFlavour, AdditionsTakeTheSameInALargeService) {
  const memory::Model model = memory::newModel(GetParam());
  const auto add = [&](int count) {
    return blocksFor([&] {
      for (int i = 0; i < count; i++) {
        model.operation()->addParameter(as::IParameter::BY_IN, "p", 0);
      }
    });
  };
  add(100);
  const Blocks first = add(500);
  add(2000);
  const Blocks later = add(500);
  EXPECT_LE(later.ours, first.ours + 5);
  EXPECT_LE(later.parsers, first.parsers + first.parsers / 10 + 5);
}

INSTANTIATE_TEST_SUITE_P(All, GrowthByFlavour, testing::ValuesIn(test::flavours::all),
                         [](const auto& row) { return std::string(row.param.label); });

}  // namespace
