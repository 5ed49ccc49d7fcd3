// Tests of the headers and faults of Web service operations.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using test::element;
using test::operationOf;
using test::parseService;
using test::webOperationOf;
using test::webService;
using test::written;

constexpr int unknown = -1;

// What headers and faults have in common, seen from the element's name.
template <class Message>
struct Kind;

template <>
struct Kind<as::IWSHeader> {
  static constexpr char element[] = "header";
  static as::IList* listOf(as::IService& service) { return webOperationOf(service)->getHeaders(); }
  static as::IWSHeader* addTo(as::IService& service) {
    return webOperationOf(service)->addHeader(as::IWSHeader::BY_IN);
  }
};

template <>
struct Kind<as::IWSFault> {
  static constexpr char element[] = "fault";
  static as::IList* listOf(as::IService& service) { return webOperationOf(service)->getFaults(); }
  static as::IWSFault* addTo(as::IService& service) { return webOperationOf(service)->addFault(); }
};

template <class Message>
class WebMessage : public testing::Test {
 protected:
  // The only message of a service, with those attributes and that content.
  Message* make(const std::string& attributes, const std::string& content = "") {
    const std::string message = element(Kind<Message>::element, content, attributes);
    service_ = parseService(webService(
        "", "<operations><operation name='op'>" + message + "</operation></operations>"));
    return messageOf(*service_);
  }

  static Message* messageOf(as::IService& service) {
    return test::itemOf<Message>(Kind<Message>::listOf(service), 0);
  }

  as::IService& service() { return *service_; }

 private:
  std::unique_ptr<as::IService> service_;
};

using Messages = testing::Types<as::IWSHeader, as::IWSFault>;
TYPED_TEST_SUITE(WebMessage, Messages, );

TYPED_TEST(WebMessage, UseIsTheNumberOfItsWord) {
  EXPECT_EQ(this->make("use='literal'")->getUse(), 0);
  EXPECT_EQ(this->make("use='encoded'")->getUse(), 1);
  EXPECT_EQ(static_cast<int>(this->make("")->getUse()), unknown);
}

TYPED_TEST(WebMessage, UseIsWrittenUnlessItIsNone) {
  TypeParam* const message = this->make("");
  const auto set = [&](int use) { message->setUse(static_cast<typename TypeParam::USE>(use)); };
  set(3);
  EXPECT_EQ(written(this->service()).find("use="), std::string::npos);
  set(1);
  EXPECT_EQ(message->getAttributeValue("use"), "encoded");
  for (const int other : {2, -1, 99}) {
    set(other);
    EXPECT_EQ(message->getAttributeValue("use"), "encoded") << other;
  }
  set(0);
  EXPECT_EQ(message->getAttributeValue("use"), "literal");
}

TYPED_TEST(WebMessage, NamespaceIsTheTextAsItStands) {
  TypeParam* const message = this->make("namespace=' urn:a&amp;b '");
  EXPECT_EQ(message->getNamespace(), " urn:a&b ");
  message->setNamespace("urn:ö");
  EXPECT_EQ(message->getAttributeValue("namespace"), "urn:ö");
  EXPECT_EQ(message->getNamespace(), "urn:ö");
  message->setNamespace(nullptr);
  EXPECT_EQ(message->getNamespace(), "");
  EXPECT_EQ(this->make("")->getNamespace(), "");
}

TYPED_TEST(WebMessage, ListsItsParametersInOrder) {
  TypeParam* const message = this->make(
      "", "<parameters><parameter name='a' dataType='int'/><parameter name='b'/></parameters>");
  ASSERT_EQ(message->getParameters()->getLength(), 2);
  auto* const first = test::itemOf<as::IWSParameter>(message->getParameters(), 0);
  EXPECT_EQ(first->getName(), "a");
  EXPECT_EQ(first->getType(), as::IWSField::WS_INT);
  EXPECT_EQ(test::itemOf<as::IWSParameter>(message->getParameters(), 1)->getName(), "b");
}

TYPED_TEST(WebMessage, WithoutParametersHasTheSharedEmptyList) {
  TypeParam* const message = this->make("");
  EXPECT_EQ(message->getParameters()->getLength(), 0);
  EXPECT_EQ(message->getParameters(), this->service().getProperties());
}

TYPED_TEST(WebMessage, AddedHasAnEmptyListOfItsOwn) {
  this->make("");
  TypeParam* const added = Kind<TypeParam>::addTo(this->service());
  EXPECT_EQ(added->getParameters()->getLength(), 0);
  EXPECT_NE(added->getParameters(), this->service().getProperties());
}

TYPED_TEST(WebMessage, AddsParametersLast) {
  TypeParam* const message = this->make("", "<parameters><parameter name='old'/></parameters>");
  as::IList* const parameters = message->getParameters();
  as::IWSParameter* const added = message->addParameter(as::IParameter::BY_OUT, "code", 1);
  EXPECT_EQ(message->getParameters(), parameters);
  ASSERT_EQ(parameters->getLength(), 2);
  EXPECT_EQ(test::itemOf<as::IWSParameter>(parameters, 1), added);
  EXPECT_EQ(added->getName(), "code");
  EXPECT_EQ(added->getAttributeValue("byType"), "out");
  EXPECT_EQ(added->getAttributeValue("occurs"), "1");
  EXPECT_EQ(added->getMappings()->getLength(), 0);
  EXPECT_EQ(operationOf(this->service())->getParameters()->getLength(), 0);
}

TYPED_TEST(WebMessage, WithoutAListMakesOneForItsFirstParameter) {
  TypeParam* const message = this->make("");
  message->addParameter(as::IParameter::BY_IN, "a", 0);
  message->addParameter(static_cast<as::IParameter::BY_TYPE>(9), nullptr, -1);
  ASSERT_EQ(message->getParameters()->getLength(), 2);
  EXPECT_EQ(this->service().getProperties()->getLength(), 0);
  auto* const odd = test::itemOf<as::IWSParameter>(message->getParameters(), 1);
  EXPECT_EQ(odd->getAttributeValue("byType"), "io");
  EXPECT_EQ(odd->getName(), "");
  EXPECT_EQ(odd->getOccurs(), -1);
  const std::string text = written(this->service());
  EXPECT_EQ(text.find("<parameters>"), text.rfind("<parameters>"));
}

TYPED_TEST(WebMessage, IsReadBackWithItsParameters) {
  this->make("");
  TypeParam* const added = Kind<TypeParam>::addTo(this->service());
  added->setUse(TypeParam::USE_ENCODED);
  added->setNamespace("urn:n");
  as::IWSParameter* const parameter = added->addParameter(as::IParameter::BY_IN, "p", 4);
  parameter->setType(as::IWSField::WS_XML);
  parameter->addField("f", 2);
  const auto again = test::writtenAndRead(this->service());
  ASSERT_EQ(Kind<TypeParam>::listOf(*again)->getLength(), 2);
  auto* const read = test::itemOf<TypeParam>(Kind<TypeParam>::listOf(*again), 1);
  EXPECT_EQ(read->getUse(), TypeParam::USE_ENCODED);
  EXPECT_EQ(read->getNamespace(), "urn:n");
  auto* const field = test::itemOf<as::IWSParameter>(read->getParameters(), 0);
  EXPECT_EQ(field->getType(), as::IWSField::WS_XML);
  EXPECT_EQ(field->getOccurs(), 4);
  EXPECT_EQ(field->getChildren()->getLength(), 1);
}

// Headers and faults are elements, and nothing else that the model knows.
TYPED_TEST(WebMessage, IsNoOtherKindOfElement) {
  as::IElement* const message = this->make("");
  EXPECT_EQ(as::interface_cast<as::IParameter>(message), nullptr);
  EXPECT_EQ(as::interface_cast<as::IList>(message), nullptr);
  EXPECT_EQ(as::interface_cast<as::IOperation>(message), nullptr);
  constexpr bool isHeader = std::is_same_v<TypeParam, as::IWSHeader>;
  EXPECT_EQ(as::interface_cast<as::IWSHeader>(message) != nullptr, isHeader);
  EXPECT_EQ(as::interface_cast<as::IWSFault>(message) != nullptr, !isHeader);
}

using WebHeader = WebMessage<as::IWSHeader>;

// Unlike the use, an unreadable direction is both ways, and is written as such.
TEST_F(WebHeader, DirectionIsBothWaysUnlessToldOtherwise) {
  const struct {
    const char* attributes;
    int direction;
  } rows[] = {{"byType='in'", 0}, {"byType='out'", 1}, {"byType='io'", 2}, {"", 2}};
  for (const auto& row : rows) EXPECT_EQ(make(row.attributes)->getByType(), row.direction);
  as::IWSHeader* const header = make("");
  const char* const words[] = {"in", "out", "io"};
  for (int direction = 0; direction < 3; direction++) {
    header->setByType(static_cast<as::IWSHeader::BY_TYPE>(direction));
    EXPECT_EQ(header->getAttributeValue("byType"), words[direction]);
  }
  for (const int other : {7, 3, -1}) {
    header->setByType(as::IWSHeader::BY_IN);
    header->setByType(static_cast<as::IWSHeader::BY_TYPE>(other));
    EXPECT_EQ(header->getAttributeValue("byType"), "io") << other;
  }
}

}  // namespace
