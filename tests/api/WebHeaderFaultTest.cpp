// Tests of headers and faults as they come to be: in new services, added to parsed ones, written
// and read again; and of the words that the parser lets none of their attributes have.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "support/WebService.h"

namespace {

using test::itemOf;
using test::webService;
using test::flavours::parseService;
using test::flavours::written;
using test::flavours::writtenAndRead;

constexpr int unknown = -1;

std::unique_ptr<as::IService> parsed(const std::string& content,
                                     const std::string& attributes = "") {
  return parseService(webService("", "<operations><operation name='op' " + attributes + ">" +
                                         content + "</operation></operations>"));
}

as::IWSOperation* operationOf(as::IService& service) {
  return as::interface_cast<as::IWSOperation>(test::flavours::firstOperation(service));
}

// A new service with one new operation, "op".
std::unique_ptr<as::IWebService> newService() {
  std::unique_ptr<as::IWebService> service(
      as::CAgentServicesFactory::NewWebService(test::parse(test::payProgram()).release()));
  service->addOperation("op", nullptr);
  return service;
}

// The element at the start of `text` that begins with `start`, up to `end`, without what layout
// puts between its elements. Attributes are written in the order of their names.
std::string elementIn(const std::string& text, const std::string& start, const std::string& end) {
  const std::size_t from = text.find(start);
  const std::size_t to = from == std::string::npos ? from : text.find(end, from);
  if (to == std::string::npos) return "(no " + start + ")";
  std::string element;
  for (const char c : text.substr(from, to + end.size() - from)) {
    if (c == '\n') continue;
    if (c == ' ' && (element.empty() || element.back() == '>')) continue;
    element += c;
  }
  return element;
}

// What headers and faults have in common, of one of them.
struct Kind {
  const char* element;
  as::IList* (as::IWSOperation::*list)();
  as::IElement* (*add)(as::IWSOperation&);
  as::IWSParameter* (*addParameter)(as::IElement*, int byType, const char* name, int occurs);
  as::IList* (*parameters)(as::IElement*);
  int (*use)(as::IElement*);
  void (*setUse)(as::IElement*, int);
  const char* attributes;  // What a new one says.
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.element; }

template <class Message>
Kind kindOf(const char* element, as::IList* (as::IWSOperation::*list)(),
            as::IElement* (*add)(as::IWSOperation&), const char* attributes) {
  return {
      element,
      list,
      add,
      [](as::IElement* message, int byType, const char* name, int occurs) {
        return as::interface_cast<Message>(message)->addParameter(
            static_cast<as::IParameter::BY_TYPE>(byType), name, occurs);
      },
      [](as::IElement* message) { return as::interface_cast<Message>(message)->getParameters(); },
      [](as::IElement* message) -> int { return as::interface_cast<Message>(message)->getUse(); },
      [](as::IElement* message, int use) {
        as::interface_cast<Message>(message)->setUse(static_cast<typename Message::USE>(use));
      },
      attributes};
}

class WebNewMessage : public testing::TestWithParam<Kind> {
 protected:
  static as::IList* listOf(as::IService& service) {
    return (operationOf(service)->*GetParam().list)();
  }
  static as::IElement* messageOf(as::IService& service, int index = 0) {
    return listOf(service)->getItem(index);
  }
  static as::IElement* addTo(as::IService& service) {
    return GetParam().add(*operationOf(service));
  }
  static std::string opening(const std::string& attributes = "") {
    return "<" + std::string(GetParam().element) + attributes + ">";
  }
  static std::string closing() { return "</" + std::string(GetParam().element) + ">"; }
};

INSTANTIATE_TEST_SUITE_P(Elements, WebNewMessage,
                         testing::Values(kindOf<as::IWSHeader>(
                                             "header", &as::IWSOperation::getHeaders,
                                             [](as::IWSOperation& operation) -> as::IElement* {
                                               return operation.addHeader(as::IWSHeader::BY_OUT);
                                             },
                                             " byType=\"out\""),
                                         kindOf<as::IWSFault>(
                                             "fault", &as::IWSOperation::getFaults,
                                             [](as::IWSOperation& operation) -> as::IElement* {
                                               return operation.addFault();
                                             },
                                             "")),
                         [](const testing::TestParamInfo<Kind>& test) {
                           return test.param.element;
                         });

// It holds its empty list and says nothing that it was not told.
TEST_P(WebNewMessage, SaysNothingButItsDirection) {
  for (const bool isNew : {true, false}) {
    const std::unique_ptr<as::IService> service = isNew ? newService() : parsed("");
    as::IElement* const added = addTo(*service);
    EXPECT_EQ(GetParam().use(added), unknown);
    EXPECT_EQ(elementIn(written(*service), opening(GetParam().attributes), closing()),
              opening(GetParam().attributes) + "<parameters/>" + closing());
  }
}

TEST_P(WebNewMessage, IsTheMemberOfItsListAlone) {
  const auto service = newService();
  as::IElement* const first = addTo(*service);
  as::IElement* const second = addTo(*service);
  ASSERT_EQ(listOf(*service)->getLength(), 2);
  EXPECT_EQ(messageOf(*service, 0), first);
  EXPECT_EQ(messageOf(*service, 1), second);
  EXPECT_EQ(operationOf(*service)->getHeaders()->getLength() +
                operationOf(*service)->getFaults()->getLength(),
            2);
  EXPECT_EQ(operationOf(*service)->getParameters()->getLength(), 0);
}

TEST_P(WebNewMessage, HasParametersOfItsOwn) {
  const auto service = newService();
  as::IElement* const first = addTo(*service);
  as::IElement* const second = addTo(*service);
  EXPECT_NE(GetParam().parameters(first), GetParam().parameters(second));
  as::IWSParameter* const parameter = GetParam().addParameter(first, 0, "a", 1);
  ASSERT_EQ(GetParam().parameters(first)->getLength(), 1);
  EXPECT_EQ(itemOf<as::IWSParameter>(GetParam().parameters(first), 0), parameter);
  EXPECT_EQ(GetParam().parameters(second)->getLength(), 0);
}

// The direction and the encoding of the message are not its parameters'.
TEST_P(WebNewMessage, ParametersHaveTheDirectionGiven) {
  const struct {
    int byType;
    const char* word;
    int read;
  } rows[] = {{0, "in", 0}, {1, "out", 1}, {2, "io", 2}, {7, "io", 2}, {unknown, "io", 2}};
  for (const int use : {unknown, 0, 1}) {
    const auto service = newService();
    as::IElement* const message = addTo(*service);
    GetParam().setUse(message, use);
    const std::string direction = message->getAttributeValue("byType");
    for (const auto& row : rows) {
      as::IWSParameter* const parameter = GetParam().addParameter(message, row.byType, "p", 1);
      EXPECT_EQ(parameter->getAttributeValue("byType"), row.word) << row.byType;
      EXPECT_EQ(parameter->getByType(), row.read) << row.byType;
    }
    EXPECT_EQ(message->getAttributeValue("byType"), direction);
    EXPECT_EQ(GetParam().use(message), use);
  }
}

TEST_P(WebNewMessage, ParametersHaveTheNameAndTheOccurrencesGiven) {
  const struct {
    const char* name;
    const char* nameRead;
    int occurs;
    const char* occursWritten;
  } rows[] = {{"code", "code", 1, "1"},
              {"", "", 0, "0"},
              {nullptr, "", -3, "-3"},
              {"gr\xC3\xB6\xC3\x9F"
               "e <&\"'>",
               "gr\xC3\xB6\xC3\x9F"
               "e <&\"'>",
               2147483647, "2147483647"}};
  const auto service = newService();
  as::IElement* const message = addTo(*service);
  for (const auto& row : rows) {
    as::IWSParameter* const parameter = GetParam().addParameter(message, 0, row.name, row.occurs);
    EXPECT_EQ(parameter->getName(), row.nameRead);
    EXPECT_EQ(parameter->getOccurs(), row.occurs);
    EXPECT_EQ(parameter->getAttributeValue("occurs"), row.occursWritten);
  }
  const auto again = writtenAndRead(*service);
  as::IList* const read = GetParam().parameters(messageOf(*again));
  ASSERT_EQ(read->getLength(), 4);
  for (int i = 0; i < 4; i++) {
    EXPECT_EQ(itemOf<as::IWSParameter>(read, i)->getName(), rows[i].nameRead);
    EXPECT_EQ(itemOf<as::IWSParameter>(read, i)->getOccurs(), rows[i].occurs);
  }
}

TEST_P(WebNewMessage, ReadWithoutParametersTakesThemInOneNewList) {
  const auto service = parsed(opening() + closing() + opening() + closing());
  as::IElement* const message = messageOf(*service);
  as::IList* const shared = service->getProperties();
  EXPECT_EQ(GetParam().parameters(message), shared);
  as::IWSParameter* const first = GetParam().addParameter(message, 0, "a", 1);
  as::IList* const parameters = GetParam().parameters(message);
  EXPECT_NE(parameters, shared);
  as::IWSParameter* const second = GetParam().addParameter(message, 1, "b", 2);
  EXPECT_EQ(GetParam().parameters(message), parameters);
  ASSERT_EQ(parameters->getLength(), 2);
  EXPECT_EQ(itemOf<as::IWSParameter>(parameters, 0), first);
  EXPECT_EQ(itemOf<as::IWSParameter>(parameters, 1), second);
  EXPECT_EQ(shared->getLength(), 0);
  EXPECT_EQ(GetParam().parameters(messageOf(*service, 1)), shared);

  const auto again = writtenAndRead(*service);
  ASSERT_EQ(listOf(*again)->getLength(), 2);
  as::IList* const read = GetParam().parameters(messageOf(*again));
  ASSERT_EQ(read->getLength(), 2);
  EXPECT_EQ(itemOf<as::IWSParameter>(read, 1)->getName(), "b");
  EXPECT_EQ(GetParam().parameters(messageOf(*again, 1))->getLength(), 0);
}

TEST_P(WebNewMessage, LookingDoesNotMakeAList) {
  const auto service = parsed(opening() + closing());
  const std::string before = written(*service);
  EXPECT_EQ(GetParam().parameters(messageOf(*service))->getLength(), 0);
  EXPECT_EQ(written(*service), before);
}

TEST_P(WebNewMessage, ReadWithAnEmptyListAddsToThat) {
  const auto service = parsed(opening() + "<parameters/>" + closing());
  as::IList* const parameters = GetParam().parameters(messageOf(*service));
  EXPECT_NE(parameters, service->getProperties());
  GetParam().addParameter(messageOf(*service), 1, "code", 1);
  EXPECT_EQ(GetParam().parameters(messageOf(*service)), parameters);
  EXPECT_EQ(elementIn(written(*service), "<" + std::string(GetParam().element), closing()),
            opening() +
                "<parameters><parameter byType=\"out\" name=\"code\" occurs=\"1\"><mappings/>"
                "</parameter></parameters>" +
                closing());
}

// Everything that can be hung below a message, in a service that never was a document.
TEST_P(WebNewMessage, EverythingBelowItIsReadBack) {
  const auto service = newService();
  addTo(*service);
  as::IElement* const message = addTo(*service);
  GetParam().setUse(message, 1);
  as::IWSParameter* const parameter = GetParam().addParameter(message, 1, "p", 2);
  parameter->setType(as::IWSField::WS_ARRAY);
  parameter->setNamespace("urn:p");
  parameter->setElementForm(as::IWSField::FORM_QUALIFIED);
  parameter->setAttributeForm(as::IWSField::FORM_UNQUALIFIED);
  auto* const field = as::interface_cast<as::IWSParameter>(parameter->addField("f", 3));
  ASSERT_NE(field, nullptr);
  field->addFieldAttribute("fa")->setType(as::IWSField::WS_UNSIGNED_LONG);
  parameter->addFieldAttribute("pa")->addMapping(
      test::topItem<as::IDataItem>(*service->getProgram()));

  const auto again = writtenAndRead(*service);
  ASSERT_EQ(listOf(*again)->getLength(), 2);
  EXPECT_EQ(GetParam().use(messageOf(*again, 0)), unknown);
  EXPECT_EQ(GetParam().use(messageOf(*again, 1)), 1);
  EXPECT_EQ(GetParam().parameters(messageOf(*again, 0))->getLength(), 0);
  as::IList* const parameters = GetParam().parameters(messageOf(*again, 1));
  ASSERT_EQ(parameters->getLength(), 1);
  auto* const read = itemOf<as::IWSParameter>(parameters, 0);
  EXPECT_EQ(read->getName(), "p");
  EXPECT_EQ(read->getByType(), as::IParameter::BY_OUT);
  EXPECT_EQ(read->getOccurs(), 2);
  EXPECT_EQ(read->getTypeToString(), "Array");
  EXPECT_EQ(read->getNamespace(), "urn:p");
  EXPECT_EQ(read->getElementForm(), as::IWSField::FORM_QUALIFIED);
  EXPECT_EQ(read->getAttributeForm(), as::IWSField::FORM_UNQUALIFIED);
  ASSERT_EQ(read->getChildren()->getLength(), 1);
  auto* const readField = itemOf<as::IWSParameter>(read->getChildren(), 0);
  EXPECT_EQ(readField->getOccurs(), 3);
  ASSERT_EQ(readField->getFieldAttributes()->getLength(), 1);
  EXPECT_EQ(itemOf<as::IWSParameter>(readField->getFieldAttributes(), 0)->getTypeToString(),
            "unsignedLong");
  ASSERT_EQ(read->getFieldAttributes()->getLength(), 1);
  auto* const readAttribute = itemOf<as::IWSParameter>(read->getFieldAttributes(), 0);
  EXPECT_EQ(readAttribute->getName(), "pa");
  ASSERT_EQ(readAttribute->getMappings()->getLength(), 1);
  EXPECT_EQ(itemOf<as::IMapping>(readAttribute->getMappings(), 0)->getRawMapping(), "WS-COUNT");
}

// Operations.

TEST(WebNewOperation, KnowsNothingUntilTold) {
  const auto service = newService();
  as::IWSOperation* const operation = operationOf(*service);
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
  const auto service = newService();
  as::IWSOperation* const operation = operationOf(*service);
  operation->setStyle(as::IWSOperation::STYLE_RPC);
  operation->setInputUse(as::IWSOperation::USE_ENCODED);
  operation->setOutputUse(as::IWSOperation::USE_LITERAL);
  operation->setInputNamespace("urn:in & <\xC3\xA4>");
  operation->setOutputNamespace("urn:out");
  operation->addFault()->setNamespace("urn:fault");
  operation->addHeader(as::IWSHeader::BY_IN)->setNamespace("urn:header");
  const auto again = writtenAndRead(*service);
  EXPECT_NE(as::interface_cast<as::IWebService>(again.get()), nullptr);
  as::IWSOperation* const read = operationOf(*again);
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
  const auto service = parsed("");
  as::IWSOperation* const operation = operationOf(*service);
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
  const auto service = newService();
  as::IWSOperation* const operation = operationOf(*service);
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
  EXPECT_EQ(itemOf<as::IWSHeader>(operation->getHeaders(), 1)->getNamespace(), "urn:3");
  EXPECT_EQ(itemOf<as::IWSFault>(operation->getFaults(), 1)->getNamespace(), "urn:4");
}

// What no getter has a number for does not get into a model through a document.
TEST(WebWord, ThatIsNoneOfItsAttributeIsRefusedByTheParser) {
  const struct {
    const char* element;
    const char* attribute;
    const char* word;
    const char* wrong[4];
  } rows[] = {
      {"operation", "style", "rpc", {"", "RPC", "literal", "documents"}},
      {"operation", "inputUse", "literal", {"", "Literal", "rpc", " literal"}},
      {"operation", "outputUse", "encoded", {"", "Encoded", "document", "encoded "}},
      {"header", "use", "literal", {"", "Literal", "in", "literals"}},
      {"header", "byType", "io", {"", "IN", "inout", "io "}},
      {"fault", "use", "encoded", {"", "Encoded", "out", "encode"}},
      {"parameter", "dataType", "integer", {"", "Integer", "array", "xml"}},
      {"parameter", "elementForm", "qualified", {"", "Qualified", "encoded", "yes"}},
      {"parameter", "attributeForm", "unqualified", {"", "UNQUALIFIED", "true", "un"}},
  };
  for (const auto& row : rows) {
    const auto outcomeOf = [&row](const char* word) {
      const std::string element = row.element;
      const std::string attribute = std::string(row.attribute) + "='" + word + "'";
      const std::string inner = "<" + element + " " + attribute + "/>";
      const std::string document =
          webService("", "<operations>" +
                             (element == "operation"   ? inner
                              : element == "parameter" ? "<operation><fault><parameters>" + inner +
                                                             "</parameters></fault></operation>"
                                                       : "<operation>" + inner + "</operation>") +
                             "</operations>");
      return test::outcomeOf([&document] { return parseService(document).release(); }).result;
    };
    EXPECT_EQ(outcomeOf(row.word), test::Result::root) << row.element << " " << row.attribute;
    for (const char* const wrong : row.wrong) {
      EXPECT_EQ(outcomeOf(wrong), test::Result::parseException)
          << row.element << " " << row.attribute << " '" << wrong << "'";
    }
  }
}

}  // namespace
