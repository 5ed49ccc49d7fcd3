// Tests of headers and faults as they come to be: in new services, added to parsed ones, written
// and read again.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/XmlText.h"

namespace {

using test::elementIn;
using test::itemOf;
using test::newWebService;
using test::parseService;
using test::webOperationOf;
using test::webService;
using test::written;
using test::writtenAndRead;

constexpr int unknown = -1;

std::unique_ptr<as::IService> parsed(const std::string& content) {
  return parseService(
      webService("", "<operations><operation name='op'>" + content + "</operation></operations>"));
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
    return (webOperationOf(service)->*GetParam().list)();
  }
  static as::IElement* messageOf(as::IService& service, int index = 0) {
    return listOf(service)->getItem(index);
  }
  static as::IElement* addTo(as::IService& service) {
    return GetParam().add(*webOperationOf(service));
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
    const std::unique_ptr<as::IService> service = isNew ? newWebService() : parsed("");
    as::IElement* const added = addTo(*service);
    EXPECT_EQ(GetParam().use(added), unknown);
    EXPECT_EQ(elementIn(written(*service), opening(GetParam().attributes), closing()),
              opening(GetParam().attributes) + "<parameters/>" + closing());
  }
}

TEST_P(WebNewMessage, IsTheMemberOfItsListAlone) {
  const auto service = newWebService();
  as::IElement* const first = addTo(*service);
  as::IElement* const second = addTo(*service);
  ASSERT_EQ(listOf(*service)->getLength(), 2);
  EXPECT_EQ(messageOf(*service, 0), first);
  EXPECT_EQ(messageOf(*service, 1), second);
  EXPECT_EQ(webOperationOf(*service)->getHeaders()->getLength() +
                webOperationOf(*service)->getFaults()->getLength(),
            2);
  EXPECT_EQ(webOperationOf(*service)->getParameters()->getLength(), 0);
}

TEST_P(WebNewMessage, HasParametersOfItsOwn) {
  const auto service = newWebService();
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
    const auto service = newWebService();
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
  const auto service = newWebService();
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
  const auto service = newWebService();
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

}  // namespace
