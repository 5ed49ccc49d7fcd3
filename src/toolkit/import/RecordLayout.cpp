#include "toolkit/import/RecordLayout.h"

#include <algorithm>
#include <limits>
#include <string>

#include "as/toolkit/Text.h"

namespace as::toolkit {

namespace {

constexpr std::int64_t mostBytes = std::numeric_limits<int>::max();

std::int64_t roundedUp(std::int64_t value, int boundary) {
  return (value + boundary - 1) / boundary * boundary;
}

std::string bytes(std::int64_t number) { return count(static_cast<std::size_t>(number), "byte"); }

}  // namespace

bool RecordLayout::place(Index record) { return placeItem(record, 0); }

// Groups nest no deeper than their levels do, and types no deeper than the builder of records lets
// them.
bool RecordLayout::placeItem(Index index, std::int64_t start) {
  DataEntry& item = at(index);
  std::int64_t offset = start;
  if (!item.hasMembers) {
    if (item.isRedefinition && start % item.boundary != 0) {
      problems_.tell(EntryRule::offBoundary, item.place,
                     item.name + " is synchronized on " + bytes(item.boundary) +
                         ", but what it redefines starts at offset " + std::to_string(start));
    } else {
      offset = roundedUp(start, item.boundary);
    }
  }
  item.slackBefore = static_cast<int>(offset - start);
  if (item.slackBefore > 0 && item.parent != none && at(item.parent).parent != none &&
      index == item.parent + 1) {
    tellSlackPlace(item, at(item.parent), "inside of");
  }
  item.offset = static_cast<int>(offset);
  if (item.hasMembers && !placeMembers(index)) return false;
  if (offset + extentOf(item) > mostBytes) {
    problems_.tell(EntryRule::tooLarge, item.place,
                   item.name + " ends behind byte " + std::to_string(mostBytes));
    return false;
  }
  item.isPlaced = true;
  return true;
}

bool RecordLayout::placeMembers(Index index) {
  DataEntry& group = at(index);
  std::int64_t end = group.offset;
  group.boundary = 1;
  for (Index next = index + 1; next != none && next < group.end; next = at(next).nextSibling) {
    DataEntry& member = at(next);
    if (member.isRenaming) continue;
    std::int64_t start = end;
    int slack = 0;
    if (member.isRedefinition) {
      start = member.original == none ? group.offset : at(member.original).offset;
    } else if (dialect_.slackPlace == SlackPlace::beforeGroups && member.hasMembers) {
      start = roundedUp(end, at(leadingItem(program_.entries, next)).boundary);
      slack = static_cast<int>(start - end);
      if (slack > 0) tellSlackPlace(at(leadingItem(program_.entries, next)), member, "in front of");
    }
    if (start > mostBytes || !placeItem(next, start)) return false;
    member.slackBefore += slack;
    if (member.isRedefinition) lookAtRedefinition(member);
    group.boundary = std::max(group.boundary, member.boundary);
    end = std::max(end, member.offset + extentOf(member));
  }
  std::int64_t length = end - group.offset;
  if (group.maxOccurs > 1) {
    const std::int64_t whole = roundedUp(length, group.boundary);
    group.slackBehind = static_cast<int>(whole - length);
    length = whole;
  }
  if (length > mostBytes) {
    problems_.tell(EntryRule::tooLarge, group.place,
                   group.name + " ends behind byte " + std::to_string(mostBytes));
    return false;
  }
  group.length = static_cast<int>(length);
  return true;
}

void RecordLayout::tellSlackPlace(const DataEntry& item, const DataEntry& group,
                                  const char* where) {
  problems_.tell(EntryRule::slackPlace, item.place,
                 "the slack bytes of " + item.name + " stand " + where + " the group " +
                     group.name + ", as dialect " + dialect_.word + " has it");
}

void RecordLayout::lookAtRedefinition(const DataEntry& item) {
  if (item.original == none) return;
  const DataEntry& original = at(item.original);
  if (extentOf(item) <= extentOf(original)) return;
  problems_.tell(EntryRule::largerRedefinition, item.place,
                 item.name + " has " + bytes(extentOf(item)) + " and redefines the " +
                     bytes(extentOf(original)) + " of " + original.name +
                     "; what follows stands behind the larger one");
}

}  // namespace as::toolkit
