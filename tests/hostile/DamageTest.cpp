// Tests of good documents that took harm: every cut, and every byte replaced.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Documents.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using hostile::ns;
using test::outcomeOf;
using test::Result;
using testing::AnyOf;

// Small, but with something of everything; ends with its root.
std::string smallDocument() {
  return "<program xmlns=\"" + ns +
         "\" xmlns:i=\"http://www.w3.org/2001/XMLSchema-instance\" i:schemaLocation=\"" + ns +
         " vorcobol.xsd\" name=\"P\"><dataItems><group name=\"G\" length=\"1\"><numeric "
         "name=\"N\"><numericCondition name=\"C\"><numericConstant value=\"1\"/>"
         "</numericCondition></numeric></group></dataItems></program>";
}

TEST(HostileDamage, CutAnywhereTheDocumentIsRefused) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  ASSERT_EQ(outcomeOf(*services, document).result, Result::root);
  for (std::size_t length = 0; length < document.size(); length++) {
    EXPECT_EQ(outcomeOf(*services, document.substr(0, length)).result, Result::parseException)
        << length;
  }
}

// By schemas that let everything in, so that it is the cut alone that is refused.
TEST(HostileDamage, CutAnywhereADocumentOfAnyKindIsRefused) {
  for (const hostile::Kind& kind : hostile::kinds) {
    SCOPED_TRACE(kind.label);
    const bool isDictionary = hostile::isDictionary(kind);
    const std::string outer = isDictionary ? "dataItems" : "operations";
    const std::string inner = isDictionary ? "group" : "operation";
    const test::TempDirectory schemas;
    schemas.write(kind.own.schemaFile, hostile::laxSchema(kind.own.uri, {kind.root, outer, inner}));
    const auto services = test::servicesWithoutSchemas();
    services->setSchemaLocation(schemas.path().c_str());
    const auto resultOf = [&](const std::string& document) {
      return isDictionary ? outcomeOf(*services, document).result
                          : test::serviceOutcomeOf(*services, document).result;
    };
    const std::string document = hostile::documentOf(
        kind,
        "<!-- c --><?p i?><" + outer + "><" + inner + " name='N'>t&amp;&#65;<![CDATA[c]]></" +
            inner + "></" + outer + ">",
        "",
        "<?xml version='1.0' encoding='UTF-8'?>" + std::string("<!DOCTYPE ") + kind.root +
            " [<!ENTITY e 'x'>]>");
    ASSERT_EQ(resultOf(document), Result::root);
    for (std::size_t length = 0; length < document.size(); length++) {
      EXPECT_EQ(resultOf(document.substr(0, length)), Result::parseException) << length;
    }
  }
}

// A byte in place of each of the document's.
class HostileByte : public testing::TestWithParam<int> {};

// These are nowhere right where they were not before.
TEST_P(HostileByte, AnywhereMakesTheDocumentBad) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  const char byte = static_cast<char>(GetParam());
  for (std::size_t at = 0; at < document.size(); at++) {
    if (document[at] == byte) continue;
    std::string damaged = document;
    damaged[at] = byte;
    EXPECT_THAT(outcomeOf(*services, damaged).result,
                AnyOf(Result::parseException, Result::namespaceException))
        << at;
  }
}

INSTANTIATE_TEST_SUITE_P(All, HostileByte, testing::Values(0x00, 0x01, '<', '&', '"', 0x80, 0xFF),
                         [](const auto& row) { return std::to_string(row.param); });

// These may stand where others stood.
class HarmlessByte : public testing::TestWithParam<int> {};

TEST_P(HarmlessByte, AnywhereEndsInAModelOrAnException) {
  const auto services = test::newServices();
  const std::string document = smallDocument();
  for (std::size_t at = 0; at < document.size(); at++) {
    std::string damaged = document;
    damaged[at] = static_cast<char>(GetParam());
    const auto outcome = outcomeOf(*services, damaged);
    EXPECT_THAT(outcome.result,
                AnyOf(Result::root, Result::parseException, Result::namespaceException))
        << at;
    if (outcome.root) {
      EXPECT_EQ(outcome.root->getDataItems()->getLength(), 1) << at;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, HarmlessByte, testing::Values(' ', '>', '/', ':', 'x', '\n'),
                         [](const auto& row) { return std::to_string(row.param); });

}  // namespace
