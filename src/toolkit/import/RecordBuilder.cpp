#include "toolkit/import/RecordBuilder.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "toolkit/import/ItemKinds.h"
#include "toolkit/import/RecordLayout.h"

namespace as::toolkit {

namespace {

constexpr int recordLevel = 1;
constexpr int noncontiguousLevel = 77;
// What a dictionary can hold is read again, and so are its groups.
constexpr int mostDepth = 120;
constexpr std::size_t mostEntries = 2'000'000;
// Sizes that are asked for while a record is open cost as much as the record is long.
constexpr std::int64_t mostRelaid = 20'000'000;

using Kind = NameReference::Kind;

// What REDEFINES or RENAMES names; null when there is none of that kind.
const NameReference* referenceOf(const CobolProgram& program, const DataEntry& entry, Kind kind) {
  if (entry.reference == none) return nullptr;
  const NameReference& reference = program.references[static_cast<std::size_t>(entry.reference)];
  return reference.kind == kind ? &reference : nullptr;
}

std::string textOf(const std::vector<NameReference::Name>& names) {
  std::string text;
  for (const NameReference::Name& name : names) {
    if (!text.empty()) text += " OF ";
    text += name.text;
  }
  return text;
}

std::string levelText(int level) { return (level < 10 ? "0" : "") + std::to_string(level); }

}  // namespace

void RecordBuilder::enter(DataSection section) {
  closeRecord();
  section_ = section;
  file_ = nullptr;
  lastOriginal_ = none;
}

void RecordBuilder::enterFile(FileEntry* file) {
  closeRecord();
  file_ = file;
  lastOriginal_ = none;
}

bool RecordBuilder::add(DataEntry entry) {
  const bool isRecord = entry.level == recordLevel || entry.level == noncontiguousLevel;
  behind_ = entry.place;
  if (isRecord) closeRecord();
  behind_ = {};
  if (isRecord ? section_ == DataSection::file && file_ == nullptr : record_ == none) {
    if (!isLostTold_) {
      problems_.tell(EntryRule::noRecord, entry.place,
                     isRecord ? entry.name + " stands in no file; nor do those behind it"
                              : "level " + levelText(entry.level) +
                                    " stands in no record; nor do those behind it");
    }
    isLostTold_ = true;
    return false;
  }
  if (program_.entries.size() >= mostEntries) {
    if (!isOverfull_) {
      problems_.tell(EntryRule::tooMuch, entry.place,
                     "there are more than " + std::to_string(mostEntries) + " entries");
    }
    isOverfull_ = true;
    return false;
  }
  entry.section = section_;
  if (entry.isRenaming) {
    entry.parent = record_;
    renamings_.push_back(std::move(entry));
    isRenamingLast_ = true;
    return true;
  }
  isRenamingLast_ = false;
  isLostTold_ = false;
  if (isRecord) {
    record_ = size();
    entry.parent = none;
    open_.assign(1, {recordLevel, record_});
  } else {
    nest(entry);
  }
  hasRedefinitions_ = hasRedefinitions_ || entry.isRedefinition;
  const bool hasType = entry.type != none;
  last_ = size();
  program_.entries.push_back(std::move(entry));
  if (hasType) putTypeIn(last_);
  return true;
}

// Below the last entry of a lower level.
void RecordBuilder::nest(DataEntry& entry) {
  int sibling = 0;
  while (open_.size() > 1 && open_.back().level >= entry.level) {
    sibling = open_.back().level;
    open_.pop_back();
  }
  if (sibling > entry.level) {
    problems_.tell(EntryRule::oddLevel, entry.place,
                   "level " + levelText(entry.level) + " of " + entry.name +
                       " was not used in its group; those before it have level " +
                       levelText(sibling));
  }
  entry.parent = open_.back().entry;
  at(entry.parent).hasMembers = true;
  open_.push_back({entry.level, size()});
}

DataEntry* RecordBuilder::conditionHolder() {
  if (isRenamingLast_) return &renamings_.back();
  return record_ == none ? nullptr : &at(last_);
}

void RecordBuilder::closeRecord() {
  if (record_ == none) return;
  for (DataEntry& renaming : renamings_) {
    // A record that is one item holds nothing to rename.
    renaming.parent = record_;
    program_.entries.push_back(std::move(renaming));
  }
  if (!renamings_.empty()) at(record_).hasMembers = true;
  renamings_.clear();
  isRenamingLast_ = false;
  if (isFilledBySystem(at(record_))) {
    problems_.tell(
        EntryRule::systemRecord, at(record_).place,
        at(record_).name + " has nothing but what a copybook of the system holds, and is left out");
    program_.entries.resize(static_cast<std::size_t>(record_));
    record_ = none;
    open_.clear();
    return;
  }
  placeRecord(problems_);
  for (Index entry = record_; entry < size(); ++entry) finder_.add(entry);
  findRenamed();
  keepRecord();
  record_ = none;
  open_.clear();
  hasRedefinitions_ = false;
}

Index RecordBuilder::sourceOf(const NameReference& reference, const CobolProgram** from) {
  const Index name = reference.names.front().id;
  *from = &program_;
  if (reference.kind == Kind::type) {
    for (const CobolProgram* program = &program_; program != nullptr; program = program->outer) {
      const auto found = program->types.find(name);
      if (found == program->types.end()) continue;
      *from = program;
      return found->second;
    }
    return none;
  }
  const Index known = finder_.find(reference.names, {0, record_}).entry;
  if (known != none) return known;
  // Of the record that is being built, what stands in front.
  for (Index before = size() - 2; reference.names.size() == 1 && before >= record_; --before) {
    if (++relaidEntries_ > mostRelaid) return none;
    if (at(before).nameId == name) return before;
  }
  return none;
}

// Gives the entry, which is the last one, what its type or the item that it is like has, by itself
// or by its groups.
void RecordBuilder::putTypeIn(Index target) {
  const NameReference& reference = program_.references[static_cast<std::size_t>(at(target).type)];
  const CobolProgram* from = &program_;
  const Index source = sourceOf(reference, &from);
  if (source == none || (from == &program_ && source == target)) {
    problems_.tell(EntryRule::lostType, reference.place,
                   textOf(reference.names) + (reference.kind == Kind::type
                                                  ? " is no type that stands in front"
                                                  : " is no item that stands in front"));
    at(target).isDamaged = true;
    return;
  }
  DataEntry type = brought(*from, source);
  for (Index group = type.parent; group != none;) {
    const DataEntry& above = from->entries[static_cast<std::size_t>(group)];
    if (!type.ownUsage && above.ownUsage) {
      type.ownUsage = above.ownUsage;
      type.isUnsigned = above.isUnsigned;
    }
    if (type.ownSign == SignClause::absent) type.ownSign = above.ownSign;
    group = above.parent;
  }
  // What the groups of the entry say of usage counts for none that is described elsewhere.
  if (!type.ownUsage && !at(target).ownUsage && isInGroupWithUsage(target)) {
    type.ownUsage = Usage::display;
  }
  takeDescription(type, at(target));
  copyMembers(*from, source, target);
}

bool RecordBuilder::isInGroupWithUsage(Index entry) {
  for (Index group = at(entry).parent; group != none; group = at(group).parent) {
    if (at(group).ownUsage) return true;
  }
  return false;
}

// A copy of an entry as one of this program, without a place in its tree.
DataEntry RecordBuilder::brought(const CobolProgram& from, Index source) {
  DataEntry entry = from.entries[static_cast<std::size_t>(source)];
  const bool isRedefinition = referenceOf(from, entry, Kind::redefines) != nullptr;
  if (!isRedefinition) entry.reference = none;
  entry.type = none;
  entry.end = entry.nextSibling = entry.original = none;
  entry.copyOf = &from == &program_ ? source : none;
  if (&from == &program_) return entry;
  // Nothing of another program is known here by its number.
  const auto bring = [](auto& list, const auto& other, Index& index) {
    if (index == none) return;
    list.push_back(other[static_cast<std::size_t>(index)]);
    index = static_cast<Index>(list.size() - 1);
  };
  bring(program_.pictures, from.pictures, entry.picture);
  bring(program_.references, from.references, entry.depending);
  bring(program_.references, from.references, entry.reference);
  const Index first = entry.firstCondition;
  if (entry.conditionCount > 0)
    entry.firstCondition = static_cast<Index>(program_.conditions.size());
  for (Index i = first; i < first + entry.conditionCount; ++i) {
    ConditionEntry condition = from.conditions[static_cast<std::size_t>(i)];
    const auto values = from.values.begin() + condition.firstValue;
    condition.firstValue = static_cast<Index>(program_.values.size());
    program_.values.insert(program_.values.end(), values, values + condition.valueCount);
    program_.conditions.push_back(condition);
  }
  return entry;
}

// What an item gets from the one that it is of the type of.
void RecordBuilder::takeDescription(const DataEntry& type, DataEntry& entry) {
  if (entry.picture == none) entry.picture = type.picture;
  if (!entry.ownUsage) {
    entry.ownUsage = type.ownUsage;
    entry.isUnsigned = type.isUnsigned;
  }
  if (entry.ownSign == SignClause::absent) entry.ownSign = type.ownSign;
  entry.hasOwnSync = entry.hasOwnSync || type.hasOwnSync;
  entry.isJustified = entry.isJustified || type.isJustified;
  entry.isBlankWhenZero = entry.isBlankWhenZero || type.isBlankWhenZero;
  entry.isDamaged = entry.isDamaged || type.isDamaged;
  if (entry.conditionCount == 0) {
    entry.firstCondition = type.firstCondition;
    entry.conditionCount = type.conditionCount;
  }
  entry.hasMembers = entry.hasMembers || type.hasMembers;
  entry.copyOf = type.copyOf;
}

void RecordBuilder::copyMembers(const CobolProgram& from, Index source, Index target) {
  const int depth = static_cast<int>(open_.size());
  const SourcePlace place = at(target).place;
  const std::string name = at(target).name;
  const Index shift = target - source;
  const Index last = &from == &program_ ? target : static_cast<Index>(from.entries.size());
  std::unordered_map<Index, int> depths{{source, depth}};
  for (Index i = source + 1; i < last; ++i) {
    if (from.entries[static_cast<std::size_t>(i)].parent < source) break;
    if (from.entries[static_cast<std::size_t>(i)].isRenaming) continue;
    DataEntry member = brought(from, i);
    const int below = depths[member.parent] + 1;
    depths[i] = below;
    const bool isTooDeep = below > mostDepth;
    if (isTooDeep || program_.entries.size() >= mostEntries) {
      problems_.tell(isTooDeep ? EntryRule::nestsTooDeep : EntryRule::tooMuch, place,
                     isTooDeep ? "the types in " + name + " nest too deep"
                               : "there are too many entries with those of " + name);
      return;
    }
    hasRedefinitions_ = hasRedefinitions_ || member.isRedefinition;
    member.parent += shift;
    member.section = section_;
    program_.entries.push_back(std::move(member));
  }
}

void RecordBuilder::link() {
  std::unordered_map<Index, Index> lastMember;
  for (Index i = size() - 1; i >= record_; --i) {
    DataEntry& entry = at(i);
    entry.end = std::max(entry.end, i + 1);
    if (entry.parent == none) continue;
    DataEntry& parent = at(entry.parent);
    parent.end = std::max(parent.end, entry.end);
    Index& next = lastMember.emplace(entry.parent, none).first->second;
    entry.nextSibling = next;
    next = i;
  }
}

void RecordBuilder::findOriginals(EntryProblems& problems) {
  if (!hasRedefinitions_) return;
  // By group and name; the last one of a name is meant. The last one that is no redefinition by
  // group alone.
  std::map<std::pair<Index, Index>, Index> known;
  std::unordered_map<Index, Index> lastOriginal;
  for (Index i = record_; i < size(); ++i) {
    DataEntry& entry = at(i);
    if (entry.parent == none && !entry.isRedefinition) continue;
    const NameReference* const reference = referenceOf(program_, entry, Kind::redefines);
    const auto tell = [&](EntryRule rule, const std::string& text) {
      problems.tell(rule, reference->place, text);
    };
    if (entry.isRedefinition && reference != nullptr) {
      const Index name = reference->names.front().id;
      Index original = none;
      Index last = none;
      if (entry.parent == none) {
        const auto found = recordsByName_.find({section_, name});
        original = found == recordsByName_.end() ? none : found->second;
        last = lastOriginal_;
      } else {
        const auto found = known.find({entry.parent, name});
        original = found == known.end() ? none : found->second;
        last = lastOriginal.emplace(entry.parent, none).first->second;
      }
      if (original == none) {
        tell(EntryRule::lostRedefined, reference->names.front().text + " does not stand before " +
                                           entry.name + " on its level");
      } else {
        if (at(original).isRedefinition) original = at(original).original;
        if (original != none && last != none && original != last) {
          tell(EntryRule::farRedefined, entry.name + " redefines " + at(original).name + ", but " +
                                            at(last).name + " stands between them");
        }
        entry.original = original;
      }
    }
    if (entry.parent == none) continue;
    if (entry.nameId != none) known[{entry.parent, entry.nameId}] = i;
    if (!entry.isRedefinition && !entry.isRenaming) lastOriginal[entry.parent] = i;
  }
}

void RecordBuilder::placeRecord(EntryProblems& problems) {
  link();
  findOriginals(problems);
  ItemKinds kinds(dialect_, program_, problems);
  for (Index i = record_; i < size(); ++i) kinds.lookAt(i);
  RecordLayout(dialect_, program_, problems).place(record_);
}

// RENAMES entries are what they rename, or texts that run from one item through another.
void RecordBuilder::findRenamed() {
  for (Index i = at(record_).end - 1; i > record_ && at(i).isRenaming; --i) {
    DataEntry& entry = at(i);
    const NameReference* const reference = referenceOf(program_, entry, Kind::renames);
    if (reference == nullptr) continue;
    const auto find = [&](const std::vector<NameReference::Name>& names) {
      const Index found = finder_.find(names, {record_, at(record_).end}).entry;
      if (found != none && !at(found).isRenaming) return found;
      problems_.tell(EntryRule::lostRenamed, reference->place,
                     textOf(names) + " is no item of the record of " + entry.name);
      return none;
    };
    const Index first = find(reference->names);
    const Index last = reference->through.empty() ? first : find(reference->through);
    if (first == none || last == none) continue;
    const DataEntry& from = at(first);
    const DataEntry& to = at(last);
    const std::int64_t length = to.offset + extentOf(to) - from.offset;
    if (!from.isPlaced || !to.isPlaced) continue;
    if (length < 0 || last < first) {
      problems_.tell(
          EntryRule::lostRenamed, reference->place,
          to.name + " ends in front of " + from.name + ", where " + entry.name + " starts");
      continue;
    }
    const bool isOneItem = reference->through.empty() && !from.hasMembers && !from.isTable();
    entry.element = isOneItem ? from.element : ItemElement::alphanumeric;
    if (isOneItem) {
      entry.picture = from.picture;
      entry.usage = from.usage;
      entry.sign = from.sign;
      entry.isUnsigned = from.isUnsigned;
      entry.isJustified = from.isJustified;
      entry.isBlankWhenZero = from.isBlankWhenZero;
    } else {
      entry.usage = Usage::display;
      entry.picture = none;
    }
    entry.isSync = false;
    entry.original = first;
    entry.lastRenamed = last;
    entry.offset = from.offset;
    entry.length = static_cast<int>(length);
    entry.isPlaced = true;
  }
}

// Whether a record is empty because the copybook of the system behind it was not found.
bool RecordBuilder::isFilledBySystem(const DataEntry& record) const {
  const bool isEmpty = size() == record_ + 1 && record.picture == none && !record.ownUsage &&
                       record.type == none && !record.isDamaged;
  if (!isEmpty) return false;
  const auto isInFront = [](const SourcePlace& one, const SourcePlace& other) {
    return one.line != other.line ? one.line < other.line : one.column < other.column;
  };
  const std::vector<SourcePlace>& passed = source_.passedCopybooks();
  return std::any_of(passed.begin(), passed.end(), [&](const SourcePlace& place) {
    return place.file == record.place.file && isInFront(record.place, place) &&
           (behind_.line == 0 || behind_.file != place.file || isInFront(place, behind_));
  });
}

void RecordBuilder::keepRecord() {
  const DataEntry& record = at(record_);
  if (!record.isRedefinition) lastOriginal_ = record_;
  if (record.nameId != none) recordsByName_[{section_, record.nameId}] = record_;
  if (record.isTypedef) {
    if (record.nameId != none) program_.types[record.nameId] = record_;
  } else if (section_ == DataSection::file) {
    if (file_ != nullptr) file_->records.push_back(record_);
  } else {
    program_.records.push_back(record_);
  }
}

std::optional<std::int64_t> RecordBuilder::lengthOf(const NameReference& reference) {
  const auto sizeOf = [this](Index entry) -> std::optional<std::int64_t> {
    if (entry == none || !at(entry).isPlaced) return std::nullopt;
    return extentOf(at(entry));
  };
  const Index end = record_ == none ? size() : record_;
  const Index known = finder_.find(reference.names, {0, end}).entry;
  if (known != none || record_ == none || reference.names.size() != 1) return sizeOf(known);
  relaidEntries_ += size() - record_;
  if (relaidEntries_ > mostRelaid) return std::nullopt;
  // What stands there of the open record so far; what it does not say yet is said when it is
  // closed.
  EntryProblems silent([](EntryRule, const SourcePlace&, const std::string&) {});
  placeRecord(silent);
  for (Index i = record_; i < size(); ++i) {
    if (at(i).nameId == reference.names.front().id) return sizeOf(i);
  }
  return std::nullopt;
}

EntryFinder::Found RecordBuilder::find(const std::vector<NameReference::Name>& names) {
  return finder_.find(names, {0, size()});
}

void RecordBuilder::finish() {
  closeRecord();
  for (Index i = 0; i < size(); ++i) {
    if (at(i).depending != none) findDepending(at(i));
  }
}

// Programs for CICS get the items of its interface block (EIBCALEN, the length of what they are
// given, before all) without any entry for them.
bool RecordBuilder::isOfCics(const NameReference& reference) {
  return sameWord(std::string_view(reference.names.front().text).substr(0, 3), "EIB");
}

void RecordBuilder::findDepending(DataEntry& entry) {
  const NameReference& reference = program_.references[static_cast<std::size_t>(entry.depending)];
  auto record = static_cast<Index>(&entry - program_.entries.data());
  while (at(record).parent != none) record = at(record).parent;
  if (at(record).isTypedef) return;
  // That of the same record is meant, and before all others the only one of the program.
  EntryFinder::Found found = finder_.find(reference.names, {record, at(record).end});
  if (found.entry == none) found = find(reference.names);
  if (found.entry == none && isOfCics(reference)) {
    problems_.tell(EntryRule::systemDepending, reference.place,
                   textOf(reference.names) + ", which " + entry.name +
                       " depends on, is an item that CICS brings: the dictionary does not name it");
    return;
  }
  if (found.entry == none) {
    problems_.tell(EntryRule::lostDepending, reference.place,
                   textOf(reference.names) + ", which " + entry.name +
                       " depends on, is no item of the program");
    return;
  }
  entry.dependsOn = found.entry;
  if (found.isUnclear) {
    problems_.tell(EntryRule::unclearDepending, reference.place,
                   "there are several items " + textOf(reference.names) + ": " + entry.name +
                       " is taken to depend on the first one");
  }
}

}  // namespace as::toolkit
