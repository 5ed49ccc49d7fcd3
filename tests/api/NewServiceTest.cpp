// Tests of new services of every flavour: the document that each starts with, what can be added to
// it, what is left of it when it is written and read again, and who owns what.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"
#include "support/XmlText.h"

namespace {

using test::classOf;
using test::countOf;
using test::Flavour;
using test::itemOf;
using test::labelOf;
using test::newService;
using test::operationOf;
using test::parameterOf;
using test::payProgram;
using test::written;
using test::writtenAndRead;

// What the service's start tag, between "<service" and ">", says.
std::string rootAttributes(const std::string& text) {
  const std::string start = "<service";
  const std::size_t from = text.find(start);
  if (from == std::string::npos) return "";
  return text.substr(from + start.size(), text.find('>', from) - from - start.size());
}

class NewService : public testing::TestWithParam<Flavour> {
 protected:
  // The flavour that the service is of when its document is read again. New .NET documents declare
  // the namespace of Web services.
  static const Flavour& readAs() {
    for (const Flavour& flavour : test::flavours::all) {
      if (flavour.xmlns == std::string(GetParam().xmlns)) return flavour;
    }
    return test::flavours::all.back();
  }
};

INSTANTIATE_TEST_SUITE_P(Flavours, NewService, testing::ValuesIn(test::flavours::all),
                         labelOf<Flavour>);

TEST_P(NewService, IsNullForNoProgram) { EXPECT_EQ(GetParam().make(nullptr), nullptr); }

// The document.

TEST_P(NewService, SaysItsImplementation) {
  const auto service = newService(GetParam());
  EXPECT_EQ(service->getImplementation(), GetParam().implementation);
  EXPECT_EQ(service->getAttributeValue("implementation"), GetParam().word);
}

TEST_P(NewService, DeclaresItsNamespaceOnce) {
  const auto service = newService(GetParam());
  const std::string ns = GetParam().xmlns;
  EXPECT_EQ(service->getAttributeValue("xmlns"), ns);
  const std::string text = written(*service);
  EXPECT_EQ(countOf(text, " xmlns="), 1) << text;
  EXPECT_THAT(rootAttributes(text), testing::HasSubstr(" xmlns=\"" + ns + "\""));
}

TEST_P(NewService, NamesItsSchema) {
  const auto service = newService(GetParam());
  const std::string ns = GetParam().xmlns;
  const std::string attributes = rootAttributes(written(*service));
  EXPECT_THAT(attributes,
              testing::HasSubstr(" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""));
  EXPECT_THAT(attributes, testing::HasSubstr(" xsi:schemaLocation=\"" + ns + " " + ns + "\""));
}

TEST_P(NewService, HasNoOtherAttributes) {
  const std::string attributes = rootAttributes(written(*newService(GetParam())));
  EXPECT_EQ(countOf(attributes, "=\""), 6) << attributes;
}

TEST_P(NewService, HasItsThreeEmptyLists) {
  const auto service = newService(GetParam());
  std::string content = written(*service);
  content = content.substr(content.find('>', content.find("<service")) + 1);
  content.erase(
      std::remove_if(content.begin(), content.end(), [](char c) { return c == ' ' || c == '\n'; }),
      content.end());
  EXPECT_EQ(content, "<properties/><parameterTypeDefs/><operations/></service>");
}

TEST_P(NewService, ListsAreItsOwn) {
  const auto service = newService(GetParam());
  const auto other = newService(GetParam());
  const auto listsOf = [](as::IService& of) {
    return std::vector<as::IList*>{of.getProperties(), of.getParameterTypeDefs(),
                                   of.getOperations()};
  };
  for (as::IList* const list : listsOf(*service)) {
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->getLength(), 0);
    EXPECT_THAT(listsOf(*other), testing::Not(testing::Contains(list)));
  }
}

TEST_P(NewService, WrittenAgainIsTheSame) {
  const auto service = newService(GetParam());
  const std::string text = written(*service);
  EXPECT_EQ(written(*service), text);
}

// The program.

TEST_P(NewService, NamesItsProgramAndTheFileWithoutDirectory) {
  const struct {
    const char* id;
    const char* fileName;
  } rows[] = {{"some/where/PAY.xml", "PAY.xml"},
              {"/some/where/PAY.2.xml", "PAY.2.xml"},
              {"file:///some/where/PAY", "PAY"},
              {"PAY.xml", "PAY.xml"}};
  for (const auto& row : rows) {
    const std::unique_ptr<as::IService> service(
        GetParam().make(test::parse(payProgram(), row.id).release()));
    EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL");
    EXPECT_EQ(service->getAttributeValue("dataDictFilename"), row.fileName);
    EXPECT_EQ(service->getDDFilename(), row.fileName);
    EXPECT_THAT(rootAttributes(written(*service)),
                testing::AllOf(
                    testing::HasSubstr(" programName=\"PAYROLL\""),
                    testing::HasSubstr(" dataDictFilename=\"" + std::string(row.fileName) + "\"")));
  }
}

TEST_P(NewService, NamesTheFileThatTheProgramWasReadFrom) {
  const test::TempDirectory directory;
  const std::string file = directory.write("MY PAY.xml", payProgram());
  const std::unique_ptr<as::IService> service(
      GetParam().make(test::newServices()->parseCobolDD(file.c_str())));
  EXPECT_EQ(service->getDDFilename(), "MY PAY.xml");
}

// The classes.

TEST_P(NewService, IsOfItsClass) {
  const auto service = newService(GetParam());
  EXPECT_EQ(classOf(service.get()), GetParam().serviceClass);
  const std::string label = GetParam().label;
  EXPECT_EQ(as::interface_cast<as::IWebService>(service.get()) != nullptr, label == "Web");
  EXPECT_EQ(as::interface_cast<as::IDotNET>(service.get()) != nullptr, label == "DotNet");
}

TEST_P(NewService, AddsObjectsOfItsClasses) {
  const auto service = newService(GetParam());
  as::IOperation* const operation = service->addOperation("op", nullptr);
  EXPECT_EQ(classOf(operation), GetParam().operationClass);
  as::IParameter* const parameter = operation->addParameter(as::IParameter::BY_IN, "p", 1);
  EXPECT_EQ(classOf(parameter), GetParam().parameterClass);
  EXPECT_EQ(classOf(parameter->addField("f", 1)), GetParam().parameterClass);
  EXPECT_EQ(classOf(operation->addHiddenParameter(nullptr, nullptr)), "CHiddenParameterImpl");
  EXPECT_EQ(classOf(parameter->addMapping(test::topItem<as::IDataItem>(*service->getProgram()))),
            "CMappingImpl");
}

// Adding, writing and reading.

std::string nameOf(as::IDataItem* item) { return item == nullptr ? "(none)" : item->getName(); }

std::string described(as::IMapping* mapping) {
  return " [" + mapping->getRawMapping() + " " + mapping->getAttributeValue("subscript") + " " +
         mapping->getFullyQualifiedName() + " " + nameOf(mapping->getDataItem()) + "]";
}

std::string described(as::IHiddenParameter* hidden);
std::string described(as::IParameter* parameter);
std::string described(as::IOperation* operation);

template <class Item>
std::string describedAll(as::IList* list) {
  std::string text;
  for (int i = 0; i < list->getLength(); i++) text += described(itemOf<Item>(list, i));
  return text;
}

std::string described(as::IHiddenParameter* hidden) {
  return described(static_cast<as::IMapping*>(hidden)) + "=" + hidden->getValue();
}

std::string described(as::IParameter* parameter) {
  return " {" + parameter->getQualifiedName() + " " + std::to_string(parameter->getByType()) + " " +
         std::to_string(parameter->getOccurs()) + " " + parameter->getAttributeValue("dataType") +
         describedAll<as::IMapping>(parameter->getMappings()) +
         describedAll<as::IParameter>(parameter->getChildren()) + "}";
}

std::string described(as::IOperation* operation) {
  as::IEntryPoint* const entryPoint = operation->getEntryPoint();
  return " " + operation->getName() + "(" + (entryPoint == nullptr ? "" : entryPoint->getName()) +
         " " + std::to_string(operation->getExitPoints()) +
         describedAll<as::IHiddenParameter>(operation->getHiddenParameters()) +
         describedAll<as::IParameter>(operation->getParameters()) + ")";
}

// Everything that the model answers, whatever the flavour.
std::string described(as::IService& service) {
  return service.getName() + " " + std::to_string(service.getImplementation()) + " " +
         service.getAttributeValue("programName") + " " + service.getExitProgramName() +
         describedAll<as::IOperation>(service.getOperations());
}

// Writes a data type that is not the one for none.
void setSomeType(as::IField* field) {
  if (auto* const web = as::interface_cast<as::IWSField>(field)) web->setType(as::IWSField::WS_INT);
  if (auto* const com = as::interface_cast<as::ICOMField>(field)) {
    com->setType(as::ICOMField::COM_CURRENCY);
  }
  if (auto* const java = as::interface_cast<as::IJavaField>(field)) {
    java->setType(as::IJavaField::JAVA_BIG_DECIMAL);
  }
  if (auto* const dotNet = as::interface_cast<as::IDotNETField>(field)) {
    dotNet->setType(as::IDotNETField::NET_INT32);
  }
}

// Uses every operation that adds something, and each more than once.
void fill(as::IService& service) {
  service.setName("Pay");
  service.setExitProgramName("PAYEXIT");
  as::IProgram& program = *service.getProgram();
  auto* const count = test::topItem<as::IDataItem>(program);
  auto* const request = test::topItem<as::IGroup>(program, 1);
  auto* const line = itemOf<as::IGroup>(request->getChildren(), 2);
  auto* const amount = itemOf<as::IDataItem>(line->getChildren(), 0);
  as::IOperation* const pay =
      service.addOperation("pay", itemOf<as::IEntryPoint>(program.getEntryPoints(), 0));
  pay->setExitPoints(2);
  as::IHiddenParameter* const hidden = pay->addHiddenParameter(nullptr, nullptr);
  hidden->setDataItem(count);
  hidden->setValue("<7> & \"8\"");
  pay->addHiddenParameter(nullptr, nullptr)->setDataItem(amount);
  as::IParameter* const in = pay->addParameter(as::IParameter::BY_IN, "request", 1);
  in->addMapping(request);
  as::IField* const lines = in->addField("lines", 3);
  lines->addMapping(line);
  as::IField* const value = lines->addField("amount", 1);
  value->addMapping(amount);
  value->addMapping(count);
  setSomeType(value);
  setSomeType(in->addField("other", 0));
  as::IParameter* const out = pay->addParameter(as::IParameter::BY_OUT, "result \xC3\xA4", 0);
  setSomeType(out);
  service.addOperation("nothing", nullptr)->addParameter(as::IParameter::BY_IO, "x", -1);
}

TEST_P(NewService, ShowsWhatWasAdded) {
  const auto service = newService(GetParam());
  fill(*service);
  auto* const value = itemOf<as::IField>(
      itemOf<as::IField>(parameterOf<as::IField>(*service)->getChildren(), 0)->getChildren(), 0);
  const std::string type = " " + value->getAttributeValue("dataType");
  ASSERT_NE(type, " ");
  EXPECT_EQ(described(*service), "Pay " + std::to_string(GetParam().implementation) +
                                     " PAYROLL PAYEXIT"
                                     " pay(PAY 2"
                                     " [WS-COUNT  WS-COUNT WS-COUNT]=<7> & \"8\""
                                     " [REQ.LINE.AMOUNT(*) * AMOUNT of LINE of REQ AMOUNT]="
                                     " {payrequest 0 1  [REQ  REQ REQ]"
                                     " {payrequestlines 2 3  [REQ.LINE(*) * LINE of REQ LINE]"
                                     " {payrequestlinesamount 2 1" +
                                     type +
                                     " [REQ.LINE.AMOUNT(*) * AMOUNT of LINE of REQ AMOUNT]"
                                     " [WS-COUNT  WS-COUNT WS-COUNT]}}"
                                     " {payrequestother 2 0" +
                                     type + "}} {payresult \xC3\xA4 1 0" + type + "})" +
                                     " nothing( 0 {nothingx 2 -1 })");
}

TEST_P(NewService, SurvivesWritingAndReading) {
  const test::TempDirectory directory;
  const auto service = newService(GetParam());
  fill(*service);
  const std::string before = described(*service);
  // With the program: names alone are not what mappings and bindings are about.
  service->setDDFilename(directory.write("PAY.xml", payProgram()).c_str());
  const std::string file = directory.write("service.xml", written(*service));
  const std::unique_ptr<as::IService> again(test::newServices()->parseService(file.c_str(), true));
  EXPECT_EQ(described(*again), before);
  EXPECT_EQ(again->getDDFilename(), "PAY.xml");
}

TEST_P(NewService, IsReadAsWhatItsDocumentDeclares) {
  const auto service = newService(GetParam());
  fill(*service);
  const auto again = writtenAndRead(*service);
  EXPECT_EQ(classOf(again.get()), readAs().serviceClass);
  EXPECT_EQ(classOf(operationOf(*again)), readAs().operationClass);
  EXPECT_EQ(classOf(parameterOf<as::IElement>(*again)), readAs().parameterClass);
  EXPECT_EQ(again->getImplementation(), GetParam().implementation) << "the word stays";
}

TEST_P(NewService, IsValidWithoutAnythingAdded) {
  const auto service = newService(GetParam());
  const auto again = writtenAndRead(*service);
  EXPECT_EQ(described(*again), described(*service));
  EXPECT_EQ(again->getProgram(), nullptr);
  EXPECT_EQ(again->getProperties()->getLength(), 0);
  EXPECT_EQ(again->getParameterTypeDefs()->getLength(), 0);
}

TEST_P(NewService, GoesOnWhenReadAgain) {
  const auto service = newService(GetParam());
  fill(*service);
  const auto again = writtenAndRead(*service);
  as::IOperation* const added = again->addOperation("added", nullptr);
  EXPECT_EQ(classOf(added), readAs().operationClass);
  EXPECT_EQ(classOf(added->addParameter(as::IParameter::BY_IN, "p", 1)), readAs().parameterClass);
  const auto third = writtenAndRead(*again);
  ASSERT_EQ(third->getOperations()->getLength(), 3);
  EXPECT_EQ(described(*third), described(*again));
}

TEST_P(NewService, GoesOnWhenWritten) {
  const auto service = newService(GetParam());
  written(*service);
  fill(*service);
  const auto other = newService(GetParam());
  fill(*other);
  EXPECT_EQ(written(*service), written(*other));
}

TEST(NewDotNetService, ItsDataTypesAreNoneOfTheWebServiceThatItIsReadAs) {
  const auto service = newService(test::flavours::all.back());
  setSomeType(service->addOperation("op", nullptr)->addParameter(as::IParameter::BY_IN, "p", 1));
  const auto again = writtenAndRead(*service);
  auto* const parameter = parameterOf<as::IWSParameter>(*again);
  ASSERT_NE(parameter, nullptr);
  EXPECT_EQ(parameter->getAttributeValue("dataType"), "Int32");
  EXPECT_EQ(parameter->getType(), -1);
}

// Who owns what, and failures.

// A program of the client's own making, which shows a library's one and may fail to tell its name.
class ClientProgram : public as::IProgram {
 public:
  // Counts itself in `alive` as long as it is there.
  explicit ClientProgram(int& alive) : alive_(alive) { alive_++; }
  ~ClientProgram() override { alive_--; }
  ClientProgram(const ClientProgram&) = delete;
  ClientProgram& operator=(const ClientProgram&) = delete;

  void failBy(std::function<void()> failure) { failure_ = std::move(failure); }

  std::string getName() override {
    if (failure_) failure_();
    return "CLIENTS";
  }
  as::IList* getFileSection() override { return shown_->getFileSection(); }
  as::IList* getDataItems() override { return shown_->getDataItems(); }
  as::IList* getProperties() override { return shown_->getProperties(); }
  as::IList* getEntryPoints() override { return shown_->getEntryPoints(); }
  void* getUserData() override { return shown_->getUserData(); }
  void setUserData(void* data) override { shown_->setUserData(data); }
  std::string getAttributeValue(const char* name) override {
    return shown_->getAttributeValue(name);
  }

 private:
  std::unique_ptr<as::IProgram> shown_ = test::parse(payProgram());
  std::function<void()> failure_;
  int& alive_;
};

TEST_P(NewService, OwnsItsProgram) {
  int alive = 0;
  auto* const program = new ClientProgram(alive);
  std::unique_ptr<as::IService> service(GetParam().make(program));
  EXPECT_EQ(service->getProgram(), program);
  fill(*service);
  EXPECT_EQ(alive, 1);
  service.reset();
  EXPECT_EQ(alive, 0);
}

TEST_P(NewService, NamesNoFileForAProgramThatIsNoDocument) {
  int alive = 0;
  const std::unique_ptr<as::IService> service(GetParam().make(new ClientProgram(alive)));
  EXPECT_EQ(service->getAttributeValue("programName"), "CLIENTS");
  EXPECT_THAT(written(*service), testing::Not(testing::HasSubstr("dataDictFilename")));
}

TEST_P(NewService, EveryFailureComesAsTheSameException) {
  const struct {
    const char* label;
    std::function<void()> failure;
  } rows[] = {
      {"a standard exception", [] { throw std::runtime_error("no name"); }},
      {"out of memory", [] { throw std::bad_alloc(); }},
      {"the library's exception", [] { throw as::CASException("no name"); }},
      {"another of the library's", [] { throw as::CASInvalidNamespaceException(); }},
      {"no exception class at all", [] { throw 7; }},
  };
  for (const auto& row : rows) {
    int alive = 0;
    const auto program = std::make_unique<ClientProgram>(alive);
    program->failBy(row.failure);
    const auto outcome = test::outcomeOf([&] { return GetParam().make(program.get()); });
    EXPECT_EQ(outcome.result, test::Result::exception) << row.label;
    EXPECT_EQ(outcome.text, "AgentServices: An error occurred during service initialisaton")
        << row.label;
    EXPECT_EQ(alive, 1) << row.label;
  }
}

TEST_P(NewService, FailureLeavesTheProgramToTheCaller) {
  int alive = 0;
  auto program = std::make_unique<ClientProgram>(alive);
  program->failBy([] { throw std::runtime_error("no name"); });
  EXPECT_EQ(test::outcomeOf([&] { return GetParam().make(program.get()); }).result,
            test::Result::exception);
  EXPECT_EQ(alive, 1);
  EXPECT_EQ(program->getDataItems()->getLength(), 3);
  program->failBy(nullptr);
  std::unique_ptr<as::IService> service(GetParam().make(program.get()));
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getProgram(), program.release());
  service.reset();
  EXPECT_EQ(alive, 0);
}

}  // namespace
