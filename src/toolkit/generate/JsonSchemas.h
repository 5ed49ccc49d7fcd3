// JSON Schemas (2020-12) for the data of a service, and samples of it in JSON.
#ifndef TOOLKIT_GENERATE_JSONSCHEMAS_H_
#define TOOLKIT_GENERATE_JSONSCHEMAS_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/generate/Generator.h"
#include "toolkit/generate/SampleMaker.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

// What JSON knows: numbers that are exact in every reader, and strings for all others.
const TypeTable& jsonTypes();

// Keys of definitions and components.
const NameRule& jsonNames();

class JsonSchemas {
 public:
  using Json = nlohmann::ordered_json;

  // `definitions`: what references start with, "#/$defs/". Option "conditions" of the job's kind
  // counts.
  JsonSchemas(const Job& job, std::string definitions);

  // A definition of an object with some of these parameters in it; see complete(). What the answer
  // points at keeps its name.
  std::size_t addObject(const NameWish& wish, const std::vector<Field>& members, bool goIn,
                        bool comeOut, const std::string& place);
  // One of a field by itself.
  std::size_t addValue(const NameWish& wish, const Field& field);

  // Gives names and makes all definitions, those of types first. To be called once.
  Json complete();

  std::string nameOf(std::size_t definition) const { return definitions_[definition].name; }
  Json referenceTo(std::size_t definition) const;
  // The schema of a field that has no definition of its own.
  Json schemaOf(const Field& field) const;

  // A sample of a definition; nothing for one of more than so many values.
  std::optional<Json> sampleOf(std::size_t number, std::size_t most);
  Json sampleOf(const Field& field) const;

 private:
  struct Definition {
    NameWish wish;
    const Field* value;                   // Null for an object.
    std::vector<const Field*> members{};  // Of an object.
    std::vector<std::string> names{};     // Of its members.
    std::string name{};
  };

  std::vector<std::string> namesOf(const std::vector<const Field*>& fields,
                                   const std::string& place);
  Json schemaOfOne(const Field& field) const;
  Json schemaOfValue(const Field& field) const;
  Json schemaOfType(std::size_t number) const;
  Json objectOf(const std::vector<const Field*>& members,
                const std::vector<std::string>& names) const;
  Json sampleOfOne(const Field& field) const;
  Json sampleOfValue(const Field& field) const;
  Json sampleOfObject(const std::vector<const Field*>& members,
                      const std::vector<std::string>& names) const;
  // Fields, field attributes and the value, in this order.
  std::vector<const Field*> membersOf(std::size_t type) const;

  const Job& job_;
  NameGiver definitionNames_;
  NameGiver memberNames_;
  SampleMaker samples_;
  TypeLookup types_;
  std::string prefix_;
  bool withConditions_;
  std::vector<Definition> definitions_;
  std::vector<std::string> typeNames_;
  std::vector<std::vector<std::string>> typeMembers_;  // Names of the members of types.
  std::vector<std::optional<Field>> values_;           // Of structures that have one.
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONSCHEMAS_H_
