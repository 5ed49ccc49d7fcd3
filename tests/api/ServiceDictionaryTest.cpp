// Tests of the requests for services with their programs: how the dictionary that a service names
// is found, read and missed.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

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
using ServiceDictionary = ServiceRequest;

// Where the dictionary is found.

TEST_P(ServiceDictionary, FindsTheDictionaryByItsName) {
  directory_.write("PAY.xml", test::payProgram());
  directory_.write("sub/deep/PAY.xml", test::payProgram());
  directory_.write("with blank.xml", test::payProgram());
  directory_.write("Pr\xC3\xA4mie/\xE4\xB8\xAD.xml", test::payProgram());
  const std::string path = directory_.path();
  const struct {
    std::string name;
    const char* left;  // The name in the service afterwards.
  } rows[] = {
      {"PAY.xml", "PAY.xml"},
      {"./PAY.xml", "PAY.xml"},
      {"sub/deep/PAY.xml", "PAY.xml"},
      {"sub/../PAY.xml", "PAY.xml"},
      {"sub//deep/PAY.xml", "PAY.xml"},
      {"with blank.xml", "with blank.xml"},
      {"Pr\xC3\xA4mie/\xE4\xB8\xAD.xml", "\xE4\xB8\xAD.xml"},
      {path + "/PAY.xml", "PAY.xml"},
      {path + "/sub/deep/PAY.xml", "PAY.xml"},
      {"file://" + path + "/sub/deep/PAY.xml", "PAY.xml"},
      {"file://localhost" + path + "/PAY.xml", "PAY.xml"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto service = loaded(javaServiceOf(row.name));
    ASSERT_NE(service, nullptr);
    ASSERT_NE(service->getProgram(), nullptr);
    EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
    EXPECT_EQ(service->getDDFilename(), row.left);
  }
}

TEST_P(ServiceDictionary, ARelativeNameCountsFromTheCurrentDirectory) {
  directory_.write("PAY.xml", test::payProgram());
  directory_.write("services/OTHER.xml", test::payProgram());
  const std::string good = javaServiceOf("PAY.xml");
  EXPECT_EQ(request(good, true, "services/service.xml").result, Result::root) << errorText_;
  // Beside the service is not where it is looked for.
  const std::string missing = "'" + directory_.path() + "/OTHER.xml'";
  expectFailure(request(javaServiceOf("OTHER.xml"), true, "services/service.xml"),
                Result::parseException, "unable to open primary document entity " + missing);
}

// In memory there is no file of the service, and nobody asks for it.
TEST(ServiceRequestFromMemory, TheBuffersNameHasNoPartInFindingTheDictionary) {
  const test::CurrentDirectory directory;
  directory.write("PAY.xml", test::payProgram());
  const std::string document = javaServiceOf("PAY.xml");
  for (const char* const id :
       {"service.xml", "", "/no/such/place/service.xml", "no/such.xml", "http://127.0.0.1/s.xml"}) {
    SCOPED_TRACE(id);
    const auto outcome = outcomeOf([&] {
      return test::newServices()->parseService(id, test::bytesOf(document),
                                               test::lengthOf(document), true);
    });
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_NE(outcome.root->getProgram(), nullptr);
  }
}

// When the dictionary is missed.

struct BadDictionary {
  const char* label;
  const char* name;     // What the service says.
  const char* content;  // What PAY.xml holds; null for no such file.
  Result result;
  const char* text;
};

std::vector<BadDictionary> badDictionaries() {
  static const std::string ofAnotherRoot =
      "<group xmlns='" + std::string(as::namespaces::dd.uri) + "' name='G'/>";
  static const std::string invalid = test::dictionaryOf("<bogus/>");
  static const std::string broken = test::dictionaryOf("<group name='G'>");
  static const std::string service = javaServiceOf("PAY.xml");
  static const std::string plainService =
      "<service xmlns='" + std::string(as::namespaces::service.uri) + "'/>";
  static const std::string external =
      "<!DOCTYPE program [<!ENTITY e SYSTEM 'e.xml'>]>" + test::dictionaryOf("&e;");
  const Result parse = Result::parseException;
  return {
      {"missing", "PAY.xml", nullptr, parse, "unable to open primary document entity"},
      {"in a missing directory", "no/such/PAY.xml", "", parse,
       "unable to open primary document entity"},
      {"without a name", "", nullptr, parse, ""},
      {"empty", "PAY.xml", "", parse, "invalid document structure"},
      {"no XML", "PAY.xml", "IDENTIFICATION DIVISION.", parse, "invalid document structure"},
      {"not well-formed", "PAY.xml", broken.c_str(), parse, "expected end of tag 'group'"},
      {"cut", "PAY.xml", "<program", parse, ""},
      {"invalid", "PAY.xml", invalid.c_str(), parse, "no declaration found for element 'bogus'"},
      {"of another root", "PAY.xml", ofAnotherRoot.c_str(), parse, "'group'"},
      {"with an external entity", "PAY.xml", external.c_str(), parse, "e.xml"},
      {"a directory", ".", nullptr, parse, "is a directory"},
      {"on a network", "http://127.0.0.1/PAY.xml", nullptr, parse, "not read over a network"},
      {"a service", "PAY.xml", service.c_str(), Result::namespaceException, namespaceText},
      {"the service itself", "service.xml", nullptr, Result::namespaceException, namespaceText},
      {"a plain service", "PAY.xml", plainService.c_str(), Result::namespaceException,
       namespaceText},
      {"of no namespace", "PAY.xml", "<program name='P'/>", Result::namespaceException,
       namespaceText},
      {"of another namespace", "PAY.xml", "<program xmlns='urn:x'/>", Result::namespaceException,
       namespaceText},
      {"a schema", "PAY.xml", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'/>",
       Result::namespaceException, namespaceText},
  };
}

TEST_P(ServiceDictionary, FailsAsItsDictionaryFails) {
  for (const BadDictionary& row : badDictionaries()) {
    for (const test::Flavour& flavour : test::flavours::all) {
      SCOPED_TRACE(std::string("the dictionary is ") + row.label + ", " + flavour.label);
      if (row.content != nullptr) directory_.write("PAY.xml", row.content);
      const std::string document = serviceOf(flavour, row.name);
      directory_.write("service.xml", document);
      expectFailure(requestAgain(document, true), row.result, row.text);
      std::filesystem::remove("PAY.xml");
    }
  }
}

TEST_P(ServiceDictionary, WithoutLoadingDoesNotLookAtTheDictionary) {
  for (const BadDictionary& row : badDictionaries()) {
    SCOPED_TRACE(std::string("the dictionary is ") + row.label);
    if (row.content != nullptr) directory_.write("PAY.xml", row.content);
    const auto outcome = request(javaServiceOf(row.name), false);
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_EQ(outcome.root->getProgram(), nullptr);
    EXPECT_EQ(outcome.root->getDDFilename(), row.name);
    EXPECT_EQ(errorText_, errorTextBefore);
    std::filesystem::remove("PAY.xml");
  }
}

TEST_P(ServiceDictionary, WithoutADictionaryAttributeFailsOnLoadingOnly) {
  const std::string document = test::javaService("name='Pay'", "<operations/>");
  EXPECT_EQ(request(document, false).result, Result::root);
  expectFailure(request(document, true), Result::parseException, "");
}

// The exception is the dictionary's own.
TEST(ServiceRequestThatThrows, TellsThePlaceInTheDictionary) {
  const test::CurrentDirectory directory;
  const std::string dictionary =
      directory.write("sub/PAY.xml", test::dictionary("\n<dataItems>\n  <bogus/></dataItems>"));
  const std::string document = javaServiceOf("sub/PAY.xml");
  directory.write("service.xml", document);
  for (const test::ServiceForm& form : test::serviceForms) {
    if (form.tellsText) continue;
    SCOPED_TRACE(form.label);
    std::string unused;
    const auto outcome = outcomeOf(
        [&] { return form.request(*test::newServices(), "service.xml", document, unused, true); });
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_TRUE(std::filesystem::equivalent(outcome.message.getSystemId(), dictionary))
        << outcome.message.getSystemId();
    EXPECT_EQ(outcome.message.getLineNum(), 3);
    EXPECT_EQ(outcome.message.getErrorCode(), 2);
  }
}

TEST_P(ServiceDictionary, TellsTheMissingDictionaryLikeARequestForIt) {
  const auto alone = outcomeOf([&] { return services_->parseCobolDD("none.xml"); });
  ASSERT_EQ(alone.result, Result::parseException);
  expectFailure(request(javaServiceOf("none.xml"), true), Result::parseException, alone.text);
}

TEST_P(ServiceDictionary, GoesWellAfterAFailure) {
  const std::string document = javaServiceOf("PAY.xml");
  expectFailure(request(document, true), Result::parseException, "PAY.xml");
  directory_.write("PAY.xml", "<broken");
  expectFailure(request(document, true), Result::parseException, "");
  directory_.write("PAY.xml", test::payProgram());
  const auto service = loaded(document);
  ASSERT_NE(service, nullptr);
  EXPECT_NE(service->getProgram(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Forms, ServiceDictionary, testing::ValuesIn(test::serviceForms),
                         test::labelOf<test::ServiceForm>);

}  // namespace
