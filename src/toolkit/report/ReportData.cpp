#include "toolkit/report/ReportData.h"

#include <algorithm>

#include "toolkit/text/Utf8Text.h"
#include "toolkit/text/Words.h"

namespace as::toolkit {

namespace {

using nlohmann::ordered_json;

// Names in lists are for finding, not for reading: longer ones are cut.
constexpr std::size_t longestName = 200;

std::string shortened(const std::string& name) {
  if (name.size() <= longestName) return name;
  return std::string(beginningOf(name, longestName)) + "\u2026";
}

ordered_json numberOrNone(ItemNumber number) {
  return number == noItem ? ordered_json(-1) : ordered_json(number);
}

// Keys without a value are left out.
void put(ordered_json& object, const char* key, const std::string& text) {
  if (!text.empty()) object[key] = text;
}
void put(ordered_json& object, const char* key, int number) {
  if (number != 0) object[key] = number;
}
void putFlag(ordered_json& object, const char* key, bool flag) {
  if (flag) object[key] = 1;
}

ordered_json dataOf(const ItemFacts& item, const SourceLineCheck& lines) {
  ordered_json data;
  data["n"] = item.name;
  data["c"] = dataTypeWord(item.category);
  data["p"] = numberOrNone(item.parent);
  data["o"] = item.offset;
  data["l"] = item.length;
  put(data, "pic", item.picture);
  put(data, "u", item.usage);
  if (item.sign != "none") put(data, "s", item.sign);
  put(data, "d", item.digits);
  put(data, "sc", item.scale);
  put(data, "min", item.minOccurs);
  put(data, "max", item.maxOccurs);
  put(data, "odo", item.odo);
  if (item.odoItem != noItem) data["oi"] = item.odoItem;
  if (item.redefines) data["rd"] = numberOrNone(item.redefined);
  putFlag(data, "rn", item.renames);
  putFlag(data, "j", item.isJustified);
  putFlag(data, "z", item.isBlankWhenZero);
  putFlag(data, "y", item.isSync);
  put(data, "ln", item.line);
  putFlag(data, "src", lines.isOf(item));
  if (!item.conditions.empty()) {
    ordered_json conditions = ordered_json::array();
    for (const ConditionFacts& condition : item.conditions) {
      conditions.push_back({condition.name, condition.values});
    }
    data["k"] = std::move(conditions);
  }
  return data;
}

ordered_json dataOf(const std::vector<std::pair<std::string, std::string>>& properties) {
  ordered_json data = ordered_json::array();
  for (const auto& [name, value] : properties) data.push_back({name, value});
  return data;
}

ordered_json dataOf(const std::vector<AttributeFacts>& attributes) {
  ordered_json data = ordered_json::array();
  for (const AttributeFacts& attribute : attributes) {
    if (!attribute.value.empty()) data.push_back({attribute.name, attribute.value});
  }
  return data;
}

// `mapping` as ServiceFacts has it, with what the interface's subscripts are behind " as ".
ItemNumber itemOf(const ItemPaths* paths, const std::string& mapping) {
  return paths == nullptr ? noItem : paths->find(mapping.substr(0, mapping.find(" as ")));
}

ordered_json dataOf(const std::vector<FieldFacts>& fields, const ItemPaths* paths);

ordered_json dataOf(const FieldFacts& field, const ItemPaths* paths) {
  ordered_json data;
  data["n"] = field.name;
  put(data, "dir", field.direction);
  put(data, "occ", field.occurs);
  // What is made of fields has a data type only where its document says so.
  if (field.hasDataType || field.members.empty()) put(data, "t", field.type);
  put(data, "ref", field.reference);
  ordered_json attributes = dataOf(field.attributes);
  if (!attributes.empty()) data["a"] = std::move(attributes);
  if (!field.mappings.empty()) {
    ordered_json mappings = ordered_json::array();
    for (const std::string& mapping : field.mappings) {
      mappings.push_back({mapping, numberOrNone(itemOf(paths, mapping))});
    }
    data["m"] = std::move(mappings);
  }
  if (!field.members.empty()) data["f"] = dataOf(field.members, paths);
  if (!field.fieldAttributes.empty()) data["fa"] = dataOf(field.fieldAttributes, paths);
  return data;
}

ordered_json dataOf(const std::vector<FieldFacts>& fields, const ItemPaths* paths) {
  ordered_json data = ordered_json::array();
  for (const FieldFacts& field : fields) data.push_back(dataOf(field, paths));
  return data;
}

ordered_json dataOf(const OperationFacts& operation, const ItemPaths* paths) {
  ordered_json data;
  data["n"] = operation.name;
  put(data, "entry", operation.entryPoint);
  put(data, "exit", operation.exitPoints);
  data["a"] = dataOf(operation.attributes);
  ordered_json hidden = ordered_json::array();
  for (const auto& [item, value] : operation.hidden) {
    hidden.push_back({item, numberOrNone(itemOf(paths, item)), value});
  }
  data["hidden"] = std::move(hidden);
  data["f"] = dataOf(operation.parameters, paths);
  ordered_json messages = ordered_json::array();
  for (const MessageFacts& message : operation.messages) {
    messages.push_back({{"kind", message.kind},
                        {"a", dataOf(message.attributes)},
                        {"f", dataOf(message.parameters, paths)}});
  }
  data["messages"] = std::move(messages);
  return data;
}

void addName(ordered_json& names, const char* kind, std::size_t place, const std::string& name,
             const std::string& around) {
  names.push_back({kind, place, shortened(name), shortened(around)});
}

void addNames(ordered_json& names, std::size_t operation, const std::vector<FieldFacts>& fields,
              const std::string& around) {
  for (const FieldFacts& field : fields) {
    addName(names, "field", operation, field.name, around);
    addNames(names, operation, field.members, around);
    addNames(names, operation, field.fieldAttributes, around);
  }
}

}  // namespace

ordered_json dataOf(const DictionaryFacts& facts, const SourceLineCheck& lines) {
  ordered_json data;
  data["name"] = facts.name();
  data["properties"] = dataOf(facts.properties());
  ordered_json sections = ordered_json::array();
  for (const SectionFacts& section : facts.sections()) {
    if (section.records.empty() && section.kind != SectionFacts::Kind::file) continue;
    sections.push_back({{"title", section.title()},
                        {"organization", section.organization},
                        {"access", section.access},
                        {"records", section.records}});
  }
  data["sections"] = std::move(sections);
  ordered_json items = ordered_json::array();
  for (const ItemFacts& item : facts.items()) items.push_back(dataOf(item, lines));
  data["items"] = std::move(items);
  ordered_json entries = ordered_json::array();
  for (const EntryPointFacts& entry : facts.entryPoints()) {
    ordered_json parameters = ordered_json::array();
    for (const EntryParameterFacts& parameter : entry.parameters) {
      parameters.push_back({parameter.item, parameter.passing, numberOrNone(parameter.number)});
    }
    entries.push_back({{"n", entry.name}, {"conv", entry.convention}, {"params", parameters}});
  }
  data["entries"] = std::move(entries);
  return data;
}

ordered_json dataOf(const ServiceFacts& facts, const ItemPaths* paths, const Findings& findings) {
  ordered_json data;
  data["name"] = facts.name;
  data["flavour"] = facts.flavour;
  data["program"] = facts.program;
  data["dictionary"] = facts.dictionary;
  put(data, "exitProgram", facts.exitProgram);
  data["properties"] = dataOf(facts.properties);
  data["types"] = dataOf(facts.definitions, paths);
  ordered_json operations = ordered_json::array();
  for (const OperationFacts& operation : facts.operations) {
    operations.push_back(dataOf(operation, paths));
  }
  data["operations"] = std::move(operations);
  ordered_json told = ordered_json::array();
  for (const Finding& finding : findings) {
    told.push_back({{"rule", finding.rule},
                    {"severity", wordOf(finding.severity)},
                    {"place", finding.place},
                    {"problem", finding.problem},
                    {"advice", finding.advice}});
  }
  data["findings"] = std::move(told);
  return data;
}

ordered_json namesOf(const DictionaryFacts& facts) {
  ordered_json names = ordered_json::array();
  addName(names, "program", 0, facts.name(), "");
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind == SectionFacts::Kind::file) addName(names, "file", 0, section.file, "");
  }
  for (ItemNumber i = 0; i < facts.items().size(); ++i) {
    const ItemFacts& item = facts[i];
    const std::string around = item.parent == noItem ? "" : facts[facts.recordOf(i)].name;
    if (!item.isUnnamed()) addName(names, "item", i, item.name, around);
    for (const ConditionFacts& condition : item.conditions) {
      addName(names, "condition", i, condition.name, item.name);
    }
  }
  for (std::size_t i = 0; i < facts.entryPoints().size(); ++i) {
    addName(names, "entry point", i, facts.entryPoints()[i].name, "");
  }
  return names;
}

ordered_json namesOf(const ServiceFacts& facts) {
  ordered_json names = ordered_json::array();
  addName(names, "service", 0, facts.name, "");
  for (std::size_t i = 0; i < facts.operations.size(); ++i) {
    const OperationFacts& operation = facts.operations[i];
    addName(names, "operation", i, operation.name, "");
    addNames(names, i, operation.parameters, operation.name);
    for (const MessageFacts& message : operation.messages) {
      addNames(names, i, message.parameters, operation.name + " " + message.kind);
    }
  }
  // Types stand behind the operations.
  for (std::size_t i = 0; i < facts.definitions.size(); ++i) {
    const std::size_t place = facts.operations.size() + i;
    addName(names, "type", place, facts.definitions[i].name, "");
    addNames(names, place, facts.definitions[i].members, facts.definitions[i].name);
    addNames(names, place, facts.definitions[i].fieldAttributes, facts.definitions[i].name);
  }
  return names;
}

std::string scriptOf(const std::string& id, const ordered_json& data) {
  const std::string json = data.dump(-1, ' ', true, ordered_json::error_handler_t::replace);
  std::string script = "asReport.add(\"" + id + "\", ";
  script.reserve(script.size() + json.size() + 16);
  // Only texts hold these, and no page that a script stands in may end at them.
  for (const char c : json) {
    if (c == '<') {
      script += "\\u003c";
    } else if (c == '>') {
      script += "\\u003e";
    } else if (c == '&') {
      script += "\\u0026";
    } else {
      script += c;
    }
  }
  return script + ");\n";
}

}  // namespace as::toolkit
