// Tests of the schemas that requests for services validate against.
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

namespace {

using test::Result;

class SchemasOfAServiceRequest : public ServiceRequest {
 protected:
  // Copies a schema into the directory that the entry object is then told of.
  void use(const std::string& schema) {
    std::filesystem::create_directory("schemas");
    std::filesystem::copy_file(std::filesystem::path(AS_SCHEMA_DIR) / schema, "schemas/" + schema);
    services_->setSchemaLocation((directory_.path() + "/schemas").c_str());
  }
};

TEST_P(SchemasOfAServiceRequest, AreThoseOfTheServicesFlavourAndOfTheDictionary) {
  directory_.write("PAY.xml", test::payProgram());
  use("vorjava.xsd");
  const std::string document = javaServiceOf("PAY.xml");
  EXPECT_EQ(request(document, false).result, Result::root);
  expectFailure(request(document, true), Result::parseException,
                "'" + directory_.path() + "/schemas/vorcobol.xsd'");
  use("vorcobol.xsd");
  EXPECT_EQ(request(document, true).result, Result::root) << errorText_;
  expectFailure(request(serviceOf(test::flavours::web, "PAY.xml"), false), Result::parseException,
                "'" + directory_.path() + "/schemas/vorws.xsd'");
}

// A schema of the client's own may allow other roots.
TEST_P(SchemasOfAServiceRequest, ThatAllowOtherRootsGiveNullAndNoText) {
  const std::string ns = as::namespaces::java.uri;
  const std::vector<std::string> roots = {"operations", "operation", "parameter", "mapping",
                                          "properties"};
  directory_.write("own/vorjava.xsd", test::schemaOfRoots(ns, roots));
  services_->setSchemaLocation("own");
  for (const std::string& root : roots) {
    for (const bool loadProgram : {false, true}) {
      SCOPED_TRACE(root);
      const auto outcome = request(
          test::element(root, "", test::declarations(ns, ns + " vorjava.xsd")), loadProgram);
      EXPECT_EQ(outcome.result, Result::null) << outcome.text;
      EXPECT_EQ(errorText_, errorTextBefore);
    }
  }
}

TEST_P(SchemasOfAServiceRequest, ThatMakeTheDictionaryNoProgramLeaveTheServiceWithoutOne) {
  use("vorjava.xsd");
  const std::string ns = as::namespaces::dd.uri;
  directory_.write("schemas/vorcobol.xsd", test::schemaOfRoots(ns, {"dataItems"}));
  directory_.write("sub/PAY.xml",
                   test::element("dataItems", "", test::declarations(ns, ns + " vorcobol.xsd")));
  const auto service = loaded(javaServiceOf("sub/PAY.xml"));
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getProgram(), nullptr);
  EXPECT_EQ(service->getDDFilename(), "sub/PAY.xml");
  EXPECT_EQ(service->getAttributeValue("programName"), "");
}

INSTANTIATE_TEST_SUITE_P(Forms, SchemasOfAServiceRequest, testing::ValuesIn(test::serviceForms),
                         test::labelOf<test::ServiceForm>);

}  // namespace
