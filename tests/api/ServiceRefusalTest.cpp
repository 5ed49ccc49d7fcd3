// Tests of the requests for services on documents that are none.
#include <gtest/gtest.h>

#include <string>

#include "api/ServiceRequest.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Requests.h"
#include "support/ServiceForms.h"
#include "support/TempDirectory.h"

namespace {

using test::namespaceText;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;

class ServiceRefusal : public ServiceRequest {
 protected:
  // Makes the request in its two ways and expects `result`: as an exception or as its text.
  void expect(Result result, const std::string& document, const std::string& text) {
    SCOPED_TRACE(document);
    for (const bool loadProgram : {false, true}) {
      expectFailure(request(document, loadProgram), result, text);
    }
  }
};

TEST_P(ServiceRefusal, RefusesADictionary) {
  expect(Result::namespaceException, test::dictionary(""), namespaceText);
  expect(Result::namespaceException, test::dictionaryOf("<numeric name='N'/>"), namespaceText);
}

TEST_P(ServiceRefusal, RefusesThePlainServiceNamespace) {
  expect(Result::namespaceException,
         "<service xmlns='" + std::string(as::namespaces::service.uri) + "'/>", namespaceText);
}

TEST_P(ServiceRefusal, RefusesARootInNoOrAnotherNamespace) {
  for (const char* document :
       {"<service/>", "<service xmlns='urn:other'/>", "<service xmlns=''><operations/></service>",
        "<service><broken", "<!DOCTYPE service [<!ELEMENT service ANY>]><service/>"}) {
    expect(Result::namespaceException, document, namespaceText);
  }
  expect(Result::namespaceException,
         "<service xmlns='" + std::string(as::namespaces::ws.uri) + "/'/>", namespaceText);
}

TEST_P(ServiceRefusal, TellsADocumentThatIsNotWellFormed) {
  expect(Result::parseException, "", "invalid document structure");
  expect(Result::parseException, "no markup", "invalid document structure");
  expect(Result::parseException, "<service", "");
  expect(Result::parseException, "<1/>", "");
}

TEST_P(ServiceRefusal, GivesOnlyTheTextOfTheNamespaceFailure) {
  const auto outcome = request("<service/>", false);
  EXPECT_EQ(errorText_, GetParam().tellsText ? namespaceText : errorTextBefore);
  EXPECT_EQ(outcome.root, nullptr);
}

TEST_P(ServiceRefusal, RefusesWhatNoServiceHolds) {
  const struct {
    const char* label;
    const char* text;  // What is put in ...
    const char* at;    // ... in front of this.
    const char* message;
  } rows[] = {
      {"an unknown element", "<bogus/>", "<operations>", "'bogus'"},
      {"an element out of place", "<mapping/>", "<operations>", "'mapping'"},
      {"an unknown attribute", " bogus=\"1\"", " entryPoint", "'bogus'"},
      {"a bad number", " occurs=\"x\"", "><mappings>", "'x'"},
      {"text", "text", "<operations>", "character data"},
      {"blanks in a section of their own", "<![CDATA[ ]]>", "<operations>", "character data"},
      {"an unknown entity", "&unknown;", "<operations>", "'unknown'"},
      {"an end too many", "</service>", "</service>", ""},
  };
  for (const test::Flavour& flavour : test::flavours::all) {
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(flavour.label) + " with " + row.label);
      std::string document = serviceOf(flavour, "none.xml");
      document.insert(document.find(row.at), row.text);
      expectFailure(request(document, false), Result::parseException, row.message);
    }
  }
}

// A document that is bad itself never gets as far as its dictionary.
TEST_P(ServiceRefusal, TellsOfTheServiceFirst) {
  std::string document = javaServiceOf("none.xml");
  document.insert(document.find("<operations>"), "<bogus/>");
  const auto outcome = request(document, true);
  expectFailure(outcome, Result::parseException, "'bogus'");
}

INSTANTIATE_TEST_SUITE_P(Forms, ServiceRefusal, testing::ValuesIn(test::serviceForms),
                         test::labelOf<test::ServiceForm>);

TEST(ServiceRefusalOfAFile, TellsAMissingFile) {
  const auto services = test::newServices();
  const TempDirectory directory;
  const std::string file = directory.path() + "/missing.xml";
  const std::string text = "unable to open primary document entity '" + file + "'";
  std::string errorText;
  EXPECT_EQ(services->parseService(file.c_str(), errorText, false), nullptr);
  EXPECT_EQ(errorText, text);
  const auto outcome = outcomeOf([&] { return services->parseService(file.c_str(), false); });
  EXPECT_EQ(outcome.result, Result::parseException);
  EXPECT_EQ(outcome.text, text);
  EXPECT_EQ(outcome.message.getErrorCode(), 66);
}

TEST(ServiceRefusalOfAFile, NothingIsNoDocument) {
  const auto services = test::newServices();
  std::string errorText;
  EXPECT_EQ(services->parseService(nullptr, errorText, true), nullptr);
  EXPECT_NE(errorText, "");
  errorText.clear();
  EXPECT_EQ(services->parseService(nullptr, nullptr, 7, errorText, true), nullptr);
  EXPECT_NE(errorText, "");
  EXPECT_EQ(outcomeOf([&] { return services->parseService(nullptr, false); }).result,
            Result::parseException);
  EXPECT_EQ(outcomeOf([&] { return services->parseService(nullptr, nullptr, 7, false); }).result,
            Result::parseException);
}

}  // namespace
