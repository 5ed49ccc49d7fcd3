// Asks everything of a program's model: every accessor of every object.
#ifndef FUZZ_DICTIONARYWALK_H_
#define FUZZ_DICTIONARYWALK_H_

#include <cstddef>
#include <cstdlib>
#include <string>

#include "as/AgentServices.h"

namespace fuzz {

// Whether the document was read by the shipped schemas, which promise what stands in which list, or
// by schemas of its own.
enum class Schemas { shipped, any };

class DictionaryWalk {
 public:
  explicit DictionaryWalk(Schemas schemas) : schemas_(schemas) {}

  // Ends the process when an object contradicts another.
  void walk(as::IProgram& program) {
    ask(program.getName());
    element(program);
    list<as::IProperty>(program.getProperties());
    list<as::IFD>(program.getFileSection());
    list<as::IDataItem>(program.getDataItems());
    list<as::IEntryPoint>(program.getEntryPoints());
  }

  // So that no answer is optimised away.
  std::size_t sum() const { return sum_; }

 private:
  void ask(const std::string& text) { sum_ += text.size(); }
  void ask(int number) { sum_ += static_cast<std::size_t>(number); }

  static void require(bool condition) {
    if (!condition) std::abort();
  }

  void element(as::IElement& element) {
    for (const char* const name : {"name", "value", "", "xmlns", "no such attribute"}) {
      ask(element.getAttributeValue(name));
    }
    require(element.getUserData() == nullptr);
    element.setUserData(this);
    require(element.getUserData() == this);
    element.setUserData(nullptr);
  }

  // By the shipped schemas every member is a Member.
  template <class Member>
  void list(as::IList* list) {
    require(list != nullptr);
    const int length = list->getLength();
    require(length >= 0 && list->getItem(-1) == nullptr && list->getItem(length) == nullptr);
    for (int i = 0; i < length; i++) {
      auto* const member = as::interface_cast<Member>(list->getItem(i));
      require(member != nullptr || schemas_ == Schemas::any);
      if (member == nullptr) continue;
      element(*member);
      visit(*member);
    }
  }

  void visit(as::IProperty& property) {
    ask(property.getName());
    ask(property.getValue());
  }

  void visit(as::IFD& file) {
    ask(file.getName());
    ask(file.getAccessMode());
    ask(file.getOrganization());
    if (file.getDataItems() != nullptr) list<as::IDataItem>(file.getDataItems());
  }

  void visit(as::IEntryPoint& entryPoint) {
    ask(entryPoint.getName());
    ask(entryPoint.getCallConv());
    list<as::ILinkageItem>(&entryPoint);
  }

  void visit(as::ILinkageItem& parameter) {
    ask(parameter.getByType());
    if (as::IDataItem* const item = parameter.getDataItem()) ask(item->getName());
  }

  void visit(as::IDataItem& item) {
    ask(item.getName());
    ask(item.getPicture());
    for (const int number :
         {item.getDataType(), item.getLength(), item.getMinOccurs(), item.getMaxOccurs(),
          item.getOffset(), item.getLine(), item.hasODO() ? 1 : 0, item.isLinkage() ? 1 : 0,
          item.isSync() ? 1 : 0, item.isRedefined() ? 1 : 0, item.isRenamed() ? 1 : 0}) {
      ask(number);
    }
    if (as::IDataItem* const counter = item.getODO()) {
      require(item.hasODO());
      ask(counter->getName());
    }
    require(item.getParent() == parent_ || schemas_ == Schemas::any);
    list<as::ICondition>(item.getConditions());
    kinds(item);
    if (auto* const group = as::interface_cast<as::IGroup>(&item)) {
      as::IGroup* const outer = parent_;
      parent_ = group;
      list<as::IDataItem>(group->getChildren());
      parent_ = outer;
    }
  }

  void kinds(as::IDataItem& item) {
    if (auto* const numeric = as::interface_cast<as::INumeric>(&item)) {
      ask(numeric->getUsage());
      ask(numeric->getSign());
      ask(numeric->getDigits());
      ask(numeric->getAlignment());
    }
    if (auto* const edited = as::interface_cast<as::INumericEdited>(&item)) {
      ask(edited->getDigits());
      ask(edited->isBlankWhenZero() ? 1 : 0);
    }
    if (auto* const text = as::interface_cast<as::IAlphanumeric>(&item)) {
      ask(text->getJustification());
    }
    if (auto* const wide = as::interface_cast<as::INational>(&item)) ask(wide->getUsage());
  }

  void visit(as::ICondition& condition) {
    ask(condition.getName());
    list<as::IConditionValue>(&condition);
  }

  void visit(as::IConditionValue& value) {
    ask(value.getType());
    ask(value.getConstant());
    ask(value.getFrom());
    ask(value.getTo());
  }

  const Schemas schemas_;
  std::size_t sum_ = 0;
  as::IGroup* parent_ = nullptr;
};

}  // namespace fuzz

#endif  // FUZZ_DICTIONARYWALK_H_
