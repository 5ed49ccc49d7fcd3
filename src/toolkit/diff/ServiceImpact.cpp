#include "toolkit/diff/ServiceImpact.h"

#include <algorithm>
#include <utility>

#include "as/IHiddenParameter.h"
#include "as/IMapping.h"
#include "as/IOperation.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/walk/FieldWalk.h"

namespace as::toolkit {

namespace {

bool isOfTables(const std::string& kind) { return kind.rfind("table-", 0) == 0; }

// Whether the two are called the same from the record down.
bool isOnePath(const DictionaryFacts& before, ItemNumber old, const DictionaryFacts& after,
               ItemNumber added) {
  while (old != noItem && added != noItem && before[old].name == after[added].name) {
    old = before[old].parent;
    added = after[added].parent;
  }
  return old == noItem && added == noItem;
}

}  // namespace

ServiceImpact::ServiceImpact(const DictionaryFacts& before, const DictionaryFacts& after,
                             const ItemMatch& match, const ItemComparison& items,
                             const EntryChanges& entryChanges, ChangeList& changes)
    : before_(before),
      after_(after),
      match_(match),
      items_(items),
      entryChanges_(entryChanges),
      changes_(changes),
      paths_(before) {}

void ServiceImpact::compare(as::IService& service, const std::string& file) {
  file_ = file;
  const FlavourProfile& flavour = profileOf(service);
  compareFields(service.getParameterTypeDefs(), "type ", flavour);
  forEachMember<as::IOperation>(service.getOperations(), [&](as::IOperation& operation) {
    const std::string place = shownPlace({operation.getName()});
    const std::string entry = operation.getAttributeValue("entryPoint");
    const auto found = entryChanges_.find(entry);
    if (found != entryChanges_.end() && !found->second.empty()) {
      const ChangeNumber first = found->second.front();
      const std::string& kind = changes_.all()[first].kind;
      const bool isGone = kind == "entry-point-removed" || kind == "entry-point-renamed";
      tell(isGone ? "entry-point-lost" : "entry-point-changed", place, entry,
           isGone ? changes_.all()[first].newValue : entry, true, first);
    }
    forEachMember<as::IHiddenParameter>(
        operation.getHiddenParameters(),
        [&](as::IHiddenParameter& hidden) { compareMapping(hidden, place + " (hidden)"); });
    compareFields(operation.getParameters(), place + ".", flavour);
    for (const Message& message : flavour.messagesOf(operation)) {
      compareFields(message.parameters, place + " " + message.kind + ".", flavour);
    }
  });
}

void ServiceImpact::compareFields(as::IList* fields, const std::string& place,
                                  const FlavourProfile& flavour) {
  std::vector<std::string> names;
  walkFields(
      fields,
      [&](as::IField& field, std::size_t /*depth*/) {
        names.push_back(field.getName());
        // What comes from a definition is told where it stands.
        if (!referenceOf(field).empty()) return;
        compareMappings(field, place, names);
        forEachMember<as::IField>(flavour.attributesOf(field), [&](as::IField& attribute) {
          if (!referenceOf(attribute).empty()) return;
          names.push_back("@" + attribute.getName());
          compareMappings(attribute, place, names);
          names.pop_back();
        });
      },
      [&](as::IField&) { names.pop_back(); });
}

void ServiceImpact::compareMappings(as::IField& field, const std::string& place,
                                    const std::vector<std::string>& names) {
  as::IList* const mappings = field.getMappings();
  if (mappings->getLength() == 0) return;
  const std::string at = shownPlace({place, shownPath(names)});
  forEachMember<as::IMapping>(mappings,
                              [&](as::IMapping& mapping) { compareMapping(mapping, at); });
}

void ServiceImpact::compareMapping(as::IMapping& mapping, const std::string& place) {
  if (mapping.getType() != as::IMapping::MAP_DATA_ITEM) return;
  std::string path = mapping.getRawMapping();
  path.resize(std::min(path.find('('), path.size()));
  const ItemNumber old = paths_.find(path);
  if (old == noItem) return;
  const ItemNumber added = match_.newOf(old);
  if (added == noItem) {
    tell("mapping-lost", place, path, "", true, noChange);
    return;
  }
  if (!isOnePath(before_, old, after_, added)) {
    tell("mapping-renamed", place, path, after_.pathOf(added), true, noChange);
  }
  bool isTold = false;
  const auto tellChangesOf = [&](ItemNumber at, bool isAround) {
    bool isOneTold = false;
    for (const ChangeNumber number : items_.changesOf(at)) {
      const Change change = changes_.all()[number];
      if (isAround && !isOfTables(change.kind)) continue;
      if (change.kind.rfind("item-", 0) == 0 || change.cause) continue;
      const ChangeKind& kind = *findChangeKind(change.kind);
      if (!kind.breaks) continue;
      tell("mapping-changed", place,
           change.oldPlace + ": " + kind.text + " from " + change.oldValue, change.newValue, true,
           number);
      isTold = isOneTold = true;
    }
    return isOneTold;
  };
  tellChangesOf(old, false);
  // No mapping reaches into more tables; groups around it may be as many as there are mappings.
  int tables = 0;
  for (ItemNumber at = before_[old].parent; at != noItem && tables < as::IMapping::MAX_SUBSCRIPTS;
       at = before_[at].parent) {
    if (tellChangesOf(at, true)) ++tables;
  }
  // What a group has become is told by what is in it.
  const bool isResized = before_[old].length != after_[added].length;
  if (!isTold && isResized) {
    tell("mapping-changed", place,
         path + ": size changed from " + std::to_string(before_[old].length),
         std::to_string(after_[added].length), true, noChange);
    isTold = true;
  }
  if (!isTold && items_.hasMoved(old)) {
    tell("mapping-moved", place, std::to_string(before_[old].offset),
         std::to_string(after_[added].offset), false, noChange);
  }
}

void ServiceImpact::tell(const char* kind, const std::string& place, std::string oldValue,
                         std::string newValue, bool breaks, ChangeNumber cause) {
  const ChangeNumber change =
      changes_.add(kind, {place, place}, std::move(oldValue), std::move(newValue), breaks, cause);
  changes_.all()[change].service = file_;
}

}  // namespace as::toolkit
