#include "toolkit/import/TypeCopier.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "toolkit/import/EntryNames.h"

namespace as::toolkit {

namespace {

using Kind = NameReference::Kind;

}  // namespace

Index TypeCopier::sourceOf(const NameReference& reference, Index record,
                           const CobolProgram** from) {
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
  const Index known = finder_.find(reference.names, {0, record}).entry;
  if (known != none) return known;
  // Of the record that is being built, what stands in front.
  return open_.find(reference.names, size() - 1, reference.place).last;
}

// Gives the entry, which is the last one, what its type or the item that it is like has, by itself
// or by its groups.
bool TypeCopier::putTypeIn(Index target, Index record, int depth) {
  const NameReference& reference = program_.references[static_cast<std::size_t>(at(target).type)];
  const CobolProgram* from = &program_;
  const Index source = sourceOf(reference, record, &from);
  if (source == none) {
    problems_.tell(EntryRule::lostType, reference.place,
                   textOf(reference.names) + (reference.kind == Kind::type
                                                  ? " is no type that stands in front"
                                                  : " is no item that stands in front"));
    at(target).isDamaged = true;
    return false;
  }
  if (from == &program_ && isBelow(target, source)) {
    problems_.tell(EntryRule::lostType, reference.place,
                   textOf(reference.names) + " is the group that the item stands in");
    at(target).isDamaged = true;
    return false;
  }
  if (!mayRepeat(*from, from->entries[static_cast<std::size_t>(source)], reference.place)) {
    at(target).isDamaged = true;
    return false;
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
  if (at(target).likeChange != 0) lengthen(at(target));
  return copyMembers(*from, source, target, depth);
}

bool TypeCopier::isBelow(Index entry, Index group) {
  for (Index above = at(entry).parent; above != none; above = at(above).parent) {
    if (above == group) return true;
  }
  return false;
}

bool TypeCopier::isInGroupWithUsage(Index entry) {
  for (Index group = at(entry).parent; group != none; group = at(group).parent) {
    if (at(group).ownUsage) return true;
  }
  return false;
}

// Whether the limits let an entry stand in a dictionary once more, with all that belongs to it.
bool TypeCopier::mayRepeat(const CobolProgram& from, const DataEntry& entry,
                           const SourcePlace& place) {
  std::size_t text = entry.name.size();
  if (entry.picture != none) {
    text += from.pictures[static_cast<std::size_t>(entry.picture)].text.size();
  }
  for (const Index reference : {entry.depending, entry.reference}) {
    if (reference == none) continue;
    for (const auto& name : from.references[static_cast<std::size_t>(reference)].names) {
      text += name.text.size();
    }
  }
  if (!budget_.addCopies(1 + static_cast<std::size_t>(entry.conditionCount), place)) return false;
  for (Index i = entry.firstCondition; i < entry.firstCondition + entry.conditionCount; ++i) {
    const ConditionEntry& condition = from.conditions[static_cast<std::size_t>(i)];
    text += condition.name.size();
    if (!budget_.addCopies(static_cast<std::size_t>(condition.valueCount), place)) return false;
    for (Index j = condition.firstValue; j < condition.firstValue + condition.valueCount; ++j) {
      const ConditionValueEntry& value = from.values[static_cast<std::size_t>(j)];
      text += value.first.size() + value.last.size();
    }
  }
  return budget_.addText(text, place);
}

// A copy of an entry as one of this program, without a place in its tree.
DataEntry TypeCopier::brought(const CobolProgram& from, Index source) {
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
void TypeCopier::takeDescription(const DataEntry& type, DataEntry& entry) {
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
  // Its own conditions and members stand behind it, and are not read yet.
  entry.firstCondition = type.firstCondition;
  entry.conditionCount = type.conditionCount;
  entry.hasMembers = type.hasMembers;
  entry.copyOf = type.copyOf;
}

// Gives an item the picture with more or fewer characters, or digits in front of the point.
void TypeCopier::lengthen(DataEntry& entry) {
  using Category = Picture::Category;
  const std::optional<Picture> old =
      entry.picture == none || entry.hasMembers
          ? std::nullopt
          : program_.pictures[static_cast<std::size_t>(entry.picture)].picture;
  const bool isNumber = old && old->category == Category::numeric && old->scaling == 0;
  const char* const symbol = !old                                      ? nullptr
                             : old->category == Category::alphabetic   ? "A"
                             : old->category == Category::alphanumeric ? "X"
                             : old->category == Category::national     ? "N"
                             : isNumber                                ? "9"
                                                                       : nullptr;
  const int places = isNumber ? old->scale : 0;
  const int length =
      !old ? 0 : (isNumber ? old->digits : old->characters) - places + entry.likeChange;
  if (symbol == nullptr || length < 0 || length + places < 1) {
    problems_.tell(EntryRule::badClause, entry.place,
                   entry.name + ": LIKE with another length does not go with what it is like");
    entry.isDamaged = true;
    return;
  }
  const auto times = [](const char* what, int count) {
    return std::string(what) + "(" + std::to_string(count) + ")";
  };
  std::string text = isNumber && old->isSigned ? "S" : "";
  if (length > 0) text += times(symbol, length);
  if (places > 0) text += "V" + times(symbol, places);
  program_.pictures.push_back({text, readPicture(text)});
  entry.picture = static_cast<Index>(program_.pictures.size() - 1);
}

// Whether one more entry may stand so deep in the item of that name.
bool TypeCopier::mayStand(int depth, const std::string& name, const SourcePlace& place) {
  const bool isTooDeep = depth > mostDepth;
  if (!isTooDeep && program_.entries.size() < mostEntries) return true;
  problems_.tell(isTooDeep ? EntryRule::nestsTooDeep : EntryRule::tooMuch, place,
                 isTooDeep ? "the types in " + name + " nest too deep"
                           : "there are too many entries with those of " + name);
  return false;
}

bool TypeCopier::copyMembers(const CobolProgram& from, Index source, Index target, int depth) {
  bool hasRedefinitions = false;
  const SourcePlace place = at(target).place;
  const std::string name = at(target).name;
  const Index shift = target - source;
  const Index last = &from == &program_ ? target : static_cast<Index>(from.entries.size());
  std::unordered_map<Index, int> depths{{source, depth}};
  for (Index i = source + 1; i < last; ++i) {
    if (from.entries[static_cast<std::size_t>(i)].parent < source) break;
    if (from.entries[static_cast<std::size_t>(i)].isRenaming) continue;
    const DataEntry& original = from.entries[static_cast<std::size_t>(i)];
    const int below = depths[original.parent] + 1;
    depths[i] = below;
    if (!mayStand(below, name, place) || !mayRepeat(from, original, place)) {
      // What was to come below the last one does not.
      program_.entries.back().hasMembers = false;
      program_.entries.back().isDamaged = true;
      return hasRedefinitions;
    }
    DataEntry member = brought(from, i);
    hasRedefinitions = hasRedefinitions || member.isRedefinition;
    member.parent += shift;
    member.section = at(target).section;
    program_.entries.push_back(std::move(member));
  }
  return hasRedefinitions;
}

}  // namespace as::toolkit
