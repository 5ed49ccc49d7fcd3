#include <cstddef>
#include <string>
#include <vector>

#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IHiddenParameter.h"
#include "as/IList.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "as/IParameter.h"
#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/Render.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/render/JsonParts.h"
#include "toolkit/render/JsonWriter.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/FieldWalk.h"
#include "toolkit/walk/Subscripts.h"

namespace as::toolkit {

namespace {

using nlohmann::ordered_json;

template <class Named>
ordered_json nameOrNull(Named* object) {
  return object == nullptr ? ordered_json() : ordered_json(object->getName());
}

class ServiceJson {
 public:
  ServiceJson(std::ostream& out, const FlavourProfile& flavour) : writer_(out), flavour_(flavour) {}

  void write(as::IService& service) {
    writer_.beginObject();
    writer_.member("name", service.getName());
    writer_.member("namespaceURI", service.getNamespaceURI());
    writer_.member("flavour", flavour_.name());
    writeCode("implementation", service.getImplementation(),
              implementationWord(service.getImplementation()));
    writer_.member("programName", service.getAttributeValue("programName"));
    writer_.member("ddFilename", service.getDDFilename());
    writer_.member("exitProgramName", service.getExitProgramName());
    writer_.member("program", nameOrNull(service.getProgram()));
    writeProperties(writer_, service.getProperties());
    writeFields("parameterTypeDefs", service.getParameterTypeDefs());
    writeArray<as::IOperation>("operations", service.getOperations());
    writer_.end();
  }

 private:
  template <class T>
  void writeArray(const char* key, as::IList* list) {
    writeObjects<T>(writer_, key, list, [this](T& member) { writeMembers(member); });
  }

  // A whole forest of parameters or fields, with their field attributes. Documents nest deeply: the
  // way is kept in a vector, not on the stack.
  void writeFields(const char* key, as::IList* list) {
    struct Array {
      as::IField* owner;  // Null for `list`.
      as::IList* members;
      int next;
      bool isOfAttributes;
    };
    std::vector<Array> way;
    const auto begin = [&](const char* name, const Array& array) {
      writer_.key(name);
      writer_.beginArray();
      way.push_back(array);
    };
    begin(key, {nullptr, list, 0, false});
    while (!way.empty()) {
      Array& array = way.back();
      if (array.next == array.members->getLength()) {
        as::IField* const owner = array.owner;
        const bool wereAttributes = array.isOfAttributes;
        writer_.end();
        way.pop_back();
        if (owner == nullptr) continue;
        if (wereAttributes) {
          begin("children", {owner, owner->getChildren(), 0, false});
        } else {
          writer_.end();
        }
        continue;
      }
      auto* const field = as::interface_cast<as::IField>(array.members->getItem(array.next++));
      if (field == nullptr) continue;
      writer_.beginObject();
      writeMembers(*field, array.owner == nullptr || array.isOfAttributes);
      if (!referenceOf(*field).empty()) {
        writer_.end();
      } else if (as::IList* const attributes = flavour_.attributesOf(*field)) {
        begin("fieldAttributes", {field, attributes, 0, true});
      } else {
        begin("children", {field, field->getChildren(), 0, false});
      }
    }
  }

  void writeMembers(as::IOperation& operation) {
    writer_.member("name", operation.getName());
    writer_.member("entryPoint", nameOrNull(operation.getEntryPoint()));
    writer_.member("entryPointText", operation.getAttributeValue("entryPoint"));
    writer_.member("exitPoints", operation.getExitPoints());
    writeTraits(flavour_.traitsOf(operation));
    writeArray<as::IHiddenParameter>("hiddenParameters", operation.getHiddenParameters());
    writeFields("parameters", operation.getParameters());
    const std::vector<Message> messages = flavour_.messagesOf(operation);
    for (const std::string& kind : flavour_.additions().operationElements) {
      writer_.key(kind + "s");
      writer_.beginArray();
      for (const Message& message : messages) {
        if (message.kind != kind) continue;
        writer_.beginObject();
        writeTraits(message.traits);
        writeFields("parameters", message.parameters);
        writer_.end();
      }
      writer_.end();
    }
  }

  void writeTraits(const std::vector<Trait>& traits) {
    for (const Trait& trait : traits) {
      if (trait.code) {
        writeCode(trait.key, *trait.code, trait.text.empty() ? "unknown" : trait.text);
      } else {
        writer_.member(trait.key, trait.text);
      }
    }
  }

  // Everything but the field attributes and children.
  void writeMembers(as::IField& field, bool isParameter) {
    writer_.member("name", field.getName());
    writer_.member("qualifiedName", shownPlace({field.getQualifiedName()}));
    writer_.member("occurs", field.getOccurs());
    auto* const parameter = as::interface_cast<as::IParameter>(&field);
    if (parameter != nullptr) {
      if (isParameter || !field.getAttributeValue("byType").empty()) {
        writeCode("byType", parameter->getByType(), directionWord(parameter->getByType()));
      }
      writer_.member("referenceType", nameOrNull(parameter->getReferenceType()));
      writer_.member("referenceTypeText", referenceOf(field));
    }
    if (const std::optional<int> type = flavour_.dataTypeOf(field)) {
      const DataType* const known = flavour_.findDataType(*type);
      writeCode("type", *type, known == nullptr ? "unknown" : known->word);
    }
    writeTraits(flavour_.traitsOf(field));
    writer_.member("hasChildren", field.hasChildren());
    if (!referenceOf(field).empty()) return;
    writeArray<as::IMapping>("mappings", field.getMappings());
  }

  void writeMembers(as::IHiddenParameter& hidden) {
    writeMembers(static_cast<as::IMapping&>(hidden));
    writer_.member("value", hidden.getValue());
  }

  void writeMembers(as::IMapping& mapping) {
    writeCode("type", mapping.getType(), mappingTypeWord(mapping.getType()));
    as::IDataItem* const item = mapping.getDataItem();
    writer_.member("dataItem", item == nullptr ? ordered_json() : ordered_json(dottedPath(*item)));
    writer_.member("rawMapping", mapping.getRawMapping());
    writer_.member("fullyQualifiedName", mapping.getFullyQualifiedName());
    writeNumbers("dataItemSubscripts", dataItemSubscripts(mapping));
    writeNumbers("interfaceSubscripts", interfaceSubscripts(mapping));
  }

  void writeNumbers(const char* key, const std::vector<int>& numbers) {
    writer_.key(key);
    writer_.beginArray();
    for (const int number : numbers) writer_.value(number);
    writer_.end();
  }

  void writeCode(const std::string& key, int code, const std::string& word) {
    writer_.member(key, code);
    writer_.member(key + "Text", word);
  }

  JsonWriter writer_;
  const FlavourProfile& flavour_;
};

}  // namespace

void renderJson(std::ostream& out, as::IService& service) {
  ServiceJson(out, profileOf(service)).write(service);
}

}  // namespace as::toolkit
