#include <cstddef>
#include <string>
#include <vector>

#include "as/IAlphanumeric.h"
#include "as/ICondition.h"
#include "as/IConditionValue.h"
#include "as/IDataItem.h"
#include "as/IEntryPoint.h"
#include "as/IFD.h"
#include "as/IGroup.h"
#include "as/ILinkageItem.h"
#include "as/IList.h"
#include "as/INational.h"
#include "as/INumeric.h"
#include "as/INumericEdited.h"
#include "as/IProgram.h"
#include "as/toolkit/Render.h"
#include "toolkit/render/JsonParts.h"
#include "toolkit/render/JsonWriter.h"
#include "toolkit/text/ShownPlace.h"
#include "toolkit/text/Words.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit {

namespace {

using nlohmann::ordered_json;

ordered_json pathOrNull(as::IDataItem* item) {
  return item == nullptr ? ordered_json() : ordered_json(dottedPath(*item));
}

class DictionaryJson {
 public:
  explicit DictionaryJson(std::ostream& out) : writer_(out) {}

  void write(as::IProgram& program) {
    writer_.beginObject();
    writer_.member("name", program.getName());
    writeProperties(writer_, program.getProperties());
    writeArray<as::IFD>("fileSection", program.getFileSection());
    writeItems("dataItems", program.getDataItems());
    writeArray<as::IEntryPoint>("entryPoints", program.getEntryPoints());
    writer_.end();
  }

 private:
  template <class T>
  void writeArray(const char* key, as::IList* list) {
    writeObjects<T>(writer_, key, list, [this](T& member) { writeMembers(member); });
  }

  // A whole forest of data items; null for a null list.
  void writeItems(const char* key, as::IList* list) {
    writer_.key(key);
    if (list == nullptr) {
      writer_.value(nullptr);
      return;
    }
    writer_.beginArray();
    walkItems(
        list,
        [this](as::IDataItem& item, std::size_t /*depth*/) {
          writer_.beginObject();
          writeMembers(item);
          way_.push_back(item.getName());
          if (as::interface_cast<as::IGroup>(&item) == nullptr) return;
          writer_.key("children");
          writer_.beginArray();
        },
        [this](as::IDataItem& item) {
          if (as::interface_cast<as::IGroup>(&item) != nullptr) writer_.end();
          writer_.end();
          way_.pop_back();
        });
    writer_.end();
  }

  void writeMembers(as::IFD& file) {
    writer_.member("name", file.getName());
    writer_.member("accessMode", file.getAccessMode());
    writer_.member("accessModeText", file.getAttributeValue("accessMode"));
    writer_.member("organization", file.getOrganization());
    writer_.member("organizationText", file.getAttributeValue("organization"));
    writeItems("dataItems", file.getDataItems());
  }

  void writeMembers(as::IEntryPoint& entryPoint) {
    writer_.member("name", entryPoint.getName());
    writer_.member("callConv", entryPoint.getCallConv());
    writeArray<as::ILinkageItem>("parameters", &entryPoint);
  }

  void writeMembers(as::ILinkageItem& parameter) {
    writeCode("byType", parameter.getByType(), byTypeWord);
    writer_.member("dataItem", pathOrNull(parameter.getDataItem()));
    writer_.member("dataItemText", parameter.getAttributeValue("dataItem"));
  }

  void writeMembers(as::ICondition& condition) {
    writer_.member("name", condition.getName());
    writeArray<as::IConditionValue>("values", &condition);
  }

  void writeMembers(as::IConditionValue& value) {
    writeCode("type", value.getType(), conditionValueTypeWord);
    writer_.member("constant", value.getConstant());
    writer_.member("from", value.getFrom());
    writer_.member("to", value.getTo());
  }

  // Everything but the children of a group.
  void writeMembers(as::IDataItem& item) {
    writeCode("dataType", item.getDataType(), dataTypeWord);
    writer_.member("name", item.getName());
    writer_.member("picture", item.getPicture());
    writer_.member("length", item.getLength());
    writer_.member("minOccurs", item.getMinOccurs());
    writer_.member("maxOccurs", item.getMaxOccurs());
    writer_.member("offset", item.getOffset());
    writer_.member("line", item.getLine());
    writer_.member("odo", pathOrNull(item.getODO()));
    writer_.member("odoText", item.getAttributeValue("odo"));
    writer_.member("hasODO", item.hasODO());
    writer_.member("linkage", item.isLinkage());
    writer_.member("sync", item.isSync());
    writer_.member("redefined", item.isRedefined());
    writer_.member("renamed", item.isRenamed());
    writer_.member("parent", way_.empty() ? ordered_json() : ordered_json(shownPath(way_)));
    writeOwnMembers(item);
    writeArray<as::ICondition>("conditions", item.getConditions());
  }

  // What only the item's category has.
  void writeOwnMembers(as::IDataItem& item) {
    if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
      writeCode("usage", numeric->getUsage(), numericUsageWord);
      writeCode("sign", numeric->getSign(), signWord);
      writer_.member("digits", numeric->getDigits());
      writer_.member("alignment", numeric->getAlignment());
    } else if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
      writer_.member("digits", edited->getDigits());
      writer_.member("blankWhenZero", edited->isBlankWhenZero());
    } else if (auto* const alphanumeric = as::interface_cast<as::IAlphanumeric>(&item)) {
      writeCode("justification", alphanumeric->getJustification(), justificationWord);
    } else if (auto* const national = as::interface_cast<as::INational>(&item)) {
      writeCode("usage", national->getUsage(), nationalUsageWord);
    }
  }

  void writeCode(const std::string& key, int code, std::string (*word)(int)) {
    writer_.member(key, code);
    writer_.member(key + "Text", word(code));
  }

  JsonWriter writer_;
  std::vector<std::string> way_;  // The names of the groups around the item at hand.
};

}  // namespace

void renderJson(std::ostream& out, as::IProgram& program) { DictionaryJson(out).write(program); }

}  // namespace as::toolkit
