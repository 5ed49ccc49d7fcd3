// xsd: an XML Schema of the data of a service, or of a dictionary's records.
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/generate/XsdTypes.h"

namespace as::toolkit::gen {

namespace {

class SchemaText {
 public:
  explicit SchemaText(const Job& job) : job_(job), names_(job.namesBy(xmlNames())) {}

  std::string text() {
    const ServiceModel& model = job_.model;
    typeNames_ = names_.namesIn(typeWishes(model));
    const std::string uri = xmlText("urn:agentservices:" + model.program);
    out_.line(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    out_.line("<!-- " + job_.banner() + " -->");
    out_.open(R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:tns=")" + uri +
              R"(" targetNamespace=")" + uri + R"(" elementFormDefault="qualified">)");
    for (std::size_t i = 0; i < model.types.size(); ++i) {
      const Type& type = model.types[i];
      if (type.isDeclared && type.self.structure != i) continue;
      out_.open("<xs:complexType name=\"" + xmlText(typeNames_[i]) + "\">");
      writeMembers(type.fields, model.placeOf(type));
      out_.close("</xs:complexType>");
    }
    out_.close("</xs:schema>");
    return out_.take();
  }

 private:
  void writeMembers(const std::vector<Field>& fields, const std::string& place) {
    std::vector<NameWish> wishes;
    for (const Field& field : fields) wishes.push_back({field.name, place + "." + field.name});
    const std::vector<std::string> names = names_.namesIn(wishes);
    out_.open("<xs:sequence>");
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const Field& field = fields[i];
      const TypeRow* const row = rowFor(xsdTypes(), field);
      const std::string type = field.structure != none ? "tns:" + typeNames_[field.structure]
                               : row == nullptr        ? "xs:string"
                                                       : row->type;
      const std::string occurs = field.isTable()
                                     ? " minOccurs=\"" + std::to_string(field.least) +
                                           "\" maxOccurs=\"" + std::to_string(field.occurs) + "\""
                                     : "";
      out_.line("<xs:element name=\"" + xmlText(names[i]) + "\" type=\"" + xmlText(type) + "\"" +
                occurs + "/>");
    }
    out_.close("</xs:sequence>");
  }

  const Job& job_;
  NameGiver names_;
  TextWriter out_;
  std::vector<std::string> typeNames_;
};

class XsdGenerator : public Generator {
 public:
  XsdGenerator()
      : Generator({"xsd", "an XML Schema of the data", {"ws", "com", "dotnet", "java"}, true, {}}) {
  }

  void generate(const Job& job) const override {
    job.add(job.fileStem() + ".xsd", SchemaText(job).text());
  }
};

}  // namespace

const Generator& xsdGenerator() {
  static const XsdGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
