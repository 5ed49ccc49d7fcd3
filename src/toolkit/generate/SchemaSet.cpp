#include "toolkit/generate/SchemaSet.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "toolkit/generate/FieldShape.h"
#include "toolkit/generate/NamespaceUri.h"
#include "toolkit/generate/XsdTypes.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// Those of XML and its schemas, which hold what they are made to hold.
bool isReserved(std::string_view uri) {
  static const std::unordered_set<std::string_view> reserved = {
      "http://www.w3.org/2000/xmlns/", "http://www.w3.org/XML/1998/namespace",
      "http://www.w3.org/2001/XMLSchema", "http://www.w3.org/2001/XMLSchema-instance"};
  return reserved.contains(uri);
}

void refuseUnlessUri(const Job& job, const std::string& text) {
  if (isReserved(text)) {
    job.refuse("reserved-namespace", "service",
               "namespace " + quote(text) + " is one of XML itself", "choose another one");
  }
  if (isUri(text)) return;
  job.refuse("no-uri", "service", "namespace " + quote(text) + " is no URI",
             "write what it cannot hold as %20");
}

}  // namespace

SchemaSet::SchemaSet(const Job& job)
    : job_(job),
      names_(job.namesBy(xmlNames())),
      lookup_(xsdTypes()),
      facets_(job.model),
      target_(job.option("namespace")),
      withConditions_(job.isChosen("conditions", "enumerations")) {
  if (target_.empty()) {
    const std::string& program = job.model.program;
    target_ = namespaceOf(program.empty() ? job.model.name : program);
  }
  prefixes_[target_] = "tns";
  refuseUnlessUri(job_, target_);
  readTypes();
}

// Structures without a name of their own have namespace and forms of what they stand in.
void SchemaSet::readTypes() {
  const ServiceModel& model = job_.model;
  types_.resize(model.types.size());
  for (std::size_t i = 0; i < types_.size(); ++i) {
    const Type& type = model.types[i];
    if (!type.isDeclared) continue;
    TypeFacts& facts = types_[i];
    facts.value = &type.self;
    facts.uri = type.self.namespaceUri.empty() ? target_ : type.self.namespaceUri;
    facts.elementForm = type.self.elementForm;
    facts.attributeForm = type.self.attributeForm;
  }
  for (const Operation& operation : model.operations) {
    for (const Field& parameter : operation.parameters) {
      inherit(parameter, target_, Form::unsaid, Form::unsaid);
    }
    for (const Message& message : operation.messages) {
      const std::string& uri = message.namespaceUri.empty() ? target_ : message.namespaceUri;
      for (const Field& parameter : message.parameters) {
        inherit(parameter, uri, Form::unsaid, Form::unsaid);
      }
    }
  }
  for (std::size_t i = 0; i < types_.size(); ++i) {
    for (const Field& field : model.types[i].fields) {
      inherit(field, types_[i].uri, types_[i].elementForm, types_[i].attributeForm);
    }
  }
}

void SchemaSet::inherit(const Field& field, const std::string& uri, Form elementForm,
                        Form attributeForm) {
  if (field.structure == none || field.reference != none) return;
  TypeFacts& facts = types_[field.structure];
  facts.value = &field;
  facts.uri = field.namespaceUri.empty() ? uri : field.namespaceUri;
  facts.elementForm = said(field.elementForm, elementForm);
  facts.attributeForm = said(field.attributeForm, attributeForm);
}

SchemaSet::Around SchemaSet::aroundOf(std::size_t type) const {
  const TypeFacts& facts = types_[type];
  return {facts.uri, facts.elementForm, facts.attributeForm};
}

bool SchemaSet::isReference(const Field& field, const Around& around) const {
  return !around.isPlain && !field.namespaceUri.empty() && field.namespaceUri != around.uri &&
         said(field.elementForm, around.elementForm) != Form::unqualified;
}

void SchemaSet::use(const Field& field) {
  for (const std::size_t type : {field.reference, field.structure}) {
    if (type == none || types_[type].isUsed) continue;
    types_[type].isUsed = true;
    waiting_.push_back(type);
  }
}

void SchemaSet::useFrom(const Field& field, const Around& around, const Spot& place) {
  if (!isReference(field, around)) {
    use(field);
  } else if (!references_.contains(&field)) {
    references_[&field] = addElement(field.namespaceUri, field, place.of(field.name));
  }
}

void SchemaSet::useWaiting() {
  while (!waiting_.empty()) {
    const std::size_t number = waiting_.back();
    waiting_.pop_back();
    const Type& type = job_.model.types[number];
    if (type.isDeclared && type.self.structure != number) {
      use(type.self);
      continue;
    }
    const Spot place(job_.model, type);
    for (const Field& field : type.fields) useFrom(field, aroundOf(number), place);
    for (const Field& field : type.attributes) use(field);
  }
}

void SchemaSet::addDeclaredTypes() {
  for (std::size_t i = 0; i < types_.size(); ++i) {
    if (!job_.model.types[i].isDeclared || types_[i].isUsed) continue;
    types_[i].isUsed = true;
    waiting_.push_back(i);
  }
}

std::vector<const Field*> SchemaSet::Members::chosen() const {
  std::vector<const Field*> fields;
  for (const Field& field : all) {
    if ((goIn && goesIn(field.direction)) || (comeOut && comesOut(field.direction))) {
      fields.push_back(&field);
    }
  }
  return fields;
}

SchemaSet::Handle SchemaSet::addWrapper(const std::string& uri, const NameWish& name,
                                        const Members& members) {
  const std::string& own = uri.empty() ? target_ : uri;
  for (const Field* const member : members.chosen()) {
    useFrom(*member, {own, Form::unsaid, Form::unsaid, members.isPlain}, members.place);
  }
  elements_.push_back({own, name, nullptr, members});
  return elements_.size() - 1;
}

SchemaSet::Handle SchemaSet::addElement(const std::string& uri, const Field& field,
                                        const Spot& place) {
  std::vector<Handle>& known = elementsByKey_[keyOf(uri, field)];
  for (const Handle handle : known) {
    if (areOfOneShape(job_.model, *elements_[handle].field, field)) return handle;
  }
  use(field);
  elements_.push_back({uri, {field.name, place}, &field});
  known.push_back(elements_.size() - 1);
  return known.back();
}

// Of elements with one key hardly any are not the same: they may be many of one name.
std::string SchemaSet::keyOf(const std::string& uri, const Field& field) {
  if (!shapes_) shapes_.emplace(job_.model);
  return uri + "\n" + field.name + "\n" + std::to_string(shapes_->of(field));
}

SchemaSet::Handle SchemaSet::addType(const Field& field, const NameWish& name) {
  use(field);
  namedTypes_.push_back({name, &field});
  return namedTypes_.size() - 1;
}

SchemaSet::Handle SchemaSet::addGroup(const NameWish& name, const Members& members) {
  for (const Field* const member : members.chosen()) {
    useFrom(*member, {target_, Form::unsaid, Form::unsaid, members.isPlain}, members.place);
  }
  namedTypes_.push_back({name, nullptr, members});
  return namedTypes_.size() - 1;
}

void SchemaSet::complete() {
  useWaiting();
  giveNames();
}

// Types of all namespaces share one scope: so a name tells a type.
void SchemaSet::giveNames() {
  std::vector<NameWish> wishes = typeWishes(job_.model);
  for (const NamedType& type : namedTypes_) wishes.push_back(type.wish);
  // What only the value of a structure needs stands behind them.
  for (std::size_t i = 0; i < types_.size(); ++i) {
    wishes.push_back({wishes[i].name + ".value", wishes[i].place.with(" value"), true});
  }
  const std::vector<std::string> given = names_.namesIn(wishes);
  const std::size_t values = types_.size() + namedTypes_.size();
  for (std::size_t i = 0; i < types_.size(); ++i) {
    types_[i].name = given[i];
    types_[i].valueName = given[values + i];
  }
  for (std::size_t i = 0; i < namedTypes_.size(); ++i) {
    namedTypes_[i].name = given[types_.size() + i];
  }
  giveElementNames();
}

void SchemaSet::giveElementNames() {
  std::map<std::string, std::vector<Handle>> scopes;
  for (Handle i = 0; i < elements_.size(); ++i) scopes[elements_[i].uri].push_back(i);
  for (const auto& [uri, handles] : scopes) {
    std::vector<NameWish> wishes;
    for (const Handle handle : handles) wishes.push_back(elements_[handle].wish);
    const std::vector<std::string> given = names_.namesIn(wishes);
    for (std::size_t i = 0; i < handles.size(); ++i) elements_[handles[i]].name = given[i];
  }
}

std::vector<std::string> SchemaSet::namesOf(const std::vector<const Field*>& fields,
                                            const Spot& place) {
  return names_.namesIn(fieldWishes(fields, place));
}

std::string SchemaSet::elementName(Handle element) const {
  const auto prefix = prefixes_.find(elements_[element].uri);
  return prefix->second + ":" + elements_[element].name;
}

std::string SchemaSet::typeName(Handle type) const {
  const Field* const field = namedTypes_[type].field;
  if (field == nullptr || !isNamed(*field)) return "tns:" + namedTypes_[type].name;
  const std::size_t own = field->reference != none ? field->reference : field->structure;
  if (own == none) return std::string(builtIn(*field));
  return prefixes_.at(types_[own].uri) + ":" + types_[own].name;
}

std::vector<std::string> SchemaSet::memberNames(const Members& members) {
  // A field has one name, whichever way it goes.
  std::vector<const Field*> all;
  for (const Field& field : members.all) all.push_back(&field);
  const std::vector<std::string> given = namesOf(all, members.place);
  std::vector<std::string> chosen;
  for (const Field* const field : members.chosen()) {
    chosen.push_back(given[static_cast<std::size_t>(field - members.all.data())]);
  }
  return chosen;
}

bool SchemaSet::isNamed(const Field& field) const {
  if (field.isTable()) return false;
  if (field.reference != none || field.structure != none) return true;
  return builtIn(field) != anyType && !hasFacets(field);
}

std::string SchemaSet::prefixOf(const std::string& uri) {
  const auto [found, isNew] = prefixes_.try_emplace(uri);
  if (!isNew) return found->second;
  found->second = "ns" + std::to_string(prefixes_.size() - 1);
  refuseUnlessUri(job_, uri);
  return found->second;
}

std::string_view SchemaSet::builtIn(const Field& field) const {
  const TypeRow* const row = lookup_.rowFor(field);
  return row == nullptr ? anyType : row->type;
}

// What the built-in type does not say by itself.
Facets SchemaSet::facetsIn(const Field& field) const {
  Facets facets = facets_.facetsOf(field, withConditions_);
  const Item* const item = job_.model.itemOf(field);
  const bool isOfType =
      item == nullptr || item->kind == Item::Kind::pointer || item->kind == Item::Kind::index;
  if (isOfType && field.capacity.kind == Capacity::Kind::integer) {
    facets.least.clear();
    facets.most.clear();
  }
  return facets;
}

bool SchemaSet::saysAnything(const Facets& facets) {
  return facets.totalDigits > 0 || !facets.most.empty() || facets.longest >= 0 ||
         !facets.pattern.empty() || facets.hasValues();
}

bool SchemaSet::hasFacets(const Field& field) const {
  return builtIn(field) != anyType && saysAnything(facetsIn(field));
}

}  // namespace as::toolkit::gen
