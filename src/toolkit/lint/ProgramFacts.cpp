#include "toolkit/lint/ProgramFacts.h"

#include <cstddef>
#include <string_view>

#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IGroup.h"
#include "as/ILinkageItem.h"
#include "as/IProgram.h"
#include "toolkit/walk/ItemWalk.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

ProgramFacts::ProgramFacts(as::IProgram& program) : program_(program) {
  as::IDataItem* last = nullptr;
  forEachMember<as::IDataItem>(program.getDataItems(), [&](as::IDataItem& item) {
    if (last == nullptr || !(item.isRedefined() || item.isRenamed())) last = &item;
    records_.emplace(&item, last);
    recordsByName_.emplace(item.getName(), &item);
  });
  forEachMember<as::IEntryPoint>(program.getEntryPoints(), [this](as::IEntryPoint& entryPoint) {
    entryPoints_.emplace(entryPoint.getName(), &entryPoint);
  });
}

std::string ProgramFacts::name() const { return program_.getName(); }

as::IDataItem* ProgramFacts::find(const std::string& mapping) {
  if (!index_) index_.emplace(program_);
  return index_->find(std::string_view(mapping).substr(0, mapping.find('(')));
}

as::IDataItem* ProgramFacts::firstOfName(const std::string& name) {
  if (!byName_) {
    byName_.emplace();
    walkItems(
        program_.getDataItems(),
        [this](as::IDataItem& item, std::size_t) { byName_->emplace(item.getName(), &item); },
        [](as::IDataItem&) {});
  }
  const auto found = byName_->find(name);
  return found == byName_->end() ? nullptr : found->second;
}

as::IDataItem* ProgramFacts::recordOf(as::IDataItem& item) const {
  as::IDataItem* top = &item;
  while (as::IGroup* const parent = top->getParent()) top = parent;
  const auto found = records_.find(top);
  return found == records_.end() ? top : found->second;
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
  result.entryPoint = entryPoint.getName();
  forEachMember<as::ILinkageItem>(&entryPoint, [&](as::ILinkageItem& parameter) {
    const std::string name = parameter.getAttributeValue("dataItem");
    const auto found = recordsByName_.find(name);
    if (found == recordsByName_.end()) {
      result.lost.push_back(name);
      return;
    }
    result.names.push_back(name);
    result.records.emplace(recordOf(*found->second), parameter.getByType());
  });
  return result;
}

}  // namespace as::toolkit
