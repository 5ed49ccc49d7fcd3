// A service model as text: what every accessor of every object in it answers.
#ifndef TESTS_SUPPORT_MODELTEXT_H_
#define TESTS_SUPPORT_MODELTEXT_H_

#include <string>

#include "as/AgentServices.h"

namespace test {

// Whether a model's text holds the qualified names. They go by the names of the document's nodes,
// prefixes included, and these change when an operation added to a prefixed document is read back.
enum class QualifiedNames { shown, leftOut };

// Walks a service depth first and writes one line an object or accessor, indented by depth.
class ModelWriter {
 public:
  explicit ModelWriter(QualifiedNames qualifiedNames) : qualifiedNames_(qualifiedNames) {}

  std::string textOf(as::IService& service) {
    open("service", &service);
    value("name", service.getName());
    value("implementation", service.getImplementation());
    value("namespace URI", service.getNamespaceURI());
    value("dictionary", service.getDDFilename());
    value("exit program", service.getExitProgramName());
    attribute(service, "programName");
    program(service.getProgram());
    members<as::IProperty>("property", service.getProperties());
    members<as::IField>("type definition", service.getParameterTypeDefs());
    members<as::IOperation>("operation", service.getOperations());
    close();
    return text_;
  }

 private:
  void line(const std::string& text) {
    text_.append(2 * depth_, ' ');
    text_ += text + '\n';
  }

  static std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
      switch (c) {
        case '\n':
          result += "\\n";
          break;
        case '\r':
          result += "\\r";
          break;
        case '\t':
          result += "\\t";
          break;
        case '"':
        case '\\':
          result += '\\';
          [[fallthrough]];
        default:
          result += c;
      }
    }
    return result + '"';
  }

  void value(const std::string& name, const std::string& text) { line(name + ' ' + quoted(text)); }
  void value(const std::string& name, int number) { line(name + ' ' + std::to_string(number)); }

  void attribute(as::IElement& element, const char* name) {
    value(std::string("@") + name, element.getAttributeValue(name));
  }

  // The names of those of the interfaces that the object offers.
  template <class... Interfaces>
  static std::string kindsOf(as::IElement* element) {
    std::string kinds;
    const auto add = [&](bool isOne, const char* name) {
      if (isOne) kinds += std::string(" ") + name;
    };
    (add(as::interface_cast<Interfaces>(element) != nullptr, Interfaces::RTTI_obj.name), ...);
    return kinds;
  }

  void open(const std::string& what, as::IElement* element) {
    line(what + ":" +
         kindsOf<as::IService, as::IWebService, as::IDotNET, as::IOperation, as::IWSOperation,
                 as::IJavaOperation, as::IDotNETOperation, as::IParameter, as::IField,
                 as::IWSParameter, as::IWSField, as::IJavaParameter, as::IJavaField,
                 as::ICOMParameter, as::ICOMField, as::IDotNETParameter, as::IDotNETField,
                 as::IMapping, as::IHiddenParameter, as::IProperty, as::IWSHeader, as::IWSFault>(
             element));
    depth_++;
  }
  void close() { depth_--; }

  // The list's members, each an object of that interface.
  template <class Member>
  void members(const std::string& what, as::IList* list) {
    value(what + " members", list->getLength());
    for (int i = 0; i < list->getLength(); i++) {
      as::IElement* const element = list->getItem(i);
      open(what, element);
      if (auto* const member = as::interface_cast<Member>(element)) write(*member);
      close();
    }
  }

  void program(as::IProgram* program) {
    if (program == nullptr) return line("no program");
    value("program", program->getName());
    value("data items", program->getDataItems()->getLength());
    as::IList* const entryPoints = program->getEntryPoints();
    for (int i = 0; i < entryPoints->getLength(); i++) {
      auto* const entryPoint = as::interface_cast<as::IEntryPoint>(entryPoints->getItem(i));
      value("entry point", entryPoint == nullptr ? "?" : entryPoint->getName());
    }
  }

  void write(as::IProperty& property) {
    value("name", property.getName());
    value("value", property.getValue());
  }

  void write(as::IOperation& operation) {
    value("name", operation.getName());
    attribute(operation, "entryPoint");
    as::IEntryPoint* const entryPoint = operation.getEntryPoint();
    if (entryPoint != nullptr) value("bound to", entryPoint->getName());
    value("exit points", operation.getExitPoints());
    attribute(operation, "exitPoints");
    if (auto* const java = as::interface_cast<as::IJavaOperation>(&operation)) {
      value("transaction type", java->getTransactionType());
    }
    members<as::IMapping>("hidden parameter", operation.getHiddenParameters());
    members<as::IField>("parameter", operation.getParameters());
    if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
      value("input namespace", web->getInputNamespace());
      value("output namespace", web->getOutputNamespace());
      value("input use", web->getInputUse());
      value("output use", web->getOutputUse());
      value("style", web->getStyle());
      members<as::IWSHeader>("header", web->getHeaders());
      members<as::IWSFault>("fault", web->getFaults());
    }
  }

  void write(as::IWSHeader& header) {
    value("direction", header.getByType());
    messagePart(header);
  }

  void write(as::IWSFault& fault) { messagePart(fault); }

  template <class Part>
  void messagePart(Part& part) {
    value("namespace", part.getNamespace());
    value("use", part.getUse());
    members<as::IField>("parameter", part.getParameters());
  }

  void write(as::IField& field) {
    value("name", field.getName());
    value("occurs", field.getOccurs());
    if (qualifiedNames_ == QualifiedNames::shown) {
      value("qualified name", field.getQualifiedName());
    }
    value("has children", field.hasChildren() ? 1 : 0);
    for (const char* const name : {"ref", "byType", "occurs", "dataType"}) attribute(field, name);
    as::IParameter* reference = nullptr;
    if (auto* const parameter = as::interface_cast<as::IParameter>(&field)) {
      value("direction", parameter->getByType());
      reference = parameter->getReferenceType();
    }
    value("reference", reference == nullptr ? "(none)" : reference->getName());
    flavour(field);
    if (field.getAttributeValue("ref").empty()) {
      members<as::IMapping>("mapping", field.getMappings());
      members<as::IField>("field", field.getChildren());
    } else {
      // What a definition holds is written where it stands; it may hold references to itself.
      value("mapping members", field.getMappings()->getLength());
      value("field members", field.getChildren()->getLength());
    }
    auto* const web = as::interface_cast<as::IWSField>(&field);
    if (web != nullptr && reference == nullptr) {
      members<as::IField>("field attribute", web->getFieldAttributes());
    }
  }

  // What the flavours add to a parameter or field.
  void flavour(as::IField& field) {
    if (auto* const java = as::interface_cast<as::IJavaField>(&field)) {
      value("Java type", java->getType());
    }
    if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
      value("COM type", com->getType());
      value("return value", com->isReturnParameter() ? 1 : 0);
      attribute(field, "returnParameter");
    }
    if (auto* const dotNet = as::interface_cast<as::IDotNETField>(&field)) {
      value(".NET type", dotNet->getType());
      value(".NET type name", dotNet->getTypeToString());
    }
    if (auto* const web = as::interface_cast<as::IWSParameter>(&field)) {
      const as::IWSField::TYPE type = web->getType();
      value("Web type", type);
      // The name of no type ends the process.
      if (static_cast<int>(type) != -1) value("Web type name", web->getTypeToString());
      value("namespace", web->getNamespace());
      value("namespace of a parameter", web->getNamespaceForParam());
      value("element form", web->getElementForm());
      value("element form of a parameter", web->getElementFormForParam());
      value("attribute form", web->getAttributeForm());
      value("attribute form of a parameter", web->getAttributeFormForParam());
      value("field attribute members", web->getFieldAttributes()->getLength());
      for (const char* const name : {"namespace", "elementForm", "attributeForm"}) {
        attribute(field, name);
      }
    }
  }

  void write(as::IMapping& mapping) {
    value("item", mapping.getRawMapping());
    value("type", mapping.getType());
    value("qualified", mapping.getFullyQualifiedName());
    attribute(mapping, "subscript");
    subscripts("interface subscripts", mapping, &as::IMapping::getInterfaceSubscripts);
    subscripts("item subscripts", mapping, &as::IMapping::getDataItemSubscripts);
    as::IDataItem* const item = mapping.getDataItem();
    if (item != nullptr) {
      std::string path = item->getName();
      for (as::IGroup* group = item->getParent(); group != nullptr; group = group->getParent()) {
        path = group->getName() + "/" + path;
      }
      value("data item", path);
    }
    if (auto* const hidden = as::interface_cast<as::IHiddenParameter>(&mapping)) {
      value("value", hidden->getValue());
    }
  }

  void subscripts(const std::string& name, as::IMapping& mapping, int (as::IMapping::*get)(int*)) {
    int entries[16] = {};
    const int count = (mapping.*get)(entries);
    std::string text = name + ' ' + std::to_string(count) + ':';
    for (const int entry : entries) text += ' ' + std::to_string(entry);
    line(text);
  }

  const QualifiedNames qualifiedNames_;
  std::string text_;
  std::size_t depth_ = 0;
};

// The text of `service`. Two models are equal when their texts are.
inline std::string modelText(as::IService& service,
                             QualifiedNames qualifiedNames = QualifiedNames::shown) {
  return ModelWriter(qualifiedNames).textOf(service);
}

}  // namespace test

#endif  // TESTS_SUPPORT_MODELTEXT_H_
