#include "toolkit/generate/ItemFacts.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "as/ICondition.h"
#include "as/IConditionValue.h"
#include "as/IDataItem.h"
#include "as/IGroup.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/toolkit/Picture.h"
#include "as/toolkit/Storage.h"
#include "toolkit/generate/ShortPath.h"
#include "toolkit/storage/AnyPicture.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit::gen {

namespace {

using Kind = Item::Kind;

Kind kindOfItem(as::IDataItem& item) {
  if (isObject(item)) return Kind::object;
  switch (item.getDataType()) {
    case as::IDataItem::TYPE_GROUP:
      return Kind::group;
    case as::IDataItem::TYPE_NUMERIC:
      return Kind::number;
    case as::IDataItem::TYPE_NUMERIC_EDITED:
      return Kind::numberEdited;
    case as::IDataItem::TYPE_ALPHANUMERIC_EDITED:
      return Kind::textEdited;
    case as::IDataItem::TYPE_NATIONAL:
      return Kind::national;
    case as::IDataItem::TYPE_POINTER:
      return Kind::pointer;
    case as::IDataItem::TYPE_INDEX:
      return Kind::index;
    case as::IDataItem::TYPE_OBJECT:
      return Kind::object;
    default:
      return Kind::text;
  }
}

// Documents may hold any number.
int limited(int number) {
  constexpr int most = 1'000'000'000;
  return std::clamp(number, -most, most);
}

void readNumber(as::INumeric& number, const std::optional<Picture>& picture, Item& facts) {
  const Usage usage = usageOf(number).value_or(Usage::display);
  facts.digits = limited(number.getDigits());
  facts.scale = limited(number.getAlignment());
  facts.isSigned = number.getSign() != as::INumeric::SIGN_NONE;
  if (isFloating(usage)) {
    facts.floatingDigits =
        digitsIn(usage == Usage::externalFloat ? Usage::comp2 : usage, facts.bytes);
    facts.digits = 0;
    facts.scale = 0;
    facts.isSigned = true;
    return;
  }
  const int most = limited(digitsIn(usage, facts.bytes));
  if (isOfAllBits(usage)) {
    facts.digits = most;
    facts.bits = limited(bitsOf(facts.bytes));
  } else if (facts.digits == 0 && facts.bytes > 0) {
    facts.digits = most;
  } else if (picture && facts.digits == picture->digits) {
    facts.digits = picture->storedDigits();
  }
  // The digits that a P stands for are zeros.
  if (picture && picture->scaling > 0 && picture->scale == 0) facts.scale = -picture->scaling;
}

void readEdited(as::INumericEdited& edited, as::IDataItem& item,
                const std::optional<Picture>& picture, Item& facts) {
  facts.digits = limited(edited.getDigits());
  facts.isSigned = picture && picture->isSigned;
  // No accessor tells it. An absent one reads as 0.
  facts.scale = limited(
      static_cast<int>(std::strtol(item.getAttributeValue("alignment").c_str(), nullptr, 10)));
  facts.characters = facts.bytes;
}

Capacity capacityOf(const Item& facts) {
  Capacity capacity;
  switch (facts.kind) {
    case Kind::number:
      if (facts.floatingDigits > 0) {
        capacity.kind = Capacity::Kind::floating;
        capacity.digits = facts.floatingDigits;
      } else if (facts.bits > 0 && facts.scale == 0) {
        capacity = {Capacity::Kind::integer, 0, facts.bits, facts.isSigned};
      } else {
        const int digits =
            facts.digits == 0 ? 0 : std::max(facts.digits - std::min(facts.scale, 0), facts.scale);
        capacity = {Capacity::Kind::decimal, digits, 0, facts.isSigned, std::max(facts.scale, 0)};
      }
      return capacity;
    case Kind::pointer:
    case Kind::index:
      capacity = {Capacity::Kind::integer, 0, limited(bitsOf(facts.bytes)), false};
      return capacity;
    case Kind::group:
      capacity.kind = Capacity::Kind::group;
      return capacity;
    case Kind::object:
      return capacity;
    default:
      capacity.kind = Capacity::Kind::text;
      return capacity;
  }
}

std::vector<Condition> conditionsOf(as::IDataItem& item) {
  std::vector<Condition> conditions;
  forEachMember<as::ICondition>(item.getConditions(), [&](as::ICondition& condition) {
    Condition read{condition.getName(), {}};
    forEachMember<as::IConditionValue>(&condition, [&](as::IConditionValue& value) {
      const bool isRange = value.getType() == as::IConditionValue::TYPE_RANGE;
      read.values.push_back({isRange ? value.getFrom() : value.getConstant(),
                             isRange ? value.getTo() : std::string(), isRange});
    });
    conditions.push_back(std::move(read));
  });
  return conditions;
}

Item::Table readTable(as::IDataItem& item) {
  Item::Table table;
  table.least = table.most = item.getMaxOccurs();
  if (!item.hasODO()) return table;
  as::IDataItem* const counter = item.getODO();
  table.least = item.getMinOccurs();
  table.dependingOn =
      counter == nullptr ? shortName(item.getAttributeValue("odo")) : shortPathOf(*counter);
  return table;
}

// `facts` has its name, path and picture.
void read(as::IDataItem& item, const std::optional<Picture>& picture, Item& facts) {
  facts.kind = kindOfItem(item);
  facts.bytes = limited(item.getLength());
  const std::optional<Usage> usage = usageOf(item);
  if (usage && *usage != Usage::display) facts.usage = wordOf(*usage);
  if (auto* const number = as::interface_cast<as::INumeric>(&item)) {
    readNumber(*number, picture, facts);
  } else if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
    readEdited(*edited, item, picture, facts);
  } else if (facts.kind == Kind::text || facts.kind == Kind::textEdited ||
             facts.kind == Kind::national) {
    facts.characters = picture ? picture->characters : facts.bytes;
  }
  facts.capacity = capacityOf(facts);
  facts.conditions = conditionsOf(item);
}

std::string groupPathOf(as::IGroup& group) {
  std::vector<std::string> names;
  for (as::IGroup* at = &group; at != nullptr; at = at->getParent()) {
    names.push_back(at->getName());
  }
  return shortPath({names.rbegin(), names.rend()});
}

}  // namespace

std::string shortPathOf(as::IDataItem& item) {
  as::IGroup* const group = item.getParent();
  return (group == nullptr ? "" : groupPathOf(*group) + ".") + shortName(item.getName());
}

std::size_t ItemFacts::numberOf(as::IDataItem& item) {
  const auto [found, isNew] = known_.emplace(&item, items_.size());
  if (isNew) {
    Item facts;
    facts.name = item.getName();
    facts.path = pathOf(item, facts.name);
    facts.picture = item.getPicture();
    read(item, pictureOf(facts.picture), facts);
    facts.table = tableAround(item);
    items_.push_back(std::move(facts));
  }
  return found->second;
}

// A program has many items of a few pictures.
const std::optional<Picture>& ItemFacts::pictureOf(const std::string& text) {
  const auto [found, isNew] = pictures_.try_emplace(text);
  if (isNew) found->second = readAnyPicture(text);
  return found->second;
}

// As shortPathOf() has it.
std::string ItemFacts::pathOf(as::IDataItem& item, const std::string& name) {
  as::IGroup* const group = item.getParent();
  if (group == nullptr) return shortName(name);
  if (group != group_) {
    groupPath_ = groupPathOf(*group);
    group_ = group;
  }
  return groupPath_ + "." + shortName(name);
}

// All items of a table share what there is to know of it, and of those around it.
std::shared_ptr<const Item::Table> ItemFacts::tableAround(as::IDataItem& item) {
  std::vector<as::IDataItem*> unread;
  std::shared_ptr<const Item::Table> table;
  for (as::IDataItem* at = &item; at != nullptr && table == nullptr; at = at->getParent()) {
    if (at->getMaxOccurs() == 0) continue;
    const auto found = tables_.find(at);
    if (found == tables_.end()) {
      unread.push_back(at);
    } else {
      table = found->second;
    }
  }
  for (; !unread.empty(); unread.pop_back()) {
    Item::Table read = readTable(*unread.back());
    if (table != nullptr) read.number = table->number + 1;
    read.around = std::move(table);
    table = std::make_shared<const Item::Table>(std::move(read));
    tables_.emplace(unread.back(), table);
  }
  return table;
}

}  // namespace as::toolkit::gen
