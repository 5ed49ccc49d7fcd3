// Tests of what base classes of the inside do where nothing is overridden.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/IService.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/ServiceFactory.h"
#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "support/Wrappers.h"
#include "xml/ElementHandler.h"
#include "xml/Serialiser.h"
#include "xml/Vocabulary.h"

namespace {

class BareHandler final : public CElementHandler {
 public:
  void newElement(xercesc::DOMNode* /*node*/) override {}
  void endParse(xercesc::DOMDocument* /*document*/) override {}
};

TEST(Defaults, AHandlerTakesEveryElement) {
  test::Dom dom("<anything/>");
  EXPECT_TRUE(BareHandler().takes(dom.root()));
}

TEST(Defaults, AHandlerTakesEveryRootWhateverItsNamespace) {
  test::Dom dom("<anything xmlns='urn:x'/>");
  BareHandler handler;
  EXPECT_NO_THROW(handler.startDocument(dom.root()));
  EXPECT_NO_THROW(handler.startElement(dom.root()));
  EXPECT_EQ(CElementImpl::wrapperOf(dom.root()), nullptr);
}

// A factory of plain services.
class PlainFactory final : public CServiceFactory {
 public:
  std::unique_ptr<CServiceImpl> createService() override {
    return createServiceDocument(XSDNS::serviceURI, XSDNS::serviceURI, as::IService::TYPE_JAVA);
  }
};

TEST(Defaults, AFactoryMakesPlainObjects) {
  PlainFactory factory;
  const std::unique_ptr<CServiceImpl> service = factory.createService();
  EXPECT_EQ(test::classOf(service.get()), "CServiceImpl");
  EXPECT_EQ(test::classOf(factory.createOperation()), "COperationImpl");
  EXPECT_EQ(test::classOf(factory.createParameter()), "CParameterImpl");
  EXPECT_EQ(test::classOf(factory.createField()), "CParameterImpl");
  EXPECT_EQ(factory.createHeader(), nullptr);
  EXPECT_EQ(factory.createFault(), nullptr);
  EXPECT_EQ(factory.createFieldAttribute(), nullptr);
}

TEST(Defaults, ACharacterDataSectionIsWrittenAsOne) {
  test::Dom dom("<r><![CDATA[a<b]]></r>");
  EXPECT_NE(serialiseNode(dom.document()).find("<r><![CDATA[a<b]]></r>"), std::string::npos);
}

}  // namespace
