// Tests of the factories of the service flavours: the classes of what they wrap and create, the
// shape of new elements, and the documents of new services.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "com/COMFactory.h"
#include "com/VorCHandler.h"
#include "dotnet/DotNETFactory.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/JavaFactory.h"
#include "java/VorJHandler.h"
#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "ws/VorWSHandler.h"
#include "ws/WebServiceFactory.h"
#include "xml/List.h"
#include "xml/Vocabulary.h"

namespace {

using test::buildWrappers;
using test::childrenOf;
using test::classAt;
using test::makeHandler;
using test::narrow;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

// For a new document.
template <class Factory>
std::unique_ptr<CServiceFactory> makeStarter() {
  return std::make_unique<Factory>();
}

// For the document given.
template <class Factory>
std::unique_ptr<CServiceFactory> makeJoiner(DOMDocument* document, WrapperPool& pool) {
  return std::make_unique<Factory>(document, pool);
}

struct Flavour {
  const char* label;
  std::unique_ptr<CServiceFactory> (*starter)();
  std::unique_ptr<CServiceFactory> (*joiner)(DOMDocument*, WrapperPool&);
  std::shared_ptr<CVorSHandler> (*handler)();
  const char* serviceClass;
  const char* operationClass;
  const char* parameterClass;
  const char* implementation;
  const XMLCh* xmlns;
};

void PrintTo(const Flavour& flavour, std::ostream* out) { *out << flavour.label; }

constexpr Flavour flavours[] = {
    {"Web", makeStarter<CWebServiceFactory>, makeJoiner<CWebServiceFactory>,
     makeHandler<CVorWSHandler>, "CWebServiceImpl", "CWSOperationImpl", "CWSParameterImpl", "ws",
     XSDNS::wsURI},
    {"COM", makeStarter<CCOMFactory>, makeJoiner<CCOMFactory>, makeHandler<CVorCHandler>,
     "CServiceImpl", "COperationImpl", "CCOMParameterImpl", "com", XSDNS::comURI},
    {"Java", makeStarter<CJavaFactory>, makeJoiner<CJavaFactory>, makeHandler<CVorJHandler>,
     "CServiceImpl", "CJavaOperationImpl", "CJavaParameterImpl", "java", XSDNS::javaURI},
    // Declares the Web service namespace on purpose; only the word tells it apart.
    {"DotNET", makeStarter<CDotNETFactory>, makeJoiner<CDotNETFactory>,
     makeHandler<CVorDotNETHandler>, "CDotNETImpl", "CDotNETOperationImpl", "CDotNETParameterImpl",
     "dotnet", XSDNS::wsURI},
};

class FlavourFactory : public testing::TestWithParam<Flavour> {};

INSTANTIATE_TEST_SUITE_P(Flavours, FlavourFactory, testing::ValuesIn(flavours),
                         [](const auto& value) { return std::string(value.param.label); });

// Wraps every element below the root of `dom`.
void wrapBelowRoot(CElementHandler& handler, test::Dom& dom) {
  for (auto* child = dom.root()->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    buildWrappers(handler, child);
  }
}

// New wrappers around elements that are there.

TEST_P(FlavourFactory, WrapsByTheFlavoursClasses) {
  using New = CElementImpl* (*)(CServiceFactory&, DOMElement*);
  const struct {
    const char* element;
    New wrap;
    const char* ownClass;
  } rows[] = {
      {"operation", [](auto& f, auto* e) -> CElementImpl* { return f.newOperation(e); },
       GetParam().operationClass},
      {"parameter", [](auto& f, auto* e) -> CElementImpl* { return f.newParameter(e); },
       GetParam().parameterClass},
      {"field", [](auto& f, auto* e) -> CElementImpl* { return f.newParameter(e); },
       GetParam().parameterClass},
      {"mapping", [](auto& f, auto* e) -> CElementImpl* { return f.newMapping(e); },
       "CMappingImpl"},
      {"hiddenParameter", [](auto& f, auto* e) -> CElementImpl* { return f.newHiddenParameter(e); },
       "CHiddenParameterImpl"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.element);
    test::Dom dom("<x:" + std::string(row.element) + " xmlns:x='urn:any'/>");
    WrapperPool pool;
    const auto factory = GetParam().joiner(dom.document(), pool);
    CElementImpl* const wrapper = row.wrap(*factory, dom.root());
    EXPECT_EQ(test::classOf(wrapper), row.ownClass);
    EXPECT_EQ(wrapper->getElement(), dom.root());
    EXPECT_EQ(dom.root()->getUserData(u"ASAPI"), wrapper);
    EXPECT_EQ(dom.document()->getUserData(u"ASAPI"), nullptr);
  }
}

TEST_P(FlavourFactory, MakesServicesTheCallers) {
  test::Dom dom("<x:service xmlns:x='urn:any'/>");
  std::unique_ptr<CServiceImpl> service;
  {
    WrapperPool pool;
    service = GetParam().joiner(dom.document(), pool)->newService(dom.root());
  }
  EXPECT_EQ(test::classOf(service.get()), GetParam().serviceClass);
  EXPECT_EQ(service->getElement(), dom.root());
  EXPECT_EQ(dom.root()->getUserData(u"ASAPI"), static_cast<CElementImpl*>(service.get()));
  EXPECT_EQ(dom.document()->getUserData(u"ASAPI"), nullptr);
}

TEST_P(FlavourFactory, NewServicesHaveCollectedTheirLists) {
  test::Dom dom(
      "<service><operations><operation/><operation/></operations><properties><property/>"
      "</properties><parameterTypeDefs><parameter/></parameterTypeDefs></service>");
  const auto handler = GetParam().handler();
  wrapBelowRoot(*handler, dom);
  WrapperPool pool;
  const auto service = GetParam().joiner(dom.document(), pool)->newService(dom.root());
  EXPECT_EQ(service->getOperations()->getLength(), 2);
  EXPECT_EQ(service->getProperties()->getLength(), 1);
  EXPECT_EQ(service->getParameterTypeDefs()->getLength(), 1);
}

TEST_P(FlavourFactory, NewOperationsHaveCollectedTheirLists) {
  test::Dom dom(
      "<operation><hiddenParameters><hiddenParameter/></hiddenParameters><parameters><parameter/>"
      "<parameter/></parameters></operation>");
  const auto handler = GetParam().handler();
  wrapBelowRoot(*handler, dom);
  WrapperPool pool;
  COperationImpl* const operation =
      GetParam().joiner(dom.document(), pool)->newOperation(dom.root());
  EXPECT_EQ(operation->getHiddenParameters()->getLength(), 1);
  EXPECT_EQ(operation->getParameters()->getLength(), 2);
}

TEST_P(FlavourFactory, NewParametersHaveCollectedTheirFieldsAndMappings) {
  test::Dom dom(
      "<parameter><mappings><mapping/><mapping/></mappings><field><field/></field></parameter>");
  const auto handler = GetParam().handler();
  wrapBelowRoot(*handler, dom);
  WrapperPool pool;
  CParameterImpl* const parameter =
      GetParam().joiner(dom.document(), pool)->newParameter(dom.root());
  EXPECT_EQ(parameter->getChildren()->getLength(), 1);
  ASSERT_EQ(parameter->getMappings()->getLength(), 2);
  for (int i = 0; i < 2; i++) {
    auto* const mapping = as::interface_cast<CMappingImpl>(parameter->getMappings()->getItem(i));
    ASSERT_NE(mapping, nullptr);
    EXPECT_EQ(mapping->getField(), static_cast<as::IField*>(parameter));
  }
}

// New elements.

// A new element as it should be: in no tree, without attributes, and in no namespace, whatever its
// document is in, with nothing but the empty lists `lists`.
void expectDetached(const CElementImpl* wrapper, const char* name, const std::string& lists,
                    const DOMDocument* document) {
  ASSERT_NE(wrapper, nullptr);
  const DOMElement* const element = wrapper->getElement();
  EXPECT_EQ(narrow(element->getNodeName()), name);
  EXPECT_EQ(narrow(element->getLocalName()), name);
  EXPECT_EQ(element->getNamespaceURI(), nullptr);
  EXPECT_EQ(element->getPrefix(), nullptr);
  EXPECT_EQ(element->getAttributes()->getLength(), 0u);
  EXPECT_EQ(element->getParentNode(), nullptr);
  EXPECT_EQ(element->getOwnerDocument(), document);
  EXPECT_EQ(CElementImpl::wrapperOf(element), wrapper);
  EXPECT_EQ(childrenOf(element), lists);
  for (const DOMNode* child = element->getFirstChild(); child != nullptr;
       child = child->getNextSibling()) {
    EXPECT_EQ(classAt(child), "CList");
    EXPECT_EQ(child->getNamespaceURI(), nullptr);
    EXPECT_EQ(child->getFirstChild(), nullptr);
    EXPECT_EQ(child->getAttributes()->getLength(), 0u);
  }
}

// `list` is the one over the child `name` of `owner`, without members, and not the shared one.
void expectEmptyListOf(as::IList* list, const CElementImpl& owner, const XMLCh* name) {
  EXPECT_EQ(list->getLength(), 0);
  EXPECT_NE(list, static_cast<as::IList*>(&CList::emptyList));
  EXPECT_EQ(as::interface_cast<CElementImpl>(list),
            CElementImpl::wrapperOf(CElementImpl::getNamedChild(owner.getElement(), name)));
}

TEST_P(FlavourFactory, CreatesElementsOfTheFlavour) {
  // In a document of its own, and in one that is there and whose root has a namespace.
  test::Dom dom("<service xmlns='urn:any'/>");
  const auto starter = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = starter->createService();
  WrapperPool pool;
  const auto joiner = GetParam().joiner(dom.document(), pool);
  const std::pair<CServiceFactory*, DOMDocument*> factories[] = {
      {starter.get(), service->getElement()->getOwnerDocument()}, {joiner.get(), dom.document()}};
  for (const auto& [factory, document] : factories) {
    COperationImpl* const operation = factory->createOperation();
    EXPECT_EQ(test::classOf(operation), GetParam().operationClass);
    expectDetached(operation, "operation", "hiddenParameters parameters ", document);
    expectEmptyListOf(operation->getHiddenParameters(), *operation, u"hiddenParameters");
    expectEmptyListOf(operation->getParameters(), *operation, u"parameters");

    CParameterImpl* const parameter = factory->createParameter();
    EXPECT_EQ(test::classOf(parameter), GetParam().parameterClass);
    expectDetached(parameter, "parameter", "mappings ", document);
    expectEmptyListOf(parameter->getMappings(), *parameter, u"mappings");
    EXPECT_EQ(parameter->getChildren()->getLength(), 0);

    CParameterImpl* const field = factory->createField();
    EXPECT_EQ(test::classOf(field), GetParam().parameterClass);
    expectDetached(field, "field", "mappings ", document);
    expectEmptyListOf(field->getMappings(), *field, u"mappings");

    CHiddenParameterImpl* const hidden = factory->createHiddenParameter();
    EXPECT_EQ(test::classOf(hidden), "CHiddenParameterImpl");
    expectDetached(hidden, "hiddenParameter", "", document);

    CMappingImpl* const mapping = factory->createMapping();
    EXPECT_EQ(test::classOf(mapping), "CMappingImpl");
    expectDetached(mapping, "mapping", "", document);
    EXPECT_EQ(mapping->getField(), nullptr);
  }
}

TEST_P(FlavourFactory, CreatesAnotherElementEachTime) {
  const auto factory = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  CParameterImpl* const first = factory->createParameter();
  CParameterImpl* const second = factory->createParameter();
  EXPECT_NE(first->getElement(), second->getElement());
  EXPECT_NE(first->getMappings(), second->getMappings());
}

TEST_P(FlavourFactory, IsFoundFromWhatItCreates) {
  auto owned = GetParam().starter();
  CServiceFactory* const factory = owned.get();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  COperationImpl* const operation = factory->createOperation();
  EXPECT_EQ(operation->getService(), service.get());
  EXPECT_EQ(operation->getFactory(), nullptr) << "the service has not been given it";
  service->setFactory(std::move(owned));
  EXPECT_EQ(operation->getFactory(), factory);
  EXPECT_EQ(service->getFactory(), factory);
}

// New documents.

TEST_P(FlavourFactory, StartsAnEmptyServiceDocument) {
  const auto factory = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  ASSERT_NE(service, nullptr);
  const DOMElement* const root = service->getElement();
  const DOMDocument* const document = root->getOwnerDocument();

  EXPECT_EQ(document->getDocumentElement(), root);
  EXPECT_EQ(document->getFirstChild(), root) << "no document type in front";
  EXPECT_EQ(document->getLastChild(), root);
  EXPECT_EQ(document->getNamespaceURI(), nullptr);
  EXPECT_EQ(service->getNamespaceURI(), "");
  EXPECT_EQ(narrow(root->getNodeName()), "service");
  EXPECT_EQ(root->getPrefix(), nullptr);
  EXPECT_EQ(narrow(root->getNamespaceURI()), narrow(XSDNS::wsURI)) << "whatever it declares";

  const std::string uri = narrow(GetParam().xmlns);
  const std::vector<std::vector<std::string>> expected = {
      {"implementation", "", GetParam().implementation},
      {"xmlns", "", uri},
      {"xmlns:xsi", narrow(XSDNS::xmlURI), narrow(XSDNS::xsiURI)},
      {"xsi:schemaLocation", narrow(XSDNS::xsiURI), uri + " " + uri}};
  std::vector<std::vector<std::string>> found;  // The DOM keeps them sorted by name.
  for (XMLSize_t i = 0; i < root->getAttributes()->getLength(); i++) {
    const DOMNode* const attribute = root->getAttributes()->item(i);
    const XMLCh* const ns = attribute->getNamespaceURI();
    found.push_back({narrow(attribute->getNodeName()), ns == nullptr ? "" : narrow(ns),
                     narrow(attribute->getNodeValue())});
  }
  EXPECT_EQ(found, expected);

  EXPECT_EQ(childrenOf(root), "properties parameterTypeDefs operations ");
  for (const DOMNode* child = root->getFirstChild(); child != nullptr;
       child = child->getNextSibling()) {
    EXPECT_EQ(child->getNamespaceURI(), nullptr);
    EXPECT_EQ(child->getFirstChild(), nullptr);
    EXPECT_EQ(child->getAttributes()->getLength(), 0u);
  }
}

TEST_P(FlavourFactory, StartsAServiceOfTheFlavour) {
  const auto factory = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(test::classOf(service.get()), GetParam().serviceClass);
  CElementImpl* const wrapper = service.get();
  EXPECT_EQ(service->getElement()->getUserData(u"ASAPI"), wrapper);
  EXPECT_EQ(service->getElement()->getOwnerDocument()->getUserData(u"ASAPI"), wrapper);
  EXPECT_EQ(narrow(service->getElement()->getAttribute(u"implementation")),
            GetParam().implementation);
  expectEmptyListOf(service->getProperties(), *service, u"properties");
  expectEmptyListOf(service->getParameterTypeDefs(), *service, u"parameterTypeDefs");
  expectEmptyListOf(service->getOperations(), *service, u"operations");
  EXPECT_EQ(service->getProgram(), nullptr);
  EXPECT_EQ(service->getServiceFactory(), nullptr) << "whoever asked for it hands that over";
}

TEST_P(FlavourFactory, CollectingAgainFindsTheSameLists) {
  const auto factory = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  as::IList* const properties = service->getProperties();
  as::IList* const definitions = service->getParameterTypeDefs();
  as::IList* const operations = service->getOperations();
  service->collectChildren();
  EXPECT_EQ(service->getProperties(), properties);
  EXPECT_EQ(service->getParameterTypeDefs(), definitions);
  EXPECT_EQ(service->getOperations(), operations);
}

// What Web services have beside.

TEST(WebServiceFactory, CreatesHeadersWithTheirEmptyList) {
  CWebServiceFactory factory;
  const std::unique_ptr<CServiceImpl> service = factory.createService();
  CWSHeaderImpl* const header = factory.createHeader();
  EXPECT_EQ(test::classOf(header), "CWSHeaderImpl");
  expectDetached(header, "header", "parameters ", service->getElement()->getOwnerDocument());
  expectEmptyListOf(header->getParameters(), *header, u"parameters");
}

TEST(WebServiceFactory, CreatesFaultsWithTheirEmptyList) {
  CWebServiceFactory factory;
  const std::unique_ptr<CServiceImpl> service = factory.createService();
  CWSFaultImpl* const fault = factory.createFault();
  EXPECT_EQ(test::classOf(fault), "CWSFaultImpl");
  expectDetached(fault, "fault", "parameters ", service->getElement()->getOwnerDocument());
  expectEmptyListOf(fault->getParameters(), *fault, u"parameters");
}

TEST(WebServiceFactory, CreatesFieldAttributesWithTheirEmptyMappings) {
  CWebServiceFactory factory;
  const std::unique_ptr<CServiceImpl> service = factory.createService();
  CWSParameterImpl* const attribute = factory.createFieldAttribute();
  EXPECT_EQ(test::classOf(attribute), "CWSParameterImpl");
  expectDetached(attribute, "fieldAttribute", "mappings ",
                 service->getElement()->getOwnerDocument());
  expectEmptyListOf(attribute->getMappings(), *attribute, u"mappings");
  EXPECT_EQ(attribute->getFieldAttributes()->getLength(), 0);
}

TEST_P(FlavourFactory, OnlyWebServicesHaveHeadersFaultsAndFieldAttributes) {
  const auto factory = GetParam().starter();
  const std::unique_ptr<CServiceImpl> service = factory->createService();
  const bool isWeb = GetParam().implementation == std::string("ws");
  EXPECT_EQ(factory->createHeader() != nullptr, isWeb);
  EXPECT_EQ(factory->createFault() != nullptr, isWeb);
  EXPECT_EQ(factory->createFieldAttribute() != nullptr, isWeb);
}

TEST(WebServiceFactory, CreatesInADocumentThatIsThere) {
  test::Dom dom("<service xmlns='urn:any'/>");
  WrapperPool pool;
  CWebServiceFactory factory(dom.document(), pool);
  CWSHeaderImpl* const header = factory.createHeader();
  CWSFaultImpl* const fault = factory.createFault();
  CWSParameterImpl* const attribute = factory.createFieldAttribute();
  expectDetached(header, "header", "parameters ", dom.document());
  expectDetached(fault, "fault", "parameters ", dom.document());
  expectDetached(attribute, "fieldAttribute", "mappings ", dom.document());
}

TEST(WebServiceFactory, NewWrappersHaveCollectedHeadersFaultsAndFieldAttributes) {
  test::Dom dom(
      "<operation><header/><fault/><header/><parameters><parameter><fieldAttribute/>"
      "<fieldAttribute/></parameter></parameters></operation>");
  CVorWSHandler handler;
  wrapBelowRoot(handler, dom);
  WrapperPool pool;
  CWebServiceFactory factory(dom.document(), pool);
  COperationImpl* const operation = factory.newOperation(dom.root());
  auto* const web = as::interface_cast<as::IWSOperation>(operation);
  ASSERT_NE(web, nullptr);
  EXPECT_EQ(web->getHeaders()->getLength(), 2);
  EXPECT_EQ(web->getFaults()->getLength(), 1);
  auto* const parameter = as::interface_cast<as::IWSParameter>(web->getParameters()->getItem(0));
  ASSERT_NE(parameter, nullptr);
  EXPECT_EQ(parameter->getFieldAttributes()->getLength(), 2);
}

}  // namespace
