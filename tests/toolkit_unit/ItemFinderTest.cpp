// Tests of how the items of mappings are found one after the other: as the index finds each.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "as/IProgram.h"
#include "as/toolkit/DocumentReader.h"
#include "toolkit/walk/ItemFinder.h"
#include "toolkit/walk/ItemIndex.h"

namespace {

using as::toolkit::DocumentReader;
using as::toolkit::ItemFinder;
using as::toolkit::ItemIndex;

constexpr const char* dictionary = R"(<program
    xmlns="http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd"
    xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"
    xsi:schemaLocation="http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd
      http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd" name="P"><dataItems>
  <group name="A">
    <alphanumeric name="X" picture="X" length="1"/>
    <group name="B"><alphanumeric name="X" picture="X" length="1"/></group>
    <alphanumeric name="Y" picture="X" length="1"/>
    <alphanumeric name="X" picture="X" length="1"/>
  </group>
  <group name="B"><alphanumeric name="Y" picture="X" length="1"/></group>
  <alphanumeric name="X" picture="X" length="1"/>
</dataItems></program>)";

TEST(ItemFinder, FindsWhatTheIndexFindsWhateverCameBefore) {
  const DocumentReader reader(AS_SCHEMA_DIR);
  const as::toolkit::Document document =
      reader.read(as::toolkit::DocumentSource{"p.xml", dictionary});
  ASSERT_NE(document.dictionary, nullptr);
  const auto index = std::make_shared<const ItemIndex>(*document.dictionary);
  const std::vector<std::string> paths = {
      "A",    "A.X", "A.B",     "A.B.X", "A.Y",   "B",    "B.Y", "X", "",   ".",     ".X",
      "A.X.", "A.",  "A.B.X.Y", "Z",     "A.Z.X", "A..X", "B.X", "Y", "..", "A.B.Y", "a.x",
  };
  EXPECT_NE(index->find("A.B.X"), nullptr);
  for (const std::string& first : paths) {
    for (const std::string& second : paths) {
      ItemFinder finder(index);
      EXPECT_EQ(finder.find(first), index->find(first)) << first;
      EXPECT_EQ(finder.find(second), index->find(second)) << second << " after " << first;
      EXPECT_EQ(finder.find(first), index->find(first)) << first << " after " << second;
    }
  }
}

}  // namespace
