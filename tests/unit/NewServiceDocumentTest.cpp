// Tests of the documents that the flavours' factories start new services with, down to the
// namespaces of elements and attributes, which clients do not see.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>

#include "as/IService.h"
#include "com/COMFactory.h"
#include "dotnet/DotNETFactory.h"
#include "java/JavaFactory.h"
#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "ws/WebServiceFactory.h"
#include "xml/ElementImpl.h"
#include "xml/Vocabulary.h"

namespace {

using test::narrow;

template <class Factory>
std::unique_ptr<CServiceImpl> makeBy() {
  auto factory = std::make_unique<Factory>();
  std::unique_ptr<CServiceImpl> service(factory->createService());
  service->setFactory(std::move(factory));
  return service;
}

struct Made {
  const char* label;
  std::unique_ptr<CServiceImpl> (*make)();
  const XMLCh* xmlns;
  const XMLCh* schemaLocation;
  as::IService::TYPE implementation;
};

void PrintTo(const Made& made, std::ostream* out) { *out << made.label; }

class NewServiceDocument : public testing::TestWithParam<Made> {
 protected:
  std::unique_ptr<CServiceImpl> service_ = GetParam().make();
  xercesc::DOMElement* root_ = service_->getElement();
};

INSTANTIATE_TEST_SUITE_P(Flavours, NewServiceDocument,
                         testing::Values(Made{"Web", makeBy<CWebServiceFactory>, XSDNS::wsURI,
                                              XSDNS::wsSchemaLocation, as::IService::TYPE_WS},
                                         Made{"COM", makeBy<CCOMFactory>, XSDNS::comURI,
                                              XSDNS::comSchemaLocation, as::IService::TYPE_COM},
                                         Made{"Java", makeBy<CJavaFactory>, XSDNS::javaURI,
                                              XSDNS::javaSchemaLocation, as::IService::TYPE_JAVA},
                                         Made{"DotNet", makeBy<CDotNETFactory>, XSDNS::wsURI,
                                              XSDNS::wsSchemaLocation, as::IService::TYPE_DOTNET}),
                         [](const auto& value) { return std::string(value.param.label); });

TEST_P(NewServiceDocument, RootIsInTheWebServiceNamespaceWhateverItDeclares) {
  EXPECT_EQ(narrow(root_->getNodeName()), "service");
  EXPECT_EQ(narrow(root_->getNamespaceURI()), narrow(XSDNS::wsURI));
  EXPECT_EQ(root_->getOwnerDocument()->getDoctype(), nullptr);
}

TEST_P(NewServiceDocument, AttributesAreInTheirNamespaces) {
  EXPECT_EQ(narrow(root_->getAttribute(u"xmlns")), narrow(GetParam().xmlns));
  EXPECT_EQ(root_->getAttributeNode(u"xmlns")->getNamespaceURI(), nullptr);
  EXPECT_EQ(narrow(root_->getAttributeNS(XSDNS::xmlURI, u"xsi")), narrow(XSDNS::xsiURI));
  EXPECT_EQ(narrow(root_->getAttributeNode(u"xmlns:xsi")->getNamespaceURI()),
            narrow(XSDNS::xmlURI));
  EXPECT_EQ(narrow(root_->getAttributeNS(XSDNS::xsiURI, u"schemaLocation")),
            narrow(GetParam().schemaLocation));
  EXPECT_EQ(narrow(GetParam().schemaLocation),
            narrow(GetParam().xmlns) + " " + narrow(GetParam().xmlns));
  EXPECT_EQ(service_->getImplementation(), GetParam().implementation);
  EXPECT_EQ(root_->getAttributes()->getLength(), 4u);
}

TEST_P(NewServiceDocument, ListsHaveNoNamespace) {
  const char* const names[] = {"properties", "parameterTypeDefs", "operations"};
  xercesc::DOMNode* child = root_->getFirstChild();
  for (const char* const name : names) {
    ASSERT_NE(child, nullptr) << name;
    EXPECT_EQ(narrow(child->getNodeName()), name);
    EXPECT_EQ(child->getNamespaceURI(), nullptr) << name;
    EXPECT_EQ(child->getFirstChild(), nullptr) << name;
    child = child->getNextSibling();
  }
  EXPECT_EQ(child, nullptr);
}

TEST_P(NewServiceDocument, CollectingAgainFindsTheSameLists) {
  as::IList* const properties = service_->getProperties();
  as::IList* const definitions = service_->getParameterTypeDefs();
  as::IList* const operations = service_->getOperations();
  service_->collectChildren();
  EXPECT_EQ(service_->getProperties(), properties);
  EXPECT_EQ(service_->getParameterTypeDefs(), definitions);
  EXPECT_EQ(service_->getOperations(), operations);
}

TEST_P(NewServiceDocument, LeadsToItsServiceFromEverywhere) {
  CElementImpl* const service = service_.get();
  EXPECT_EQ(CElementImpl::wrapperOf(root_->getOwnerDocument()), service);
  EXPECT_EQ(CElementImpl::rootOf(root_->getLastElementChild()), service);
}

}  // namespace
