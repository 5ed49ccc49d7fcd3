// Reads the input as a service, or makes a new one, changes it through every setter and adder as
// the instruction <?edits ...?> of the input says, writes it, and reads it again: that must be the
// same model.
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <vector>

#include "Report.h"
#include "Requests.h"
#include "Shape.h"
#include "XmlTree.h"
#include "support/ModelText.h"

const fuzz::Shape fuzz::shape = {{as::namespaces::ws.uri, as::namespaces::com.uri,
                                  as::namespaces::java.uri, as::namespaces::dotnet.uri},
                                 true,
                                 fuzz::Shape::Files::dictionaries};

namespace {

// A call that makes a document which is not read back as it was, though nothing says that it may
// not be made, is left out; its constant goes when the call is mended.
//
// What a parameter holds is not looked at when its "ref" names no definition, but it takes fields
// and mappings.
constexpr bool whatStandsBesideARefIsNotReadBack = true;

constexpr int maxDepth = 2048;     // Of documents that are written and read.
constexpr int maxDimensions = 16;  // Of items whose mappings are read back.
constexpr std::size_t maxItems = 3000;

// The characters of <?edits ...?> as numbers from 0 to 63; 0 when there are no more of them.
class Script {
 public:
  explicit Script(const fuzz::Document& document) {
    if (const fuzz::Node* const edits = document.instruction("edits")) text_ = edits->text;
  }
  bool isAtEnd() const { return at_ >= text_.size(); }
  std::size_t next() {
    if (isAtEnd()) return 0;
    static constexpr char digits[] =
        "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/";
    const char* const found = std::strchr(digits, text_[at_++]);
    return found == nullptr ? 63 : static_cast<std::size_t>(found - digits) % 64;
  }
  // A number from 0 to count - 1 for any count.
  std::size_t below(std::size_t count) {
    std::size_t number = next();
    if (count > 64) number = number * 64 + next();
    return count == 0 ? 0 : number % count;
  }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

// A text for a setter. What XML has no character for may make a service that cannot be written.
struct Hostile {
  const char* text;  // Null, too, is one.
  bool isXml = true;
};

constexpr Hostile texts[] = {
    {""},
    {nullptr},
    {" "},
    {"name"},
    {"MOTPREM"},
    {"a b  c "},
    {"\r"},
    {"\n"},
    {"\t"},
    {"\r\n x \r"},
    {"<&>\"'"},
    {"]]>"},
    {"-->"},
    {"?>"},
    {"&amp;"},
    {"&#13;"},
    {"%s%n"},
    {"T\xC3\xA4glich \xE2\x82\xAC"},
    {"\xF0\x9F\x98\x80"},
    {"\xC2\x85\xE2\x80\xA8"},
    {"\x7F"},
    {"\x01", false},
    {"a\x1Bz", false},
    {"\x0B\x0C", false},
    {"\xEF\xBF\xBE", false},
    {"\xEF\xBF\xBF", false},
    {"\xED\xA0\x80"},
    {"\xFF\xFE\x80"},
    {"\xC0\x80"},
    {"\xC3"},
    {"xmlns"},
    {"p:name"},
    {"2147483648"},
    {"io"},
    {"http://agentservices.example/schema/ws/v1.0/vorws.xsd"},
    {"A.B(*,1)"},
    {"$stdin"},
    {"../x.xml"},
};

constexpr int numbers[] = {0, 1, 2, 3, 10, -1, -7, 65536, INT_MAX, INT_MIN};

class Editor {
 public:
  Editor(as::IService& service, Script& script) : service_(service), script_(script) {
    members<as::IOperation>(service.getOperations(), [&](as::IOperation& each) { take(each); });
    members<as::IField>(service.getParameterTypeDefs(), [&](as::IField& each) {
      definitions_.push_back(&each);
      take(each);
    });
    if (service.getProgram() != nullptr) {
      takeItems(service.getProgram()->getDataItems(), 0);
      members<as::IEntryPoint>(service.getProgram()->getEntryPoints(),
                               [&](as::IEntryPoint& each) { entryPoints_.push_back(&each); });
    }
  }

  void run() {
    for (int i = 0; i < 400 && !script_.isAtEnd(); i++) step();
  }

  // Whether a text was set that XML cannot hold.
  bool isHardToWrite() const { return isHardToWrite_; }
  // Whether the name of a type definition was set: references were resolved before that.
  bool hasNewDefinitions() const { return hasNewDefinitions_; }
  // How much deeper than before elements may be nested.
  int depthAdded() const { return depthAdded_; }

 private:
  struct Item {
    as::IDataItem* item;
    int dimensions;
  };

  template <class Member, class Visit>
  static void members(as::IList* list, const Visit& visit) {
    for (int i = 0; i < list->getLength(); i++) {
      if (auto* const member = as::interface_cast<Member>(list->getItem(i))) visit(*member);
    }
  }

  void take(as::IOperation& operation) {
    operations_.push_back(&operation);
    const auto takeParameter = [&](as::IField& each) { take(each); };
    members<as::IField>(operation.getParameters(), takeParameter);
    members<as::IMapping>(operation.getHiddenParameters(),
                          [&](as::IMapping& each) { mappings_.push_back(&each); });
    if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
      members<as::IWSHeader>(web->getHeaders(), [&](as::IWSHeader& each) {
        headers_.push_back(&each);
        members<as::IField>(each.getParameters(), takeParameter);
      });
      members<as::IWSFault>(web->getFaults(), [&](as::IWSFault& each) {
        faults_.push_back(&each);
        members<as::IField>(each.getParameters(), takeParameter);
      });
    }
  }

  void take(as::IField& field) {
    fields_.push_back(&field);
    // What a definition holds is taken where it stands.
    if (!field.getAttributeValue("ref").empty()) return;
    members<as::IMapping>(field.getMappings(),
                          [&](as::IMapping& each) { mappings_.push_back(&each); });
    members<as::IField>(field.getChildren(), [&](as::IField& each) { take(each); });
    if (auto* const web = as::interface_cast<as::IWSField>(&field)) {
      members<as::IField>(web->getFieldAttributes(), [&](as::IField& each) { take(each); });
    }
  }

  void takeItems(as::IList* items, int dimensions) {
    members<as::IDataItem>(items, [&](as::IDataItem& each) {
      if (items_.size() >= maxItems) return;
      const int own = dimensions + (each.getMaxOccurs() == 0 ? 0 : 1);
      items_.push_back({&each, own});
      if (auto* const group = as::interface_cast<as::IGroup>(&each)) {
        takeItems(group->getChildren(), own);
      }
    });
  }

  const char* text() {
    const std::size_t choice = script_.below(std::size(texts) + 2);
    if (choice < std::size(texts)) {
      if (!texts[choice].isXml) isHardToWrite_ = true;
      return texts[choice].text;
    }
    if (choice == std::size(texts)) {
      made_ = std::string(1 + 500 * script_.next(), 'l');
    } else {
      made_ = fields_.empty() ? "none" : chosen(fields_)->getName();
    }
    return made_.c_str();
  }

  int number() { return numbers[script_.below(std::size(numbers))]; }

  // An item that a mapping to is read back, or null.
  as::IDataItem* item() {
    if (items_.empty()) return nullptr;
    const Item& chosen = items_[script_.below(items_.size())];
    return chosen.dimensions > maxDimensions || script_.next() == 0 ? nullptr : chosen.item;
  }

  as::IEntryPoint* entryPoint() {
    if (entryPoints_.empty() || script_.next() == 0) return nullptr;
    return entryPoints_[script_.below(entryPoints_.size())];
  }

  as::IParameter::BY_TYPE direction() {
    return static_cast<as::IParameter::BY_TYPE>(script_.below(5));
  }

  template <class Object>
  Object* chosen(const std::vector<Object*>& objects) {
    return objects.empty() ? nullptr : objects[script_.below(objects.size())];
  }

  void step() {
    switch (script_.below(12)) {
      case 0:
        return editService();
      case 1:
      case 2:
        if (as::IOperation* const operation = chosen(operations_)) edit(*operation);
        return;
      case 3:
      case 4:
      case 5:
      case 6:
      case 7:
        if (as::IField* const field = chosen(fields_)) edit(*field);
        return;
      case 8:
        if (as::IMapping* const mapping = chosen(mappings_)) edit(*mapping);
        return;
      case 9:
        if (as::IWSHeader* const header = chosen(headers_)) edit(*header);
        return;
      case 10:
        if (as::IWSFault* const fault = chosen(faults_)) edit(*fault);
        return;
      default:
        // Written in between: the layout stays in the document.
        if (script_.next() > 8) return;
        try {
          as::CAgentServicesFactory::SerializeToString(&service_);
        } catch (const as::CASException&) {
          // Told when it is written at the end.
        }
    }
  }

  void editService() {
    switch (script_.below(5)) {
      case 0:
        return service_.setName(text());
      case 1:
        return service_.setExitProgramName(text());
      case 2:
        return service_.setDDFilename(text());
      default: {
        const char* const name = text();
        operations_.push_back(service_.addOperation(name, entryPoint()));
      }
    }
  }

  void edit(as::IOperation& operation) {
    auto* const web = as::interface_cast<as::IWSOperation>(&operation);
    auto* const java = as::interface_cast<as::IJavaOperation>(&operation);
    switch (script_.below(13)) {
      case 0:
        return operation.setName(text());
      case 1:
        operation.setEntryPoint(entryPoint());
        return;
      case 2:
        return operation.setExitPoints(static_cast<unsigned int>(number()));
      case 3: {
        as::IDataItem* const data = item();
        as::IHiddenParameter* const hidden = operation.addHiddenParameter(data, text());
        mappings_.push_back(hidden);
        return;
      }
      case 4:
        if (java != nullptr) {
          java->setTransactionType(static_cast<as::IJavaOperation::TRANS_TYPE>(script_.below(8)));
        }
        return;
      case 5:
        if (web != nullptr) {
          headers_.push_back(web->addHeader(static_cast<as::IWSHeader::BY_TYPE>(script_.below(5))));
        }
        return;
      case 6:
        if (web != nullptr) faults_.push_back(web->addFault());
        return;
      case 7:
        if (web != nullptr) web->setInputNamespace(text());
        return;
      case 8:
        if (web != nullptr) web->setOutputNamespace(text());
        return;
      case 9:
        if (web != nullptr) {
          web->setInputUse(static_cast<as::IWSOperation::USE>(script_.below(4)));
          web->setOutputUse(static_cast<as::IWSOperation::USE>(script_.below(4)));
        }
        return;
      case 10:
        if (web != nullptr) web->setStyle(static_cast<as::IWSOperation::STYLE>(script_.below(4)));
        return;
      default:
        addParameter(operation);
    }
  }

  template <class Owner>
  void addParameter(Owner& owner) {
    const as::IParameter::BY_TYPE byType = direction();
    const char* const name = text();
    fields_.push_back(owner.addParameter(byType, name, number()));
  }

  void edit(as::IField& field) {
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    auto* const web = as::interface_cast<as::IWSParameter>(&field);
    switch (script_.below(10)) {
      case 0:
        if (std::find(definitions_.begin(), definitions_.end(), &field) != definitions_.end()) {
          hasNewDefinitions_ = true;
        }
        return field.setName(text());
      case 1:
        return field.setOccurs(number());
      case 2:
      case 3: {
        if (losesWhatItHolds(field)) return;
        const char* const name = text();
        as::IField* const added = field.addField(name, number());
        if (added == nullptr) return;
        depthAdded_++;
        fields_.push_back(added);
        return;
      }
      case 4:
        if (losesWhatItHolds(field)) return;
        if (as::IMapping* const mapping = field.addMapping(item())) mappings_.push_back(mapping);
        return;
      case 5:
        return parameter->setByType(direction());
      case 6:
        if (web == nullptr) return;
        if (as::IField* const added = web->addFieldAttribute(text())) {
          depthAdded_++;
          fields_.push_back(added);
        }
        return;
      case 7:
        if (web == nullptr) return;
        web->setElementForm(static_cast<as::IWSField::FORM>(script_.below(4)));
        return web->setAttributeForm(static_cast<as::IWSField::FORM>(script_.below(4)));
      case 8:
        if (web != nullptr) return web->setNamespace(text());
        if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
          com->setReturnParameter(script_.below(2) == 1);
        }
        return;
      default:
        setType(field);
    }
  }

  static bool losesWhatItHolds(as::IField& field) {
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    return whatStandsBesideARefIsNotReadBack && !field.getAttributeValue("ref").empty() &&
           parameter->getReferenceType() == nullptr;
  }

  void setType(as::IField& field) {
    if (auto* const web = as::interface_cast<as::IWSParameter>(&field)) {
      web->setType(static_cast<as::IWSField::TYPE>(script_.below(as::IWSField::WS_XML + 1)));
    }
    if (auto* const dotNet = as::interface_cast<as::IDotNETParameter>(&field)) {
      dotNet->setType(
          static_cast<as::IDotNETField::TYPE>(script_.below(as::IDotNETField::NET_STRING + 1)));
    }
    // The others take any number.
    if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
      com->setType(static_cast<as::ICOMField::TYPE>(script_.below(13)));
    }
    if (auto* const java = as::interface_cast<as::IJavaParameter>(&field)) {
      java->setType(static_cast<as::IJavaField::TYPE>(script_.below(13)));
    }
  }

  void edit(as::IMapping& mapping) {
    auto* const hidden = as::interface_cast<as::IHiddenParameter>(&mapping);
    if (hidden != nullptr && script_.below(2) == 0) return hidden->setValue(text());
    mapping.setDataItem(item());
  }

  void edit(as::IWSHeader& header) {
    switch (script_.below(4)) {
      case 0:
        return header.setByType(static_cast<as::IWSHeader::BY_TYPE>(script_.below(5)));
      case 1:
        return header.setNamespace(text());
      case 2:
        return header.setUse(static_cast<as::IWSHeader::USE>(script_.below(4)));
      default:
        addParameter(header);
    }
  }

  void edit(as::IWSFault& fault) {
    switch (script_.below(3)) {
      case 0:
        return fault.setNamespace(text());
      case 1:
        return fault.setUse(static_cast<as::IWSFault::USE>(script_.below(4)));
      default:
        addParameter(fault);
    }
  }

  as::IService& service_;
  Script& script_;
  std::string made_;
  std::vector<as::IOperation*> operations_;
  std::vector<as::IField*> fields_;
  std::vector<as::IField*> definitions_;
  std::vector<as::IMapping*> mappings_;
  std::vector<as::IWSHeader*> headers_;
  std::vector<as::IWSFault*> faults_;
  std::vector<Item> items_;
  std::vector<as::IEntryPoint*> entryPoints_;
  bool isHardToWrite_ = false;
  bool hasNewDefinitions_ = false;
  int depthAdded_ = 0;
};

int depthOf(const fuzz::Node& node) {
  int deepest = 0;
  for (const fuzz::Node& child : node.children) deepest = std::max(deepest, depthOf(child));
  return deepest + 1;
}

std::unique_ptr<as::IService> newService(as::IAgentServices& by, std::size_t choice) {
  using Factory = as::CAgentServicesFactory;
  static const char* const dictionaries[] = {"MOTPREM.xml", "own.xml", "WHSLOTS.xml",
                                             "PAYSLIP.xml"};
  std::unique_ptr<as::IProgram> program = fuzz::unlessRefused(
      [&] { return std::unique_ptr<as::IProgram>(by.parseCobolDD(dictionaries[choice / 4 % 4])); });
  if (!program) return nullptr;
  switch (choice % 4) {
    case 0:
      return std::unique_ptr<as::IService>(Factory::NewWebService(program.release()));
    case 1:
      return std::unique_ptr<as::IService>(Factory::NewCOMService(program.release()));
    case 2:
      return std::unique_ptr<as::IService>(Factory::NewJavaService(program.release()));
    default:
      return std::unique_ptr<as::IService>(Factory::NewDotNETService(program.release()));
  }
}

std::string textOf(as::IService& service) {
  return test::modelText(service, test::QualifiedNames::leftOut);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const fuzz::WorkingThere there;
  const fuzz::Document document = fuzz::readTree(input);
  Script script(document);
  as::IAgentServices& services = fuzz::services();

  const std::size_t way = script.next();
  const bool isNew = way >= 48;
  const bool withProgram = isNew || way % 2 == 1;
  const std::unique_ptr<as::IService> service = fuzz::unlessRefused([&] {
    return isNew ? newService(services, way)
                 : fuzz::parseService(services, "edit.xml", input, withProgram);
  });
  if (!service) return 0;
  fuzz::countModel();
  const std::string dictionary = service->getDDFilename();
  Editor editor(*service, script);
  editor.run();
  // With another dictionary it would be another model.
  if (withProgram) service->setDDFilename(dictionary.c_str());

  const std::string model = textOf(*service);
  std::string written;
  try {
    written = as::CAgentServicesFactory::SerializeToString(service.get());
  } catch (const as::CASException&) {
    const int depth = document.root() == nullptr ? 0 : depthOf(*document.root());
    if (editor.isHardToWrite() || document.isOtherXml() ||
        depth + 2 * editor.depthAdded() + 8 > maxDepth) {
      return 0;
    }
    throw;
  }
  // From here on nothing may go wrong: an exception ends the process, and is a finding.
  const auto again = fuzz::parseService(services, "edit.xml", written, withProgram);
  if (!again) std::abort();
  const std::string modelAgain = textOf(*again);
  // A new .NET service is read back as a Web service.
  const bool isAnother = isNew && way % 4 == 3;
  if (!editor.hasNewDefinitions() && !isAnother) fuzz::requireSame(model, modelAgain);
  const std::string writtenAgain = as::CAgentServicesFactory::SerializeToString(again.get());
  // What is the same text is the same model: a request takes most of the time.
  if (writtenAgain == written) return 0;
  const auto third = fuzz::parseService(services, "edit.xml", writtenAgain, withProgram);
  if (!third) std::abort();
  fuzz::requireSame(modelAgain, textOf(*third));
  return 0;
}
