// Tests of dotted data item names.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "cobol/DataItemPath.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using Components = std::vector<std::string>;

TEST(DataItemPath, SplitsAtDotsAndDropsSubscripts) {
  const struct {
    const char* path;
    Components components;
  } rows[] = {
      {"", {}},
      {"A", {"A"}},
      {"A.B.C", {"A", "B", "C"}},
      {"A.B(1).C", {"A", "B"}},
      {"A.B(*,*)", {"A", "B"}},
      {"(1)", {}},
      {"A.", {"A"}},
      {"A..B", {"A", "", "B"}},
      {".A", {"", "A"}},
      {".", {""}},
      {"..", {"", ""}},
      {"A.(1)", {"A"}},
  };
  for (const auto& row : rows) EXPECT_EQ(splitDataItemPath(row.path), row.components) << row.path;
}

TEST(DataItemPath, FollowsGroupsAndTakesTheFirstThatLeadsOn) {
  const std::unique_ptr<as::IProgram> program = test::parse(
      test::dictionaryOf("<numeric name='A' length='1'/>"
                         "<group name='A' length='2'><numeric name='B' length='3'/>"
                         "<group name='C' length='4'><numeric name='D' length='5'/></group>"
                         "<group name='C' length='6'><numeric name='E' length='7'/></group></group>"
                         "<group name='A' length='8'><numeric name='B' length='9'/></group>"));
  const struct {
    const char* path;
    int length;  // 0 for not found
  } rows[] = {
      {"A", 1},     {"A.B", 3}, {"A.C", 4}, {"A.C.D", 5},   {"A.C.E", 7}, {"A.B(2)", 3},
      {"A.B.X", 0}, {"B", 0},   {"C.D", 0}, {"a", 0},       {"", 0},      {"A..B", 0},
      {"A.", 1},    {"X", 0},   {".A", 0},  {"A.C.D.E", 0}, {" A", 0},
  };
  for (const auto& row : rows) {
    as::IDataItem* const item = findDataItem(row.path, program.get());
    EXPECT_EQ(item == nullptr ? 0 : item->getLength(), row.length) << row.path;
  }
}

TEST(DataItemPath, NullProgramGivesNull) { EXPECT_EQ(findDataItem("A", nullptr), nullptr); }

}  // namespace
