#include "toolkit/lint/TypeStorage.h"

namespace as::toolkit {

std::size_t TypeStorage::addDefinition() {
  parts_.emplace_back();
  return parts_.size() - 1;
}

void TypeStorage::addRecord(std::size_t definition, as::IDataItem& record) {
  parts_[definition].push_back({&record, 0});
}

void TypeStorage::addReference(std::size_t definition, std::size_t other) {
  if (other < definition) parts_[definition].push_back({nullptr, other});
}

std::vector<as::IDataItem*> TypeStorage::wrongOnes(std::size_t definition,
                                                   const CallInterface& interface, int direction,
                                                   const IsWrong& isWrong) {
  struct Level {
    std::size_t definition;
    std::size_t next = 0;
    bool isGood = true;
  };
  Known& good = good_[{&interface, direction}];
  Known visited;
  std::unordered_set<as::IDataItem*> told;
  std::vector<as::IDataItem*> wrong;
  std::vector<Level> way;
  // True when there is nothing wrong there, as far as is known.
  const auto enter = [&](std::size_t at) {
    if (good.contains(at)) return true;
    if (visited.insert(at).second) {
      way.push_back({at});
      return true;
    }
    return false;
  };
  enter(definition);
  while (!way.empty()) {
    Level& level = way.back();
    if (level.next < parts_[level.definition].size()) {
      const Part& part = parts_[level.definition][level.next++];
      const bool isGood = part.record == nullptr ? true : !isWrong(*part.record);
      if (!isGood && told.insert(part.record).second) wrong.push_back(part.record);
      if (!isGood) level.isGood = false;
      // The level may move: it is not used behind this.
      if (part.record == nullptr && !enter(part.reference)) way.back().isGood = false;
      continue;
    }
    const Level done = level;
    way.pop_back();
    if (done.isGood) good.insert(done.definition);
    if (!done.isGood && !way.empty()) way.back().isGood = false;
  }
  return wrong;
}

}  // namespace as::toolkit
