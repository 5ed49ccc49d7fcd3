// Tests of the whole way: from a dictionary to a new service, extended through the model, written,
// read back with its program, edited, and written and read again; every accessor answers the same.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/XmlText.h"

namespace {

using test::countOf;
using test::Flavour;
using test::labelOf;

struct Circle {
  std::string label;
  const char* program;
  Flavour flavour;
};

void PrintTo(const Circle& circle, std::ostream* out) { *out << circle.label; }

std::vector<Circle> circles() {
  std::vector<Circle> all;
  for (const Flavour& flavour : test::flavours::all) {
    for (const char* const program : {"DEPINT01", "MOTPREM", "PAYSLIP", "WHSLOTS"}) {
      all.push_back({flavour.label + std::string(program), program, flavour});
    }
  }
  return all;
}

// Extends a service by all that its flavour offers. Words are taken in turn, so that each is used.
class Builder {
 public:
  explicit Builder(as::IService& service) : service_(service) {}

  void addEverything() {
    as::IList* const entryPoints = service_.getProgram()->getEntryPoints();
    for (int i = 0; i < entryPoints->getLength(); i++) {
      auto* const entryPoint = test::itemOf<as::IEntryPoint>(entryPoints, i);
      as::IOperation* const operation =
          service_.addOperation(entryPoint->getName().c_str(), entryPoint);
      complete(*operation);
      for (int k = 0; k < entryPoint->getLength(); k++) {
        auto* const linkage = test::itemOf<as::ILinkageItem>(entryPoint, k);
        as::IDataItem* const item = linkage->getDataItem();
        ASSERT_NE(item, nullptr);
        as::IParameter* const parameter = operation->addParameter(
            static_cast<as::IParameter::BY_TYPE>(k % 3), item->getName().c_str(), 0);
        map(*parameter, *item);
      }
      as::IHiddenParameter* const hidden = operation->addHiddenParameter(nullptr, nullptr);
      hidden->setDataItem(test::topItem<as::IDataItem>(*service_.getProgram()));
      hidden->setValue("Ä & \"<\t");
    }
  }

  // One more of everything, and changes of what is there.
  void edit() {
    service_.setName("Geändert");
    service_.setExitProgramName("EXIT");
    as::IOperation* const operation = service_.addOperation("added", nullptr);
    complete(*operation);
    as::IParameter* const parameter = operation->addParameter(as::IParameter::BY_OUT, "p", 2);
    complete(*parameter);
    as::IField* const field = parameter->addField("f", 3);
    complete(*field);
    field->addMapping(test::topItem<as::IDataItem>(*service_.getProgram()));
    auto* const first = test::itemOf<as::IOperation>(service_.getOperations(), 0);
    first->setName("renamed");
    first->setExitPoints(4);
    complete(*first);
    if (first->getParameters()->getLength() > 0) {
      auto* const old = test::itemOf<as::IParameter>(first->getParameters(), 0);
      old->setOccurs(7);
      old->setByType(as::IParameter::BY_IO);
      complete(*old);
    }
  }

 private:
  void map(as::IField& field, as::IDataItem& item) {
    complete(field);
    auto* const group = as::interface_cast<as::IGroup>(&item);
    if (group == nullptr) {
      field.addMapping(&item);
      return;
    }
    for (int i = 0; i < group->getChildren()->getLength(); i++) {
      auto* const member = test::itemOf<as::IDataItem>(group->getChildren(), i);
      map(*field.addField(member->getName().c_str(), member->getMaxOccurs()), *member);
    }
  }

  void complete(as::IOperation& operation) {
    turn_++;
    if (auto* const java = as::interface_cast<as::IJavaOperation>(&operation)) {
      java->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(turn_ % 6));
    }
    auto* const web = as::interface_cast<as::IWSOperation>(&operation);
    if (web == nullptr) return;
    web->setStyle(static_cast<as::IWSOperation::STYLE>(turn_ % 2));
    web->setInputUse(static_cast<as::IWSOperation::USE>(turn_ % 2));
    web->setOutputUse(static_cast<as::IWSOperation::USE>((turn_ + 1) % 2));
    web->setInputNamespace("urn:in");
    web->setOutputNamespace("urn:out?a=b&c=d");
    as::IWSHeader* const header = web->addHeader(static_cast<as::IWSHeader::BY_TYPE>(turn_ % 3));
    header->setUse(as::IWSHeader::USE_ENCODED);
    header->setNamespace("urn:header");
    complete(*header->addParameter(as::IParameter::BY_IN, "h", 1));
    as::IWSFault* const fault = web->addFault();
    fault->setUse(as::IWSFault::USE_LITERAL);
    fault->setNamespace("urn:fault");
    complete(*fault->addParameter(as::IParameter::BY_OUT, "x", 1));
  }

  void complete(as::IField& field) {
    turn_++;
    if (auto* const java = as::interface_cast<as::IJavaField>(&field)) {
      java->setType(static_cast<as::IJavaField::TYPE>(turn_ % 10));
    }
    if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
      com->setType(static_cast<as::ICOMField::TYPE>(turn_ % 10));
      com->setReturnParameter(turn_ % 2 == 0);
    }
    if (auto* const dotNet = as::interface_cast<as::IDotNETField>(&field)) {
      dotNet->setType(static_cast<as::IDotNETField::TYPE>(turn_ % 12));
    }
    auto* const web = as::interface_cast<as::IWSParameter>(&field);
    if (web == nullptr) return;
    web->setType(static_cast<as::IWSField::TYPE>(turn_ % 15));
    web->setNamespace("urn:parameter");
    web->setElementForm(static_cast<as::IWSField::FORM>(turn_ % 2));
    web->setAttributeForm(static_cast<as::IWSField::FORM>((turn_ + 1) % 2));
    if (turn_ % 3 == 0) web->addFieldAttribute("a")->setType(as::IWSField::WS_STRING);
  }

  as::IService& service_;
  int turn_ = 0;
};

class FullCircle : public testing::TestWithParam<Circle> {
 protected:
  std::string dictionary() const {
    return std::string(AS_EXAMPLES_DIR "/") + GetParam().program + ".xml";
  }

  std::unique_ptr<as::IService> newService() const {
    std::unique_ptr<as::IProgram> program(test::newServices()->parseCobolDD(dictionary().c_str()));
    std::unique_ptr<as::IService> service(GetParam().flavour.make(program.get()));
    static_cast<void>(program.release());
    Builder(*service).addEverything();
    service->setDDFilename(dictionary().c_str());
    return service;
  }

  // The document as it is written, which declares the namespace of the flavour once.
  std::string written(as::IService& service) const {
    const std::string text = test::written(service);
    EXPECT_EQ(countOf(text, "xmlns=\""), 1) << text.substr(0, 600);
    EXPECT_EQ(countOf(text, "xmlns=\"" + std::string(xmlns_) + "\""), 1) << text.substr(0, 600);
    EXPECT_EQ(countOf(text, "xmlns:xsi="), 1) << text.substr(0, 600);
    return text;
  }

  // The service in `text`, with its program. A new .NET service stands in the namespace of Web
  // services; in that of its own it is read back as what it was.
  std::unique_ptr<as::IService> readBack(std::string text) {
    if (GetParam().flavour.implementation == as::IService::TYPE_DOTNET) {
      xmlns_ = as::namespaces::dotnet.uri;
      text = test::replaced(std::move(text), as::namespaces::ws.uri, as::namespaces::dotnet.uri);
    }
    std::unique_ptr<as::IService> service = test::parseService(text, true);
    service->setDDFilename(dictionary().c_str());
    return service;
  }

 private:
  const char* xmlns_ = GetParam().flavour.xmlns;
};

TEST_P(FullCircle, EveryAccessorAnswersAsBefore) {
  const auto created = newService();
  const std::string before = test::modelText(*created);
  const auto parsed = readBack(written(*created));
  ASSERT_NE(parsed->getProgram(), nullptr);
  EXPECT_EQ(test::modelText(*parsed), before);
  EXPECT_EQ(parsed->getImplementation(), GetParam().flavour.implementation);

  Builder(*parsed).edit();
  const std::string edited = test::modelText(*parsed);
  EXPECT_NE(edited, before);
  const std::string text = written(*parsed);
  const auto again = readBack(text);
  EXPECT_EQ(test::modelText(*again), edited);
  EXPECT_EQ(written(*again), text);
}

TEST_P(FullCircle, NewServicesCanBeEditedAfterTheyWereWritten) {
  const auto created = newService();
  written(*created);
  Builder(*created).edit();
  const std::string edited = test::modelText(*created);
  EXPECT_EQ(test::modelText(*readBack(written(*created))), edited);
}

INSTANTIATE_TEST_SUITE_P(FlavoursAndPrograms, FullCircle, testing::ValuesIn(circles()),
                         labelOf<Circle>);

// As it is written, a new .NET service is read back as a Web service with .NET words.
TEST(FullCircleOfNet, ANewNetServiceIsReadBackAsAWebServiceWithItsWords) {
  const Flavour& flavour = test::flavours::all.back();
  ASSERT_EQ(flavour.implementation, as::IService::TYPE_DOTNET);
  const auto created = test::newService(flavour);
  as::IParameter* const parameter =
      created->addOperation("o", nullptr)->addParameter(as::IParameter::BY_IN, "p", 1);
  as::interface_cast<as::IDotNETField>(parameter)->setType(as::IDotNETField::NET_DECIMAL);
  const auto parsed = test::writtenAndRead(*created);
  EXPECT_NE(as::interface_cast<as::IWebService>(parsed.get()), nullptr);
  EXPECT_EQ(as::interface_cast<as::IDotNET>(parsed.get()), nullptr);
  EXPECT_EQ(parsed->getImplementation(), as::IService::TYPE_DOTNET);
  auto* const read = test::parameterOf<as::IWSParameter>(*parsed);
  EXPECT_EQ(read->getAttributeValue("dataType"), "Decimal");
  EXPECT_EQ(static_cast<int>(read->getType()), -1);
}

}  // namespace
