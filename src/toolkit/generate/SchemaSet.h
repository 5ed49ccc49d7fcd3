// What the XML Schemas for the data of a service are to hold: elements and types are asked for,
// then all of them get their names. SchemaWriter writes them.
#ifndef TOOLKIT_GENERATE_SCHEMASET_H_
#define TOOLKIT_GENERATE_SCHEMASET_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "toolkit/generate/FacetLookup.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/ShapeHashes.h"
#include "toolkit/generate/TypeTable.h"

namespace as::toolkit::gen {

class SchemaSet {
 public:
  // An element or type that was asked for.
  using Handle = std::size_t;

  // Options "namespace" and "conditions" of the job's kind count.
  explicit SchemaSet(const Job& job);
  SchemaSet(const SchemaSet&) = delete;
  SchemaSet& operator=(const SchemaSet&) = delete;

  // The namespace of what has none of its own.
  const std::string& targetNamespace() const { return target_; }

  // Some of the parameters of an operation or a message, which must outlive the set. `isPlain`:
  // their names are written without a namespace, whatever they say, and a table is one element with
  // its occurrences in it.
  struct Members {
    const std::vector<Field>& all;
    Spot place;        // Where they stand, as findings tell it.
    bool goIn = true;  // Those that go in, or those that come out.
    bool comeOut = true;
    bool isPlain = false;

    std::vector<const Field*> chosen() const;
  };

  // An element with these fields in it. In no namespace the target counts.
  Handle addWrapper(const std::string& uri, const NameWish& name, const Members& members);
  // An element for a field by itself. One of the same name and shape is the same.
  Handle addElement(const std::string& uri, const Field& field, const Spot& place);
  // A type that has a name, for a field by itself with all its occurrences.
  Handle addType(const Field& field, const NameWish& name);
  // A named type with these fields in it, as wrappers have them.
  Handle addGroup(const NameWish& name, const Members& members);
  // All declared types, whether they are used or not.
  void addDeclaredTypes();

  // Gives names. To be called once, before what follows.
  void complete();

  // "ns1:quote"
  std::string elementName(Handle element) const;
  std::string typeName(Handle type) const;
  // The names of those members, one for each of chosen().
  std::vector<std::string> memberNames(const Members& members);
  // What gives out names, for those of other things in the same document.
  NameGiver& names() { return names_; }

  // The prefix of a namespace, made when it is new; and all of them.
  std::string prefixOf(const std::string& uri);
  const std::map<std::string, std::string>& prefixes() const { return prefixes_; }

  // What the writer reads.
  struct Element {
    std::string uri;
    NameWish wish;
    const Field* field = nullptr;  // Null for a wrapper.
    std::optional<Members> members{};
    std::string name{};
  };
  struct NamedType {
    NameWish wish;
    const Field* field = nullptr;  // Null for a group.
    std::optional<Members> members{};
    std::string name{};
  };
  // What is known of one of the model's types.
  struct TypeFacts {
    std::string uri;
    Form elementForm = Form::unsaid;
    Form attributeForm = Form::unsaid;
    const Field* value = nullptr;  // The field that has it.
    bool isUsed = false;
    std::string name;
    std::string valueName;  // For the type of its value.
  };
  // Where a field stands.
  struct Around {
    std::string uri;
    Form elementForm = Form::unsaid;
    Form attributeForm = Form::unsaid;
    bool isPlain = false;
    bool hasLists = false;  // A table is one element, with its occurrences in it.
  };

  const std::vector<Element>& elements() const { return elements_; }
  const std::vector<NamedType>& namedTypes() const { return namedTypes_; }
  // In the order of the model's types.
  const std::vector<TypeFacts>& types() const { return types_; }
  Around aroundOf(std::size_t type) const;
  // Whether it is an element of another namespace, which referenceOf() tells.
  bool isReference(const Field& field, const Around& around) const;
  Handle referenceOf(const Field& field) const { return references_.at(&field); }
  // Whether there is a type of that name without making one.
  bool isNamed(const Field& field) const;
  std::vector<std::string> namesOf(const std::vector<const Field*>& fields, const Spot& place);
  // The built-in type of a plain value, anyType for what has none; and what that does not say.
  std::string_view builtIn(const Field& field) const;
  Facets facetsIn(const Field& field) const;
  bool hasFacets(const Field& field) const;
  static bool saysAnything(const Facets& facets);

 private:
  void readTypes();
  void inherit(const Field& field, const std::string& uri, Form elementForm, Form attributeForm);
  void use(const Field& field);
  void useFrom(const Field& field, const Around& around, const Spot& place);
  void useWaiting();
  std::string keyOf(const std::string& uri, const Field& field);
  void giveNames();
  void giveElementNames();

  const Job& job_;
  NameGiver names_;
  TypeLookup lookup_;
  FacetLookup facets_;
  std::string target_;
  bool withConditions_;
  std::vector<TypeFacts> types_;
  std::vector<std::size_t> waiting_;
  std::vector<Element> elements_;
  std::optional<ShapeHashes> shapes_;  // Made when the first element is asked for.
  std::unordered_map<std::string, std::vector<Handle>> elementsByKey_;
  std::unordered_map<const Field*, Handle> references_;  // Of fields that are references.
  std::vector<NamedType> namedTypes_;
  std::map<std::string, std::string> prefixes_;
};

// The form that is said, or else that of what it stands in.
inline Form said(Form own, Form around) { return own == Form::unsaid ? around : own; }

// The type of whatever there may be.
inline constexpr std::string_view anyType = "xs:anyType";

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_SCHEMASET_H_
