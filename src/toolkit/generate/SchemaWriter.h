// Writes the XML Schemas that a SchemaSet plans: one for each namespace.
#ifndef TOOLKIT_GENERATE_SCHEMAWRITER_H_
#define TOOLKIT_GENERATE_SCHEMAWRITER_H_

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/TextWriter.h"

namespace as::toolkit::gen {

class SchemaWriter {
 public:
  // Writes; both must outlive it. REQUIRES: the set is complete.
  SchemaWriter(const Job& job, SchemaSet& set);
  SchemaWriter(const SchemaWriter&) = delete;
  SchemaWriter& operator=(const SchemaWriter&) = delete;

  struct Schema {
    std::string uri;
    std::string file;  // Its name, by itself.
    std::string text;  // Without the XML declaration.
  };
  // The target's first. With `areFiles` imports say in which files the others are, and the target's
  // imports all of them; else one that holds nothing is left out.
  std::vector<Schema> schemas(bool areFiles) const;

 private:
  struct Part {
    TextWriter text;
    std::set<std::string> imports;
  };
  using Around = SchemaSet::Around;

  void writeType(std::size_t number);
  void writeElement(const SchemaSet::Element& element);
  void writeNamedType(const SchemaSet::NamedType& type);
  void writeMembers(Part& part, const std::vector<const Field*>& fields,
                    const std::vector<std::string>& names, const Around& around);
  void writeOccurrences(Part& part, const Field& field);
  void writeAttributes(Part& part, const Type& type, const Around& around);
  void writeMember(Part& part, const Field& field, const std::string& name, const Around& around);
  // An element, attribute or other declaration of the field's type.
  void writeTyped(Part& part, const std::string& tag, const std::string& attributes,
                  const Field& field, bool isAttribute = false);
  void writeSimpleType(Part& part, const Field& field, const std::string& name);
  static void writeAny(Part& part, const std::string& attributes);
  void writeRestriction(Part& part, const Field& field, const Facets& facets);
  static void writeDocumentation(Part& part, const std::vector<std::string>& lines);
  // "tns:Claim", and the part's schema imports the namespace.
  std::string qualified(Part& part, const std::string& uri, const std::string& name);
  Part& partOf(const std::string& uri);
  std::string fileOf(const std::string& uri) const;

  const Job& job_;
  SchemaSet& set_;
  std::map<std::string, Part> parts_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SCHEMAWRITER_H_
