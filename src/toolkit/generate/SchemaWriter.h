// Writes the XML Schemas that a SchemaSet plans: one for each namespace.
#ifndef TOOLKIT_GENERATE_SCHEMAWRITER_H_
#define TOOLKIT_GENERATE_SCHEMAWRITER_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SchemaSet.h"
#include "toolkit/generate/SchemaTexts.h"

namespace as::toolkit::gen {

class SchemaWriter {
 public:
  // All must outlive it.
  SchemaWriter(const Job& job, SchemaSet& set, SchemaTexts& texts)
      : job_(job), set_(set), texts_(texts) {}
  SchemaWriter(const SchemaWriter&) = delete;
  SchemaWriter& operator=(const SchemaWriter&) = delete;

  // REQUIRES: the set is complete.
  void write();

 private:
  using Part = SchemaTexts::Part;
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
  void writeTyped(Part& part, std::string_view tag, const std::string& attributes,
                  const Field& field, bool isAttribute = false);
  void writeSimpleType(Part& part, const Field& field, const std::string& name);
  static void writeAny(Part& part, const std::string& attributes);
  void writeRestriction(Part& part, const Field& field, const Facets& facets);
  static void writeDocumentation(Part& part, const std::vector<std::string>& lines);

  const Job& job_;
  SchemaSet& set_;
  SchemaTexts& texts_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SCHEMAWRITER_H_
