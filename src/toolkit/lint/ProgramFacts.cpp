#include "toolkit/lint/ProgramFacts.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IGroup.h"
#include "as/ILinkageItem.h"
#include "as/IProgram.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemWalk.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

ProgramFacts::ProgramFacts(as::IProgram& program)
    : program_(program), name_(shownPlace({program.getName()})) {
  as::IDataItem* last = nullptr;
  forEachMember<as::IDataItem>(program.getDataItems(), [&](as::IDataItem& item) {
    if (last == nullptr || !(item.isRedefined() || item.isRenamed())) last = &item;
    records_.emplace(&item, last);
    recordsByName_.emplace(item.getName(), &item);
  });
  forEachMember<as::IEntryPoint>(program.getEntryPoints(), [this](as::IEntryPoint& entryPoint) {
    const std::string name = entryPoint.getName();
    if (entryPoints_.emplace(name, &entryPoint).second) entryPointNames_.add(name);
  });
}

as::IDataItem* ProgramFacts::find(const std::string& mapping) {
  if (!finder_) finder_.emplace(std::make_shared<const ItemIndex>(program_));
  return finder_->find(std::string_view(mapping).substr(0, mapping.find('(')));
}

void ProgramFacts::findNames() {
  names_.emplace();
  walkItems(
      program_.getDataItems(),
      [this](as::IDataItem& item, std::size_t) {
        std::string name = item.getName();
        if (!numbers_.emplace(name, firstOfName_.size()).second) return;
        names_->add(std::move(name));
        firstOfName_.push_back(&item);
      },
      [](as::IDataItem&) {});
}

// The item with nearly the last name of the path in the group that the rest of it leads to; null
// when there is none.
as::IDataItem* ProgramFacts::nearBeside(const std::string& path) {
  const std::size_t period = path.rfind('.');
  const bool isRecord = period == std::string::npos;
  as::IDataItem* const around = isRecord ? nullptr : find(path.substr(0, period));
  as::IList* members = isRecord ? program_.getDataItems() : nullptr;
  if (around != nullptr) {
    auto* const group = as::interface_cast<as::IGroup>(around);
    members = group == nullptr ? nullptr : group->getChildren();
  }
  if (members == nullptr) return nullptr;
  const auto [names, isNew] = members_.try_emplace(around);
  if (isNew) {
    forEachMember<as::IDataItem>(
        members, [&near = names->second](as::IDataItem& item) { near.add(item.getName()); });
  }
  const auto nearest = names->second.nearestTo(isRecord ? path : path.substr(period + 1));
  return nearest ? as::interface_cast<as::IDataItem>(members->getItem(static_cast<int>(*nearest)))
                 : nullptr;
}

as::IDataItem* ProgramFacts::itemMeant(const std::string& path) {
  if (!names_) findNames();
  const std::string last = path.substr(path.rfind('.') + 1);
  if (const auto same = numbers_.find(last); same != numbers_.end()) {
    return firstOfName_[same->second];
  }
  if (as::IDataItem* const beside = nearBeside(path)) return beside;
  const std::optional<std::size_t> nearest = names_->nearestTo(last);
  return nearest ? firstOfName_[*nearest] : nullptr;
}

std::string ProgramFacts::pathMeant(const std::string& path) {
  as::IDataItem* const meant = itemMeant(path);
  if (meant == nullptr) return "";
  const auto [known, isNew] = pathsMeant_.try_emplace(meant);
  if (isNew) {
    const std::string found = dottedPath(*meant);
    // Names may hold what separates those of a path.
    if (find(found) != nullptr) known->second = shownPlace({found});
  }
  return known->second;
}

std::string ProgramFacts::entryPointMeant(const std::string& name) {
  const std::optional<std::size_t> nearest = entryPointNames_.nearestTo(name);
  return nearest ? entryPointNames_[*nearest] : "";
}

as::IDataItem* ProgramFacts::recordOf(as::IDataItem& item) const {
  as::IDataItem* top = &item;
  while (as::IGroup* const parent = top->getParent()) top = parent;
  const auto found = records_.find(top);
  return found == records_.end() ? top : found->second;
}

const std::string& ProgramFacts::nameOf(as::IDataItem& record) {
  const auto [known, isNew] = recordNames_.try_emplace(&record);
  if (isNew) known->second = shownPlace({record.getName()});
  return known->second;
}

const CallInterface* ProgramFacts::interfaceOf(const std::string& entryPoint) {
  const auto known = interfaces_.find(entryPoint);
  if (known != interfaces_.end()) return &known->second;
  const auto found = entryPoints_.find(entryPoint);
  if (found == entryPoints_.end()) return nullptr;
  return &interfaces_.emplace(entryPoint, read(*found->second)).first->second;
}

CallInterface ProgramFacts::read(as::IEntryPoint& entryPoint) const {
  CallInterface result;
  result.entryPoint = shownPlace({entryPoint.getName()});
  std::vector<std::string> names;
  forEachMember<as::ILinkageItem>(&entryPoint, [&](as::ILinkageItem& parameter) {
    const std::string name = parameter.getAttributeValue("dataItem");
    const auto found = recordsByName_.find(name);
    if (found == recordsByName_.end()) {
      result.lost.push_back(shownPlace({name}));
      return;
    }
    names.push_back(name);
    result.records.emplace(recordOf(*found->second), parameter.getByType());
  });
  result.names = shownPlace({firstOf(names)});
  return result;
}

}  // namespace as::toolkit
