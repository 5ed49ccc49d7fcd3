// Steps through the items of a list that have one name.
#ifndef COBOL_NAMEDITEMS_H_
#define COBOL_NAMEDITEMS_H_

#include <string>

#include "as/IList.h"
#include "cobol/DDVocabulary.h"
#include "xml/List.h"
#include "xml/XStr.h"

// Yields the Items of a list whose name is the one given, in order: how a program of a client's own
// making is searched, which has no NameIndex. It may show lists of the library's own: there, names
// are compared where they stand in the document. Lists of its making are asked item by item.
template <class Item>
class NamedItems {
 public:
  // `list` may be null, and must like `name` outlive the object.
  NamedItems(as::IList* list, const XMLCh* name)
      : asked_(list), own_(as::interface_cast<CList>(list)), name_(name) {
    if (own_ == nullptr) text_ = std::string(CXStr(name, false));
  }

  // The next one; null when there is none left.
  Item* next() { return own_ != nullptr ? nextOf(*own_) : nextOfAsked(); }

 private:
  Item* nextOf(CList& own) {
    for (int i = own.find(DD::name, name_, at_); i >= 0; i = own.find(DD::name, name_, at_)) {
      at_ = i + 1;
      if (auto* const item = as::interface_cast<Item>(own.getElement(i))) return item;
    }
    at_ = own.getLength();
    return nullptr;
  }

  Item* nextOfAsked() {
    if (asked_ == nullptr) return nullptr;
    while (at_ < asked_->getLength()) {
      auto* const item = as::interface_cast<Item>(asked_->getItem(at_++));
      if (item != nullptr && item->getName() == text_) return item;
    }
    return nullptr;
  }

  as::IList* asked_;
  CList* own_;
  const XMLCh* name_;
  std::string text_;
  int at_ = 0;
};

#endif  // COBOL_NAMEDITEMS_H_
