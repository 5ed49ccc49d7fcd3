// Tests of Web service operations as they come to be: in new services, added to, written and read
// again.
#include <gtest/gtest.h>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/XmlText.h"

namespace {

using test::elementIn;
using test::faultOf;
using test::headerOf;
using test::itemOf;
using test::newWebService;
using test::parseService;
using test::webOperationOf;
using test::webService;
using test::written;
using test::writtenAndRead;

constexpr int unknown = -1;

TEST(WebNewOperation, KnowsNothingUntilTold) {
  const auto service = newWebService();
  as::IWSOperation* const operation = webOperationOf(*service);
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(static_cast<int>(operation->getStyle()), unknown);
  EXPECT_EQ(static_cast<int>(operation->getInputUse()), unknown);
  EXPECT_EQ(static_cast<int>(operation->getOutputUse()), unknown);
  EXPECT_EQ(operation->getInputNamespace(), "");
  EXPECT_EQ(operation->getOutputNamespace(), "");
  EXPECT_EQ(operation->getHeaders()->getLength(), 0);
  EXPECT_EQ(operation->getFaults()->getLength(), 0);
}

TEST(WebNewOperation, IsReadBackWithWhatItWasTold) {
  const auto service = newWebService();
  as::IWSOperation* const operation = webOperationOf(*service);
  operation->setStyle(as::IWSOperation::STYLE_RPC);
  operation->setInputUse(as::IWSOperation::USE_ENCODED);
  operation->setOutputUse(as::IWSOperation::USE_LITERAL);
  operation->setInputNamespace("urn:in & <\xC3\xA4>");
  operation->setOutputNamespace("urn:out");
  operation->addFault()->setNamespace("urn:fault");
  operation->addHeader(as::IWSHeader::BY_IN)->setNamespace("urn:header");
  const auto again = writtenAndRead(*service);
  EXPECT_NE(as::interface_cast<as::IWebService>(again.get()), nullptr);
  as::IWSOperation* const read = webOperationOf(*again);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->getStyle(), as::IWSOperation::STYLE_RPC);
  EXPECT_EQ(read->getInputUse(), as::IWSOperation::USE_ENCODED);
  EXPECT_EQ(read->getOutputUse(), as::IWSOperation::USE_LITERAL);
  EXPECT_EQ(read->getInputNamespace(), "urn:in & <\xC3\xA4>");
  EXPECT_EQ(read->getOutputNamespace(), "urn:out");
  ASSERT_EQ(read->getFaults()->getLength(), 1);
  EXPECT_EQ(itemOf<as::IWSFault>(read->getFaults(), 0)->getNamespace(), "urn:fault");
  ASSERT_EQ(read->getHeaders()->getLength(), 1);
  auto* const header = itemOf<as::IWSHeader>(read->getHeaders(), 0);
  EXPECT_EQ(header->getNamespace(), "urn:header");
  EXPECT_EQ(header->getByType(), as::IWSHeader::BY_IN);
}

TEST(WebNewOperation, NamespacesOfRequestAndResponseAreTwoThings) {
  const auto service =
      parseService(webService("", "<operations><operation name='op'/></operations>"));
  as::IWSOperation* const operation = webOperationOf(*service);
  operation->setInputNamespace("urn:in");
  EXPECT_EQ(operation->getOutputNamespace(), "");
  operation->setOutputNamespace("urn:out");
  EXPECT_EQ(operation->getInputNamespace(), "urn:in");
  operation->setInputNamespace("");
  EXPECT_EQ(operation->getInputNamespace(), "");
  EXPECT_EQ(operation->getOutputNamespace(), "urn:out");
}

// Behind its parameters, in the order of the calls, headers and faults among each other.
TEST(WebNewOperation, HoldsHeadersAndFaultsInTheOrderTheyWereAdded) {
  const auto service = newWebService();
  as::IWSOperation* const operation = webOperationOf(*service);
  operation->addHeader(as::IWSHeader::BY_IN)->setNamespace("urn:1");
  operation->addFault()->setNamespace("urn:2");
  operation->addHeader(as::IWSHeader::BY_IO)->setNamespace("urn:3");
  operation->addFault()->setNamespace("urn:4");
  operation->addParameter(as::IParameter::BY_IN, "p", 1);
  EXPECT_EQ(elementIn(written(*service), "<operation ", "</operation>"),
            "<operation name=\"op\"><hiddenParameters/><parameters><parameter byType=\"in\" "
            "name=\"p\" occurs=\"1\"><mappings/></parameter></parameters>"
            "<header byType=\"in\" namespace=\"urn:1\"><parameters/></header>"
            "<fault namespace=\"urn:2\"><parameters/></fault>"
            "<header byType=\"io\" namespace=\"urn:3\"><parameters/></header>"
            "<fault namespace=\"urn:4\"><parameters/></fault></operation>");
  EXPECT_EQ(headerOf(*service, 1)->getNamespace(), "urn:3");
  EXPECT_EQ(faultOf(*service, 1)->getNamespace(), "urn:4");
}

}  // namespace
