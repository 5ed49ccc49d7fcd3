// Tests of what a Java service has of its own: transaction types, and the data types of parameters
// and fields.
#include <gtest/gtest.h>

#include <string>

#include "as/AgentServices.h"
#include "support/Model.h"
#include "support/ParsedJava.h"
#include "support/Requests.h"

namespace {

using test::operationOf;
using test::parameterOf;
using test::parsedJava;
using test::written;

TEST(JavaService, ReadsAndWritesTransactionTypes) {
  const char* const words[] = {"notSupported", "mandatory",   "never",
                               "requires",     "requiresNew", "supports"};
  const auto service = parsedJava("");
  auto* const operation = as::interface_cast<as::IJavaOperation>(operationOf(*service));
  ASSERT_NE(operation, nullptr);
  EXPECT_EQ(operation->getTransactionType(), as::IJavaOperation::TRANS_NEVER) << "absent";
  for (int type = 0; type < 6; type++) {
    operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(type));
    EXPECT_EQ(operation->getAttributeValue("transactionType"), words[type]);
    EXPECT_EQ(operation->getTransactionType(), type);
  }
  operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(9));
  EXPECT_EQ(operation->getAttributeValue("transactionType"), "never");
}

TEST(JavaService, ReadsAndWritesDataTypes) {
  const char* const words[] = {"byte",   "short",      "int",    "long",      "float",
                               "double", "BigDecimal", "String", "byteArray", "BigInteger"};
  const auto service = parsedJava("<parameter><field/></parameter>");
  auto* const field = test::itemOf<as::IJavaParameter>(parameterOf(*service)->getChildren(), 0);
  ASSERT_NE(field, nullptr) << "fields are Java ones, too";
  EXPECT_EQ(field->getType(), as::IJavaField::JAVA_SHORT) << "absent";
  for (int type = 0; type < 10; type++) {
    field->setType(static_cast<as::IJavaField::TYPE>(type));
    EXPECT_EQ(field->getAttributeValue("dataType"), words[type]);
    EXPECT_EQ(field->getType(), type);
  }
  field->setType(static_cast<as::IJavaField::TYPE>(10));
  EXPECT_EQ(field->getAttributeValue("dataType"), "BigInteger");
}

TEST(JavaService, CastsToNoOtherFlavour) {
  const auto service = parsedJava("<parameter/>");
  EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNET>(service.get()), nullptr);
  EXPECT_EQ(parameterOf<as::IWSParameter>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::ICOMParameter>(*service), nullptr);
  EXPECT_EQ(parameterOf<as::IDotNETParameter>(*service), nullptr);
  EXPECT_NE(parameterOf<as::IJavaField>(*service), nullptr);
}

TEST(JavaNumbers, OutsideTheTablesAreNeverOrNothing) {
  const auto service = parsedJava("<parameter name='p'/>");
  auto* const operation = as::interface_cast<as::IJavaOperation>(test::operationOf(*service));
  auto* const parameter = parameterOf<as::IJavaParameter>(*service);
  for (const int other : {-1, 6, 99}) {
    operation->setTransactionType(as::IJavaOperation::TRANS_REQUIRES);
    operation->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(other));
    EXPECT_EQ(operation->getAttributeValue("transactionType"), "never") << other;
  }
  for (const int other : {-1, 10, 99}) {
    parameter->setType(static_cast<as::IJavaField::TYPE>(other));
    EXPECT_EQ(written(*service).find("dataType"), std::string::npos) << other;
  }
  parameter->setType(as::IJavaField::JAVA_STRING);
  for (const int other : {-1, 10, 99}) {
    parameter->setType(static_cast<as::IJavaField::TYPE>(other));
    EXPECT_EQ(parameter->getAttributeValue("dataType"), "String") << other;
  }
}

}  // namespace
