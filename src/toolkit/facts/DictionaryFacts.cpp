#include "toolkit/facts/DictionaryFacts.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "as/IAlphanumeric.h"
#include "as/ICondition.h"
#include "as/IConditionValue.h"
#include "as/IEntryPoint.h"
#include "as/IFD.h"
#include "as/ILinkageItem.h"
#include "as/INational.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/IProperty.h"
#include "toolkit/facts/DocumentConditions.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit {

namespace {

// `number` unless the element lacks the attribute that it is read from.
int unlessAbsent(as::IDataItem& item, const char* attribute, int number) {
  return item.getAttributeValue(attribute).empty() ? unknownNumber : number;
}

std::string valueText(as::IConditionValue& value) {
  if (value.getType() == as::IConditionValue::TYPE_CONSTANT) return value.getConstant();
  return value.getFrom() + " THRU " + value.getTo();
}

void readCategory(as::IDataItem& item, ItemFacts& facts) {
  if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
    facts.usage = numericUsageWord(numeric->getUsage());
    facts.sign = signWord(numeric->getSign());
    facts.digits = numeric->getDigits();
    facts.scale = numeric->getAlignment();
  } else if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
    facts.digits = edited->getDigits();
    facts.isBlankWhenZero = edited->isBlankWhenZero();
  } else if (auto* const text = as::interface_cast<as::IAlphanumeric>(&item)) {
    facts.isJustified = text->getJustification() == as::IAlphanumeric::JUSTIFIED_RIGHT;
  } else if (auto* const national = as::interface_cast<as::INational>(&item)) {
    facts.usage = nationalUsageWord(national->getUsage());
  }
}

ItemFacts factsOf(as::IDataItem& item) {
  ItemFacts facts;
  facts.name = item.getName();
  facts.category = item.getDataType();
  facts.picture = item.getPicture();
  facts.isSync = item.isSync();
  facts.redefines = item.isRedefined();
  facts.renames = item.isRenamed();
  facts.isLinkage = item.isLinkage();
  facts.offset = unlessAbsent(item, "offset", item.getOffset());
  facts.length = unlessAbsent(item, "length", item.getLength());
  facts.minOccurs = item.getMinOccurs();
  facts.maxOccurs = item.getMaxOccurs();
  facts.line = item.getLine();
  facts.odo = item.getAttributeValue("odo");
  readCategory(item, facts);
  forEachMember<as::ICondition>(item.getConditions(), [&](as::ICondition& condition) {
    ConditionFacts known = {condition.getName(), {}};
    forEachMember<as::IConditionValue>(
        &condition, [&](as::IConditionValue& value) { known.values.push_back(valueText(value)); });
    facts.conditions.push_back(std::move(known));
  });
  return facts;
}

}  // namespace

long long ItemFacts::extent() const {
  if (redefines || renames) return 0;
  // No item is as long; so many of them as a document can hold are no more than a number can hold.
  constexpr long long most = 1LL << 38;
  return std::min(static_cast<long long>(std::max(length, 0)) * std::max(maxOccurs, 1), most);
}

std::string SectionFacts::title() const {
  if (kind == Kind::file) return "fd " + file;
  return kind == Kind::linkage ? "linkage section" : "working storage";
}

DictionaryFacts::DictionaryFacts(as::IProgram& program) : name_(program.getName()) {
  forEachMember<as::IProperty>(program.getProperties(), [this](as::IProperty& property) {
    properties_.emplace_back(property.getName(), property.getValue());
  });
  forEachMember<as::IFD>(program.getFileSection(), [this](as::IFD& file) {
    SectionFacts section;
    section.kind = SectionFacts::Kind::file;
    section.file = file.getName();
    section.organization = file.getAttributeValue("organization");
    section.access = file.getAttributeValue("accessMode");
    addItems(file.getDataItems(), &section);
    sections_.push_back(std::move(section));
  });
  SectionFacts workingStorage;
  SectionFacts linkage;
  linkage.kind = SectionFacts::Kind::linkage;
  SectionFacts all;
  addItems(program.getDataItems(), &all);
  for (const ItemNumber record : all.records) {
    (items_[record].isLinkage ? linkage : workingStorage).records.push_back(record);
  }
  sections_.push_back(std::move(workingStorage));
  sections_.push_back(std::move(linkage));
  for (const SectionFacts& section : sections_) findRedefined(section.records);
  for (const ItemFacts& item : items_) findRedefined(item.children);
  addEntryPoints(program);
}

DictionaryFacts::DictionaryFacts(as::IProgram& program, const DocumentSource& source)
    : DictionaryFacts(program) {
  DocumentConditions conditions(source);
  if (conditions.itemCount() != items_.size()) return;
  for (ItemNumber i = 0; i < items_.size(); ++i) items_[i].conditions = conditions.takeOf(i);
}

void DictionaryFacts::addItems(as::IList* list, SectionFacts* file) {
  std::vector<ItemNumber> way;
  std::unordered_map<as::IDataItem*, ItemNumber> numbers;
  std::vector<std::pair<ItemNumber, as::IDataItem*>> depending;
  walkItems(
      list,
      [&](as::IDataItem& item, std::size_t /*depth*/) {
        const ItemNumber number = items_.size();
        items_.push_back(factsOf(item));
        numbers.emplace(&item, number);
        if (as::IDataItem* const counter = item.getODO()) depending.emplace_back(number, counter);
        if (way.empty()) {
          file->records.push_back(number);
        } else {
          items_[number].parent = way.back();
          items_[way.back()].children.push_back(number);
        }
        way.push_back(number);
      },
      [&](as::IDataItem&) { way.pop_back(); });
  for (const auto& [number, counter] : depending) {
    const auto found = numbers.find(counter);
    if (found != numbers.end()) items_[number].odoItem = found->second;
  }
}

void DictionaryFacts::findRedefined(const std::vector<ItemNumber>& siblings) {
  ItemNumber last = noItem;
  for (const ItemNumber number : siblings) {
    ItemFacts& item = items_[number];
    if (item.redefines) {
      item.redefined = last;
    } else if (!item.renames) {
      last = number;
    }
  }
}

void DictionaryFacts::addEntryPoints(as::IProgram& program) {
  std::unordered_map<std::string, ItemNumber> records;
  for (const SectionFacts& section : sections_) {
    if (section.kind == SectionFacts::Kind::file) continue;
    for (const ItemNumber record : section.records) {
      const auto [at, isNew] = records.emplace(items_[record].name, record);
      if (!isNew) at->second = std::min(at->second, record);
    }
  }
  forEachMember<as::IEntryPoint>(program.getEntryPoints(), [&](as::IEntryPoint& entryPoint) {
    EntryPointFacts facts = {entryPoint.getName(), entryPoint.getCallConv(), {}};
    forEachMember<as::ILinkageItem>(&entryPoint, [&](as::ILinkageItem& parameter) {
      EntryParameterFacts known;
      known.item = parameter.getAttributeValue("dataItem");
      known.passing = byTypeWord(parameter.getByType());
      const auto found = records.find(known.item);
      if (found != records.end()) known.number = found->second;
      facts.parameters.push_back(std::move(known));
    });
    entryPoints_.push_back(std::move(facts));
  });
}

std::string DictionaryFacts::pathOf(ItemNumber number) const {
  // COBOL knows 49 levels.
  constexpr std::size_t half = 50;
  std::vector<std::string_view> names;
  for (ItemNumber at = number; at != noItem; at = items_[at].parent) {
    names.emplace_back(items_[at].name);
  }
  std::reverse(names.begin(), names.end());
  if (names.size() > 2 * half) {
    const auto middle = names.begin() + half;
    names.erase(middle + 1, names.end() - half);
    *middle = "...";
  }
  return shownPath(names);
}

ItemNumber DictionaryFacts::recordOf(ItemNumber number) const {
  while (items_[number].parent != noItem) number = items_[number].parent;
  return number;
}

}  // namespace as::toolkit
