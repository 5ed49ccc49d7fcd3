// wsdl: WSDL 1.1 of a Web service, with bindings to SOAP 1.1 and SOAP 1.2.
#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/MessagePlan.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/SchemaWriter.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/generate/XsdTypes.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// A version of SOAP.
struct Soap {
  const char* prefix;
  const char* suffix;  // Of the names of its binding and port.
  const char* encoding;
};

constexpr Soap soaps[] = {
    {"soap", "Soap11", "http://schemas.xmlsoap.org/soap/encoding/"},
    {"soap12", "Soap12", "http://www.w3.org/2003/05/soap-encoding"},
};

constexpr const char* http = "http://schemas.xmlsoap.org/soap/http";

// A part of a message: of an element, or of a type.
struct Part {
  std::string name;
  std::optional<SchemaSet::Handle> element{};
  std::optional<SchemaSet::Handle> type{};
};

struct WsdlMessage {
  NameWish wish;
  std::vector<Part> parts{};
  std::string name{};
};

// A header or fault, with its message.
struct PlannedMessage {
  const Message& message;
  std::size_t number;  // In the list of messages.
};

struct PlannedOperation {
  const Operation& operation;
  std::size_t request = 0;
  std::size_t answer = 0;
  std::vector<PlannedMessage> messages{};
  std::string name{};
};

class Wsdl {
 public:
  explicit Wsdl(const Job& job) : job_(job), model_(job.model), schemas_(job) {}

  void make() {
    for (const Operation& operation : model_.operations) plan(operation);
    schemas_.addDeclaredTypes();
    schemas_.complete();
    const SchemaWriter writer(job_, schemas_);
    giveNames();
    const bool isInline = job_.isChosen("schema", "inline");
    const std::vector<SchemaWriter::Schema> schemas = writer.schemas(!isInline);
    write(schemas, isInline);
    job_.add(job_.fileStem() + ".wsdl", text_.take());
    if (isInline) return;
    for (const SchemaWriter::Schema& schema : schemas) {
      job_.add(schema.file, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- " + job_.banner() +
                                " -->\n" + schema.text);
    }
  }

 private:
  static bool isRpc(const Operation& operation) { return operation.style == Operation::Style::rpc; }

  void plan(const Operation& operation) {
    PlannedOperation planned{operation};
    planned.request = planMessage(operation, requestMembers(model_, operation),
                                  requestWish(model_, operation), operation.inputNamespace);
    planned.answer = planMessage(operation, answerMembers(model_, operation),
                                 answerWish(model_, operation), operation.outputNamespace);
    for (const Message& message : operation.messages) {
      planned.messages.push_back({message, planMessage(operation, message)});
    }
    if (isRpc(operation) && (operation.isInputEncoded || operation.isOutputEncoded)) {
      tellAttributes(operation);
    }
    operations_.push_back(std::move(planned));
  }

  // A request or an answer: one element with all parameters in it, or a part for each of them.
  std::size_t planMessage(const Operation& operation, const SchemaSet::Members& members,
                          const NameWish& element, const std::string& uri) {
    // Messages are called as the elements of the bodies: some readers take one name for the other.
    WsdlMessage message{{element.name, element.place, true}};
    if (!isRpc(operation)) {
      message.parts.push_back({"parameters", schemas_.addWrapper(uri, element, members)});
    } else {
      const std::vector<std::string> names = schemas_.memberNames(members);
      const std::vector<const Field*> fields = members.chosen();
      for (std::size_t i = 0; i < fields.size(); ++i) {
        message.parts.push_back({names[i], {}, typeOf(operation, *fields[i])});
      }
    }
    messages_.push_back(std::move(message));
    return messages_.size() - 1;
  }

  // The same parameter has one type in the request and in the answer.
  SchemaSet::Handle typeOf(const Operation& operation, const Field& field) {
    const auto known = types_.find(&field);
    if (known != types_.end()) return known->second;
    const NameWish wish{operation.name + "." + field.name + (field.isTable() ? ".list" : ""),
                        model_.placeOf(operation) + "." + field.name + " type", true};
    return types_[&field] = schemas_.addType(field, wish);
  }

  // A header or fault.
  std::size_t planMessage(const Operation& operation, const Message& message) {
    const std::string place = model_.placeOf(operation, message);
    const std::string& uri =
        message.namespaceUri.empty() ? schemas_.targetNamespace() : message.namespaceUri;
    const SchemaSet::Members members = membersOf(model_, operation, message);
    const bool isFault = message.kind == "fault";
    WsdlMessage planned{{operation.name + (isFault ? "Fault" : "Header") +
                             (message.number == 1 ? "" : std::to_string(message.number)),
                         place + " message", true}};
    if (message.isEncoded) tellEncoded(place, message.kind);
    if (isFault && message.isEncoded) {
      NameWish wish = faultWish(model_, operation, message);
      planned.parts.push_back({"fault", {}, schemas_.addGroup(wish, members)});
    } else if (isFault) {
      planned.parts.push_back(
          {"fault", schemas_.addWrapper(uri, faultWish(model_, operation, message), members)});
    } else {
      planHeader(operation, message, members, uri, planned);
    }
    messages_.push_back(std::move(planned));
    return messages_.size() - 1;
  }

  // A part for each parameter: each is a block of the header.
  void planHeader(const Operation& operation, const Message& message,
                  const SchemaSet::Members& members, const std::string& uri, WsdlMessage& planned) {
    const std::vector<std::string> names = schemas_.memberNames(members);
    const std::vector<const Field*> fields = members.chosen();
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const std::string place = members.place + "." + fields[i]->name;
      if (message.isEncoded) {
        planned.parts.push_back({names[i], {}, typeOf(operation, *fields[i])});
        continue;
      }
      if (fields[i]->isTable()) {
        job_.warn("repeated-header", place,
                  "a header has one block of a name: that it occurs " +
                      std::to_string(fields[i]->occurs) + " times is not said",
                  "put it into a structure");
      }
      const std::string& own = fields[i]->namespaceUri.empty() ? uri : fields[i]->namespaceUri;
      planned.parts.push_back({names[i], schemas_.addElement(own, *fields[i], place)});
    }
  }

  void tellEncoded(const std::string& place, const std::string& kind) const {
    job_.warn(kind == "fault" ? "encoded-fault" : "encoded-header", place,
              "it is encoded: WSDL tells its type, but of no element that it travels in, and most "
              "readers want one",
              "make its use literal");
  }

  // What is encoded has no attributes.
  void tellAttributes(const Operation& operation) {
    for (const Field& parameter : operation.parameters) {
      if (parameter.structure == none || !hasAttributes(parameter.structure)) continue;
      job_.warn("encoded-attribute", model_.placeOf(operation) + "." + parameter.name,
                "it has field attributes, which SOAP's encoding does not know: the schema has them "
                "all the same",
                "make them fields, or the use literal");
    }
  }

  // Of a structure, or one in it.
  bool hasAttributes(std::size_t type) {
    const auto [known, isNew] = hasAttributes_.try_emplace(type, false);
    if (!isNew) return known->second;
    bool found = !model_.types[type].attributes.empty();
    for (const Field& field : model_.types[type].fields) {
      if (found) break;
      found = field.structure != none && hasAttributes(field.structure);
    }
    return hasAttributes_[type] = found;
  }

  void giveNames() {
    std::vector<NameWish> wishes;
    for (const WsdlMessage& message : messages_) wishes.push_back(message.wish);
    const std::vector<std::string> messages = schemas_.names().namesIn(wishes);
    for (std::size_t i = 0; i < messages.size(); ++i) messages_[i].name = messages[i];
    wishes.clear();
    for (const Operation& operation : model_.operations) {
      wishes.push_back(requestWish(model_, operation));
    }
    const std::vector<std::string> operations = schemas_.names().namesIn(wishes);
    for (std::size_t i = 0; i < operations.size(); ++i) operations_[i].name = operations[i];
    name_ = schemas_.names().namesIn({{model_.name, "service"}}).front();
  }

  void write(const std::vector<SchemaWriter::Schema>& schemas, bool isInline) {
    text_.line(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    text_.line("<!-- " + job_.banner() + " -->");
    std::string start = "<wsdl:definitions" + xmlAttribute("name", name_) +
                        xmlAttribute("targetNamespace", schemas_.targetNamespace()) +
                        R"( xmlns:wsdl="http://schemas.xmlsoap.org/wsdl/")"
                        R"( xmlns:soap="http://schemas.xmlsoap.org/wsdl/soap/")"
                        R"( xmlns:soap12="http://schemas.xmlsoap.org/wsdl/soap12/")"
                        R"( xmlns:xs="http://www.w3.org/2001/XMLSchema")";
    for (const auto& [uri, prefix] : schemas_.prefixes()) {
      start += xmlAttribute("xmlns:" + prefix, uri);
    }
    text_.open(start + ">");
    writeDocumentation();
    writeTypes(schemas, isInline);
    for (const WsdlMessage& message : messages_) writeMessage(message);
    writePortType();
    for (const Soap& soap : soaps) writeBinding(soap);
    writeService();
    text_.close("</wsdl:definitions>");
  }

  void writeDocumentation() {
    text_.open("<wsdl:documentation>");
    text_.line(xmlText("Service " + quote(model_.name) + " of program " + model_.program));
    for (const Property& property : model_.properties) {
      text_.line(xmlText(property.name + ": " + property.value));
    }
    text_.close("</wsdl:documentation>");
  }

  void writeTypes(const std::vector<SchemaWriter::Schema>& schemas, bool isInline) {
    text_.open("<wsdl:types>");
    if (isInline) {
      for (const SchemaWriter::Schema& schema : schemas) {
        for (std::size_t from = 0; from < schema.text.size();) {
          const std::size_t to = schema.text.find('\n', from);
          text_.line(std::string_view(schema.text).substr(from, to - from));
          from = to + 1;
        }
      }
    } else {
      text_.open("<xs:schema>");
      for (const SchemaWriter::Schema& schema : schemas) {
        text_.line("<xs:import" + xmlAttribute("namespace", schema.uri) +
                   xmlAttribute("schemaLocation", schema.file) + "/>");
      }
      text_.close("</xs:schema>");
    }
    text_.close("</wsdl:types>");
  }

  void writeMessage(const WsdlMessage& message) {
    if (message.parts.empty()) {
      text_.line("<wsdl:message" + xmlAttribute("name", message.name) + "/>");
      return;
    }
    text_.open("<wsdl:message" + xmlAttribute("name", message.name) + ">");
    for (const Part& part : message.parts) {
      text_.line("<wsdl:part" + xmlAttribute("name", part.name) +
                 (part.element ? xmlAttribute("element", schemas_.elementName(*part.element))
                               : xmlAttribute("type", schemas_.typeName(*part.type))) +
                 "/>");
    }
    text_.close("</wsdl:message>");
  }

  void writePortType() {
    text_.open("<wsdl:portType" + xmlAttribute("name", name_) + ">");
    for (const PlannedOperation& planned : operations_) {
      text_.open("<wsdl:operation" + xmlAttribute("name", planned.name) + ">");
      text_.line("<wsdl:documentation>" + xmlText("Entry point " + planned.operation.entryPoint) +
                 "</wsdl:documentation>");
      text_.line("<wsdl:input" + messageOf(planned.request) + "/>");
      text_.line("<wsdl:output" + messageOf(planned.answer) + "/>");
      for (const PlannedMessage& message : planned.messages) {
        if (message.message.kind != "fault") continue;
        text_.line("<wsdl:fault" + xmlAttribute("name", messages_[message.number].name) +
                   messageOf(message.number) + "/>");
      }
      text_.close("</wsdl:operation>");
    }
    text_.close("</wsdl:portType>");
  }

  std::string messageOf(std::size_t number) const {
    return xmlAttribute("message", "tns:" + messages_[number].name);
  }

  void writeBinding(const Soap& soap) {
    const std::string prefix = std::string("<") + soap.prefix + ":";
    text_.open("<wsdl:binding" + xmlAttribute("name", name_ + soap.suffix) +
               xmlAttribute("type", "tns:" + name_) + ">");
    text_.line(prefix + "binding" + xmlAttribute("transport", http) + R"( style="document"/>)");
    for (const PlannedOperation& planned : operations_) {
      const Operation& operation = planned.operation;
      text_.open("<wsdl:operation" + xmlAttribute("name", planned.name) + ">");
      text_.line(prefix + "operation" +
                 xmlAttribute("soapAction", operation.inputNamespace + "#" + planned.name) +
                 xmlAttribute("style", isRpc(operation) ? "rpc" : "document") + "/>");
      writeBody(soap, planned, "input", operation.isInputEncoded, operation.inputNamespace, goesIn);
      writeBody(soap, planned, "output", operation.isOutputEncoded, operation.outputNamespace,
                comesOut);
      for (const PlannedMessage& message : planned.messages) {
        if (message.message.kind != "fault") continue;
        const std::string name = xmlAttribute("name", messages_[message.number].name);
        text_.open("<wsdl:fault" + name + ">");
        text_.line(prefix + "fault" + name +
                   useOf(soap, message.message.isEncoded, message.message.namespaceUri,
                         message.message.isEncoded) +
                   "/>");
        text_.close("</wsdl:fault>");
      }
      text_.close("</wsdl:operation>");
    }
    text_.close("</wsdl:binding>");
  }

  void writeBody(const Soap& soap, const PlannedOperation& planned, const char* element,
                 bool isEncoded, const std::string& uri, bool (*travels)(Direction)) {
    const std::string prefix = std::string("<") + soap.prefix + ":";
    text_.open(std::string("<wsdl:") + element + ">");
    text_.line(prefix + "body" + useOf(soap, isEncoded, uri, isRpc(planned.operation)) + "/>");
    for (const PlannedMessage& message : planned.messages) {
      if (message.message.kind != "header" || !travels(message.message.direction)) continue;
      for (const Part& part : messages_[message.number].parts) {
        text_.line(prefix + "header" + messageOf(message.number) + xmlAttribute("part", part.name) +
                   useOf(soap, message.message.isEncoded, message.message.namespaceUri,
                         message.message.isEncoded) +
                   "/>");
      }
    }
    text_.close(std::string("</wsdl:") + element + ">");
  }

  static std::string useOf(const Soap& soap, bool isEncoded, const std::string& uri,
                           bool hasNamespace) {
    return xmlAttribute("use", isEncoded ? "encoded" : "literal") +
           (hasNamespace ? xmlAttribute("namespace", uri) : "") +
           (isEncoded ? xmlAttribute("encodingStyle", soap.encoding) : "");
  }

  void writeService() {
    std::string address = job_.option("address");
    if (address.empty()) {
      address = "http://localhost/" + name_;
      job_.note("no-address", "service",
                "where it is served is not known: the address is " + quote(address) +
                    " unless told with option 'address'");
    }
    text_.open("<wsdl:service" + xmlAttribute("name", name_) + ">");
    for (const Soap& soap : soaps) {
      const std::string name = name_ + soap.suffix;
      text_.open("<wsdl:port" + xmlAttribute("name", name) +
                 xmlAttribute("binding", "tns:" + name) + ">");
      text_.line(std::string("<") + soap.prefix + ":address" + xmlAttribute("location", address) +
                 "/>");
      text_.close("</wsdl:port>");
    }
    text_.close("</wsdl:service>");
  }

  const Job& job_;
  const ServiceModel& model_;
  SchemaSet schemas_;
  TextWriter text_;
  std::string name_;
  std::vector<WsdlMessage> messages_;
  std::vector<PlannedOperation> operations_;
  std::unordered_map<const Field*, SchemaSet::Handle> types_;
  std::unordered_map<std::size_t, bool> hasAttributes_;
};

class WsdlGenerator : public Generator {
 public:
  WsdlGenerator()
      : Generator({"wsdl",
                   "WSDL 1.1 with bindings to SOAP 1.1 and 1.2",
                   {"ws"},
                   false,
                   {{"schema", "inline|separate", "the schemas inside, or in files of their own"},
                    {"address", "", "where the service is served"},
                    {"conditions", "documented|enumerations",
                     "values of conditions (level 88) as the only ones, or in words"},
                    {"namespace", "",
                     "the namespace of what has none; urn:agentservices:PROGRAM unless told"}}}) {}

  void generate(const Job& job) const override {
    job.tellValues(xsdTypes());
    Wsdl(job).make();
  }
};

}  // namespace

const Generator& wsdlGenerator() {
  static const WsdlGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
