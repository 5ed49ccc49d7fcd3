#include "toolkit/lint/TypeStorage.h"

#include <utility>

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
  const std::size_t source = sourceOf(definition);
  Answers& answers = answers_[{&interface, direction}];
  const auto known = answers.wrong.find(source);
  if (known != answers.wrong.end()) return known->second;
  std::vector<as::IDataItem*> wrong = follow(source, answers.good, isWrong);
  if (!wrong.empty()) answers.wrong.emplace(source, wrong);
  return wrong;
}

std::size_t TypeStorage::sourceOf(std::size_t definition) {
  const auto isReference = [this](std::size_t at) {
    return parts_[at].size() == 1 && parts_[at].front().record == nullptr;
  };
  std::size_t source = definition;
  while (isReference(source)) source = parts_[source].front().reference;
  // Who comes this way again is led there at once.
  for (std::size_t at = definition; at != source;) {
    at = std::exchange(parts_[at].front().reference, source);
  }
  return source;
}

std::vector<as::IDataItem*> TypeStorage::follow(std::size_t definition, Known& good,
                                                const IsWrong& isWrong) {
  struct Level {
    std::size_t definition;
    std::size_t next = 0;
    bool isGood = true;
  };
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
