// Tests of what the service model does behind its interfaces: binding to a program, type
// definitions, new elements, and the builder.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "java/JavaFactory.h"
#include "java/JavaOperationImpl.h"
#include "java/JavaParameterImpl.h"
#include "java/VorJHandler.h"
#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/ParameterImpl.h"
#include "service/ServiceImpl.h"
#include "support/Documents.h"
#include "support/Dom.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/Wrappers.h"
#include "xml/Vocabulary.h"

namespace {

std::unique_ptr<CServiceImpl> newJavaService() {
  auto factory = std::make_unique<CJavaFactory>();
  std::unique_ptr<CServiceImpl> service = factory->createService();
  service->setFactory(std::move(factory));
  return service;
}

std::string attribute(const CElementImpl& wrapper, const XMLCh* name) {
  return test::narrow(wrapper.getElement()->getAttribute(name));
}

using test::classAt;

TEST(ServiceImpl, WritesTheWordOfEveryType) {
  const auto service = newJavaService();
  const char* const words[] = {"ws", "java", "com", "xd", "dotnet"};
  for (int type = 0; type < 5; type++) {
    service->setImplementation(static_cast<as::IService::TYPE>(type));
    EXPECT_EQ(attribute(*service, u"implementation"), words[type]);
    EXPECT_EQ(service->getImplementation(), type);
  }
}

TEST(ServiceImpl, LeavesTheWordAloneForOtherNumbers) {
  const auto service = newJavaService();
  for (const int other : {5, 99, -1}) {
    service->setImplementation(static_cast<as::IService::TYPE>(other));
    EXPECT_EQ(attribute(*service, u"implementation"), "java");
  }
}

TEST(ServiceImpl, ReadsWordsExactly) {
  const struct {
    const XMLCh* word;
    int type;
  } rows[] = {{u"java", 1}, {u"xd", 3},   {u"com", 2},   {u"dotnet", 4}, {u"ws", 0},
              {u"", 0},     {u"Java", 0}, {u"java ", 0}, {u"other", 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(CServiceImpl::GetImplementation(row.word), row.type) << test::narrow(row.word);
  }
}

TEST(ServiceImplDeathTest, NullProgramEndsTheProcess) {
  const auto service = newJavaService();
  EXPECT_DEATH(service->setProgram(nullptr), "ServiceImpl:.*Assertion `pProgram' failed");
}

TEST(ServiceImpl, WritesTheFileNameOfTheDictionary) {
  const struct {
    const char* uri;
    const char* fileName;
  } rows[] = {
      {"/dir/sub/pay.roll.xml", "pay.roll.xml"},
      {"pay.xml", "pay.xml"},
      {"file:///dir/pay.xml", "pay.xml"},
      {"dir\\pay.xml", "dir\\pay.xml"},

      {"/pay", "pay"},
  };
  for (const auto& row : rows) {
    const auto service = newJavaService();
    service->setProgram(test::parse(test::dictionary(""), row.uri).release());
    EXPECT_EQ(service->getDDFilename(), row.fileName);
    EXPECT_EQ(attribute(*service, u"programName"), "PAYROLL");
  }
}

TEST(ServiceImpl, KeepsAUriThatNamesNoFile) {
  const auto service = newJavaService();
  service->setProgram(test::parse(test::dictionary(""), "file:///dir/").release());
  EXPECT_EQ(service->getDDFilename(), "file:///dir/");
}

TEST(ServiceImpl, ReplacesItsProgram) {
  const auto service = newJavaService();
  service->setProgram(test::parse(test::dictionary("")).release());
  as::IProgram* const second = test::parse(test::dictionary("")).release();
  service->setProgram(second);
  service->setProgram(second);
  EXPECT_EQ(service->getProgram(), second);
}

TEST(ServiceImpl, FindsTheFirstTypeDefinitionOfAName) {
  test::Dom dom(
      "<service><parameterTypeDefs><parameter name='A' occurs='1'/><parameter name='A' "
      "occurs='2'/><parameter name='B'/></parameterTypeDefs></service>");
  CVorJHandler handler;
  for (auto* list = dom.root()->getFirstElementChild(); list != nullptr;
       list = list->getNextElementSibling()) {
    for (auto* child = list->getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
      handler.newElement(child);
    }
    handler.newElement(list);
  }
  handler.newElement(dom.root());
  handler.endParse(dom.document());
  const auto service = handler.takeService();
  ASSERT_NE(service, nullptr);
  ASSERT_NE(service->getPrototypeByName("A"), nullptr);
  EXPECT_EQ(service->getPrototypeByName("A")->getOccurs(), 1);
  EXPECT_EQ(service->getPrototypeByName("B")->getName(), "B");
  EXPECT_EQ(service->getPrototypeByName("C"), nullptr);
  EXPECT_EQ(service->getPrototypeByName("a"), nullptr);
  EXPECT_NE(service->getServiceFactory(), nullptr) << "a parsed service has its flavour's";
  EXPECT_EQ(CElementImpl::rootOf(dom.root()), static_cast<CElementImpl*>(service.get()));
}

// The second time definitions could find those behind them, and so lead back to themselves.
TEST(ServiceImpl, CollectingAgainResolvesNoMoreReferences) {
  test::Dom dom(
      "<service><parameterTypeDefs><parameter name='A' ref='B'/><parameter name='B' ref='A'/>"
      "</parameterTypeDefs></service>");
  CVorJHandler handler;
  test::buildWrappers(handler, dom.root());
  handler.endParse(dom.document());
  const auto service = handler.takeService();
  ASSERT_NE(service, nullptr);
  service->collectChildren();
  EXPECT_EQ(service->getParameterTypeDefs()->getLength(), 2);
  EXPECT_EQ(service->getPrototypeByName("A")->getReferenceType(), nullptr);
  EXPECT_EQ(service->getPrototypeByName("B")->getReferenceType(),
            static_cast<as::IParameter*>(service->getPrototypeByName("A")));
}

TEST(ServiceImpl, HasNoTypeDefinitionsWithoutTheirList) {
  test::Dom dom("<service/>");
  CServiceImpl service(dom.root());
  service.collectChildren();
  EXPECT_EQ(service.getPrototypeByName("A"), nullptr);
}

TEST(ServiceImpl, IgnoresANullOperation) {
  const auto service = newJavaService();
  service->addOperation(static_cast<as::IOperation*>(nullptr));
  EXPECT_EQ(service->getOperations()->getLength(), 0);
}

TEST(VorSHandler, WrapsEachElementByItsLocalName) {
  const struct {
    const char* element;
    const char* plain;
    const char* java;
  } rows[] = {
      {"field", "CParameterImpl", "CJavaParameterImpl"},
      {"parameter", "CParameterImpl", "CJavaParameterImpl"},
      {"operations", "CList", "CList"},
      {"parameters", "CList", "CList"},
      {"hiddenParameter", "CHiddenParameterImpl", "CHiddenParameterImpl"},
      {"operation", "COperationImpl", "CJavaOperationImpl"},
      {"service", "CServiceImpl", "CServiceImpl"},
      {"mapping", "CMappingImpl", "CMappingImpl"},
      {"hiddenParameters", "CList", "CList"},
      {"mappings", "CList", "CList"},
      {"parameterTypeDefs", "CList", "CList"},
      {"properties", "CList", "CList"},
      {"property", "CPropertyImpl", "CPropertyImpl"},
  };
  for (const auto& row : rows) {
    test::Dom dom("<x:" + std::string(row.element) + " xmlns:x='urn:any'/>");
    CVorSHandler plain;
    plain.newElement(dom.root());
    EXPECT_EQ(classAt(dom.root()), row.plain) << row.element;
    CVorJHandler java;
    java.newElement(dom.root());
    EXPECT_EQ(classAt(dom.root()), row.java) << row.element;
  }
}

TEST(VorSHandlerDeathTest, AnUnknownElementEndsTheProcess) {
  for (const char* name : {"header", "group", "Service"}) {
    test::Dom dom("<" + std::string(name) + "/>");
    EXPECT_DEATH(CVorSHandler().newElement(dom.root()), "VorSHandler:.*Assertion `false' failed");
    EXPECT_DEATH(CVorJHandler().newElement(dom.root()), "VorSHandler:.*Assertion `false' failed");
  }
}

TEST(MappingImpl, NormalizedNameOfNothingIsEmpty) { EXPECT_EQ(GetNormalizedName(nullptr), ""); }

TEST(MappingImpl, KnowsTheFieldThatItBelongsTo) {
  const auto service = newJavaService();
  as::IParameter* const parameter =
      service->addOperation("o", nullptr)->addParameter(as::IParameter::BY_IN, "p", 1);
  const auto program = test::parse(test::dictionaryOf("<numeric name='N'/>"));
  auto* const mapping = as::interface_cast<CMappingImpl>(
      parameter->addMapping(test::topItem<as::IDataItem>(*program)));
  ASSERT_NE(mapping, nullptr);
  EXPECT_EQ(mapping->getField(), static_cast<as::IField*>(parameter));
}

}  // namespace
