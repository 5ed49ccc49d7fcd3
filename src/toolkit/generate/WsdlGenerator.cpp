// wsdl: WSDL 1.1 of a Web service, with bindings to SOAP 1.1 and SOAP 1.2.
#include <string>
#include <utility>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/SchemaTexts.h"
#include "toolkit/generate/SchemaWriter.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/generate/WsdlPlan.h"
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

class Wsdl {
 public:
  explicit Wsdl(const Job& job)
      : job_(job), model_(job.model), schemas_(job), plan_(job, schemas_) {}

  void make() {
    schemas_.addDeclaredTypes();
    schemas_.complete();
    const bool isInline = job_.isChosen("schema", "inline");
    SchemaTexts texts(job_, schemas_, isInline ? SchemaPlace::inWsdl : SchemaPlace::inFiles);
    SchemaWriter(job_, schemas_, texts).write();
    plan_.giveNames();
    std::vector<SchemaTexts::Schema> schemas = texts.take();
    write(schemas, isInline);
    job_.add(job_.fileStem() + ".wsdl", text_.take());
    if (isInline) return;
    for (SchemaTexts::Schema& schema : schemas) {
      job_.add(std::move(schema.file), std::move(schema.text));
    }
  }

 private:
  void write(const std::vector<SchemaTexts::Schema>& schemas, bool isInline) {
    text_.line(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    text_.line("<!-- " + job_.banner() + " -->");
    std::string start = "<wsdl:definitions" + xmlAttribute("name", plan_.name()) +
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
    for (const WsdlMessage& message : plan_.messages()) writeMessage(message);
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

  void writeTypes(const std::vector<SchemaTexts::Schema>& schemas, bool isInline) {
    text_.open("<wsdl:types>");
    if (isInline) {
      for (const SchemaTexts::Schema& schema : schemas) text_.block(schema.text);
    } else {
      text_.open("<xs:schema>");
      for (const SchemaTexts::Schema& schema : schemas) {
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
    for (const WsdlPart& part : message.parts) {
      text_.line("<wsdl:part" + xmlAttribute("name", part.name) +
                 (part.element ? xmlAttribute("element", schemas_.elementName(*part.element))
                               : xmlAttribute("type", schemas_.typeName(*part.type))) +
                 "/>");
    }
    text_.close("</wsdl:message>");
  }

  void writePortType() {
    text_.open("<wsdl:portType" + xmlAttribute("name", plan_.name()) + ">");
    for (const WsdlOperation& planned : plan_.operations()) {
      text_.open("<wsdl:operation" + xmlAttribute("name", planned.name) + ">");
      text_.line("<wsdl:documentation>" + xmlText("Entry point " + planned.operation.entryPoint) +
                 "</wsdl:documentation>");
      text_.line("<wsdl:input" + messageOf(planned.request) + "/>");
      text_.line("<wsdl:output" + messageOf(planned.answer) + "/>");
      for (const WsdlBlock& message : planned.messages) {
        if (message.message.kind != "fault") continue;
        text_.line("<wsdl:fault" + xmlAttribute("name", plan_.messages()[message.number].name) +
                   messageOf(message.number) + "/>");
      }
      text_.close("</wsdl:operation>");
    }
    text_.close("</wsdl:portType>");
  }

  std::string messageOf(std::size_t number) const {
    return xmlAttribute("message", "tns:" + plan_.messages()[number].name);
  }

  void writeBinding(const Soap& soap) {
    const std::string prefix = std::string("<") + soap.prefix + ":";
    text_.open("<wsdl:binding" + xmlAttribute("name", plan_.name() + soap.suffix) +
               xmlAttribute("type", "tns:" + plan_.name()) + ">");
    text_.line(prefix + "binding" + xmlAttribute("transport", http) + R"( style="document"/>)");
    for (const WsdlOperation& planned : plan_.operations()) {
      const Operation& operation = planned.operation;
      text_.open("<wsdl:operation" + xmlAttribute("name", planned.name) + ">");
      text_.line(prefix + "operation" +
                 xmlAttribute("soapAction", operation.inputNamespace + "#" + planned.name) +
                 xmlAttribute("style", planned.isRpc() ? "rpc" : "document") + "/>");
      writeBody(soap, planned, "input", operation.isInputEncoded, operation.inputNamespace, goesIn);
      writeBody(soap, planned, "output", operation.isOutputEncoded, operation.outputNamespace,
                comesOut);
      for (const WsdlBlock& message : planned.messages) {
        if (message.message.kind != "fault") continue;
        const std::string name = xmlAttribute("name", plan_.messages()[message.number].name);
        text_.open("<wsdl:fault" + name + ">");
        text_.line((prefix + "fault")
                       .append(name)
                       .append(useOf(soap, message.message.isEncoded, message.message.namespaceUri,
                                     message.message.isEncoded))
                       .append("/>"));
        text_.close("</wsdl:fault>");
      }
      text_.close("</wsdl:operation>");
    }
    text_.close("</wsdl:binding>");
  }

  void writeBody(const Soap& soap, const WsdlOperation& planned, const char* element,
                 bool isEncoded, const std::string& uri, bool (*travels)(Direction)) {
    const std::string prefix = std::string("<") + soap.prefix + ":";
    text_.open(std::string("<wsdl:") + element + ">");
    text_.line(prefix + "body" + useOf(soap, isEncoded, uri, planned.isRpc()) + "/>");
    for (const WsdlBlock& message : planned.messages) {
      if (message.message.kind != "header" || !travels(message.message.direction)) continue;
      for (const WsdlPart& part : plan_.messages()[message.number].parts) {
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
      address = "http://localhost/" + plan_.name();
      job_.note("no-address", "service",
                "where it is served is not known: the address is " + quote(address) +
                    " unless told with option 'address'");
    }
    text_.open("<wsdl:service" + xmlAttribute("name", plan_.name()) + ">");
    for (const Soap& soap : soaps) {
      const std::string name = plan_.name() + soap.suffix;
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
  WsdlPlan plan_;
  TextWriter text_;
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
