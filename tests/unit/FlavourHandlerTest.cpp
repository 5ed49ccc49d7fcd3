// Tests of the builders of the service flavours: what each wraps an element in, where the wrapper
// goes, and how the model is completed.
#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "com/VorCHandler.h"
#include "dotnet/VorDotNETHandler.h"
#include "frame/DelegatingHandler.h"
#include "java/VorJHandler.h"
#include "service/VorSHandler.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/VorWSHandler.h"
#include "xml/List.h"
#include "xml/Vocabulary.h"

namespace {

using test::buildWrappers;
using test::classAt;
using test::classOf;
using test::makeHandler;

struct Builder {
  const char* label;
  std::shared_ptr<CVorSHandler> (*make)();
};

constexpr Builder plain = {"Plain", makeHandler<test::PlainHandler>};
constexpr Builder web = {"Web", makeHandler<CVorWSHandler>};
constexpr Builder com = {"COM", makeHandler<CVorCHandler>};
constexpr Builder java = {"Java", makeHandler<CVorJHandler>};
constexpr Builder dotNet = {"DotNET", makeHandler<CVorDotNETHandler>};

// What each builder wraps. The plain words and the Java builder have a table beside the service's.

struct Wrapping {
  Builder builder;
  const char* element;
  const char* ownClass = "";  // Of the wrapper.
};

void PrintTo(const Wrapping& wrapping, std::ostream* out) {
  *out << wrapping.builder.label << " " << wrapping.element;
}

class FlavourWrapping : public testing::TestWithParam<Wrapping> {};

std::vector<Wrapping> wrappings() {
  std::vector<Wrapping> rows = {
      {web, "field", "CWSParameterImpl"},
      {web, "parameter", "CWSParameterImpl"},
      {web, "fieldAttribute", "CWSParameterImpl"},
      {web, "service", "CWebServiceImpl"},
      {web, "operation", "CWSOperationImpl"},
      {web, "header", "CWSHeaderImpl"},
      {web, "fault", "CWSFaultImpl"},
      {com, "field", "CCOMParameterImpl"},
      {com, "parameter", "CCOMParameterImpl"},
      {com, "service", "CServiceImpl"},
      {com, "operation", "COperationImpl"},
      {dotNet, "field", "CDotNETParameterImpl"},
      {dotNet, "parameter", "CDotNETParameterImpl"},
      {dotNet, "service", "CDotNETImpl"},
      {dotNet, "operation", "CDotNETOperationImpl"},
  };
  // Everything else is as in a plain service.
  for (const Builder& builder : {web, com, dotNet}) {
    for (const auto& [element, ownClass] : {std::pair{"operations", "CList"},
                                            {"parameters", "CList"},
                                            {"hiddenParameter", "CHiddenParameterImpl"},
                                            {"mapping", "CMappingImpl"},
                                            {"hiddenParameters", "CList"},
                                            {"mappings", "CList"},
                                            {"parameterTypeDefs", "CList"},
                                            {"properties", "CList"},
                                            {"property", "CPropertyImpl"}}) {
      rows.push_back({builder, element, ownClass});
    }
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Builders, FlavourWrapping, testing::ValuesIn(wrappings()),
                         [](const auto& value) {
                           return std::string(value.param.builder.label) + "_" +
                                  value.param.element;
                         });

TEST_P(FlavourWrapping, GoesByTheLocalName) {
  const std::string name = GetParam().element;
  for (const std::string& document :
       {"<" + name + "/>", "<" + name + " xmlns='urn:any'/>", "<x:" + name + " xmlns:x='urn:any'/>",
        "<x:" + name + " xmlns:x='urn:any' name='service'><other/>text</x:" + name + ">"}) {
    test::Dom dom(document);
    const auto handler = GetParam().builder.make();
    EXPECT_TRUE(handler->takes(dom.root())) << document;
    handler->newElement(dom.root());
    EXPECT_EQ(classAt(dom.root()), GetParam().ownClass) << document;
  }
}

TEST_P(FlavourWrapping, IsFoundByTheElement) {
  test::Dom dom("<" + std::string(GetParam().element) + "/>");
  const auto handler = GetParam().builder.make();
  handler->newElement(dom.root());
  auto* const wrapper = static_cast<CElementImpl*>(dom.root()->getUserData(u"ASAPI"));
  ASSERT_NE(wrapper, nullptr);
  EXPECT_EQ(classOf(wrapper), GetParam().ownClass) << "not a list that the wrapper embeds";
  EXPECT_EQ(wrapper->getElement(), dom.root());
  EXPECT_EQ(dom.document()->getUserData(u"ASAPI"), nullptr);
  EXPECT_EQ(dom.root()->cloneNode(true)->getUserData(u"ASAPI"), nullptr)
      << "a copy of the element is wrapped by nothing";
}

// What ends the process.

class FlavourWrappingDeathTest : public testing::TestWithParam<Wrapping> {};

// The other words that are unknown to the plain and the Java builder have their own test.
INSTANTIATE_TEST_SUITE_P(Builders, FlavourWrappingDeathTest,
                         testing::ValuesIn(std::vector<Wrapping>{
                             {plain, "fault"},
                             {plain, "fieldAttribute"},
                             {java, "fault"},
                             {java, "fieldAttribute"},
                             {web, "Header"},
                             {web, "faults"},
                             {web, "group"},
                             {com, "header"},
                             {com, "fault"},
                             {com, "fieldAttribute"},
                             {com, "Field"},
                             {dotNet, "header"},
                             {dotNet, "fault"},
                             {dotNet, "fieldAttribute"},
                             {dotNet, "program"},
                         }),
                         [](const auto& value) {
                           return std::string(value.param.builder.label) + "_" +
                                  value.param.element;
                         });

TEST_P(FlavourWrappingDeathTest, AnUnknownElementEndsTheProcess) {
  const std::string name = GetParam().element;
  for (const std::string& document :
       {"<" + name + "/>", "<service:" + name + " xmlns:service='urn:any'/>"}) {
    test::Dom dom(document);
    EXPECT_FALSE(GetParam().builder.make()->takes(dom.root())) << document;
    EXPECT_DEATH(GetParam().builder.make()->newElement(dom.root()),
                 "VorSHandler:[0-9]+: .*CVorSHandler::newElement.*Assertion `false' failed")
        << document;
  }
}

// What every builder does once the document is complete.

struct Complete {
  Builder builder;
  const char* serviceClass;
  const char* operationClass;
  const char* parameterClass;
};

void PrintTo(const Complete& complete, std::ostream* out) { *out << complete.builder.label; }

constexpr Complete flavours[] = {
    {web, "CWebServiceImpl", "CWSOperationImpl", "CWSParameterImpl"},
    {com, "CServiceImpl", "COperationImpl", "CCOMParameterImpl"},
    {java, "CServiceImpl", "CJavaOperationImpl", "CJavaParameterImpl"},
    {dotNet, "CDotNETImpl", "CDotNETOperationImpl", "CDotNETParameterImpl"},
};

constexpr char serviceDocument[] =
    "<!-- comment --><?instruction?>"
    "<service><properties><property/></properties>"
    "<parameterTypeDefs><parameter name='T' occurs='7'><mappings/></parameter></parameterTypeDefs>"
    "<operations><operation>"
    "<hiddenParameters><hiddenParameter/><hiddenParameter/></hiddenParameters>"
    "<parameters><parameter ref='T'/><parameter><mappings><mapping/></mappings>"
    "<field><mappings/><field/><field/></field></parameter></parameters>"
    "</operation></operations></service>";

class FlavourBuilder : public testing::TestWithParam<Complete> {
 protected:
  // A handler that has been told of every element of `dom`, but not yet of the end.
  std::shared_ptr<CVorSHandler> built(test::Dom& dom) const {
    auto handler = GetParam().builder.make();
    buildWrappers(*handler, dom.root());
    return handler;
  }
};

std::vector<Complete> everyBuilder() {
  std::vector<Complete> all = {{plain, "CServiceImpl", "COperationImpl", "CParameterImpl"}};
  all.insert(all.end(), std::begin(flavours), std::end(flavours));
  return all;
}

INSTANTIATE_TEST_SUITE_P(Builders, FlavourBuilder, testing::ValuesIn(everyBuilder()),
                         [](const auto& value) { return std::string(value.param.builder.label); });

TEST_P(FlavourBuilder, CollectsNothingBeforeTheEnd) {
  test::Dom dom(serviceDocument);
  const auto handler = built(dom);
  EXPECT_EQ(handler->getService(), nullptr);
  EXPECT_EQ(handler->takeService(), nullptr);
  EXPECT_EQ(dom.document()->getUserData(u"ASAPI"), nullptr);
  auto* const service = as::interface_cast<as::IService>(CElementImpl::wrapperOf(dom.root()));
  ASSERT_NE(service, nullptr);
  as::IList* const empty = &CList::emptyList;
  EXPECT_EQ(service->getProperties(), empty);
  EXPECT_EQ(service->getParameterTypeDefs(), empty);
  EXPECT_EQ(service->getOperations(), empty);
}

TEST_P(FlavourBuilder, BindsTheServiceToTheDocumentAtTheEnd) {
  test::Dom dom(serviceDocument);
  const auto handler = built(dom);
  handler->endParse(dom.document());
  CElementImpl* const service = handler->getService();
  EXPECT_EQ(classOf(service), GetParam().serviceClass);
  EXPECT_EQ(service, CElementImpl::wrapperOf(dom.root()));
  EXPECT_EQ(dom.document()->getUserData(u"ASAPI"), service);
}

TEST_P(FlavourBuilder, CompletesTheModel) {
  test::Dom dom(serviceDocument);
  const auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getProperties()->getLength(), 1);
  EXPECT_EQ(service->getParameterTypeDefs()->getLength(), 1);
  ASSERT_EQ(service->getOperations()->getLength(), 1);
  auto* const operation = as::interface_cast<as::IOperation>(service->getOperations()->getItem(0));
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(operation->RTTI_vinfo().record()->name, std::string(GetParam().operationClass));
  EXPECT_EQ(operation->getHiddenParameters()->getLength(), 2);
  ASSERT_EQ(operation->getParameters()->getLength(), 2);
  auto* const referring =
      as::interface_cast<as::IParameter>(operation->getParameters()->getItem(0));
  EXPECT_EQ(as::interface_cast<as::IElement>(referring->getReferenceType()),
            service->getParameterTypeDefs()->getItem(0));
  EXPECT_EQ(referring->getOccurs(), 7);
  auto* const parameter =
      as::interface_cast<as::IParameter>(operation->getParameters()->getItem(1));
  EXPECT_EQ(parameter->RTTI_vinfo().record()->name, std::string(GetParam().parameterClass));
  EXPECT_EQ(parameter->getMappings()->getLength(), 1);
  ASSERT_EQ(parameter->getChildren()->getLength(), 1);
  auto* const field = as::interface_cast<as::IField>(parameter->getChildren()->getItem(0));
  EXPECT_EQ(field->getChildren()->getLength(), 2);
}

TEST_P(FlavourBuilder, EveryElementCarriesItsWrapperAfterwards) {
  test::Dom dom(serviceDocument);
  const auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  EXPECT_EQ(handler->getService(), nullptr) << "it is the caller's now";
  auto* const all = dom.document()->getElementsByTagName(u"*");
  ASSERT_EQ(all->getLength(), 20u);
  for (XMLSize_t i = 0; i < all->getLength(); i++) {
    CElementImpl* const wrapper = CElementImpl::wrapperOf(all->item(i));
    ASSERT_NE(wrapper, nullptr) << test::narrow(all->item(i)->getNodeName());
    EXPECT_EQ(wrapper->getElement(), all->item(i));
  }
}

TEST_P(FlavourBuilder, CompletesAPrefixedDocument) {
  test::Dom dom(
      "<x:service xmlns:x='urn:any'><x:operations><x:operation><x:parameters><x:parameter/>"
      "</x:parameters></x:operation></x:operations></x:service>");
  const auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  ASSERT_NE(service, nullptr);
  ASSERT_EQ(service->getOperations()->getLength(), 1);
  EXPECT_EQ(as::interface_cast<as::IOperation>(service->getOperations()->getItem(0))
                ->getParameters()
                ->getLength(),
            1);
}

TEST_P(FlavourBuilder, AServiceWithoutListsShowsTheEmptyOne) {
  test::Dom dom("<service/>");
  const auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  ASSERT_NE(service, nullptr);
  as::IList* const empty = &CList::emptyList;
  EXPECT_EQ(service->getProperties(), empty);
  EXPECT_EQ(service->getParameterTypeDefs(), empty);
  EXPECT_EQ(service->getOperations(), empty);
}

TEST_P(FlavourBuilder, ARootThatIsNoServiceGivesNone) {
  test::Dom dom("<operations><operation/></operations>");
  const auto handler = built(dom);
  handler->endParse(dom.document());
  EXPECT_EQ(handler->getService(), nullptr);
  EXPECT_EQ(handler->takeService(), nullptr);
  EXPECT_EQ(classAt(dom.document()), "CList") << "the root is the document's all the same";
}

// The second list of properties with its property, and what the referring parameter holds.
TEST_P(FlavourBuilder, WrappersThatNoListCollectsLiveAsLongAsTheService) {
  test::Dom dom(
      "<service><properties/><properties><property/></properties><parameterTypeDefs>"
      "<parameter name='T'/><parameter ref='T'><mappings><mapping/></mappings><field/></parameter>"
      "</parameterTypeDefs></service>");
  auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  handler.reset();
  EXPECT_EQ(classAt(dom.find(u"property")), "CPropertyImpl");
  EXPECT_EQ(classAt(dom.find(u"mapping")), "CMappingImpl");
  EXPECT_EQ(classAt(dom.find(u"field")), GetParam().parameterClass);
}

class FlavourOfParsedService : public FlavourBuilder {};

INSTANTIATE_TEST_SUITE_P(Flavours, FlavourOfParsedService, testing::ValuesIn(flavours),
                         [](const auto& value) { return std::string(value.param.builder.label); });

TEST_P(FlavourOfParsedService, IsThatOfWhatIsAdded) {
  test::Dom dom(serviceDocument);
  const auto handler = built(dom);
  handler->endParse(dom.document());
  const auto service = handler->takeService();
  ASSERT_NE(service, nullptr);
  as::IOperation* const operation = service->addOperation("added", nullptr);
  as::IParameter* const parameter = operation->addParameter(as::IParameter::BY_IN, "p", 1);
  EXPECT_EQ(operation->RTTI_vinfo().record()->name, std::string(GetParam().operationClass));
  EXPECT_EQ(parameter->RTTI_vinfo().record()->name, std::string(GetParam().parameterClass));
  EXPECT_EQ(service->getOperations()->getLength(), 2);
  EXPECT_EQ(as::interface_cast<CElementImpl>(operation)->getElement(),
            dom.find(u"operations")->getLastElementChild());
}

// What Web services have beside.

TEST(VorWSHandler, CollectsHeadersFaultsAndFieldAttributes) {
  test::Dom dom(
      "<x:service xmlns:x='urn:any'><x:operations><x:operation>"
      "<x:header use='literal'><x:parameters><x:parameter/></x:parameters></x:header>"
      "<x:fault><x:parameters><x:parameter/><x:parameter/></x:parameters></x:fault>"
      "<x:header use='encoded'/>"
      "<x:parameters><x:parameter><x:fieldAttribute name='a'/><x:field>"
      "<x:fieldAttribute name='inner'/></x:field><x:fieldAttribute name='b'/></x:parameter>"
      "</x:parameters></x:operation></x:operations></x:service>");
  CVorWSHandler handler;
  buildWrappers(handler, dom.root());
  handler.endParse(dom.document());
  const auto service = handler.takeService();
  ASSERT_NE(service, nullptr);
  auto* const operation =
      as::interface_cast<as::IWSOperation>(service->getOperations()->getItem(0));
  ASSERT_NE(operation, nullptr);
  ASSERT_EQ(operation->getHeaders()->getLength(), 2);
  auto* const first = as::interface_cast<as::IWSHeader>(operation->getHeaders()->getItem(0));
  auto* const second = as::interface_cast<as::IWSHeader>(operation->getHeaders()->getItem(1));
  EXPECT_EQ(first->getUse(), 0);
  EXPECT_EQ(first->getParameters()->getLength(), 1);
  EXPECT_EQ(second->getUse(), 1);
  EXPECT_EQ(second->getParameters(), static_cast<as::IList*>(&CList::emptyList));
  ASSERT_EQ(operation->getFaults()->getLength(), 1);
  EXPECT_EQ(as::interface_cast<as::IWSFault>(operation->getFaults()->getItem(0))
                ->getParameters()
                ->getLength(),
            2);
  auto* const parameter =
      as::interface_cast<as::IWSParameter>(operation->getParameters()->getItem(0));
  ASSERT_NE(parameter, nullptr);
  std::string names;
  as::IList* const attributes = parameter->getFieldAttributes();
  for (int i = 0; i < attributes->getLength(); i++) {
    names += as::interface_cast<as::IWSParameter>(attributes->getItem(i))->getName() + " ";
  }
  EXPECT_EQ(names, "a b ");
  EXPECT_EQ(parameter->getChildren()->getLength(), 1) << "attributes are no fields";
}

// The choice between the builders.

TEST(DelegatingHandler, BuildsTheFlavourOfTheRootsNamespace) {
  const struct {
    const XMLCh* uri;
    Complete flavour;
  } rows[] = {{XSDNS::wsURI, flavours[0]},
              {XSDNS::comURI, flavours[1]},
              {XSDNS::javaURI, flavours[2]},
              {XSDNS::dotnetURI, flavours[3]}};
  for (const auto& row : rows) {
    for (const std::string prefix : {"", "x:"}) {
      SCOPED_TRACE(row.flavour.builder.label);
      const std::string declaration = prefix.empty() ? " xmlns='" : " xmlns:x='";
      test::Dom dom("<" + prefix + "service" + declaration + test::narrow(row.uri) + "'><" +
                    prefix + "operations><" + prefix + "operation><" + prefix + "parameters><" +
                    prefix + "parameter/></" + prefix + "parameters></" + prefix + "operation></" +
                    prefix + "operations></" + prefix + "service>");
      CDelegatingHandler handler;
      handler.startDocument(dom.root());
      buildWrappers(handler, dom.root());
      EXPECT_EQ(handler.getService(), nullptr);
      handler.endParse(dom.document());
      EXPECT_EQ(classOf(handler.getService()), row.flavour.serviceClass);
      EXPECT_EQ(classAt(dom.document()), row.flavour.serviceClass);
      EXPECT_EQ(classAt(dom.find(u"operation")), row.flavour.operationClass);
      EXPECT_EQ(classAt(dom.find(u"parameter")), row.flavour.parameterClass);
      const auto service = handler.takeService();
      ASSERT_NE(service, nullptr);
      EXPECT_EQ(handler.getService(), nullptr);
    }
  }
}

TEST(DelegatingHandler, TakesWhatTheFlavourTakes) {
  const struct {
    const XMLCh* uri;
    const char* name;
    bool takes;
  } rows[] = {
      {XSDNS::wsURI, "header", true},     {XSDNS::wsURI, "mapping", true},
      {XSDNS::wsURI, "program", false},   {XSDNS::comURI, "field", true},
      {XSDNS::comURI, "header", false},   {XSDNS::javaURI, "operation", true},
      {XSDNS::javaURI, "program", false}, {XSDNS::dotnetURI, "service", true},
      {XSDNS::dotnetURI, "fault", false},
  };
  for (const auto& row : rows) {
    test::Dom dom("<service xmlns='" + test::narrow(row.uri) + "'><" + row.name + "/></service>");
    CDelegatingHandler handler;
    handler.startDocument(dom.root());
    EXPECT_EQ(handler.takes(dom.root()->getFirstElementChild()), row.takes)
        << test::narrow(row.uri) << " " << row.name;
  }
}

}  // namespace
