// Tests that the README's table of the service flavours says what the library does: every cell is
// compared with what objects of the flavour answer.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/FlavourTable.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::Flavour;

using Words = std::vector<std::string>;

const test::FlavourTable& table() {
  static const test::FlavourTable theTable(AS_EXAMPLES_DIR "/../README.md");
  return theTable;
}

std::string joined(const Words& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::string yesOrNo(bool yes) { return yes ? "yes" : "no"; }

// A new service of a flavour, with one of everything that all flavours have.
class Sample {
 public:
  explicit Sample(const Flavour& flavour) : service_(test::newService(flavour)) {}

  as::IService& service() const { return *service_; }
  as::IOperation& operation() const { return *operation_; }
  as::IParameter& parameter() const { return *parameter_; }
  as::IField& field() const { return *field_; }

  as::IWSOperation* webOperation() const {
    return as::interface_cast<as::IWSOperation>(operation_);
  }

 private:
  std::unique_ptr<as::IService> service_;
  as::IOperation* operation_ = service_->addOperation("op", nullptr);
  as::IParameter* parameter_ = operation_->addParameter(as::IParameter::BY_IN, "p", 1);
  as::IField* field_ = parameter_->addField("f", 1);
};

template <class Interface, class Object>
bool offers(Object& object) {
  return as::interface_cast<Interface>(&object) != nullptr;
}

// Which of the interfaces, each with its name, the object offers; `plain` when it offers none.
template <class Object>
std::string offered(Object& object,
                    const std::vector<std::pair<const char*, bool (*)(Object&)>>& interfaces,
                    const char* plain) {
  Words names;
  for (const auto& [name, isOffered] : interfaces) {
    if (isOffered(object)) names.emplace_back(name);
  }
  return names.empty() ? plain : joined(names);
}

#define INTERFACE(Interface, Object) \
  { #Interface, offers < Interface, Object> }

std::string serviceInterface(const Sample& sample) {
  return offered<as::IService>(
      sample.service(),
      {INTERFACE(as::IWebService, as::IService), INTERFACE(as::IDotNET, as::IService)},
      "as::IService");
}

std::string operationInterface(const Sample& sample) {
  return offered<as::IOperation>(
      sample.operation(),
      {INTERFACE(as::IWSOperation, as::IOperation), INTERFACE(as::IJavaOperation, as::IOperation),
       INTERFACE(as::IDotNETOperation, as::IOperation)},
      "as::IOperation");
}

std::string fieldInterfaces(as::IField& field) {
  return offered<as::IField>(
      field,
      {INTERFACE(as::IWSParameter, as::IField), INTERFACE(as::IWSField, as::IField),
       INTERFACE(as::ICOMParameter, as::IField), INTERFACE(as::ICOMField, as::IField),
       INTERFACE(as::IJavaParameter, as::IField), INTERFACE(as::IJavaField, as::IField),
       INTERFACE(as::IDotNETParameter, as::IField), INTERFACE(as::IDotNETField, as::IField)},
      "as::IField");
}

#undef INTERFACE

// Those of a parameter, which have to be those of a field.
std::string parameterInterfaces(const Sample& sample) {
  const std::string interfaces = fieldInterfaces(sample.parameter());
  return fieldInterfaces(sample.field()) == interfaces ? interfaces : "(different ones)";
}

// The data type of a field, whatever the flavour, as a number.
class DataType {
 public:
  explicit DataType(as::IField& field) : field_(field) {
    if (!(takeFor<as::IWSField>(as::IWSField::WS_XML) ||
          takeFor<as::ICOMField>(as::ICOMField::COM_OBJECT) ||
          takeFor<as::IJavaField>(as::IJavaField::JAVA_BIG_INTEGER) ||
          takeFor<as::IDotNETField>(as::IDotNETField::NET_STRING))) {
      ADD_FAILURE() << "a field of no flavour";
    }
  }

  int get() const { return get_(); }
  // How many there are.
  int count() const { return count_; }
  // The word that is written for the type.
  std::string wordOf(int type) const {
    set_(type);
    return field_.getAttributeValue("dataType");
  }
  Words words() const {
    Words words;
    for (int type = 0; type < count_; type++) words.push_back(wordOf(type));
    return words;
  }

 private:
  template <class Field>
  bool takeFor(typename Field::TYPE last) {
    auto* const typed = as::interface_cast<Field>(&field_);
    if (typed == nullptr) return false;
    get_ = [typed] { return static_cast<int>(typed->getType()); };
    set_ = [typed](int type) { typed->setType(static_cast<typename Field::TYPE>(type)); };
    count_ = last + 1;
    return true;
  }

  as::IField& field_;
  std::function<int()> get_ = [] { return -1; };
  std::function<void(int)> set_ = [](int) {};
  int count_ = 0;
};

std::string dataTypes(const Sample& sample) { return joined(DataType(sample.field()).words()); }

std::string dataTypesReadAsAnother(const Sample& sample) {
  const DataType dataType(sample.field());
  Words others;
  for (int type = 0; type < dataType.count(); type++) {
    const std::string word = dataType.wordOf(type);
    const int readAs = dataType.get();
    if (readAs != type) others.push_back(word + " as " + dataType.wordOf(readAs));
  }
  return others.empty() ? "none" : joined(others);
}

std::string missingDataType(const Sample& sample) {
  const DataType dataType(sample.field());
  const int type = dataType.get();
  return type < 0 ? std::to_string(type) : dataType.wordOf(type);
}

std::string headersAndFaults(const Sample& sample) {
  as::IWSOperation* const web = sample.webOperation();
  return yesOrNo(web != nullptr && web->addHeader(as::IWSHeader::BY_IN) != nullptr &&
                 web->addFault() != nullptr && web->getHeaders()->getLength() == 1 &&
                 web->getFaults()->getLength() == 1);
}

std::string fieldAttributes(const Sample& sample) {
  auto* const web = as::interface_cast<as::IWSField>(&sample.field());
  return yesOrNo(web != nullptr && web->addFieldAttribute("a") != nullptr &&
                 web->getFieldAttributes()->getLength() == 1);
}

std::string styleUsesNamespaces(const Sample& sample) {
  as::IWSOperation* const web = sample.webOperation();
  if (web == nullptr) return "no";
  web->setStyle(as::IWSOperation::STYLE_RPC);
  web->setInputUse(as::IWSOperation::USE_LITERAL);
  web->setOutputNamespace("urn:a");
  return yesOrNo(web->getAttributeValue("style") == "rpc" &&
                 web->getAttributeValue("inputUse") == "literal" &&
                 web->getAttributeValue("outputNamespace") == "urn:a");
}

std::string transactionType(const Sample& sample) {
  auto* const java = as::interface_cast<as::IJavaOperation>(&sample.operation());
  if (java == nullptr) return "no";
  java->setTransactionType(as::IJavaOperation::TRANS_MANDATORY);
  return yesOrNo(java->getAttributeValue("transactionType") == "mandatory");
}

std::string returnParameter(const Sample& sample) {
  auto* const com = as::interface_cast<as::ICOMParameter>(&sample.parameter());
  if (com == nullptr) return "no";
  com->setReturnParameter(true);
  return yesOrNo(com->isReturnParameter());
}

std::string implementation(const Sample& sample) {
  return sample.service().getAttributeValue("implementation");
}

std::string xmlnsPath(const Sample& sample) {
  const std::string uri = sample.service().getAttributeValue("xmlns");
  return uri.substr(uri.find('/', uri.find("//") + 2));
}

// The interfaces of the parameters of documents that can be read with one schema file alone, and
// that file.
std::map<std::string, std::string> schemaFiles() {
  std::map<std::string, std::string> files;
  const std::string documents[] = {
      test::parameterDocument(as::namespaces::ws.uri, "<parameter/>"),
      test::parameterDocument(as::namespaces::com.uri, "<parameter/>"),
      test::parameterDocument(as::namespaces::java.uri, "<parameter/>"),
      test::parameterDocument(as::namespaces::dotnet.uri, "<parameter/>"),
  };
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    const test::TempDirectory directory;
    const std::string name = entry.path().filename().string();
    std::filesystem::copy_file(entry.path(), std::filesystem::path(directory.path()) / name);
    const auto services = test::servicesWithoutSchemas();
    services->setSchemaLocation(directory.path().c_str());
    for (const std::string& document : documents) {
      const auto outcome = test::serviceOutcomeOf(*services, document);
      if (outcome.result != test::Result::root) continue;
      std::string& file = files[fieldInterfaces(*test::parameterOf<as::IField>(*outcome.root))];
      file += (file.empty() ? "" : ", ") + name;
    }
  }
  return files;
}

std::string schemaFile(const Sample& sample) {
  static const std::map<std::string, std::string> files = schemaFiles();
  const auto found = files.find(fieldInterfaces(sample.parameter()));
  return found == files.end() ? "none" : found->second;
}

// A row of the table, and what its cells are compared with.
struct Probe {
  const char* label;
  std::string (*answer)(const Sample& sample);
};

constexpr Probe probes[] = {
    {"implementation", implementation},
    {"path of xmlns", xmlnsPath},
    {"service", serviceInterface},
    {"operation", operationInterface},
    {"parameter, field", parameterInterfaces},
    {"data types", dataTypes},
    {"data types read as another", dataTypesReadAsAnother},
    {"a missing data type reads as", missingDataType},
    {"headers and faults", headersAndFaults},
    {"field attributes", fieldAttributes},
    {"style, uses, namespaces", styleUsesNamespaces},
    {"transaction type", transactionType},
    {"return parameter", returnParameter},
    {"schema file", schemaFile},
};

void PrintTo(const Probe& probe, std::ostream* out) { *out << probe.label; }

std::string columnOf(const Flavour& flavour) {
  return flavour.implementation == as::IService::TYPE_DOTNET ? ".NET" : flavour.label;
}

TEST(ReadmeFlavours, HasAColumnForEachFlavour) {
  Words columns = {""};
  for (const Flavour& flavour : test::flavours::all) columns.push_back(columnOf(flavour));
  EXPECT_EQ(table().head(), columns);
  for (const auto& row : table().body()) EXPECT_EQ(row.size(), columns.size()) << row.front();
}

TEST(ReadmeFlavours, HasNoRowThatIsNotCompared) {
  Words labels;
  for (const Probe& probe : probes) labels.emplace_back(probe.label);
  EXPECT_EQ(table().labels(), labels);
}

class ReadmeFlavoursRow : public testing::TestWithParam<Probe> {};

TEST_P(ReadmeFlavoursRow, SaysWhatTheLibraryDoes) {
  for (const Flavour& flavour : test::flavours::all) {
    const Sample sample(flavour);
    EXPECT_EQ(table().cell(GetParam().label, columnOf(flavour)), GetParam().answer(sample))
        << "column " << columnOf(flavour);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, ReadmeFlavoursRow, testing::ValuesIn(probes), [](const auto& value) {
  std::string name;
  for (const char* c = value.param.label; *c != 0; c++) {
    if (*c >= 'a' && *c <= 'z') name += *c;
  }
  return name;
});

}  // namespace
