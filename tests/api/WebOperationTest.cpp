// Tests of Web services and their operations: style, uses, namespaces, and the lists of headers and
// faults.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::element;
using test::labelOf;
using test::operationOf;
using test::parseService;
using test::webOperationOf;
using test::webService;
using test::written;

constexpr int unknown = -1;

// A service with one operation of those attributes and that content.
std::unique_ptr<as::IService> parsed(const std::string& attributes,
                                     const std::string& content = "") {
  return parseService(webService(
      "", element("operations", element("operation", content, "name='op' " + attributes))));
}

TEST(WebService, IsSeenAsOneAndAsAServiceOnly) {
  const auto service = parsed("");
  EXPECT_NE(as::interface_cast<as::IWebService>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNET>(service.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IService>(as::interface_cast<as::IWebService>(service.get())),
            service.get());
}

TEST(WebService, OtherServicesAreNotSeenAsOne) {
  for (const char* const ns :
       {as::namespaces::com.uri, as::namespaces::java.uri, as::namespaces::dotnet.uri}) {
    const auto service =
        parseService(test::serviceDocument(ns, "", "<operations><operation/></operations>"));
    EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()), nullptr) << ns;
    EXPECT_EQ(as::interface_cast<as::IWSOperation>(operationOf(*service)), nullptr) << ns;
  }
}

TEST(WebOperation, IsSeenAsOneAndAsNoOtherFlavours) {
  const auto service = parsed("");
  as::IOperation* const operation = operationOf(*service);
  EXPECT_NE(as::interface_cast<as::IWSOperation>(operation), nullptr);
  EXPECT_EQ(as::interface_cast<as::IJavaOperation>(operation), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNETOperation>(operation), nullptr);
}

// An attribute of two words.
struct Choice {
  const char* label;
  const char* attribute;
  const char* words[2];
  int (*get)(as::IWSOperation&);
  void (*set)(as::IWSOperation&, int);
};

void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.label; }

class WebOperationChoice : public testing::TestWithParam<Choice> {
 protected:
  static std::string attribute(const std::string& word) {
    return std::string(GetParam().attribute) + "='" + word + "'";
  }
};

TEST_P(WebOperationChoice, IsTheNumberOfItsWord) {
  for (int code = 0; code < 2; code++) {
    const auto service = parsed(attribute(GetParam().words[code]));
    EXPECT_EQ(GetParam().get(*webOperationOf(*service)), code);
  }
}

TEST_P(WebOperationChoice, IsUnknownWhenAbsent) {
  const auto service = parsed("");
  EXPECT_EQ(GetParam().get(*webOperationOf(*service)), unknown);
}

TEST_P(WebOperationChoice, IsWrittenAsItsWord) {
  const auto service = parsed("");
  as::IWSOperation* const operation = webOperationOf(*service);
  for (const int code : {1, 0, 1}) {
    GetParam().set(*operation, code);
    EXPECT_EQ(operation->getAttributeValue(GetParam().attribute), GetParam().words[code]);
    EXPECT_EQ(GetParam().get(*operation), code);
  }
}

TEST_P(WebOperationChoice, StaysForAnyOtherNumber) {
  const auto service = parsed("");
  as::IWSOperation* const operation = webOperationOf(*service);
  for (const int other : {2, -1, 99}) {
    GetParam().set(*operation, other);
    EXPECT_EQ(GetParam().get(*operation), unknown) << other;
    EXPECT_EQ(written(*service).find(GetParam().attribute), std::string::npos) << other;
  }
  GetParam().set(*operation, 1);
  for (const int other : {2, -1, 99}) {
    GetParam().set(*operation, other);
    EXPECT_EQ(GetParam().get(*operation), 1) << other;
  }
}

TEST_P(WebOperationChoice, LeavesTheOthersAlone) {
  const auto service = parsed("");
  as::IWSOperation* const operation = webOperationOf(*service);
  GetParam().set(*operation, 0);
  for (const char* const other : {"style", "inputUse", "outputUse"}) {
    const bool isThis = std::string(other) == GetParam().attribute;
    EXPECT_EQ(operation->getAttributeValue(other), isThis ? GetParam().words[0] : "") << other;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, WebOperationChoice,
    testing::Values(Choice{"Style",
                           "style",
                           {"rpc", "document"},
                           [](as::IWSOperation& o) -> int { return o.getStyle(); },
                           [](as::IWSOperation& o, int c) {
                             o.setStyle(static_cast<as::IWSOperation::STYLE>(c));
                           }},
                    Choice{"InputUse",
                           "inputUse",
                           {"literal", "encoded"},
                           [](as::IWSOperation& o) -> int { return o.getInputUse(); },
                           [](as::IWSOperation& o, int c) {
                             o.setInputUse(static_cast<as::IWSOperation::USE>(c));
                           }},
                    Choice{"OutputUse",
                           "outputUse",
                           {"literal", "encoded"},
                           [](as::IWSOperation& o) -> int { return o.getOutputUse(); },
                           [](as::IWSOperation& o, int c) {
                             o.setOutputUse(static_cast<as::IWSOperation::USE>(c));
                           }}),
    labelOf<Choice>);

// The two namespaces.
struct Namespace {
  const char* label;
  const char* attribute;
  std::string (as::IWSOperation::*get)();
  void (as::IWSOperation::*set)(const char*);
};

void PrintTo(const Namespace& names, std::ostream* out) { *out << names.label; }

class WebOperationNamespace : public testing::TestWithParam<Namespace> {};

TEST_P(WebOperationNamespace, IsTheTextAsItStands) {
  const auto service = parsed(std::string(GetParam().attribute) + "=' urn:a?b&amp;c '");
  EXPECT_EQ((webOperationOf(*service)->*GetParam().get)(), " urn:a?b&c ");
}

TEST_P(WebOperationNamespace, IsEmptyWhenAbsent) {
  const auto service = parsed("");
  EXPECT_EQ((webOperationOf(*service)->*GetParam().get)(), "");
}

TEST_P(WebOperationNamespace, IsWrittenInPlaceOfTheOld) {
  const auto service = parsed(std::string(GetParam().attribute) + "='urn:old'");
  as::IWSOperation* const operation = webOperationOf(*service);
  for (const char* const text : {"urn:new", "", "größer"}) {
    (operation->*GetParam().set)(text);
    EXPECT_EQ((operation->*GetParam().get)(), text);
    EXPECT_EQ(operation->getAttributeValue(GetParam().attribute), text);
  }
  (operation->*GetParam().set)("urn:new");
  (operation->*GetParam().set)(nullptr);
  EXPECT_EQ((operation->*GetParam().get)(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, WebOperationNamespace,
    testing::Values(Namespace{"Input", "inputNamespace", &as::IWSOperation::getInputNamespace,
                              &as::IWSOperation::setInputNamespace},
                    Namespace{"Output", "outputNamespace", &as::IWSOperation::getOutputNamespace,
                              &as::IWSOperation::setOutputNamespace}),
    labelOf<Namespace>);

TEST(WebOperation, ListsItsHeadersAndItsFaultsInOrder) {
  const auto service =
      parsed("", "<header namespace='1'/><fault namespace='2'/><header namespace='3'/>");
  as::IWSOperation* const operation = webOperationOf(*service);
  ASSERT_EQ(operation->getHeaders()->getLength(), 2);
  EXPECT_EQ(test::headerOf(*service)->getNamespace(), "1");
  EXPECT_EQ(test::headerOf(*service, 1)->getNamespace(), "3");
  ASSERT_EQ(operation->getFaults()->getLength(), 1);
  EXPECT_EQ(test::faultOf(*service)->getNamespace(), "2");
}

TEST(WebOperation, WithoutHeadersAndFaultsHasEmptyListsOfItsOwn) {
  const auto service = parsed("");
  as::IWSOperation* const operation = webOperationOf(*service);
  EXPECT_EQ(operation->getHeaders()->getLength(), 0);
  EXPECT_EQ(operation->getFaults()->getLength(), 0);
  EXPECT_NE(operation->getHeaders(), operation->getFaults());
  EXPECT_NE(operation->getHeaders(), service->getProperties());
}

TEST(WebOperation, ParametersAndHeadersDoNotMix) {
  const std::string parameters = "<parameters><parameter name='p'/></parameters>";
  const auto service = parsed("", parameters + "<header>" + parameters + "</header>");
  as::IWSOperation* const operation = webOperationOf(*service);
  EXPECT_EQ(operation->getParameters()->getLength(), 1);
  EXPECT_EQ(operation->getHiddenParameters()->getLength(), 0);
}

TEST(WebOperation, AddsHeadersBehindEverything) {
  const auto service = parsed("", "<hiddenParameters/><parameters/><header/><fault/>");
  as::IWSOperation* const operation = webOperationOf(*service);
  as::IList* const headers = operation->getHeaders();
  as::IWSHeader* const first = operation->addHeader(as::IWSHeader::BY_OUT);
  as::IWSHeader* const second = operation->addHeader(as::IWSHeader::BY_IN);
  EXPECT_EQ(operation->getHeaders(), headers);
  ASSERT_EQ(headers->getLength(), 3);
  EXPECT_EQ(test::itemOf<as::IWSHeader>(headers, 1), first);
  EXPECT_EQ(test::itemOf<as::IWSHeader>(headers, 2), second);
  EXPECT_EQ(operation->getFaults()->getLength(), 1);
  const std::string text = written(*service);
  EXPECT_LT(text.find("<fault"), text.find("<header byType=\"out\">"));
  EXPECT_LT(text.find("<header byType=\"out\">"), text.find("<header byType=\"in\">"));
}

TEST(WebOperation, AddsHeadersOfEveryDirection) {
  const auto service = parsed("");
  const struct {
    int direction;
    const char* word;
    int read;
  } rows[] = {{0, "in", 0}, {1, "out", 1}, {2, "io", 2}, {7, "io", 2}, {-1, "io", 2}};
  for (const auto& row : rows) {
    as::IWSHeader* const header =
        webOperationOf(*service)->addHeader(static_cast<as::IWSHeader::BY_TYPE>(row.direction));
    EXPECT_EQ(header->getAttributeValue("byType"), row.word);
    EXPECT_EQ(header->getByType(), row.read);
  }
}

TEST(WebOperation, AddsFaultsBehindEverything) {
  const auto service = parsed("", "<fault/><header/>");
  as::IWSOperation* const operation = webOperationOf(*service);
  as::IWSFault* const fault = operation->addFault();
  fault->setNamespace("urn:new");
  ASSERT_EQ(operation->getFaults()->getLength(), 2);
  EXPECT_EQ(test::faultOf(*service, 1), fault);
  EXPECT_EQ(operation->getHeaders()->getLength(), 1);
  const std::string text = written(*service);
  EXPECT_LT(text.find("<header"), text.find("<fault namespace=\"urn:new\">"));
}

TEST(WebOperation, WhatIsAddedIsReadBack) {
  const auto service = parsed("");
  as::IWSOperation* const operation = webOperationOf(*service);
  operation->setStyle(as::IWSOperation::STYLE_DOCUMENT);
  operation->addHeader(as::IWSHeader::BY_IN)->setUse(as::IWSHeader::USE_LITERAL);
  operation->addFault()->setUse(as::IWSFault::USE_ENCODED);
  const auto again = test::writtenAndRead(*service);
  as::IWSOperation* const read = webOperationOf(*again);
  EXPECT_EQ(read->getStyle(), as::IWSOperation::STYLE_DOCUMENT);
  ASSERT_EQ(read->getHeaders()->getLength(), 1);
  EXPECT_EQ(test::headerOf(*again)->getUse(), as::IWSHeader::USE_LITERAL);
  ASSERT_EQ(read->getFaults()->getLength(), 1);
  EXPECT_EQ(test::faultOf(*again)->getUse(), as::IWSFault::USE_ENCODED);
}

TEST(WebOperation, ThatIsAddedIsAWebOperation) {
  const auto service = parseService(webService("", "<operations/>"));
  as::IOperation* const operation = service->addOperation("new", nullptr);
  auto* const web = as::interface_cast<as::IWSOperation>(operation);
  ASSERT_NE(web, nullptr);
  EXPECT_EQ(web->getHeaders()->getLength(), 0);
  EXPECT_EQ(web->addFault()->getParameters()->getLength(), 0);
}

}  // namespace
