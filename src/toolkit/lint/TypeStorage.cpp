#include "toolkit/lint/TypeStorage.h"

#include <algorithm>
#include <utility>

#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

// So many of a definition's records are kept whatever is asked. Where there are no more, or enough
// wrong ones among them, an interface is answered for without going through definitions.
constexpr std::size_t mostKept = 64;

}  // namespace

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

TypeStorage::WrongOnes TypeStorage::wrongOnes(std::size_t definition,
                                              const CallInterface& interface, int direction,
                                              const IsWrong& isWrong) {
  const std::size_t source = sourceOf(definition);
  constexpr std::size_t limit = mostTold + 1;  // One more tells that there are more.
  static_assert(limit < mostKept);
  const auto any = [](as::IDataItem&) { return true; };
  const Records& all = firstRecords(source, mostKept, any, all_);
  Records wrong;
  for (as::IDataItem* const record : all) {
    if (wrong.size() < limit && isWrong(*record)) wrong.push_back(record);
  }
  if (wrong.size() < limit && all.size() == mostKept) {
    wrong = firstRecords(source, limit, isWrong, wrong_[{&interface, direction}]);
  }
  const bool areMore = wrong.size() == limit;
  if (areMore) wrong.pop_back();
  return {std::move(wrong), areMore};
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

const TypeStorage::Records& TypeStorage::firstRecords(std::size_t definition, std::size_t limit,
                                                      const IsWrong& counts, Known& known) const {
  struct Level {
    std::size_t definition;
    std::size_t next = 0;
  };
  // A vector in place of recursion: chains of definitions are long.
  std::vector<Level> way;
  const auto enter = [&](std::size_t at) {
    if (!known.contains(at)) way.push_back({at});
  };
  enter(definition);
  while (!way.empty()) {
    Level& level = way.back();
    const std::vector<Part>& parts = parts_[level.definition];
    if (level.next < parts.size()) {
      const Part& part = parts[level.next++];
      // The level may move: it is not used behind this.
      if (part.record == nullptr) enter(part.reference);
      continue;
    }
    known.emplace(level.definition, together(parts, limit, counts, known));
    way.pop_back();
  }
  return *known.at(definition);
}

std::shared_ptr<const TypeStorage::Records> TypeStorage::together(const std::vector<Part>& parts,
                                                                  std::size_t limit,
                                                                  const IsWrong& counts,
                                                                  const Known& known) const {
  static const auto none = std::make_shared<const Records>();
  std::shared_ptr<const Records> shared = none;
  Records own;  // In place of `shared` from when something was added to that.
  const auto now = [&]() -> const Records& { return own.empty() ? *shared : own; };
  const auto add = [&](as::IDataItem* record) {
    const bool isThere = std::find(now().begin(), now().end(), record) != now().end();
    if (isThere || now().size() == limit) return;
    if (own.empty()) own = *shared;
    own.push_back(record);
  };
  for (const Part& part : parts) {
    if (now().size() == limit) break;
    if (part.record != nullptr) {
      if (counts(*part.record)) add(part.record);
      continue;
    }
    const std::shared_ptr<const Records>& others = known.at(part.reference);
    if (now().empty()) {
      shared = others;
    } else if (others != shared) {
      for (as::IDataItem* const record : *others) add(record);
    }
  }
  return own.empty() ? shared : std::make_shared<const Records>(std::move(own));
}

}  // namespace as::toolkit
