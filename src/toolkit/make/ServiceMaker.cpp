#include "toolkit/make/ServiceMaker.h"

#include <cstddef>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "as/IEntryPoint.h"
#include "as/ILinkageItem.h"
#include "as/IMapping.h"
#include "toolkit/findings/Report.h"
#include "toolkit/text/Names.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemIndex.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit {

namespace {

// How items without a name are called.
bool isUnnamed(as::IDataItem& item) {
  const std::string name = item.getName();
  return name.empty() || name == "FILLER";
}

// In bytes. A path of COBOL has 49 names of 31 characters at most; of longer ones a dictionary of
// some hundred levels comes to thousands of times its own size.
constexpr std::size_t longestPath = 4096;

// Behind so many items no more parameters are begun: a record counts for each entry point that it
// is handed to, and a service could come to the square of its dictionary.
constexpr std::size_t mostItems = 100'000;

// An item that becomes a field, with what becomes of its members.
struct Plan {
  as::IDataItem* item = nullptr;
  const DataType* type = nullptr;  // Of elementary items.
  std::vector<Plan> members;       // Of groups.
};

class ServiceMaker {
 public:
  ServiceMaker(MadeService& made, const FlavourProfile& flavour)
      : service_(*made.service),
        flavour_(flavour),
        made_(made),
        notes_(made.notes),
        items_(*made.service->getProgram()) {}

  void fill(const std::vector<std::string>& entryPoints) {
    const std::unordered_set<std::string> wanted(entryPoints.begin(), entryPoints.end());
    Names names;
    std::unordered_set<std::string> done;
    forEachMember<as::IEntryPoint>(
        service_.getProgram()->getEntryPoints(), [&](as::IEntryPoint& entryPoint) {
          const std::string name = entryPoint.getName();
          if (!wanted.empty() && !wanted.contains(name)) return;
          if (!done.insert(name).second) {
            notes_.note("same-entry-point", name,
                        "the program has another entry point of that name, which cannot be "
                        "bound: left out");
            return;
          }
          addOperation(entryPoint, names.unique(name));
          ++made_.operations;
        });
  }

 private:
  void addOperation(as::IEntryPoint& entryPoint, const std::string& name) {
    operation_ = name;
    as::IOperation& operation = *service_.addOperation(name.c_str(), &entryPoint);
    flavour_.complete(service_, operation);
    Names names;
    bool hasResult = false;
    forEachMember<as::ILinkageItem>(&entryPoint, [&](as::ILinkageItem& linkage) {
      as::IDataItem* const item = linkage.getDataItem();
      const std::string itemName =
          item == nullptr ? linkage.getAttributeValue("dataItem") : item->getName();
      place_ = shownPlace({name, ".", itemName});
      if (item == nullptr) {
        notes_.note("lost-record", place_, "it is no record of the dictionary: left out");
        return;
      }
      if (looked_ >= mostItems) {
        notes_.note("too-many-items", place_,
                    "the parameters in front of it have " + std::to_string(looked_) +
                        " items, more than a service is for: left out");
        return;
      }
      unnamed_ = 0;
      std::vector<Plan> plans;
      plan(*item, 0, items_.top(), plans, true);
      if (unnamed_ > 0) {
        notes_.note("unnamed-items", place_,
                    count(static_cast<std::size_t>(unnamed_), "item") + " without a name left out");
      }
      if (plans.empty()) {
        // Of an elementary item it is told already why.
        if (as::interface_cast<as::IGroup>(item) == nullptr) return;
        notes_.note("empty-parameter", place_, "nothing in it can be mapped: left out");
        return;
      }
      const bool isReturned = linkage.getByType() == as::ILinkageItem::BY_RETURNING;
      as::IParameter& parameter = *operation.addParameter(
          directionOf(linkage), names.unique(itemName).c_str(), item->getMaxOccurs());
      complete(parameter, plans.front());
      if (isReturned && !hasResult) flavour_.markReturned(parameter);
      hasResult = hasResult || isReturned;
    });
  }

  static as::IParameter::BY_TYPE directionOf(as::ILinkageItem& linkage) {
    switch (linkage.getByType()) {
      case as::ILinkageItem::BY_VALUE:
        return as::IParameter::BY_IN;
      case as::ILinkageItem::BY_RETURNING:
        return as::IParameter::BY_OUT;
      default:
        return as::IParameter::BY_IO;
    }
  }

  // Adds what becomes of `item` to the plans of what is around it: nothing when it is left out. It
  // stands in so many tables, and below the entry `around`, null where no mapping reaches.
  void plan(as::IDataItem& item, std::size_t tables, const ItemIndex::Entry* around,
            std::vector<Plan>& plans, bool isRecord = false) {
    ++looked_;
    if (item.getMaxOccurs() != 0) ++tables;
    const ItemIndex::Entry* const entry = items_.below(around, item.getName());
    auto* const group = as::interface_cast<as::IGroup>(&item);
    if (group == nullptr) {
      planElementary(item, tables, entry, plans);
      return;
    }
    noteCount(item);
    // A group without a name is none to the service, unless it is a table: its members stand in its
    // place.
    if (!isRecord && isUnnamed(item) && item.getMaxOccurs() == 0) {
      planMembers(*group, tables, entry, plans);
      return;
    }
    Plan made;
    made.item = &item;
    planMembers(*group, tables, entry, made.members);
    if (!made.members.empty()) plans.push_back(std::move(made));
  }

  void planMembers(as::IGroup& group, std::size_t tables, const ItemIndex::Entry* entry,
                   std::vector<Plan>& plans) {
    way_.push_back(group.getName());
    wayLength_ += way_.back().size() + 1;
    bool isThere = false;  // What a redefinition redefines.
    forEachMember<as::IDataItem>(group.getChildren(), [&](as::IDataItem& member) {
      if (member.isRenamed()) {
        note("renamed-item", member, "it renames other items, which are there already: left out");
        return;
      }
      if (member.isRedefined() && isThere) {
        note("redefined-item", member,
             "it redefines other items, which are there already: left out");
        return;
      }
      const std::size_t planned = plans.size();
      plan(member, tables, entry, plans);
      isThere = plans.size() > planned;
      if (isThere && member.isRedefined()) {
        note("redefinition-in-place", member,
             "it redefines an item that cannot be mapped: it stands in its place");
      }
    });
    wayLength_ -= way_.back().size() + 1;
    way_.pop_back();
  }

  void planElementary(as::IDataItem& item, std::size_t tables, const ItemIndex::Entry* entry,
                      std::vector<Plan>& plans) {
    if (isUnnamed(item)) {
      ++unnamed_;
      return;
    }
    if (wayLength_ + item.getName().size() > longestPath) {
      note("too-long-path", item,
           "its path is longer than " + std::to_string(longestPath) + " bytes: left out");
      return;
    }
    // Without an entry its path is not its own; others may have what it looks like.
    as::IDataItem* const found = entry != nullptr ? entry->first : items_.find(dottedPath(item));
    if (found == nullptr) {
      note(
          "unreachable-path", item,
          "no mapping can name it, for its path holds a period, a parenthesis or a leading $: left "
          "out");
      return;
    }
    if (found != &item) {
      note("same-path", item,
           "no mapping leads to it, for another item has the same path: left out");
      return;
    }
    if (tables > static_cast<std::size_t>(as::IMapping::MAX_SUBSCRIPTS)) {
      note("too-many-tables", item,
           "it stands in more than " + std::to_string(as::IMapping::MAX_SUBSCRIPTS) +
               " tables: left out");
      return;
    }
    const DataType* const type = flavour_.bestTypeFor(item);
    if (type == nullptr) {
      note("no-fitting-data-type", item,
           "no data type of " + flavour_.name() + " services holds an item that is " +
               kindOf(item) + ": left out");
      return;
    }
    if (item.getDataType() == as::IDataItem::TYPE_NUMERIC_EDITED ||
        item.getDataType() == as::IDataItem::TYPE_ALPHANUMERIC_EDITED) {
      note("edited-item", item,
           "it is edited: handed over as the text that it shows, " + quote(type->word));
    } else if (item.getDataType() == as::IDataItem::TYPE_NUMERIC &&
               type->capacity.kind == Capacity::Kind::text) {
      note("number-as-text", item,
           "no numeric data type of " + flavour_.name() + " services holds it: made " +
               quote(type->word));
    }
    noteCount(item);
    plans.push_back({&item, type, {}});
  }

  void noteCount(as::IDataItem& item) {
    as::IDataItem* const counter = item.hasODO() ? item.getODO() : nullptr;
    if (!item.hasODO() || item.getMaxOccurs() == 0) return;
    note("variable-table", item,
         "it occurs up to " + std::to_string(item.getMaxOccurs()) + " times, as often as " +
             (counter == nullptr ? item.getAttributeValue("odo") : dottedPath(*counter)) +
             " tells");
  }

  // Of an item of the group at hand.
  void note(const char* rule, as::IDataItem& item, const std::string& text) {
    const std::string name = item.getName();
    std::vector<std::string_view> names = {operation_};
    names.insert(names.end(), way_.begin(), way_.end());
    names.emplace_back(name);
    notes_.note(rule, shownPath(names), text);
  }

  // Gives the field its type and mapping, or its fields.
  void complete(as::IField& field, const Plan& plan) {
    if (plan.type != nullptr) {
      flavour_.setDataType(field, *plan.type);
      field.addMapping(plan.item);
      ++made_.mappings;
      return;
    }
    const DataType* const type = flavour_.groupType(plan.item->getMaxOccurs() > 1);
    if (type != nullptr) flavour_.setDataType(field, *type);
    Names names;
    for (const Plan& member : plan.members) {
      const std::string name = names.unique(member.item->getName());
      complete(*field.addField(name.c_str(), member.item->getMaxOccurs()), member);
    }
  }

  as::IService& service_;
  const FlavourProfile& flavour_;
  MadeService& made_;
  Report notes_;
  ItemIndex items_;
  // Where the work is: the operation and, in it, the parameter.
  std::string operation_;
  std::string place_;
  int unnamed_ = 0;
  std::size_t looked_ = 0;        // Items of all parameters so far.
  std::vector<std::string> way_;  // The names of the groups around it, from the record on, ...
  std::size_t wayLength_ = 0;     // ... and how long they are with a period behind each.
};

}  // namespace

void fillService(MadeService& made, const FlavourProfile& flavour,
                 const std::vector<std::string>& entryPoints) {
  ServiceMaker(made, flavour).fill(entryPoints);
}

}  // namespace as::toolkit
