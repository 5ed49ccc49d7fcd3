#include "toolkit/diff/DictionaryDiff.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "toolkit/diff/NameMatch.h"
#include "toolkit/diff/Sequence.h"
#include "toolkit/diff/ServiceImpact.h"
#include "toolkit/text/ShownPlace.h"

namespace as::toolkit {

namespace {

// What COBOL takes the absence of such a clause for.
std::string orSequential(const std::string& text) { return text.empty() ? "sequential" : text; }

// The parameters of an entry point that no other has been found to be.
class FreeParameters {
 public:
  explicit FreeParameters(const std::vector<EntryParameterFacts>& parameters)
      : isTaken_(parameters.size(), false) {
    for (std::size_t i = parameters.size(); i-- > 0;) {
      const EntryParameterFacts& parameter = parameters[i];
      byName_[parameter.item].push_back(i);
      if (parameter.number == noItem) {
        lost_[parameter.item].push_back(i);
      } else {
        byNumber_[parameter.number].push_back(i);
      }
    }
  }

  // Takes the first one that is `item`, called so; noItem for an item that is in the new dictionary
  // no more. Of an item that no dictionary knew, only its name counts.
  std::size_t take(const std::string& name, bool isKnown, ItemNumber item) {
    std::size_t first = noPartner;
    if (!isKnown) {
      first = firstOf(byName_, name);
    } else {
      first = std::min(firstOf(lost_, name), firstOf(byNumber_, item));
    }
    if (first != noPartner) isTaken_[first] = true;
    return first;
  }

 private:
  // The last of a list is the first of the parameters.
  template <class Key, class Value>
  std::size_t firstOf(std::unordered_map<Key, std::vector<std::size_t>>& lists,
                      const Value& key) const {
    const auto found = lists.find(key);
    if (found == lists.end()) return noPartner;
    std::vector<std::size_t>& list = found->second;
    while (!list.empty() && isTaken_[list.back()]) list.pop_back();
    return list.empty() ? noPartner : list.back();
  }

  std::vector<bool> isTaken_;
  std::unordered_map<std::string_view, std::vector<std::size_t>> byName_;
  std::unordered_map<std::string_view, std::vector<std::size_t>> lost_;  // No items.
  std::unordered_map<ItemNumber, std::vector<std::size_t>> byNumber_;
};

std::vector<const SectionFacts*> filesOf(const DictionaryFacts& facts) {
  std::vector<const SectionFacts*> files;
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind == SectionFacts::Kind::file) files.push_back(&section);
  }
  return files;
}

}  // namespace

void compareProperties(ChangeList& changes,
                       const std::vector<std::pair<std::string, std::string>>& before,
                       const std::vector<std::pair<std::string, std::string>>& after) {
  std::unordered_map<std::string_view, const std::string*> values;
  for (const auto& [name, value] : after) values.emplace(name, &value);
  std::unordered_set<std::string_view> known;
  for (const auto& [name, value] : before) {
    if (!known.insert(name).second) continue;
    const std::string place = "property " + name;
    const auto found = values.find(name);
    if (found == values.end()) {
      changes.add("property-removed", {place, ""}, value, "");
    } else {
      changes.addIfDifferent("property-changed", {place, place}, value, *found->second);
    }
  }
  for (const auto& [name, value] : after) {
    if (known.insert(name).second) {
      changes.add("property-added", {"", "property " + name}, "", value);
    }
  }
}

DictionaryDiff::DictionaryDiff(const DictionaryFacts& before, const DictionaryFacts& after)
    : before_(before),
      after_(after),
      match_(before, after),
      items_(before, after, match_, changes_) {
  programRenamed_ = changes_.addIfDifferent("program-renamed", {before.name(), after.name()},
                                            before.name(), after.name());
  compareProperties(changes_, before.properties(), after.properties());
  compareFiles();
  items_.compare();
  compareEntryPoints();
}

void DictionaryDiff::compareService(as::IService& service, const std::string& file) {
  ServiceImpact(before_, after_, match_, items_, entryChanges_, changes_).compare(service, file);
}

void DictionaryDiff::compareFiles() {
  const std::vector<const SectionFacts*> olds = filesOf(before_);
  const std::vector<const SectionFacts*> news = filesOf(after_);
  const std::vector<std::size_t> partners = matchNamesOf(
      olds, news, [](const SectionFacts* file) -> const std::string& { return file->file; });
  std::unordered_set<const SectionFacts*> taken;
  for (std::size_t i = 0; i < olds.size(); ++i) {
    if (partners[i] == noPartner) continue;
    taken.insert(news[partners[i]]);
    compareFile(*olds[i], *news[partners[i]]);
  }
  std::unordered_map<ItemNumber, const SectionFacts*> byRecord;
  for (const SectionFacts* const file : news) {
    if (!file->records.empty()) byRecord.emplace(file->records.front(), file);
  }
  for (std::size_t i = 0; i < olds.size(); ++i) {
    if (partners[i] != noPartner) continue;
    const SectionFacts* const file = olds[i];
    // One that has the first record of another is that file.
    const auto found =
        file->records.empty() ? byRecord.end() : byRecord.find(match_.newOf(file->records.front()));
    if (found == byRecord.end() || !taken.insert(found->second).second) {
      changes_.add("file-removed", {file->title(), ""});
      continue;
    }
    const SectionFacts* const renamed = found->second;
    changes_.add("file-renamed", {file->title(), renamed->title()}, file->file, renamed->file);
    compareFile(*file, *renamed);
  }
  for (const SectionFacts* const file : news) {
    if (!taken.contains(file)) changes_.add("file-added", {"", file->title()});
  }
}

void DictionaryDiff::compareFile(const SectionFacts& before, const SectionFacts& after) {
  const ChangeList::Place place = {before.title(), after.title()};
  changes_.addIfDifferent("file-organization-changed", place, orSequential(before.organization),
                          orSequential(after.organization));
  changes_.addIfDifferent("file-access-changed", place, orSequential(before.access),
                          orSequential(after.access));
}

bool DictionaryDiff::isSameItem(const EntryParameterFacts& before,
                                const EntryParameterFacts& after) const {
  if (before.number == noItem || after.number == noItem) return before.item == after.item;
  return match_.newOf(before.number) == after.number;
}

bool DictionaryDiff::haveSameParameters(const EntryPointFacts& before,
                                        const EntryPointFacts& after) const {
  return std::equal(before.parameters.begin(), before.parameters.end(), after.parameters.begin(),
                    after.parameters.end(),
                    [this](const EntryParameterFacts& left, const EntryParameterFacts& right) {
                      return isSameItem(left, right) && left.passing == right.passing;
                    });
}

void DictionaryDiff::compareEntryPoints() {
  std::unordered_map<std::string_view, const EntryPointFacts*> news;
  for (const EntryPointFacts& entry : after_.entryPoints()) news.emplace(entry.name, &entry);
  std::unordered_set<std::string_view> olds;
  for (const EntryPointFacts& entry : before_.entryPoints()) olds.insert(entry.name);
  // Those that may be an old one with a new name: of many, only those near by.
  constexpr std::size_t farthest = 64;
  std::vector<const EntryPointFacts*> free;
  for (const EntryPointFacts& entry : after_.entryPoints()) {
    if (!olds.contains(entry.name)) free.push_back(&entry);
  }
  std::size_t next = 0;
  std::unordered_set<const EntryPointFacts*> taken;
  for (const EntryPointFacts& entry : before_.entryPoints()) {
    const std::string place = "entry point " + entry.name;
    const auto found = news.find(entry.name);
    if (found != news.end()) {
      if (taken.insert(found->second).second) compareEntryPoint(entry, *found->second);
      continue;
    }
    const EntryPointFacts* renamed = nullptr;
    while (next < free.size() && taken.contains(free[next])) ++next;
    for (std::size_t i = next; i < std::min(free.size(), next + farthest); ++i) {
      const EntryPointFacts& candidate = *free[i];
      if (renamed == nullptr && !taken.contains(&candidate) &&
          entry.convention == candidate.convention && haveSameParameters(entry, candidate)) {
        renamed = &candidate;
      }
    }
    std::vector<ChangeNumber>& told = entryChanges_[entry.name];
    if (renamed == nullptr) {
      told.push_back(changes_.add("entry-point-removed", {place, ""}));
      continue;
    }
    taken.insert(renamed);
    const bool isProgram = entry.name == before_.name() && renamed->name == after_.name();
    told.push_back(changes_.add("entry-point-renamed", {place, "entry point " + renamed->name},
                                entry.name, renamed->name, true,
                                isProgram ? programRenamed_ : noChange));
  }
  for (const EntryPointFacts& entry : after_.entryPoints()) {
    if (taken.insert(&entry).second && !olds.contains(entry.name)) {
      changes_.add("entry-point-added", {"", "entry point " + entry.name});
    }
  }
}

std::vector<std::size_t> DictionaryDiff::parameterPartners(const EntryPointFacts& before,
                                                           const EntryPointFacts& after) const {
  FreeParameters left(after.parameters);
  std::vector<std::size_t> partners;
  partners.reserve(before.parameters.size());
  for (const EntryParameterFacts& parameter : before.parameters) {
    const bool isKnown = parameter.number != noItem;
    partners.push_back(
        left.take(parameter.item, isKnown, isKnown ? match_.newOf(parameter.number) : noItem));
  }
  return partners;
}

void DictionaryDiff::compareEntryPoint(const EntryPointFacts& before,
                                       const EntryPointFacts& after) {
  const ChangeList::Place place = {"entry point " + before.name, "entry point " + after.name};
  std::vector<ChangeNumber>& told = entryChanges_[before.name];
  const auto note = [&](ChangeNumber change) {
    if (change != noChange) told.push_back(change);
  };
  note(changes_.addIfDifferent("call-convention-changed", place, std::to_string(before.convention),
                               std::to_string(after.convention)));
  const std::vector<std::size_t> partners = parameterPartners(before, after);
  const auto placeOf = [](const std::string& around, const EntryParameterFacts& parameter) {
    return shownPlace({around, " ", parameter.item});
  };
  for (std::size_t i = 0; i < before.parameters.size(); ++i) {
    const EntryParameterFacts& old = before.parameters[i];
    const ChangeList::Place at = {
        placeOf(place.before, old),
        partners[i] == noPartner ? "" : placeOf(place.after, after.parameters[partners[i]])};
    if (partners[i] == noPartner) {
      note(changes_.add("entry-parameter-removed", at, old.passing, ""));
      continue;
    }
    note(changes_.addIfDifferent("entry-parameter-passing-changed", at, old.passing,
                                 after.parameters[partners[i]].passing));
  }
  for (const std::size_t j : withoutPartner(partners, after.parameters.size())) {
    note(changes_.add("entry-parameter-added", {"", placeOf(place.after, after.parameters[j])}, "",
                      after.parameters[j].passing));
  }
  const std::vector<bool> keeps = keepingOrder(partners);
  bool isReordered = false;
  for (std::size_t i = 0; i < partners.size(); ++i) {
    isReordered = isReordered || (partners[i] != noPartner && !keeps[i]);
  }
  if (!isReordered) return;
  const auto namesOf = [](const EntryPointFacts& entry) {
    std::string names;
    for (const EntryParameterFacts& parameter : entry.parameters) {
      names += (names.empty() ? "" : ", ") + parameter.item;
    }
    return names;
  };
  note(changes_.add("entry-parameters-reordered", place, namesOf(before), namesOf(after)));
}

}  // namespace as::toolkit
