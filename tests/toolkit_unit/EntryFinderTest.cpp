// Tests of finding entries by their names.
#include <gtest/gtest.h>

#include <vector>

#include "toolkit/import/EntryFinder.h"

namespace {

using as::toolkit::CobolProgram;
using as::toolkit::DataEntry;
using as::toolkit::EntryFinder;
using as::toolkit::Index;
using as::toolkit::none;

constexpr Index group = 1;
constexpr Index item = 2;

void add(CobolProgram& program, Index name, Index parent, Index end) {
  DataEntry entry;
  entry.nameId = name;
  entry.parent = parent;
  entry.end = end;
  program.entries.push_back(entry);
}

// Records with an item, and the same item in a group: "01 R. 05 ITEM. 05 GROUP. 10 ITEM."
CobolProgram recordsOf(Index count) {
  CobolProgram program;
  for (Index i = 0; i < count; i++) {
    const Index record = 4 * i;
    add(program, none, none, record + 4);
    add(program, item, record, record + 2);
    add(program, group, record, record + 4);
    add(program, item, record + 2, record + 4);
  }
  return program;
}

// Searches in one record each cost nothing of the others: with as many as here, their product would
// take minutes.
TEST(EntryFinder, LooksAtTheGroupsOfTheRangeAlone) {
  constexpr Index count = 40000;
  const CobolProgram program = recordsOf(count);
  EntryFinder finder(program);
  for (Index i = 0; i < 4 * count; i++) finder.add(i);
  for (Index i = 0; i < count; i++) {
    const auto found = finder.find({{"ITEM", item}, {"GROUP", group}}, {4 * i, 4 * i + 4});
    ASSERT_EQ(found.entry, 4 * i + 3);
    ASSERT_FALSE(found.isUnclear);
  }
}

TEST(EntryFinder, FindsTheFirstOfSeveral) {
  const CobolProgram program = recordsOf(3);
  EntryFinder finder(program);
  for (Index i = 0; i < 12; i++) finder.add(i);
  const auto found = finder.find({{"ITEM", item}, {"GROUP", group}}, {0, 12});
  EXPECT_EQ(found.entry, 3);
  EXPECT_TRUE(found.isUnclear);
  EXPECT_EQ(finder.find({{"ITEM", item}, {"GROUP", group}}, {4, 8}).entry, 7);
  EXPECT_EQ(finder.find({{"ITEM", item}}, {4, 8}).entry, 5);
  EXPECT_EQ(finder.find({{"ITEM", item}, {"GROUP", group}}, {12, 12}).entry, none);
}

}  // namespace
