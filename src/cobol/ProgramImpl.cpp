#include "cobol/ProgramImpl.h"

#include <cstddef>
#include <vector>

#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IGroup.h"
#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CProgramImpl, as::IProgram, CElementImpl)

namespace {

// A list of objects, and the entry of those that it stands in.
struct Level {
  CList* members;
  const NameIndex::Entry* around;
};

// Adds the members that are Members.
template <class Member>
void addLevel(NameIndex& names, const Level& level, std::vector<Level>* below = nullptr) {
  const int count = level.members->getLength();
  for (int i = 0; i < count; i++) {
    CElementImpl* const member = level.members->getElement(i);
    if (as::interface_cast<Member>(member) == nullptr) continue;
    const XMLCh* const name = member->wide(DD::name);
    const NameIndex::Entry* const entry = names.add(level.around, name, member);
    auto* const group = below == nullptr ? nullptr : as::interface_cast<as::IGroup>(member);
    if (group != nullptr)
      below->push_back({as::interface_cast<CList>(group->getChildren()), entry});
  }
}

std::unique_ptr<const NameIndex> indexOfItems(CList* topLevel) {
  auto names = std::make_unique<NameIndex>();
  std::vector<Level> levels;
  if (topLevel != nullptr) levels.push_back({topLevel, nullptr});
  // Level by level, each in the order of the document: that is the order in which objects with the
  // same way of names follow one another.
  for (std::size_t at = 0; at < levels.size(); at++) {
    const Level level = levels[at];
    addLevel<as::IDataItem>(*names, level, &levels);
  }
  return names;
}

std::unique_ptr<const NameIndex> indexOfEntryPoints(CList* entryPoints) {
  auto names = std::make_unique<NameIndex>();
  if (entryPoints != nullptr) addLevel<as::IEntryPoint>(*names, {entryPoints, nullptr});
  return names;
}

}  // namespace

std::string CProgramImpl::getName() { return text(DD::name); }

as::IList* CProgramImpl::getFileSection() { return CList::orEmpty(fileSection_); }

as::IList* CProgramImpl::getDataItems() { return CList::orEmpty(dataItems_); }

as::IList* CProgramImpl::getProperties() { return CList::orEmpty(properties_); }

as::IList* CProgramImpl::getEntryPoints() { return CList::orEmpty(entryPoints_); }

void CProgramImpl::collectChildren() {
  dataItemsByName_.reset();
  entryPointsByName_.reset();
  collectNamedList(DD::properties, properties_);
  collectNamedList(DD::fileSection, fileSection_);
  collectNamedList(DD::dataItems, dataItems_);
  collectNamedList(DD::entryPoints, entryPoints_);
}

CProgramImpl* CProgramImpl::own(as::IProgram* program) {
  auto* const own = as::interface_cast<CProgramImpl>(program);
  // A client's program may show one of the library's behind it: what it answers itself counts.
  return static_cast<as::IProgram*>(own) == program ? own : nullptr;
}

const NameIndex& CProgramImpl::dataItemsByName() {
  if (!dataItemsByName_) dataItemsByName_ = indexOfItems(dataItems_);
  return *dataItemsByName_;
}

const NameIndex& CProgramImpl::entryPointsByName() {
  if (!entryPointsByName_) entryPointsByName_ = indexOfEntryPoints(entryPoints_);
  return *entryPointsByName_;
}
