#include "toolkit/import/RecordBuilder.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "toolkit/import/DictionaryText.h"
#include "toolkit/import/EntryNames.h"
#include "toolkit/import/ItemKinds.h"
#include "toolkit/import/RecordLayout.h"

namespace as::toolkit {

namespace {

constexpr int recordLevel = 1;
constexpr int noncontiguousLevel = 77;
constexpr std::size_t mostEntries = TypeCopier::mostEntries;

std::string levelText(int level) { return (level < 10 ? "0" : "") + std::to_string(level); }

}  // namespace

void RecordBuilder::enter(DataSection section) {
  closeRecord();
  section_ = section;
  file_ = nullptr;
  places_.enter();
}

void RecordBuilder::enterFile(FileEntry* file) {
  closeRecord();
  file_ = file;
  places_.enter();
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
    openRecord_.begin(record_);
    entry.parent = none;
    open_.assign(1, {recordLevel, record_});
  } else {
    nest(entry);
  }
  hasRedefinitions_ = hasRedefinitions_ || entry.isRedefinition;
  const bool hasType = entry.type != none;
  last_ = size();
  program_.entries.push_back(std::move(entry));
  if (hasType) {
    const bool hasMore = types_.putTypeIn(last_, record_, static_cast<int>(open_.size()));
    hasRedefinitions_ = hasRedefinitions_ || hasMore;
  }
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
  places_.findRenamed(record_, problems_);
  keepRecord();
  record_ = none;
  open_.clear();
  hasRedefinitions_ = false;
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

void RecordBuilder::placeRecord(EntryProblems& problems) {
  link();
  if (hasRedefinitions_) places_.findOriginals(record_, problems);
  ItemKinds kinds(dialect_, program_, problems);
  for (Index i = record_; i < size(); ++i) kinds.lookAt(i);
  RecordLayout(dialect_, program_, problems).place(record_);
}

// Whether a record is empty because the copybook of the system behind it was not found.
bool RecordBuilder::isFilledBySystem(const DataEntry& record) {
  const bool isEmpty = size() == record_ + 1 && record.picture == none && !record.ownUsage &&
                       record.type == none && !record.isDamaged;
  return isEmpty && passed_.isOneBetween(record.place, behind_);
}

void RecordBuilder::keepRecord() {
  const DataEntry& record = at(record_);
  places_.keep(record_);
  if (record.isGlobal || (file_ != nullptr && file_->isGlobal)) {
    if (!program_.globals) program_.globals = std::make_shared<EntryFinder>(program_);
    for (Index entry = record_; entry < record.end; ++entry) program_.globals->add(entry);
  }
  if (record.isTypedef) {
    if (record.nameId != none) program_.types[record.nameId] = record_;
  } else if (section_ == DataSection::file) {
    if (file_ != nullptr) file_->records.push_back(record_);
  } else {
    program_.records.push_back(record_);
  }
}

std::optional<std::int64_t> RecordBuilder::lengthOf(const NameReference& reference) {
  const Index end = record_ == none ? size() : record_;
  const Index known = finder_.find(reference.names, {0, end}).entry;
  if (known == none) return lengthInOpenRecord(reference);
  if (!at(known).isPlaced) return std::nullopt;
  return extentOf(at(known));
}

// What stands there of the open record so far; what it does not say yet is said when it is closed.
std::optional<std::int64_t> RecordBuilder::lengthInOpenRecord(const NameReference& reference) {
  if (record_ == none) return std::nullopt;
  const Index item = openRecord_.find(reference.names, size(), reference.place).first;
  if (item == none) return std::nullopt;
  EntryProblems silent([](EntryRule, const SourcePlace&, const std::string&) {});
  if (at(item).hasMembers) {
    if (!budget_.addSearches(static_cast<std::size_t>(size() - record_), reference.place)) {
      return std::nullopt;
    }
    placeRecord(silent);
    return at(item).isPlaced ? std::optional(extentOf(at(item))) : std::nullopt;
  }
  // Its size depends on itself and its groups alone, wherever it stands.
  std::vector<Index> path;
  for (Index entry = item; entry != none; entry = at(entry).parent) path.push_back(entry);
  ItemKinds kinds(dialect_, program_, silent);
  std::for_each(path.rbegin(), path.rend(), [&kinds](Index entry) { kinds.lookAt(entry); });
  return extentOf(at(item));
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

// Whether an item of a program around this one is meant, which says that it may be used here.
bool RecordBuilder::isOfOuter(const NameReference& reference) const {
  for (const CobolProgram* outer = program_.outer; outer != nullptr; outer = outer->outer) {
    const auto end = static_cast<Index>(outer->entries.size());
    if (outer->globals && outer->globals->find(reference.names, {0, end}).entry != none) {
      return true;
    }
  }
  return false;
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
  if (found.entry == none && isOfOuter(reference)) {
    problems_.tell(EntryRule::dependingElsewhere, reference.place,
                   textOf(reference.names) + ", which " + entry.name +
                       " depends on, is an item of a program around this one: the dictionary does "
                       "not name it");
    return;
  }
  if (found.entry == none) {
    problems_.tell(EntryRule::lostDepending, reference.place,
                   textOf(reference.names) + ", which " + entry.name +
                       " depends on, is no item of the program");
    return;
  }
  if (!budget_.addText(pathOf(program_, found.entry).size(), reference.place)) return;
  entry.dependsOn = found.entry;
  if (found.isUnclear) {
    problems_.tell(EntryRule::unclearDepending, reference.place,
                   "there are several items " + textOf(reference.names) + ": " + entry.name +
                       " is taken to depend on the first one");
  }
}

}  // namespace as::toolkit
