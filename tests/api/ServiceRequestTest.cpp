// Tests of the requests for services: what comes of good documents of each flavour in the four
// forms of the request.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "api/ServiceRequest.h"
#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/ServiceForms.h"

namespace {

using test::itemOf;
using test::mappingOf;
using test::operationOf;
using test::parameterOf;
using test::Result;

template <class T>
bool is(as::IElement* element) {
  return as::interface_cast<T>(element) != nullptr;
}

// What the parameters of each flavour are.
const struct {
  test::Flavour flavour;
  bool (*isParameter)(as::IElement* element);
} parameters[] = {
    {test::flavours::web, is<as::IWSParameter>},
    {test::flavours::com, is<as::ICOMParameter>},
    {test::flavours::java, is<as::IJavaParameter>},
    {test::flavours::dotNet, is<as::IDotNETParameter>},
};

// Good documents.

TEST_P(ServiceRequest, GivesAServiceOfTheFlavour) {
  directory_.write("PAY.xml", test::payProgram());
  for (const test::Flavour& flavour : test::flavours::all) {
    for (const bool loadProgram : {false, true}) {
      SCOPED_TRACE(std::string(flavour.label) + (loadProgram ? " loaded" : ""));
      const auto outcome = request(serviceOf(flavour, "PAY.xml"), loadProgram);
      ASSERT_EQ(outcome.result, Result::root) << outcome.text << errorText_;
      as::IService* const service = outcome.root.get();
      EXPECT_EQ(service->getName(), "Pay");
      EXPECT_EQ(is<as::IWebService>(service), flavour.implementation == as::IService::TYPE_WS);
      EXPECT_EQ(is<as::IDotNET>(service), flavour.implementation == as::IService::TYPE_DOTNET);
      for (const auto& other : parameters) {
        EXPECT_EQ(other.isParameter(parameterOf(*service)),
                  other.flavour.implementation == flavour.implementation)
            << other.flavour.label;
      }
    }
  }
}

TEST_P(ServiceRequest, LeavesTheErrorTextAsItWasOnSuccess) {
  directory_.write("PAY.xml", test::payProgram());
  for (const test::Flavour& flavour : test::flavours::all) {
    for (const bool loadProgram : {false, true}) {
      const auto outcome = request(serviceOf(flavour, "PAY.xml"), loadProgram);
      EXPECT_EQ(outcome.result, Result::root) << flavour.label;
      EXPECT_EQ(errorText_, errorTextBefore) << flavour.label;
    }
  }
}

TEST_P(ServiceRequest, WithoutLoadingHasNoProgram) {
  directory_.write("PAY.xml", test::payProgram());
  for (const test::Flavour& flavour : test::flavours::all) {
    SCOPED_TRACE(flavour.label);
    const auto outcome = request(serviceOf(flavour, "./PAY.xml"), false);
    ASSERT_EQ(outcome.result, Result::root);
    EXPECT_EQ(outcome.root->getProgram(), nullptr);
    EXPECT_EQ(outcome.root->getDDFilename(), "./PAY.xml");
    EXPECT_EQ(outcome.root->getAttributeValue("programName"), "");
    EXPECT_EQ(operationOf(*outcome.root)->getEntryPoint(), nullptr);
    EXPECT_EQ(mappingOf(*outcome.root)->getDataItem(), nullptr);
  }
}

TEST_P(ServiceRequest, LoadingBindsTheServiceToItsProgram) {
  directory_.write("PAY.xml", test::payProgram());
  for (const test::Flavour& flavour : test::flavours::all) {
    SCOPED_TRACE(flavour.label);
    const auto service = loaded(serviceOf(flavour, "PAY.xml"));
    ASSERT_NE(service, nullptr);
    ASSERT_NE(service->getProgram(), nullptr);
    EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
    EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL");
    EXPECT_EQ(operationOf(*service)->getEntryPoint(),
              itemOf<as::IEntryPoint>(service->getProgram()->getEntryPoints(), 0));
    as::IDataItem* const item = mappingOf(*service)->getDataItem();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->getName(), "TITLE");
  }
}

TEST_P(ServiceRequest, MakesAModelOfItsOwnEachTime) {
  directory_.write("PAY.xml", test::payProgram());
  const auto first = loaded(javaServiceOf("PAY.xml"));
  const auto second = loaded(javaServiceOf("PAY.xml"));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first->getProgram(), second->getProgram());
  first->setName("changed");
  EXPECT_EQ(second->getName(), "Pay");
}

TEST_P(ServiceRequest, OutlivesItsFilesBuffersAndEntryObject) {
  std::unique_ptr<as::IService> service;
  {
    const std::unique_ptr<as::IAgentServices> services = test::newServices();
    std::string document = javaServiceOf("PAY.xml");
    directory_.write("PAY.xml", test::payProgram());
    directory_.write("service.xml", document);
    service.reset(GetParam().request(*services, "service.xml", document, errorText_, true));
    std::filesystem::remove("PAY.xml");
    std::filesystem::remove("service.xml");
    document.assign(document.size(), '?');
  }
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getName(), "Pay");
  ASSERT_NE(mappingOf(*service)->getDataItem(), nullptr);
  EXPECT_EQ(mappingOf(*service)->getDataItem()->getLength(), 10);
}

INSTANTIATE_TEST_SUITE_P(Forms, ServiceRequest, testing::ValuesIn(test::serviceForms),
                         test::labelOf<test::ServiceForm>);

}  // namespace
