#include "Conversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <vector>

#include "Findings.h"
#include "Flavour.h"
#include "ItemIndex.h"
#include "XmlDocument.h"
#include "as/IDataItem.h"

namespace {

std::string quote(const std::string& text) { return "'" + text + "'"; }

bool holds(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool isField(const std::string& name) {
  return name == "parameter" || name == "field" || name == "fieldAttribute";
}

class Conversion {
 public:
  Conversion(const Flavour& from, const Flavour& to, const ItemIndex* items, Findings& notes)
      : from_(from), to_(to), items_(items), notes_(notes) {}

  void convert(XmlElement root) {
    replaceNamespace(root);
    root.set("implementation", to_.word());
    for (const XmlElement& element : root.descendants()) {
      const std::string name = element.localName();
      if (name == "operation") {
        convertOperation(element);
      } else if (isField(name)) {
        convertField(element);
      }
    }
    for (const auto& [text, number] : lost_) {
      notes_.note("service",
                  text + " (" + std::to_string(number) + (number == 1 ? " time)" : " times)"));
    }
  }

 private:
  // The root's own namespace, wherever an attribute names it.
  void replaceNamespace(XmlElement& root) {
    const std::string prefix = root.prefix();
    const std::string old = root.get(prefix.empty() ? "xmlns" : "xmlns:" + prefix);
    if (old.empty()) return;
    // A .NET service may come in the namespace of Web services, with what those may hold.
    if (old == webFlavour().namespaceURI()) old_ = &webFlavour().additions();
    const std::string replacement = to_.namespaceURI();
    for (const std::string& name : root.attributeNames()) {
      std::string value = root.get(name);
      std::size_t at = 0;
      while ((at = value.find(old, at)) != std::string::npos) {
        value.replace(at, old.size(), replacement);
        at += replacement.size();
      }
      if (value != root.get(name)) root.set(name, value);
    }
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
      notes_.note(operation.get("name") + ", " + name + " " + std::to_string(++numbers[name]),
                  to_.name() + " services have none: left out with its parameters");
      child.detach();
    }
  }

  void convertField(XmlElement field) {
    // Its header or fault is gone already.
    if (!field.isAttached()) return;
    dropAttributes(field, old_->fieldAttributes, to_.additions().fieldAttributes);
    if (field.localName() == "fieldAttribute" && &to_ != &webFlavour()) {
      field.rename("field");
      notes_.note(placeOf(field), "it was a field attribute, which " + to_.name() +
                                      " services have not: made a field");
    }
    if (!field.get("ref").empty()) {
      field.remove("dataType");
      return;
    }
    if (&from_ == &to_) return;
    const bool isGroup = field.hasChild("field");
    const std::string word = field.get("dataType");
    if (isGroup) {
      const bool repeats = std::strtol(field.get("occurs").c_str(), nullptr, 10) > 1;
      const DataType* const type = to_.groupType(repeats);
      write(field, type);
      if (type == nullptr && !word.empty() && word != "Array") lose("the data type of a group");
      return;
    }
    const DataType* const old = word.empty() ? from_.defaultType() : from_.findDataType(word);
    const DataType* type = old == nullptr ? nullptr : to_.bestTypeFor(old->capacity);
    if (type == nullptr) {
      as::IDataItem* const item = itemOf(field);
      type = item == nullptr ? nullptr : to_.bestTypeFor(*item);
      noteType(field, old, type, item);
    }
    write(field, type);
  }

  void noteType(const XmlElement& field, const DataType* old, const DataType* type,
                as::IDataItem* item) {
    const std::string place = placeOf(field);
    const std::string lost =
        old == nullptr
            ? std::string("it had no data type")
            : "data type " + quote(old->word) + " has no equivalent in " + to_.name() + " services";
    if (type != nullptr) {
      notes_.note(place, lost + ": made " + quote(type->word) + ", which holds " + item->getName());
    } else {
      notes_.note(place, lost + ": left without one");
    }
  }

  static void write(XmlElement field, const DataType* type) {
    if (type == nullptr) {
      field.remove("dataType");
    } else {
      field.set("dataType", type->word);
    }
  }

  // The item that the first mapping leads to; null when there is none or the program is unknown.
  as::IDataItem* itemOf(const XmlElement& field) const {
    if (items_ == nullptr) return nullptr;
    for (const XmlElement& child : field.children()) {
      if (child.localName() != "mappings") continue;
      for (const XmlElement& mapping : child.children()) {
        const std::string path = mapping.get("item");
        return items_->find(path.substr(0, path.find('(')));
      }
    }
    return nullptr;
  }

  // OPERATION.PARAMETER.FIELD
  static std::string placeOf(const XmlElement& field) {
    std::string place = field.get("name");
    for (XmlElement at = field.parent(); at.isElement(); at = at.parent()) {
      const std::string name = at.localName();
      if (isField(name) || name == "operation") place.insert(0, at.get("name") + ".");
      if (name == "parameterTypeDefs") place.insert(0, "type ");
    }
    return place;
  }

  const Flavour& from_;
  const Flavour& to_;
  const Additions* old_ = &from_.additions();
  const ItemIndex* items_;
  Findings& notes_;
  std::map<std::string, int> lost_;
};

}  // namespace

std::string convertDocument(const std::string& document, const Flavour& from, const Flavour& to,
                            const ItemIndex* items, Findings& notes) {
  XmlDocument xml(document);
  Conversion(from, to, items, notes).convert(xml.root());
  return xml.text();
}
