// Tests of service wrappers over elements that stand alone, without a service, a factory or a
// program around them, and of the order in which a service lets go of what it owns.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <utility>

#include "java/JavaFactory.h"
#include "java/JavaOperationImpl.h"
#include "java/JavaParameterImpl.h"
#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/ServiceImpl.h"
#include "support/Dom.h"
#include "ws/WSOperationImpl.h"
#include "ws/WSParameterImpl.h"

namespace {

TEST(BareOperation, HasNoEntryPoint) {
  test::Dom dom("<operation entryPoint='PAY'/>");
  COperationImpl operation(dom.root());
  EXPECT_EQ(operation.getEntryPoint(), nullptr);
}

TEST(BareOperation, IgnoresANullParameter) {
  test::Dom dom("<operation/>");
  COperationImpl operation(dom.root());
  operation.addParameter(static_cast<as::IParameter*>(nullptr));
  EXPECT_EQ(dom.root()->getFirstChild(), nullptr);
}

TEST(BareOperation, WithoutAFactoryAddsNoHeadersAndFaults) {
  test::Dom dom("<operation/>");
  CWSOperationImpl operation(dom.root());
  EXPECT_EQ(operation.addHeader(as::IWSHeader::BY_IN), nullptr);
  EXPECT_EQ(operation.addFault(), nullptr);
  EXPECT_EQ(dom.root()->getFirstChild(), nullptr);
}

TEST(BareParameter, WithoutAFactoryAddsNoFieldAttributes) {
  test::Dom dom("<parameter/>");
  CWSParameterImpl parameter(dom.root());
  EXPECT_EQ(parameter.addFieldAttribute("a"), nullptr);
  EXPECT_EQ(dom.root()->getFirstChild(), nullptr);
}

TEST(BareParameter, TakesEveryOtherTextForBothWays) {
  for (const char* const text : {"", "In", "OUT", "in ", "inout", "io", "IO"}) {
    test::Dom dom("<parameter byType='" + std::string(text) + "'/>");
    CParameterImpl parameter(dom.root());
    EXPECT_EQ(parameter.getByType(), as::IParameter::BY_IO) << text;
  }
}

TEST(BareMapping, LeadsToNothing) {
  test::Dom dom("<mapping item='A'/>");
  CMappingImpl mapping(dom.root());
  EXPECT_EQ(mapping.getDataItem(), nullptr);
}

// More than callers make room for are counted, and not stored.
TEST(BareMapping, StoresSixteenSubscriptsAtMost) {
  std::string list = "0";
  for (int i = 1; i < 20; i++) list += "," + std::to_string(i);
  test::Dom dom("<mapping item='A(" + list + ")' subscript='" + list + "'/>");
  CMappingImpl mapping(dom.root());
  for (const bool interfaceSide : {true, false}) {
    std::array<int, 17> subscripts;
    subscripts.fill(77);
    EXPECT_EQ(interfaceSide ? mapping.getInterfaceSubscripts(subscripts.data())
                            : mapping.getDataItemSubscripts(subscripts.data()),
              20);
    EXPECT_EQ(subscripts[15], 15);
    EXPECT_EQ(subscripts[16], 77);
  }
}

TEST(BareHiddenParameter, BelongsToNoField) {
  test::Dom dom("<hiddenParameter item='A'/>");
  CHiddenParameterImpl hidden(dom.root());
  hidden.collectChildren();
  EXPECT_EQ(hidden.getField(), nullptr);
}

TEST(BareJavaWords, AreReadExactly) {
  for (const char* const text : {"", "Requires", "never ", "other", "REQUIRES"}) {
    test::Dom dom("<operation transactionType='" + std::string(text) + "'/>");
    CJavaOperationImpl operation(dom.root());
    EXPECT_EQ(operation.getTransactionType(), as::IJavaOperation::TRANS_NEVER) << text;
  }
  for (const char* const text : {"", "string", "bytearray", "String ", "BYTE", "Integer"}) {
    test::Dom dom("<parameter dataType='" + std::string(text) + "'/>");
    CJavaParameterImpl parameter(dom.root());
    EXPECT_EQ(parameter.getType(), as::IJavaField::JAVA_SHORT) << text;
  }
}

// Notes when it goes.
class LoggingFactory : public CJavaFactory {
 public:
  explicit LoggingFactory(std::string& log) : log_(log) {}
  ~LoggingFactory() override { log_ += "factory "; }

 private:
  std::string& log_;
};

class LoggingParser : public CXMLParser {
 public:
  explicit LoggingParser(std::string& log) : log_(log) {}
  ~LoggingParser() override { log_ += "parser "; }

 private:
  std::string& log_;
};

// The document that the factory or the parser holds is what everything else stands on.
TEST(ServiceImplEnd, LetsGoOfTheParserLast) {
  std::string log;
  auto factory = std::make_unique<LoggingFactory>(log);
  std::unique_ptr<CServiceImpl> service = factory->createService();
  service->setFactory(std::move(factory));
  service->setParser(std::make_unique<LoggingParser>(log));
  service.reset();
  EXPECT_EQ(log, "factory parser ");
}

}  // namespace
