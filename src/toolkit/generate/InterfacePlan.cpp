#include "toolkit/generate/InterfacePlan.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/NameCharacters.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

using CapacityKind = Capacity::Kind;

// A rule with further reserved words, in the case that they have or, as what is called so besides
// what is looked at, in any case.
class ReservingRule {
 public:
  enum class As { words, taken };

  ReservingRule(const NameRule& rule, std::vector<std::string> words, As as = As::words)
      : rule_(rule), words_(std::move(words)) {
    const Words*& added = as == As::taken ? rule_.taken : rule_.reserved;
    if (added != nullptr) all_ = *added;
    if (as == As::taken || rule.isReservedInAnyCase) {
      for (std::string& word : words_) word = inSmallLetters(word);
    }
    all_.insert(words_.begin(), words_.end());
    added = &all_;
  }
  ReservingRule(const ReservingRule&) = delete;
  ReservingRule& operator=(const ReservingRule&) = delete;

  const NameRule& rule() const { return rule_; }

 private:
  NameRule rule_;
  std::vector<std::string> words_;
  std::unordered_set<std::string_view> all_;
};

class Planner {
 public:
  Planner(const Job& job, const Language& language)
      : job_(job), model_(job.model), language_(language), owners_(model_.types.size()) {
    for (const Operation& operation : model_.operations) noteOwners(operation.parameters);
    for (const Type& type : model_.types) noteOwners(type.fields);
  }

  InterfacePlan plan() {
    nameAll();
    for (std::size_t i = 0; i < model_.types.size(); ++i) {
      if (isWanted(i)) plan_.structures.push_back(structureOf(i));
    }
    for (const Operation& operation : model_.operations) addMethod(operation);
    return std::move(plan_);
  }

 private:
  // Structures that are not declared have one each.
  void noteOwners(const std::vector<Field>& fields) {
    for (const Field& field : fields) {
      if (field.structure != none) owners_[field.structure] = &field;
    }
  }

  // A declared type without parts is the value that it stands for; one that refers to another is
  // that one.
  bool isWanted(std::size_t number) const {
    const Type& type = model_.types[number];
    return type.message.empty() && (!type.isDeclared || type.self.structure == number);
  }

  static bool comesOutOf(const Field& parameter) { return comesOut(parameter.direction); }

  bool answersStructure(const Operation& operation) const {
    return language_.answersOne &&
           std::count_if(operation.parameters.begin(), operation.parameters.end(), comesOutOf) > 1;
  }

  void nameAll() {
    plan_.name = job_.namesBy(language_.service)
                     .namesIn({{model_.name, model_.flavour == nullptr ? "dictionary" : "service"}})
                     .front();
    plan_.interface = language_.interfacePrefix + plan_.name;
    std::vector<NameWish> wishes = typeWishes(model_);
    std::vector<NameWish> wanted;
    for (std::size_t i = 0; i < wishes.size(); ++i) {
      if (isWanted(i)) wanted.push_back(std::move(wishes[i]));
    }
    for (const Operation& operation : model_.operations) {
      if (!answersStructure(operation)) continue;
      wanted.push_back({operation.name + " result", model_.placeOf(operation) + " result", true});
    }
    const ReservingRule rule(
        language_.types, {plan_.name, plan_.interface},
        language_.types.tellsCases ? ReservingRule::As::words : ReservingRule::As::taken);
    std::vector<std::string> names = job_.namesBy(rule.rule()).namesIn(wanted);
    typeNames_.resize(model_.types.size());
    auto next = names.begin();
    for (std::size_t i = 0; i < wishes.size(); ++i) {
      if (isWanted(i)) typeNames_[i] = *next++;
    }
    answerNames_.assign(next, names.end());
    std::vector<NameWish> methods;
    for (const Operation& operation : model_.operations) {
      methods.push_back({operation.name, model_.placeOf(operation)});
    }
    std::vector<std::string> taken;
    if (!language_.tellsMethodsFromTypes) taken.push_back(plan_.interface);
    const ReservingRule methodRule(language_.methods, std::move(taken));
    methodNames_ = job_.namesBy(methodRule.rule()).namesIn(methods);
  }

  Structure structureOf(std::size_t number) {
    const Type& type = model_.types[number];
    Structure structure;
    structure.name = typeNames_[number];
    structure.place = Spot(model_, type);
    structure.type = number;
    std::vector<NameWish> wishes;
    for (const Field& field : type.fields) add(field, structure.place, structure.members, wishes);
    for (const Field& attribute : type.attributes) {
      add(attribute, structure.place, structure.members, wishes);
      structure.members.back().isAttribute = true;
    }
    if (type.fields.empty()) {
      Member value;
      value.type = valueTypeOf(number);
      structure.members.push_back(std::move(value));
      wishes.push_back({"value", structure.place.with(" value"), true});
    }
    std::vector<std::string> taken;
    if (language_.hasProperties) {
      taken.push_back(structure.name);
      for (const NameWish& wish : wishes) {
        const std::string property = legalName(language_.members, wish.name);
        taken.push_back("get_" + property);
        taken.push_back("set_" + property);
      }
    }
    const ReservingRule rule(language_.members, std::move(taken));
    name(structure.members, job_.namesBy(rule.rule()).namesIn(wishes));
    return structure;
  }

  // Of a structure with attributes alone, or with nothing: what the field holds that it belongs to.
  std::string valueTypeOf(std::size_t number) {
    const Type& type = model_.types[number];
    if (type.isDeclared) return typeOf(type.self, Spot(model_, type), true).first;
    return typeOf(*owners_[number], Spot(model_, type), true).first;
  }

  void add(const Field& field, const Spot& place, std::vector<Member>& members,
           std::vector<NameWish>& wishes) {
    const Spot own = place.of(field.name);
    auto [type, structure] = typeOf(field, own, false);
    Member member;
    member.type = std::move(type);
    member.structure = structure;
    member.field = &field;
    members.push_back(std::move(member));
    wishes.push_back({field.name, own});
  }

  static void name(std::vector<Member>& members, const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < members.size(); ++i) members[i].name = names[i];
  }

  std::pair<std::string, std::size_t> typeOf(const Field& field, const Spot& place, bool asValue) {
    if (field.structure != none && !asValue) return {typeNames_[field.structure], field.structure};
    const TypeRow* row = rowFor(language_.values, field);
    const Item* const item = model_.itemOf(field);
    const CapacityKind kind = field.capacity.kind;
    if (kind == CapacityKind::floating && item != nullptr && isExact(item->capacity)) {
      row = exactRow(*item, field, place, row);
    }
    if (kind == CapacityKind::text && item != nullptr && item->kind == Item::Kind::number) {
      tellText(place, "it stands for numbers of " + count(digitsOf(*item), "digit"));
    }
    if (row == nullptr) {
      tellText(place, kind == CapacityKind::group ? "a group without parts is no value"
                                                  : "no type holds all of its values");
      return {language_.text, none};
    }
    return {row->type, none};
  }

  static bool isExact(const Capacity& capacity) {
    return capacity.kind == CapacityKind::decimal || capacity.kind == CapacityKind::integer;
  }

  static std::size_t digitsOf(const Item& item) {
    return static_cast<std::size_t>(
        std::max({item.digits, item.floatingDigits, item.capacity.digits, 0}));
  }

  // Floating-point numbers lose digits of decimal ones in calculations, whatever they hold.
  const TypeRow* exactRow(const Item& item, const Field& field, const Spot& place,
                          const TypeRow* inexact) {
    Field exact = field;
    exact.capacity = item.capacity;
    const TypeRow* const row = rowFor(language_.values, exact);
    if (row == nullptr) return inexact;
    job_.warn("inexact-type", place.text(),
              "it is a " + field.dataType + ", the item is a decimal number: " + row->type +
                  " stands for it",
              "give it a data type that is exact");
    return row;
  }

  void tellText(const Spot& place, const std::string& why) {
    job_.note("number-as-text", place.text(), why + ": " + language_.text + " stands for it");
  }

  void addMethod(const Operation& operation) {
    Method method;
    method.operation = &operation;
    method.name = methodNames_[plan_.methods.size()];
    const std::string place = model_.placeOf(operation);
    std::vector<NameWish> wishes;
    for (const Field& parameter : operation.parameters) {
      add(parameter, place, method.parameters, wishes);
    }
    name(method.parameters, job_.namesBy(language_.members).namesIn(wishes));
    if (answersStructure(operation)) {
      Structure answer;
      answer.name = answerNames_[nextAnswer_++];
      answer.place = place;
      for (const Member& parameter : method.parameters) {
        if (comesOutOf(*parameter.field)) answer.members.push_back(parameter);
      }
      method.answer = answer.name;
      plan_.structures.push_back(std::move(answer));
    }
    for (const Message& message : operation.messages) {
      job_.warn("left-out", model_.placeOf(operation, message),
                std::string("a ") + message.kind + " is nothing that " +
                    language_.methods.language + " has",
                "make a kind for Web services");
    }
    plan_.methods.push_back(std::move(method));
  }

  const Job& job_;
  const ServiceModel& model_;
  const Language& language_;
  std::vector<const Field*> owners_;  // Of the structures that are not declared.
  InterfacePlan plan_;
  std::vector<std::string> typeNames_;
  std::vector<std::string> answerNames_;
  std::vector<std::string> methodNames_;
  std::size_t nextAnswer_ = 0;
};

}  // namespace

InterfacePlan planOf(const Job& job, const Language& language) {
  return Planner(job, language).plan();
}

std::string dottedOption(const Job& job, const char* option, const NameRule& rule) {
  std::string value = job.option(option);
  for (std::size_t from = 0; from <= value.size() && !value.empty();) {
    const std::size_t to = std::min(value.find('.', from), value.size());
    const std::string part = value.substr(from, to - from);
    if (!isLegal(rule, part)) {
      job.refuse("forbidden-name", std::string("option ") + option,
                 quote(part) + " is no name in " + rule.language, "choose another one");
    }
    from = to + 1;
  }
  return value;
}

std::string textAbout(const ServiceModel& model, const Member& member) {
  if (member.field == nullptr) return "the value";
  std::string text;
  const auto add = [&text](const std::string& part) {
    if (!text.empty()) text += "; ";
    text += part;
  };
  const Item* const item = model.itemOf(*member.field);
  const bool isToldByItem = item != nullptr && item->name == member.field->name;
  if (member.name != member.field->name && !isToldByItem) add("called " + member.field->name);
  for (const std::string& line : linesAbout(model, *member.field)) add(line);
  return text;
}

}  // namespace as::toolkit::gen
