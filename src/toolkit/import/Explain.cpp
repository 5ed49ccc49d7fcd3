// Tells how sizes and places of items came about.
#include <cstddef>
#include <string>
#include <vector>

#include "as/toolkit/Import.h"
#include "as/toolkit/Text.h"
#include "toolkit/import/DictionaryText.h"
#include "toolkit/import/ImportDetails.h"
#include "toolkit/import/ItemKinds.h"
#include "toolkit/import/Keywords.h"
#include "toolkit/import/RecordLayout.h"

namespace as::toolkit {

namespace {

std::string bytes(std::int64_t number) { return count(static_cast<std::size_t>(number), "byte"); }

std::vector<std::string> partsOf(const std::string& path) {
  std::vector<std::string> parts(1);
  for (const char c : inCapitals(path)) {
    if (c == '.') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

class Explainer {
 public:
  explicit Explainer(const ImportDetails& details)
      : details_(details), program_(details.program()) {}

  bool isMeant(Index index, const std::vector<std::string>& parts) const {
    std::size_t left = parts.size();
    for (Index next = index; next != none && left > 0; next = at(next).parent) {
      if (inCapitals(at(next).name) == parts[left - 1]) {
        --left;
      } else if (next == index) {
        return false;
      }
    }
    return left == 0;
  }

  ItemExplanation explain(Index index) {
    const DataEntry& item = at(index);
    result_ = {};
    result_.item = pathOf(program_, index);
    result_.offset = item.offset;
    result_.length = item.length;
    if (item.copyOf != none) {
      add(at(item.copyOf), "described like " + pathOf(program_, item.copyOf));
    }
    if (item.isRenaming) {
      explainRenaming(item);
    } else {
      if (item.hasMembers) {
        explainGroup(item);
      } else {
        explainItem(item);
      }
      explainPlace(index);
      if (item.isTable()) explainTable(item);
    }
    return std::move(result_);
  }

 private:
  const DataEntry& at(Index entry) const {
    return program_.entries[static_cast<std::size_t>(entry)];
  }

  void add(const DataEntry& reason, std::string text) {
    result_.steps.push_back({details_.locationOf(reason.place), std::move(text)});
  }

  void explainItem(const DataEntry& item) {
    if (const Picture* const picture = pictureOf(program_, item)) {
      std::string text =
          "PICTURE " + program_.pictures[static_cast<std::size_t>(item.picture)].text + ": ";
      if (picture->digits > 0) {
        text += count(static_cast<std::size_t>(picture->digits), "digit");
        if (picture->scale > 0) text += ", " + std::to_string(picture->scale) + " behind the point";
        if (picture->scaling > 0) text += ", " + std::to_string(picture->scaling) + " not stored";
        text += picture->isSigned ? ", signed" : ", unsigned";
      } else {
        text += count(static_cast<std::size_t>(picture->characters), "character");
      }
      add(item, text);
    }
    const std::string usage = as::toolkit::wordOf(item.usage);
    if (item.usageFrom != none && !usage.empty()) {
      const DataEntry& from = at(item.usageFrom);
      add(from, "USAGE " + usage + (&from == &item ? std::string() : " of the group " + from.name));
    }
    if (item.sign == SignClause::leadingSeparate || item.sign == SignClause::trailingSeparate) {
      add(at(item.signFrom), "SIGN SEPARATE: a character of its own");
    }
    add(item, bytes(item.length) + (usage.empty() ? std::string() : " as " + usage) +
                  " in dialect " + details_.dialect().word);
  }

  void explainGroup(const DataEntry& group) {
    add(group, "a group: its members take " + bytes(group.length - group.slackBehind));
    if (group.slackBehind > 0) {
      add(group, bytes(group.slackBehind) +
                     " of slack behind the last member bring each occurrence to a multiple of " +
                     std::to_string(group.boundary));
    }
  }

  void explainTable(const DataEntry& item) {
    std::string text =
        "occurs " +
        (item.minOccurs == item.maxOccurs ? std::string()
                                          : std::to_string(item.minOccurs) + " to ") +
        std::to_string(item.maxOccurs) + " times: " + bytes(extentOf(item));
    if (item.dependsOn != none) text += ", depending on " + pathOf(program_, item.dependsOn);
    add(item, text);
  }

  void explainRenaming(const DataEntry& item) {
    if (item.original == none) return;
    const DataEntry& first = at(item.original);
    const DataEntry& last = at(item.lastRenamed);
    add(first, "starts where " + first.name + " starts, at offset " + std::to_string(item.offset));
    add(last, "ends where " + last.name + " ends: " + bytes(item.length));
  }

  void explainPlace(Index index) {
    const DataEntry& item = at(index);
    if (item.parent == none) {
      add(item, "a record: starts at offset 0");
    } else if (item.isRedefinition && item.original != none) {
      add(at(item.original), "redefines " + at(item.original).name + ": starts where that starts");
    } else {
      const Index previous = previousOf(index);
      if (previous == none) {
        add(at(item.parent), "first in " + at(item.parent).name + ", which starts at offset " +
                                 std::to_string(at(item.parent).offset));
      } else {
        add(at(previous), "follows " + at(previous).name + ", which ends at offset " +
                              std::to_string(at(previous).offset + extentOf(at(previous))));
      }
    }
    if (item.slackBefore > 0) {
      add(item, bytes(item.slackBefore) + " of slack before it bring it to a multiple of " +
                    std::to_string(at(leadingItem(program_.entries, index)).boundary));
    } else if (item.isSync && item.boundary > 1) {
      add(item, "SYNCHRONIZED: stands on a multiple of " + std::to_string(item.boundary) +
                    " without slack");
    }
    add(item, "offset " + std::to_string(item.offset));
  }

  // The member in front that reaches farthest.
  Index previousOf(Index index) const {
    Index previous = none;
    for (Index next = at(index).parent + 1; next != index; next = at(next).nextSibling) {
      const auto endOf = [this](Index entry) { return at(entry).offset + extentOf(at(entry)); };
      if (previous == none || endOf(next) >= endOf(previous)) previous = next;
    }
    return previous;
  }

  const ImportDetails& details_;
  const CobolProgram& program_;
  ItemExplanation result_;
};

}  // namespace

std::vector<ItemExplanation> explainItem(const ImportedProgram& program, const std::string& item) {
  if (program.isRefused() || !program.details) return {};
  std::vector<ItemExplanation> result;
  const CobolProgram& entries = program.details->program();
  const std::vector<std::string> parts = partsOf(item);
  Explainer explainer(*program.details);
  for (std::size_t i = 0; i < entries.entries.size(); ++i) {
    const auto index = static_cast<Index>(i);
    if (explainer.isMeant(index, parts)) result.push_back(explainer.explain(index));
  }
  return result;
}

std::string textOf(const ItemExplanation& explanation) {
  std::string text = explanation.item + ": ";
  if (explanation.length == 0) {
    text += "no bytes";
  } else {
    text += "bytes " + std::to_string(explanation.offset) + " to " +
            std::to_string(explanation.offset + explanation.length - 1);
  }
  for (const ItemExplanation::Step& step : explanation.steps) {
    text +=
        "\n  " + step.location.file + ":" + std::to_string(step.location.line) + ": " + step.text;
  }
  return text;
}

}  // namespace as::toolkit
