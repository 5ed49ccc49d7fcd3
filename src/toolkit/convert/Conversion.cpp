#include "toolkit/convert/Conversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

#include "as/IDataItem.h"
#include "toolkit/findings/Report.h"
#include "toolkit/io/ParserMemory.h"
#include "toolkit/io/XmlDocument.h"
#include "toolkit/text/Names.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/ShownPlace.h"

namespace as::toolkit {

namespace {

bool holds(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

constexpr char attribute[] = "fieldAttribute";

bool isField(const std::string& name) {
  return name == "parameter" || name == "field" || name == attribute;
}

class Conversion {
 public:
  Conversion(const FlavourProfile& from, const FlavourProfile& to, const ItemIndex* items,
             Findings& notes)
      : from_(from), to_(to), items_(items), notes_(notes) {}

  void convert(XmlElement root) {
    const std::string old = root.declaredNamespace();
    // A .NET service may come in the namespace of Web services, with what those may hold.
    const FlavourProfile* const documents = findProfileOfDocuments(old);
    if (documents != nullptr) old_ = &documents->additions();
    replaceNamespace(root, old);
    root.set("implementation", to_.flavour().word);
    // What an element loses below it is gone when its turn would come.
    for (XmlElement element = root.next(root); element.isElement(); element = element.next(root)) {
      replaceNamespace(element, old);
      const std::string name = element.localName();
      if (name == "operation") {
        convertOperation(element);
      } else if (isField(name)) {
        convertField(element);
      }
    }
    for (const auto& [text, number] : lost_) {
      notes_.note("no-equivalent", "service", text + " (" + count(number, "time") + ")");
    }
  }

 private:
  // Puts the new namespace where the old one is declared or located.
  void replaceNamespace(XmlElement element, const std::string& old) const {
    const std::string location = ":schemaLocation";
    for (const std::string& name : element.attributeNames()) {
      const std::string value = element.get(name);
      const bool isDeclaration = name == "xmlns" || name.rfind("xmlns:", 0) == 0;
      if (isDeclaration && value == old) {
        element.set(name, to_.flavour().documents.uri);
      } else if (name.size() > location.size() &&
                 name.compare(name.size() - location.size(), location.size(), location) == 0) {
        element.set(name, relocated(value, old));
      }
    }
  }

  // A list of pairs, namespace and place: the old one's become the new one's.
  std::string relocated(const std::string& pairs, const std::string& old) const {
    std::istringstream words(pairs);
    std::string result;
    std::string name;
    std::string place;
    while (words >> name >> place) {
      if (name == old) name = place = to_.flavour().documents.uri;
      if (!result.empty()) result += ' ';
      result.append(name).append(" ").append(place);
    }
    return result;
  }

  void lose(const std::string& what) {
    ++lost_[what + " has no equivalent in " + to_.name() + " services: left out"];
  }

  void dropAttributes(XmlElement element, const std::vector<std::string>& old,
                      const std::vector<std::string>& kept) {
    for (const std::string& name : old) {
      if (holds(kept, name) || !element.has(name)) continue;
      element.remove(name);
      lose(name);
    }
  }

  void convertOperation(const XmlElement& operation) {
    dropAttributes(operation, old_->operationAttributes, to_.additions().operationAttributes);
    std::map<std::string, int> numbers;
    for (const XmlElement& child : operation.children()) {
      const std::string name = child.localName();
      const bool isLost =
          holds(old_->operationElements, name) && !holds(to_.additions().operationElements, name);
      if (!isLost) continue;
      notes_.note("lost-message",
                  operation.get("name") + ", " + name + " " + std::to_string(++numbers[name]),
                  to_.name() + " services have none: left out with its parameters");
      child.detach();
    }
  }

  void convertField(XmlElement field) {
    dropAttributes(field, old_->fieldAttributes, to_.additions().fieldAttributes);
    if (field.localName() == attribute && !keepsAttributes_) makeField(field);
    if (!field.get("ref").empty()) {
      if (field.has("dataType")) lose("a data type beside a reference");
      field.remove("dataType");
      return;
    }
    if (&from_ == &to_) return;
    const bool isGroup =
        field.hasChild("field") || (!keepsAttributes_ && field.hasChild(attribute));
    const std::string word = field.get("dataType");
    if (isGroup) {
      const bool repeats = std::strtol(field.get("occurs").c_str(), nullptr, 10) > 1;
      const DataType* const type = to_.groupType(repeats);
      write(field, type);
      if (type == nullptr && !word.empty() && !isGroupWord(word)) lose("the data type of a group");
      return;
    }
    const DataType* const old = from_.typeReadAs(word);
    const DataType* type = old == nullptr ? nullptr : to_.bestTypeFor(old->capacity);
    if (type == nullptr) type = substitute(field, old);
    write(field, type);
  }

  // What the element tells a schema of its own type.
  static void dropSchemaType(XmlElement element) {
    const std::string instances = "http://www.w3.org/2001/XMLSchema-instance";
    for (const std::string& name : element.attributeNames()) {
      const std::size_t colon = name.find(':');
      if (colon == std::string::npos || name.substr(colon + 1) != "type") continue;
      if (element.namespaceOf(name.substr(0, colon)) == instances) element.remove(name);
    }
  }

  void makeField(XmlElement& field) {
    field.rename("field");
    // A field of that type there is none.
    dropSchemaType(field);
    const std::string place = placeOf(field);
    std::string text =
        "it was a field attribute, which " + to_.name() + " services have not: made a field";
    const std::string name = field.get("name");
    const std::string unique = uniqueAmongSiblings(field, name);
    if (unique != name) {
      field.set("name", unique);
      text += " and called " + quote(unique) + ", for there is a field of its name";
    }
    notes_.note("attribute-made-field", place, text);
  }

  // The names of the children of an element.
  struct Siblings {
    std::unordered_map<std::string, std::size_t> counts;
    Names names;
  };

  // What the field is to be called, beside the others that its parent has.
  std::string uniqueAmongSiblings(const XmlElement& field, const std::string& name) {
    const XmlElement parent = field.parent();
    const auto [found, isNew] = siblings_.try_emplace(parent.id());
    Siblings& siblings = found->second;
    if (isNew) {
      for (const XmlElement& child : parent.children()) {
        const std::string childName = child.get("name");
        ++siblings.counts[childName];
        siblings.names.reserve(childName);
      }
    }
    std::size_t& bearers = siblings.counts[name];
    if (bearers == 1) return name;
    --bearers;
    std::string unique = siblings.names.unique(name);
    ++siblings.counts[unique];
    return unique;
  }

  // The type that is the nearest where none holds all that the old one could: one that holds the
  // items, or else text. Null when not even that does.
  const DataType* substitute(const XmlElement& field, const DataType* old) {
    const std::string word = field.get("dataType");
    std::string text;
    if (old != nullptr) {
      text = "data type " + quote(old->word) + " has no equivalent in " + to_.name() + " services";
    } else if (word.empty()) {
      text = "it had no data type";
    } else {
      text = "data type " + quote(word) + " is none of " + from_.name() + " services";
    }
    const std::vector<as::IDataItem*> items = itemsOf(field);
    const auto holdsAll = [&items](const DataType& type) {
      return std::all_of(items.begin(), items.end(), [&type](as::IDataItem* item) {
        return misfit(type.capacity, *item).empty();
      });
    };
    const DataType* type = nullptr;
    for (as::IDataItem* const item : items) {
      const DataType* const best = to_.bestTypeFor(*item);
      if (type == nullptr && best != nullptr && holdsAll(*best)) type = best;
    }
    if (type != nullptr) {
      text += ": made " + quote(type->word) + ", which holds";
      for (as::IDataItem* const item : items) text += " " + item->getName();
    } else {
      for (const DataType& candidate : to_.dataTypes()) {
        if (candidate.capacity.kind == Capacity::Kind::text && holdsAll(candidate)) {
          type = &candidate;
        }
      }
      if (type != nullptr) {
        text += ": made " + quote(type->word);
      } else {
        const DataType* const gap = to_.defaultType();
        text += ": left without one";
        if (gap != nullptr) text += std::string(", which reads as ") + quote(gap->word);
      }
    }
    notes_.note("data-type-replaced", placeOf(field), text);
    return type;
  }

  static void write(XmlElement field, const DataType* type) {
    if (type == nullptr) {
      field.remove("dataType");
    } else {
      field.set("dataType", type->word);
    }
  }

  // The items that the mappings lead to; none when the program is unknown.
  std::vector<as::IDataItem*> itemsOf(const XmlElement& field) const {
    std::vector<as::IDataItem*> items;
    if (items_ == nullptr) return items;
    for (const XmlElement& child : field.children()) {
      if (child.localName() != "mappings") continue;
      for (const XmlElement& mapping : child.children()) {
        const std::string path = mapping.get("item");
        as::IDataItem* const item = items_->find(path.substr(0, path.find('(')));
        if (item != nullptr) items.push_back(item);
      }
    }
    return items;
  }

  // OPERATION.PARAMETER.FIELD
  static std::string placeOf(const XmlElement& field) {
    std::vector<std::string> names = {field.get("name")};
    const char* start = "";
    for (XmlElement at = field.parent(); at.isElement(); at = at.parent()) {
      const std::string name = at.localName();
      if (isField(name) || name == "operation") names.push_back(at.get("name"));
      if (name == "parameterTypeDefs") start = "type ";
    }
    std::reverse(names.begin(), names.end());
    return start + shownPath(names);
  }

  const FlavourProfile& from_;
  const FlavourProfile& to_;
  const bool keepsAttributes_ = holds(to_.additions().fieldElements, attribute);
  const Additions* old_ = &from_.additions();  // What the document may hold.
  const ItemIndex* items_;
  Report notes_;
  std::map<std::string, std::size_t> lost_;
  std::unordered_map<const void*, Siblings> siblings_;  // By the parents that have lost attributes.
};

}  // namespace

std::string convertDocument(const std::string& document, const FlavourProfile& from,
                            const FlavourProfile& to, const ItemIndex* items, Findings& notes) {
  return withBadAlloc([&] {
    XmlDocument xml(document);
    Conversion(from, to, items, notes).convert(xml.root());
    return xml.text();
  });
}

}  // namespace as::toolkit
