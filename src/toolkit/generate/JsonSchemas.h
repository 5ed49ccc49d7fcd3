// JSON Schemas (2020-12) for the data of a service, and samples of it in JSON.
#ifndef TOOLKIT_GENERATE_JSONSCHEMAS_H_
#define TOOLKIT_GENERATE_JSONSCHEMAS_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/generate/FacetLookup.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/JsonMembers.h"
#include "toolkit/generate/JsonSamples.h"
#include "toolkit/generate/JsonText.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

class JsonSchemas {
 public:
  using Json = nlohmann::ordered_json;

  // `definitions`: what references start with, "#/$defs/". Option "conditions" of the job's kind
  // counts.
  JsonSchemas(const Job& job, std::string definitions);

  // A definition of an object with some of these parameters in it; see complete().
  std::size_t addObject(const NameWish& wish, const std::vector<Field>& members, bool goIn,
                        bool comeOut, const std::string& place);

  // Gives all definitions their names. To be called once, before anything is made.
  void complete();
  // Adds all definitions as members, those of types first.
  void writeTo(JsonText& text) const;

  // The name of the definition that comes first, of a type. REQUIRES: there is a type.
  const std::string& firstName() const { return typeNames_.front(); }
  Json referenceTo(std::size_t definition) const;
  // The schema of a field that has no definition of its own.
  Json schemaOf(const Field& field) const;

  // A sample of a definition; nothing for one of more than so many values.
  std::optional<Json> sampleOf(std::size_t number, std::size_t most);
  Json sampleOf(const Field& field) const { return samples_.sampleOf(field); }

 private:
  struct Definition {
    NameWish wish;
    std::vector<const Field*> members{};
    std::vector<std::string> names{};  // Of its members.
    std::string name{};
  };

  Json schemaOfOne(const Field& field) const;
  Json schemaOfValue(const Field& field) const;
  Json schemaOfType(std::size_t number) const;
  Json objectOf(const std::vector<const Field*>& members,
                const std::vector<std::string>& names) const;

  const Job& job_;
  NameGiver names_;
  JsonMembers members_;
  JsonSamples samples_;
  TypeLookup types_;
  FacetLookup facets_;
  std::string prefix_;
  bool withConditions_;
  std::vector<Definition> definitions_;
  std::vector<std::string> typeNames_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONSCHEMAS_H_
