// Tests of how items are told by their names from the record down, and found by them.
#include <gtest/gtest.h>

#include <string>

#include "as/IProgram.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Import.h"
#include "toolkit/facts/DictionaryFacts.h"
#include "toolkit/facts/ItemPaths.h"

namespace {

using as::toolkit::DictionaryFacts;
using as::toolkit::DocumentReader;
using as::toolkit::DocumentSource;
using as::toolkit::ItemPaths;
using as::toolkit::noItem;

std::string dictionaryOf(const std::string& source) {
  as::toolkit::ImportOptions options;
  options.format = as::toolkit::SourceFormat::free;
  return as::toolkit::importCobol(source, "T.cbl", nullptr, options).programs.front().dictionary;
}

DictionaryFacts factsOf(const std::string& dictionary) {
  const DocumentReader reader(AS_SCHEMA_DIR);
  const as::toolkit::Document document = reader.read(DocumentSource{"p.xml", dictionary});
  return {*document.dictionary, DocumentSource{"p.xml", dictionary}};
}

TEST(ItemPaths, LeadToItemsOutsideOfFiles) {
  const DictionaryFacts facts = factsOf(dictionaryOf(
      "FILE SECTION. FD F. 01 A. 05 X PIC X. 01 B. 05 Y PIC X. WORKING-STORAGE SECTION. "
      "01 A. 05 G OCCURS 2. 10 X PIC X. 05 G PIC X. 01 C PIC X. 01 C PIC XX."));
  const ItemPaths paths(facts);
  const auto pathFound = [&](const char* path) {
    const auto item = paths.find(path);
    return item == noItem ? std::string() : facts.pathOf(item);
  };
  EXPECT_EQ(pathFound("A"), "A");
  EXPECT_EQ(pathFound("A.G.X"), "A.G.X");
  EXPECT_EQ(pathFound("A.G.X(1)"), "A.G.X");
  for (const char* const path : {"", ".", "B", "B.Y", "A.X", "A.G.X.Y", "A..", ".A", "a", "Z"}) {
    EXPECT_EQ(pathFound(path), "") << path;
  }
  // The first one of a name.
  EXPECT_EQ(facts[paths.find("C")].name, "C");
  EXPECT_EQ(paths.find("C") + 1, facts.items().size() - 1);
}

// Of all items of a path the first one that leads on: every group of a name is looked into.
TEST(ItemPaths, LeadThroughAllGroupsOfAName) {
  const DictionaryFacts facts = factsOf(dictionaryOf(
      "01 R. 05 FILLER. 10 X PIC X. 05 FILLER PIC X. 05 FILLER. 10 Y PIC X. 10 X PIC XX. "
      "01 R. 05 Z PIC X."));
  const ItemPaths paths(facts);
  const auto numberFound = [&](const char* path) { return paths.find(path); };
  EXPECT_EQ(numberFound("R"), 0U);
  EXPECT_EQ(numberFound("R.FILLER"), 1U);
  EXPECT_EQ(numberFound("R.FILLER.X"), 2U);
  EXPECT_EQ(numberFound("R.FILLER.Y"), 5U);
  EXPECT_EQ(numberFound("R.Z"), 8U);
}

TEST(ItemPaths, MayEndInAPeriod) {
  const DictionaryFacts facts = factsOf(dictionaryOf("01 R. 05 X PIC X OCCURS 2."));
  const ItemPaths paths(facts);
  EXPECT_EQ(paths.find("R."), 0U);
  EXPECT_EQ(paths.find("R.X."), 1U);
  EXPECT_EQ(paths.find("R.X.(1)"), 1U);
}

TEST(ItemPaths, AreShortenedInTheMiddle) {
  std::string source = "01 T0 TYPEDEF. 05 N0 PIC X. ";
  for (int i = 1; i < 110; ++i) {
    const std::string number = std::to_string(i);
    source +=
        "01 T" + number + " TYPEDEF. 05 N" + number + " TYPE T" + std::to_string(i - 1) + ". ";
  }
  const DictionaryFacts facts = factsOf(dictionaryOf(source + "01 R TYPE T109."));
  std::string path = "R";
  for (int i = 109; i > 60; --i) path += ".N" + std::to_string(i);
  path += ".....";
  for (int i = 49; i >= 0; --i) path += (i == 49 ? "N" : ".N") + std::to_string(i);
  EXPECT_EQ(facts.pathOf(facts.items().size() - 1), path);
  EXPECT_EQ(facts.pathOf(1), "R.N109");
}

// Those of a document that is not the one the model was made of are not taken.
TEST(ItemConditions, AreThoseOfTheSameDocument) {
  const std::string dictionary = dictionaryOf("01 A PIC X. 88 B VALUE 'x'.");
  const DocumentReader reader(AS_SCHEMA_DIR);
  const as::toolkit::Document document = reader.read(DocumentSource{"p.xml", dictionary});
  const DictionaryFacts same(*document.dictionary, DocumentSource{"p.xml", dictionary});
  ASSERT_EQ(same[0].conditions.size(), 1U);
  EXPECT_EQ(same[0].conditions.front().name, "B");
  const DictionaryFacts other(*document.dictionary,
                              DocumentSource{"p.xml", dictionaryOf("01 A PIC X. 01 B PIC X.")});
  EXPECT_TRUE(other[0].conditions.empty());
}

}  // namespace
