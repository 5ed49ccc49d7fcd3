#include "toolkit/generate/SchemaTexts.h"

#include <utility>

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/XsdTypes.h"

namespace as::toolkit::gen {

namespace {

// A writer where a schema starts: in WSDL below the definitions and their types.
TextWriter writerIn(SchemaPlace place) {
  TextWriter text;
  if (place == SchemaPlace::inWsdl) {
    text.indent();
    text.indent();
  }
  return text;
}

}  // namespace

SchemaTexts::SchemaTexts(const Job& job, SchemaSet& set, SchemaPlace place)
    : job_(job), set_(set), place_(place) {
  partOf(set_.targetNamespace());
}

SchemaTexts::Part& SchemaTexts::partOf(const std::string& uri) {
  set_.prefixOf(uri);
  const auto [found, isNew] = parts_.try_emplace(uri);
  if (isNew) {
    found->second.text = writerIn(place_);
    found->second.text.indent();
  }
  return found->second;
}

std::string SchemaTexts::qualified(Part& part, const std::string& uri, const std::string& name) {
  part.imports.insert(uri);
  return set_.prefixOf(uri) + ":" + name;
}

std::string SchemaTexts::fileOf(const std::string& uri) const {
  if (uri == set_.targetNamespace()) return job_.fileStem() + ".xsd";
  constexpr std::size_t longest = 80;
  std::string name;
  for (const char byte : uri) {
    const auto code = static_cast<unsigned char>(byte);
    name += isAsciiLetter(code) || isDigit(code) ? byte : '-';
  }
  if (name.size() > longest) name.resize(longest);
  // Two that differ in other characters alone are two.
  return job_.fileStem() + "-" + name + "-" + digitsOfText(uri) + ".xsd";
}

// All in front of what the schema holds.
std::string SchemaTexts::startOf(const std::string& uri, const Part& part) const {
  const bool isFile = place_ == SchemaPlace::inFiles;
  TextWriter text = writerIn(place_);
  if (isFile) {
    text.line(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    text.line("<!-- " + job_.banner() + " -->");
  }
  std::string start = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema")";
  for (const std::string& imported : part.imports) {
    start += xmlAttribute("xmlns:" + set_.prefixes().at(imported), imported);
  }
  if (!part.imports.contains(uri)) start += xmlAttribute("xmlns:" + set_.prefixes().at(uri), uri);
  text.open(start + xmlAttribute("targetNamespace", uri) +
            R"( elementFormDefault="qualified" attributeFormDefault="unqualified">)");
  std::set<std::string> imports = part.imports;
  if (isFile && uri == set_.targetNamespace()) {
    for (const auto& [other, otherPart] : parts_) imports.insert(other);
  }
  for (const std::string& imported : imports) {
    if (imported == uri) continue;
    text.line("<xs:import" + xmlAttribute("namespace", imported) +
              (isFile ? xmlAttribute("schemaLocation", fileOf(imported)) : "") + "/>");
  }
  return text.take();
}

std::vector<SchemaTexts::Schema> SchemaTexts::take() {
  std::vector<Schema> schemas;
  for (auto& [uri, part] : parts_) {
    if (place_ == SchemaPlace::inWsdl && part.text.text().empty()) continue;
    part.text.close("</xs:schema>");
    // Most of the text stands there already: it is moved, not made once more.
    Schema schema{uri, fileOf(uri), part.text.take()};
    schema.text.insert(0, startOf(uri, part));
    if (uri == set_.targetNamespace()) {
      schemas.insert(schemas.begin(), std::move(schema));
    } else {
      schemas.push_back(std::move(schema));
    }
  }
  return schemas;
}

}  // namespace as::toolkit::gen
