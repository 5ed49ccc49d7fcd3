// Tests of the schemas that are built in as the parser had compiled them.
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>
#include <xercesc/util/PlatformUtils.hpp>

#include "support/TempDirectory.h"
#include "xml/BuiltInSchemas.h"
#include "xml/SchemaCompiler.h"
#include "xml/XStr.h"

namespace {

using xercesc::XMLPlatformUtils;

struct Shipped {
  const XMLCh* uri;
  const char* file;
};

constexpr Shipped shipped[] = {
#define AS_NAMESPACE(name, uri, file) {u"" uri, file},
#include "as/Namespaces.def"
};

TEST(BuiltInSchemas, AreTheShippedOnes) {
  EXPECT_EQ(builtInSchemas().size(), std::size(shipped));
  for (const Shipped& row : shipped) {
    SCOPED_TRACE(row.file);
    const BuiltInSchema* const schema = builtInSchema(row.uri);
    ASSERT_NE(schema, nullptr);
    EXPECT_EQ(schema->text, test::contentOf(std::string(AS_SCHEMA_DIR "/") + row.file));
    const auto pool = readBuiltIn(*schema, XMLPlatformUtils::fgMemoryManager);
    ASSERT_NE(pool, nullptr);
    EXPECT_NE(grammarIn(*pool, row.uri), nullptr);
  }
  EXPECT_EQ(builtInSchema(u"urn:o"), nullptr);
}

// They are used together with what others number.
TEST(BuiltInSchemas, ReferToNamespacesByTheSameNumbers) {
  xercesc::XMLStringPool expected;
  numberNamespaces(expected);
  ASSERT_GE(expected.getStringCount(), std::size(shipped));
  for (const BuiltInSchema& schema : builtInSchemas()) {
    const auto pool = readBuiltIn(schema, XMLPlatformUtils::fgMemoryManager);
    ASSERT_NE(pool, nullptr);
    for (unsigned int id = 1; id <= expected.getStringCount(); id++) {
      EXPECT_EQ(std::string(CXStr(pool->getURIStringPool()->getValueForId(id), false)),
                std::string(CXStr(expected.getValueForId(id), false)));
    }
  }
}

TEST(BuiltInSchemas, OfAnotherVersionOfTheParserAreNotRead) {
  const BuiltInSchema& schema = builtInSchemas().front();
  std::vector<std::uint64_t> words(schema.grammar.begin(), schema.grammar.end());
  words.front()++;
  EXPECT_EQ(readBuiltIn({schema.uri, schema.text, words}, XMLPlatformUtils::fgMemoryManager),
            nullptr);
}

}  // namespace
