#include "toolkit/import/DictionaryText.h"

#include <algorithm>
#include <string_view>

#include "as/Namespaces.h"
#include "toolkit/import/ItemKinds.h"
#include "toolkit/import/XmlText.h"

namespace as::toolkit {

namespace {

const char* wordOf(ItemElement element) {
  constexpr const char* words[] = {"group",    "numeric", "alphanumeric", "numericEdited",
                                   "national", "pointer", "cobolObject",  "index"};
  return words[static_cast<std::size_t>(element)];
}

const char* wordOf(FileOrganization organization) {
  constexpr const char* words[] = {"sequential", "relative", "indexed", "lineSequential"};
  return words[static_cast<std::size_t>(organization)];
}

const char* wordOf(FileAccess access) {
  constexpr const char* words[] = {"sequential", "random", "dynamic"};
  return words[static_cast<std::size_t>(access)];
}

const char* wordOf(HandedOver how) {
  constexpr const char* words[] = {"reference", "value", "returning"};
  return words[static_cast<std::size_t>(how)];
}

// Dictionaries have fewer usages: what holds all that its bytes can, whatever the digits, is
// comp-5.
const char* usageWord(Usage usage) {
  switch (usage) {
    case Usage::comp:
      return "comp";
    case Usage::comp4:
      return "comp-4";
    case Usage::comp5:
    case Usage::compN:
    case Usage::binaryChar:
    case Usage::binaryShort:
    case Usage::binaryLong:
    case Usage::binaryDouble:
      return "comp-5";
    case Usage::compX:
      return "comp-x";
    case Usage::comp1:
      return "comp-1";
    case Usage::comp2:
      return "comp-2";
    case Usage::comp3:
      return "comp-3";
    case Usage::comp6:
      return "comp-6";
    case Usage::externalFloat:
      return "externalFloat";
    default:
      return "display";
  }
}

class Writer {
 public:
  Writer(const CobolProgram& program, EntryProblems& problems)
      : program_(program), problems_(problems) {}

  std::string write(const DictionaryProperties& properties) {
    const std::string uri = as::namespaces::dd.uri;
    xml_.open("program");
    xml_.attribute("xmlns", uri);
    xml_.attribute("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    xml_.attribute("xsi:schemaLocation", uri + " " + uri);
    attribute("name", program_.name, program_.place);
    writeProperties(properties);
    writeFiles();
    writeItems(program_.records);
    writeEntryPoints();
    xml_.close("program");
    return xml_.take();
  }

 private:
  const DataEntry& at(Index entry) const {
    return program_.entries[static_cast<std::size_t>(entry)];
  }

  // Text of the source, which may hold what XML cannot.
  void attribute(std::string_view name, const std::string& value, const SourcePlace& place) {
    const bool wasReplaced = xml_.hasReplaced();
    xml_.attribute(name, value);
    if (wasReplaced || !xml_.hasReplaced()) return;
    problems_.tell(EntryRule::unwritable, place,
                   "there are characters that XML does not hold: others stand in their places");
  }

  void writeProperties(const DictionaryProperties& properties) {
    if (properties.empty()) return;
    xml_.open("properties");
    for (const auto& [name, value] : properties) {
      xml_.open("property");
      xml_.attribute("name", name);
      attribute("value", value, program_.place);
      xml_.close("property");
    }
    xml_.close("properties");
  }

  void writeFiles() {
    if (program_.describedFiles.empty()) return;
    xml_.open("fileSection");
    for (const Index index : program_.describedFiles) {
      const FileEntry& file = program_.files[static_cast<std::size_t>(index)];
      xml_.open("fd");
      attribute("name", file.name, program_.place);
      if (file.access) xml_.attribute("accessMode", wordOf(*file.access));
      if (file.organization) xml_.attribute("organization", wordOf(*file.organization));
      writeItems(file.records);
      xml_.close("fd");
    }
    xml_.close("fileSection");
  }

  void writeItems(const std::vector<Index>& records) {
    if (records.empty()) return;
    xml_.open("dataItems");
    for (const Index record : records) writeRecord(record);
    xml_.close("dataItems");
  }

  // Entries stand in the order of the document; what is open is told by their ends.
  void writeRecord(Index record) {
    std::vector<Index> open;
    const auto closeUpTo = [&](Index entry) {
      while (!open.empty() && at(open.back()).end <= entry) {
        xml_.close(wordOf(at(open.back()).element));
        open.pop_back();
      }
    };
    const Index end = at(record).end;
    for (Index i = record; i < end; ++i) {
      closeUpTo(i);
      xml_.open(wordOf(at(i).element));
      writeAttributes(at(i));
      writeConditions(at(i));
      open.push_back(i);
    }
    closeUpTo(end);
  }

  void writeAttributes(const DataEntry& item) {
    attribute("name", item.name, item.place);
    const bool isGroup = item.element == ItemElement::group;
    const Picture* const picture = isGroup ? nullptr : pictureOf(program_, item);
    if (picture != nullptr) {
      attribute("picture", program_.pictures[static_cast<std::size_t>(item.picture)].text,
                item.place);
    }
    if (item.element == ItemElement::numeric) writeNumber(item, picture);
    if (item.element == ItemElement::numericEdited && picture != nullptr) {
      xml_.attribute("digits", picture->digits);
      xml_.attribute("alignment", picture->scale);
      xml_.flag("blankWhenZero", item.isBlankWhenZero);
    }
    if (item.element == ItemElement::alphanumeric && item.isJustified) {
      xml_.attribute("justified", "right");
    }
    if (item.element == ItemElement::national) {
      xml_.attribute("usage", item.usage == Usage::national ? "unicode" : "display");
    }
    if (item.isTable()) {
      xml_.attribute("minOccurs", item.minOccurs);
      xml_.attribute("maxOccurs", item.maxOccurs);
      if (item.dependsOn != none) {
        attribute("odo", pathOf(program_, item.dependsOn), item.place);
      }
    }
    xml_.attribute("offset", item.offset);
    xml_.attribute("length", item.length);
    xml_.attribute("line", item.place.line);
    xml_.flag("linkage", item.section == DataSection::linkage);
    xml_.flag("sync", item.isSync && !isGroup);
    xml_.flag("redefines", item.isRedefinition);
    xml_.flag("renames", item.isRenaming);
  }

  void writeNumber(const DataEntry& item, const Picture* picture) {
    const bool isNumber = picture != nullptr && picture->digits > 0;
    const bool isBinary = isOfAllBits(item.usage);
    xml_.attribute("usage", usageWord(item.usage));
    xml_.attribute("sign", signWord(item, picture));
    if (isNumber || isBinary) {
      xml_.attribute("digits", isNumber ? picture->digits : digitsIn(item.usage, item.length));
      xml_.attribute("alignment", isNumber ? picture->scale : 0);
    }
  }

  static const char* signWord(const DataEntry& item, const Picture* picture) {
    switch (item.sign) {
      case SignClause::leading:
        return "li";
      case SignClause::leadingSeparate:
        return "ls";
      case SignClause::trailing:
        return "ti";
      case SignClause::trailingSeparate:
        return "ts";
      default:
        break;
    }
    // Without a picture a number has a sign unless it is told to have none.
    return (picture == nullptr ? !item.isUnsigned : picture->isSigned) ? "true" : "false";
  }

  void writeConditions(const DataEntry& item) {
    const bool isNumeric =
        item.element == ItemElement::numeric || item.element == ItemElement::index;
    for (Index i = item.firstCondition; i < item.firstCondition + item.conditionCount; ++i) {
      writeCondition(program_.conditions[static_cast<std::size_t>(i)], isNumeric);
    }
  }

  void writeCondition(const ConditionEntry& condition, bool isNumeric) {
    const char* const element = isNumeric ? "numericCondition" : "alphanumericCondition";
    xml_.open(element);
    attribute("name", condition.name, condition.place);
    for (Index i = condition.firstValue; i < condition.firstValue + condition.valueCount; ++i) {
      const ConditionValueEntry& value = program_.values[static_cast<std::size_t>(i)];
      const char* const member = value.isRange
                                     ? (isNumeric ? "numericRange" : "alphanumericRange")
                                     : (isNumeric ? "numericConstant" : "alphanumericConstant");
      xml_.open(member);
      attribute(value.isRange ? "from" : "value", value.first, condition.place);
      if (value.isRange) attribute("to", value.last, condition.place);
      xml_.close(member);
    }
    xml_.close(element);
  }

  void writeEntryPoints() {
    if (program_.entryPoints.empty()) return;
    xml_.open("entryPoints");
    for (const EntryPointEntry& entryPoint : program_.entryPoints) {
      xml_.open("entryPoint");
      attribute("name", entryPoint.name, entryPoint.place);
      if (entryPoint.convention) xml_.attribute("callConvention", *entryPoint.convention);
      for (const ParameterEntry& parameter : entryPoint.parameters) {
        xml_.open("parameter");
        attribute("dataItem", at(parameter.item).name, parameter.place);
        xml_.attribute("byType", wordOf(parameter.how));
        xml_.close("parameter");
      }
      xml_.close("entryPoint");
    }
    xml_.close("entryPoints");
  }

  const CobolProgram& program_;
  EntryProblems& problems_;
  XmlText xml_;
};

}  // namespace

std::string dictionaryText(const CobolProgram& program, const DictionaryProperties& properties,
                           EntryProblems& problems) {
  return Writer(program, problems).write(properties);
}

std::string pathOf(const CobolProgram& program, Index entry) {
  std::vector<const std::string*> names;
  for (Index next = entry; next != none;) {
    const DataEntry& item = program.entries[static_cast<std::size_t>(next)];
    names.push_back(&item.name);
    next = item.parent;
  }
  std::string path;
  std::reverse(names.begin(), names.end());
  for (const std::string* const name : names) {
    if (!path.empty()) path += '.';
    path += *name;
  }
  return path;
}

std::size_t itemsOf(const CobolProgram& program) {
  std::size_t items = 0;
  const auto add = [&](const std::vector<Index>& records) {
    for (const Index record : records) {
      items +=
          static_cast<std::size_t>(program.entries[static_cast<std::size_t>(record)].end - record);
    }
  };
  add(program.records);
  for (const Index file : program.describedFiles) {
    add(program.files[static_cast<std::size_t>(file)].records);
  }
  return items;
}

}  // namespace as::toolkit
