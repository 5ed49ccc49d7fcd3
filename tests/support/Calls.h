// Every setter and adder of the public interface, as tables: what it is given, and the objects of a
// service that it is called on.
#ifndef TESTS_SUPPORT_CALLS_H_
#define TESTS_SUPPORT_CALLS_H_

#include <climits>
#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/XmlText.h"

namespace test {
namespace calls {

// What the calls are given.

inline const std::vector<const char*>& texts() {
  static const std::string beyondTheLengthOfEntities(70000, 'l');
  static const std::vector<const char*> all = {"name",
                                               "",
                                               nullptr,
                                               " ",
                                               " a  b ",
                                               "\r",
                                               "\n",
                                               "\t",
                                               "\r\n x \r",
                                               "<&>\"'",
                                               "]]>",
                                               "-->",
                                               "?>",
                                               "&amp;",
                                               "&#13;",
                                               "%s%n",
                                               "T\xC3\xA4glich \xE2\x82\xAC",
                                               "\xF0\x9F\x98\x80",
                                               "\xF4\x8F\xBF\xBF",
                                               "\xC2\x85\xE2\x80\xA8",
                                               "\x7F\xC2\x9F",
                                               "\xED\xA0\x80",
                                               "\xFF\xFE\x80",
                                               "\xC3",
                                               "xmlns",
                                               "p:name",
                                               "2147483648",
                                               "io",
                                               as::namespaces::ws.uri,
                                               "A.B(*,1)",
                                               "(1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17)",
                                               "$stdin",
                                               "../x.xml",
                                               "file:///x%20y",
                                               beyondTheLengthOfEntities.c_str()};
  return all;
}

inline constexpr int numbers[] = {0, 1, -1, 2, 65536, INT_MAX, INT_MIN};

// A program with items and entry points of every name that a dictionary may hold, and items in as
// many tables as a mapping has subscripts.
inline as::IProgram& program() {
  static const std::unique_ptr<as::IProgram> parsed = [] {
    std::string items = "<numeric name='ID'/><numeric name='T' maxOccurs='2'/>";
    std::string entryPoints;
    for (const char* const name :
         {" ", "A(B", "A)B", "A)B(C", "A(B)C", "A(B)&#10;C", "A(B&#10;", "(", ")", "()", "A.B", ".",
          "A,B", "$stdin", "&#13;", "&#9;x", "&lt;&amp;&quot;", "\xE4\xB8\xAD"}) {
      items += std::string("<group name='") + name + "' maxOccurs='2'><numeric name='" + name +
               "'/></group>";
      entryPoints += std::string("<entryPoint name='") + name + "'/>";
    }
    items += repeated("<group name='G' maxOccurs='2'>", as::IMapping::MAX_SUBSCRIPTS - 1) +
             "<numeric name='DEEP' maxOccurs='2'/>" +
             repeated("</group>", as::IMapping::MAX_SUBSCRIPTS - 1);
    return parse(dictionary("<dataItems>" + items + "</dataItems><entryPoints>" + entryPoints +
                            "</entryPoints>"));
  }();
  return *parsed;
}

inline void takeItems(as::IList* items, std::vector<as::IDataItem*>& all) {
  for (int i = 0; i < items->getLength(); i++) {
    all.push_back(itemOf<as::IDataItem>(items, i));
    if (auto* const group = itemOf<as::IGroup>(items, i)) {
      takeItems(group->getChildren(), all);
    }
  }
}

// Every item of the program, and none.
inline const std::vector<as::IDataItem*>& items() {
  static const std::vector<as::IDataItem*> all = [] {
    std::vector<as::IDataItem*> found = {nullptr};
    takeItems(program().getDataItems(), found);
    return found;
  }();
  return all;
}

inline const std::vector<as::IEntryPoint*>& entryPoints() {
  static const std::vector<as::IEntryPoint*> all = [] {
    std::vector<as::IEntryPoint*> found = {nullptr};
    as::IList* const list = program().getEntryPoints();
    for (int i = 0; i < list->getLength(); i++) {
      found.push_back(itemOf<as::IEntryPoint>(list, i));
    }
    return found;
  }();
  return all;
}

template <class Values>
auto valueOf(const Values& values, std::size_t number) {
  return std::data(values)[number % std::size(values)];
}

// The calls.

struct Object {
  as::IElement* element;
  bool isDefinition;

  template <class Interface>
  Interface* as() const {
    return ::as::interface_cast<Interface>(element);
  }
  // Fields and mappings beside a reference that finds nothing are not read, as is told with
  // as::IField.
  bool isBesideALostReference() const {
    auto* const parameter = as<::as::IParameter>();
    return parameter != nullptr && !parameter->getAttributeValue("ref").empty() &&
           parameter->getReferenceType() == nullptr;
  }
};

struct Call {
  std::string name;    // Of the operation: "IField::setName".
  std::size_t values;  // How many it is given.
  // Makes the call with the value of that number; false when the object has no such operation.
  std::function<bool(const Object&, std::size_t)> make;
};

template <class Interface, class Make>
Call callOf(const char* name, std::size_t values, Make make) {
  return {name, values, [make](const Object& object, std::size_t number) {
            auto* const target = object.as<Interface>();
            if (target == nullptr) return false;
            make(*target, number);
            return true;
          }};
}

template <class Interface>
Call textCall(const char* name, void (Interface::*set)(const char*)) {
  return callOf<Interface>(name, texts().size(), [set](Interface& object, std::size_t number) {
    (object.*set)(valueOf(texts(), number));
  });
}

// With the codes from `first` to `last`, those of no enumerator too where they are taken.
template <class Interface, class Code>
Call codeCall(const char* name, void (Interface::*set)(Code), int first, int last) {
  const auto values = static_cast<std::size_t>(last - first + 1);
  return callOf<Interface>(name, values, [=](Interface& object, std::size_t number) {
    (object.*set)(static_cast<Code>(first + static_cast<int>(number % values)));
  });
}

// The setters whose values are texts.
inline const std::vector<Call>& textSetters() {
  static const std::vector<Call> all = {
      textCall("IService::setName", &as::IService::setName),
      textCall("IService::setDDFilename", &as::IService::setDDFilename),
      textCall("IService::setExitProgramName", &as::IService::setExitProgramName),
      textCall("IOperation::setName", &as::IOperation::setName),
      {"IField::setName", texts().size(),
       [](const Object& object, std::size_t number) {
         // By the names of definitions references are resolved anew.
         auto* const field = object.as<as::IField>();
         if (field == nullptr || object.isDefinition) return false;
         field->setName(valueOf(texts(), number));
         return true;
       }},
      textCall("IHiddenParameter::setValue", &as::IHiddenParameter::setValue),
      textCall("IWSOperation::setInputNamespace", &as::IWSOperation::setInputNamespace),
      textCall("IWSOperation::setOutputNamespace", &as::IWSOperation::setOutputNamespace),
      textCall("IWSParameter::setNamespace", &as::IWSParameter::setNamespace),
      textCall("IWSHeader::setNamespace", &as::IWSHeader::setNamespace),
      textCall("IWSFault::setNamespace", &as::IWSFault::setNamespace),
  };
  return all;
}

// The other ones.
inline const std::vector<Call>& otherSetters() {
  static const std::vector<Call> all = {
      callOf<as::IElement>("IElement::setUserData", 1,
                           [](as::IElement& object, std::size_t) { object.setUserData(&object); }),
      callOf<as::IOperation>("IOperation::setEntryPoint", entryPoints().size(),
                             [](as::IOperation& operation, std::size_t number) {
                               operation.setEntryPoint(valueOf(entryPoints(), number));
                             }),
      callOf<as::IOperation>("IOperation::setExitPoints", std::size(numbers),
                             [](as::IOperation& operation, std::size_t number) {
                               operation.setExitPoints(
                                   static_cast<unsigned int>(valueOf(numbers, number)));
                             }),
      callOf<as::IField>(
          "IField::setOccurs", std::size(numbers),
          [](as::IField& field, std::size_t number) { field.setOccurs(valueOf(numbers, number)); }),
      codeCall("IParameter::setByType", &as::IParameter::setByType, -1, 3),
      callOf<as::IMapping>("IMapping::setDataItem", items().size(),
                           [](as::IMapping& mapping, std::size_t number) {
                             mapping.setDataItem(valueOf(items(), number));
                           }),
      codeCall("IWSOperation::setInputUse", &as::IWSOperation::setInputUse, -1, 2),
      codeCall("IWSOperation::setOutputUse", &as::IWSOperation::setOutputUse, -1, 2),
      codeCall("IWSOperation::setStyle", &as::IWSOperation::setStyle, -1, 2),
      codeCall("IWSHeader::setByType", &as::IWSHeader::setByType, -1, 3),
      codeCall("IWSHeader::setUse", &as::IWSHeader::setUse, -1, 2),
      codeCall("IWSFault::setUse", &as::IWSFault::setUse, -1, 2),
      codeCall("IWSParameter::setElementForm", &as::IWSParameter::setElementForm, -1, 2),
      codeCall("IWSParameter::setAttributeForm", &as::IWSParameter::setAttributeForm, -1, 2),
      codeCall("IWSField::setType", &as::IWSField::setType, as::IWSField::WS_BYTE,
               as::IWSField::WS_XML),
      codeCall("ICOMField::setType", &as::ICOMField::setType, -1, as::ICOMField::COM_OBJECT + 1),
      codeCall("ICOMParameter::setReturnParameter", &as::ICOMParameter::setReturnParameter, 0, 1),
      codeCall("IJavaField::setType", &as::IJavaField::setType, -1,
               as::IJavaField::JAVA_BIG_INTEGER + 1),
      codeCall("IJavaOperation::setTransactionType", &as::IJavaOperation::setTransactionType, -1,
               as::IJavaOperation::TRANS_SUPPORTS + 1),
      codeCall("IDotNETField::setType", &as::IDotNETField::setType, as::IDotNETField::NET_BYTE,
               as::IDotNETField::NET_STRING),
  };
  return all;
}

template <class Interface>
Call parameterAdder(const char* name) {
  return callOf<Interface>(name, 5, [](Interface& owner, std::size_t number) {
    owner.addParameter(static_cast<as::IParameter::BY_TYPE>(static_cast<int>(number % 5) - 1),
                       valueOf(texts(), number), valueOf(numbers, number));
  });
}

inline const std::vector<Call>& adders() {
  static const std::vector<Call> all = {
      callOf<as::IService>("IService::addOperation", 3,
                           [](as::IService& service, std::size_t number) {
                             service.addOperation(valueOf(texts(), number),
                                                  valueOf(entryPoints(), number));
                           }),
      callOf<as::IOperation>("IOperation::addHiddenParameter", 3,
                             [](as::IOperation& operation, std::size_t number) {
                               operation.addHiddenParameter(valueOf(items(), number),
                                                            valueOf(texts(), number));
                             }),
      parameterAdder<as::IOperation>("IOperation::addParameter"),
      parameterAdder<as::IWSHeader>("IWSHeader::addParameter"),
      parameterAdder<as::IWSFault>("IWSFault::addParameter"),
      {"IField::addField", 3,
       [](const Object& object, std::size_t number) {
         auto* const field = object.as<as::IField>();
         if (field == nullptr || object.isBesideALostReference()) return false;
         field->addField(valueOf(texts(), number), valueOf(numbers, number));
         return true;
       }},
      {"IField::addMapping", 3,
       [](const Object& object, std::size_t number) {
         auto* const field = object.as<as::IField>();
         if (field == nullptr || object.isBesideALostReference()) return false;
         field->addMapping(valueOf(items(), number));
         return true;
       }},
      callOf<as::IWSField>("IWSField::addFieldAttribute", 3,
                           [](as::IWSField& field, std::size_t number) {
                             field.addFieldAttribute(valueOf(texts(), number));
                           }),
      callOf<as::IWSOperation>("IWSOperation::addHeader", 5,
                               [](as::IWSOperation& operation, std::size_t number) {
                                 operation.addHeader(static_cast<as::IWSHeader::BY_TYPE>(
                                     static_cast<int>(number % 5) - 1));
                               }),
      callOf<as::IWSOperation>(
          "IWSOperation::addFault", 1,
          [](as::IWSOperation& operation, std::size_t) { operation.addFault(); }),
  };
  return all;
}

inline std::vector<Call> setters() {
  std::vector<Call> all = textSetters();
  all.insert(all.end(), otherSetters().begin(), otherSetters().end());
  return all;
}

// The objects of a service that calls are made on.
class Walk {
 public:
  explicit Walk(as::IService& service) {
    objects.push_back({&service, false});
    takeMembers(service.getProperties());
    takeMembers(service.getParameterTypeDefs(), true);
    takeMembers(service.getOperations());
  }

  std::vector<Object> objects;

 private:
  void takeMembers(as::IList* list, bool areDefinitions = false) {
    for (int i = 0; i < list->getLength(); i++) {
      const Object member = {list->getItem(i), areDefinitions};
      objects.push_back(member);
      takePartsOf(member);
    }
  }

  void takePartsOf(const Object& object) {
    if (auto* const operation = object.as<as::IOperation>()) {
      takeMembers(operation->getHiddenParameters());
      takeMembers(operation->getParameters());
    }
    if (auto* const operation = object.as<as::IWSOperation>()) {
      takeMembers(operation->getHeaders());
      takeMembers(operation->getFaults());
    }
    if (auto* const header = object.as<as::IWSHeader>()) takeMembers(header->getParameters());
    if (auto* const fault = object.as<as::IWSFault>()) takeMembers(fault->getParameters());
    auto* const parameter = object.as<as::IParameter>();
    // What a definition holds is taken where it stands.
    if (parameter == nullptr || parameter->getReferenceType() != nullptr) return;
    takeMembers(parameter->getMappings());
    takeMembers(parameter->getChildren());
    if (auto* const web = object.as<as::IWSField>()) takeMembers(web->getFieldAttributes());
  }
};

// Makes the call on every object that takes it; false when there is none.
inline bool makeOnAll(const Call& call, as::IService& service, std::size_t number) {
  bool made = false;
  for (const Object& object : Walk(service).objects) made = call.make(object, number) || made;
  return made;
}

}  // namespace calls
}  // namespace test

#endif  // TESTS_SUPPORT_CALLS_H_
