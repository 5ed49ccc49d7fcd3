#include "toolkit/generate/SchemaWriter.h"

#include <algorithm>
#include <utility>

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/ShortPath.h"
#include "toolkit/generate/XsdTypes.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

std::string occurrences(const Field& field) {
  std::string text;
  const int most = std::max(field.occurs, 1);
  if (field.least != 1) text += xmlAttribute("minOccurs", std::to_string(field.least));
  if (most != 1) text += xmlAttribute("maxOccurs", std::to_string(most));
  return text;
}

// Whether libxml2 refuses schemas with that numeral: it holds 24 digits. A pattern says the same.
bool isLong(std::string_view numeral) {
  constexpr std::size_t most = 24;
  return std::count_if(numeral.begin(), numeral.end(), [](char byte) {
           return isDigit(static_cast<unsigned char>(byte));
         }) > static_cast<std::ptrdiff_t>(most);
}

}  // namespace

void SchemaWriter::write() {
  for (std::size_t i = 0; i < set_.types().size(); ++i) {
    if (set_.types()[i].isUsed) writeType(i);
  }
  for (const SchemaSet::NamedType& type : set_.namedTypes()) writeNamedType(type);
  for (const SchemaSet::Element& element : set_.elements()) writeElement(element);
}

void SchemaWriter::writeType(std::size_t number) {
  const Type& type = job_.model.types[number];
  const SchemaSet::TypeFacts& facts = set_.types()[number];
  Part& part = texts_.partOf(facts.uri);
  if (type.isDeclared && type.self.structure != number) {
    writeSimpleType(part, type.self, facts.name);
    return;
  }
  const Around around = set_.aroundOf(number);
  const bool isValue = type.fields.empty() && facts.value != nullptr &&
                       !facts.value->dataType.empty() && set_.builtIn(*facts.value) != anyType;
  part.text.open("<xs:complexType" + xmlAttribute("name", facts.name) + ">");
  if (isValue) {
    part.text.open("<xs:simpleContent>");
    part.text.open("<xs:extension" +
                   xmlAttribute("base", set_.hasFacets(*facts.value)
                                            ? texts_.qualified(part, facts.uri, facts.valueName)
                                            : std::string(set_.builtIn(*facts.value))) +
                   ">");
    writeAttributes(part, type, around);
    part.text.close("</xs:extension>");
    part.text.close("</xs:simpleContent>");
    part.text.close("</xs:complexType>");
    if (!set_.hasFacets(*facts.value)) return;
    Field value = *facts.value;
    value.structure = none;
    value.reference = none;
    writeSimpleType(part, value, facts.valueName);
    return;
  }
  std::vector<const Field*> fields;
  for (const Field& field : type.fields) fields.push_back(&field);
  writeMembers(part, fields, set_.namesOf(fields, Spot(job_.model, type)), around);
  writeAttributes(part, type, around);
  part.text.close("</xs:complexType>");
}

void SchemaWriter::writeElement(const SchemaSet::Element& element) {
  Part& part = texts_.partOf(element.uri);
  if (element.field != nullptr) {
    writeTyped(part, "element", xmlAttribute("name", element.name), *element.field);
    return;
  }
  part.text.open("<xs:element" + xmlAttribute("name", element.name) + ">");
  part.text.open("<xs:complexType>");
  writeMembers(part, element.members->chosen(), set_.memberNames(*element.members),
               {element.uri, Form::unsaid, Form::unsaid, element.members->isPlain,
                element.members->isPlain});
  part.text.close("</xs:complexType>");
  part.text.close("</xs:element>");
}

void SchemaWriter::writeNamedType(const SchemaSet::NamedType& type) {
  if (type.field != nullptr && set_.isNamed(*type.field)) return;
  Part& part = texts_.partOf(set_.targetNamespace());
  const bool isTable = type.field != nullptr && type.field->isTable();
  if (type.field != nullptr && !isTable) {
    writeSimpleType(part, *type.field, type.name);
    return;
  }
  part.text.open("<xs:complexType" + xmlAttribute("name", type.name) + ">");
  if (isTable) {
    writeOccurrences(part, *type.field);
  } else {
    writeMembers(part, type.members->chosen(), set_.memberNames(*type.members),
                 {set_.targetNamespace(), Form::unsaid, Form::unsaid, type.members->isPlain,
                  type.members->isPlain});
  }
  part.text.close("</xs:complexType>");
}

void SchemaWriter::writeMembers(Part& part, const std::vector<const Field*>& fields,
                                const std::vector<std::string>& names, const Around& around) {
  if (fields.empty()) {
    part.text.line("<xs:sequence/>");
    return;
  }
  part.text.open("<xs:sequence>");
  for (std::size_t i = 0; i < fields.size(); ++i) writeMember(part, *fields[i], names[i], around);
  part.text.close("</xs:sequence>");
}

void SchemaWriter::writeMember(Part& part, const Field& field, const std::string& name,
                               const Around& around) {
  if (set_.isReference(field, around)) {
    const SchemaSet::Handle handle = set_.referenceOf(field);
    const std::string& uri = set_.elements()[handle].uri;
    part.text.line("<xs:element" +
                   xmlAttribute("ref", texts_.qualified(part, uri, set_.elements()[handle].name)) +
                   occurrences(field) + "/>");
    return;
  }
  if (around.hasLists && field.isTable()) {
    part.text.open("<xs:element" + xmlAttribute("name", name) + R"( form="unqualified">)");
    part.text.open("<xs:complexType>");
    writeOccurrences(part, field);
    part.text.close("</xs:complexType>");
    part.text.close("</xs:element>");
    return;
  }
  const bool isUnqualified =
      around.isPlain || said(field.elementForm, around.elementForm) == Form::unqualified;
  writeTyped(part, "element",
             xmlAttribute("name", name) + (isUnqualified ? R"( form="unqualified")" : "") +
                 occurrences(field),
             field);
}

void SchemaWriter::writeOccurrences(Part& part, const Field& field) {
  part.text.open("<xs:sequence>");
  writeMember(part, field, "item", {set_.targetNamespace(), Form::unsaid, Form::unsaid, true});
  part.text.close("</xs:sequence>");
}

void SchemaWriter::writeAttributes(Part& part, const Type& type, const Around& around) {
  if (type.attributes.empty()) return;
  std::vector<const Field*> fields;
  for (const Field& field : type.attributes) fields.push_back(&field);
  const Spot place(job_.model, type);
  const std::vector<std::string> names = set_.namesOf(fields, place);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Field& field = *fields[i];
    if (field.isTable()) {
      job_.warn("repeated-attribute", place.of(field.name).text(),
                "an attribute has one value: that it occurs " + std::to_string(field.occurs) +
                    " times is not said",
                "make it a field");
    }
    if (field.structure != none) {
      job_.warn("structured-attribute", place.of(field.name).text(),
                "an attribute has one value: the parts of " +
                    quote(shortName(job_.model.types[field.structure].name)) + " are not said",
                "make it a field");
    }
    const bool isQualified = around.attributeForm == Form::qualified;
    writeTyped(part, "attribute",
               xmlAttribute("name", names[i]) + (isQualified ? R"( form="qualified")" : "") +
                   R"( use="required")",
               field, true);
  }
}

void SchemaWriter::writeTyped(Part& part, std::string_view tag, const std::string& attributes,
                              const Field& field, bool isAttribute) {
  const std::vector<std::string> lines = linesAbout(job_.model, field);
  std::string type;
  Facets facets;
  bool isAny = false;
  const std::size_t own = field.reference != none ? field.reference : field.structure;
  if (isAttribute && (field.structure != none || set_.builtIn(field) == anyType)) {
    // Attributes have simple types alone, whatever a reference leads to.
    type = "xs:string";
  } else if (own != none) {
    type = texts_.qualified(part, set_.types()[own].uri, set_.types()[own].name);
  } else if (set_.builtIn(field) == anyType) {
    isAny = true;
  } else {
    facets = set_.facetsIn(field);
    if (!SchemaSet::saysAnything(facets)) type = set_.builtIn(field);
  }
  const std::string typed = type.empty() ? "" : xmlAttribute("type", type);
  if (!type.empty() && lines.empty()) {
    part.text.line({"<xs:", tag, attributes, typed, "/>"});
    return;
  }
  part.text.open({"<xs:", tag, attributes, typed, ">"});
  writeDocumentation(part, lines);
  if (isAny) {
    writeAny(part, "");
  } else if (type.empty()) {
    part.text.open("<xs:simpleType>");
    writeRestriction(part, field, facets);
    part.text.close("</xs:simpleType>");
  }
  part.text.close({"</xs:", tag, ">"});
}

// Whatever XML there may be.
void SchemaWriter::writeAny(Part& part, const std::string& attributes) {
  part.text.open("<xs:complexType" + attributes + R"( mixed="true">)");
  part.text.open("<xs:sequence>");
  part.text.line(R"(<xs:any minOccurs="0" maxOccurs="unbounded" processContents="lax"/>)");
  part.text.close("</xs:sequence>");
  part.text.close("</xs:complexType>");
}

// A restriction of a built-in type or, for what has no restriction, of one that is declared.
void SchemaWriter::writeSimpleType(Part& part, const Field& field, const std::string& name) {
  const std::string named = xmlAttribute("name", name);
  // What another name stands for may be anything, too: there is nothing simple to restrict.
  if (field.structure == none && set_.builtIn(field) == anyType) {
    writeAny(part, named);
    return;
  }
  const std::size_t declared = field.reference != none ? field.reference : field.structure;
  if (declared != none) {
    // Of a structure, or of what another name stands for.
    const SchemaSet::TypeFacts& facts = set_.types()[declared];
    const std::string base = texts_.qualified(part, facts.uri, facts.name);
    if (field.structure == none) {
      part.text.open("<xs:simpleType" + named + ">");
      part.text.line("<xs:restriction" + xmlAttribute("base", base) + "/>");
      part.text.close("</xs:simpleType>");
      return;
    }
    part.text.open("<xs:complexType" + named + ">");
    part.text.open("<xs:complexContent>");
    part.text.line("<xs:extension" + xmlAttribute("base", base) + "/>");
    part.text.close("</xs:complexContent>");
    part.text.close("</xs:complexType>");
    return;
  }
  part.text.open("<xs:simpleType" + named + ">");
  writeDocumentation(part, linesAbout(job_.model, field));
  writeRestriction(part, field, set_.facetsIn(field));
  part.text.close("</xs:simpleType>");
}

void SchemaWriter::writeRestriction(Part& part, const Field& field, const Facets& facets) {
  const std::string base = xmlAttribute("base", set_.builtIn(field));
  if (!SchemaSet::saysAnything(facets)) {
    part.text.line({"<xs:restriction", base, "/>"});
    return;
  }
  part.text.open({"<xs:restriction", base, ">"});
  const auto facet = [&part](const char* word, std::string_view value) {
    part.text.line({"<xs:", word, xmlAttribute("value", value), "/>"});
  };
  if (facets.hasValues()) {
    for (const std::string& value : *facets.onlyValues) facet("enumeration", value);
  }
  if (!facets.pattern.empty()) facet("pattern", facets.pattern);
  if (facets.longest >= 0) facet("maxLength", std::to_string(facets.longest));
  if (facets.totalDigits > 0) facet("totalDigits", std::to_string(facets.totalDigits));
  if (facets.fractionDigits > 0) facet("fractionDigits", std::to_string(facets.fractionDigits));
  if (isLong(facets.least) || isLong(facets.most)) {
    const bool isSigned = facets.least.empty() || facets.least.front() == '-';
    facet("pattern",
          numeralPattern(facets.totalDigits, std::max(facets.fractionDigits, 0), isSigned));
  } else {
    if (!facets.least.empty()) facet("minInclusive", facets.least);
    if (!facets.most.empty()) facet("maxInclusive", facets.most);
  }
  part.text.close("</xs:restriction>");
}

void SchemaWriter::writeDocumentation(Part& part, const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  part.text.open("<xs:annotation>");
  for (const std::string& line : lines) {
    part.text.line({"<xs:documentation>", xmlText(line), "</xs:documentation>"});
  }
  part.text.close("</xs:annotation>");
}

}  // namespace as::toolkit::gen
