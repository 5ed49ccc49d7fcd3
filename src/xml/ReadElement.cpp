#include "xml/ReadElement.h"

#include <utility>
#include <xercesc/util/XMLString.hpp>

#include "as/Globals.h"
#include "xml/Vocabulary.h"

namespace {

bool isOfWrappers(const XMLCh* key) {
  return key == APIDATA_KEY || xercesc::XMLString::equals(key, APIDATA_KEY);
}

}  // namespace

void* ReadElement::setUserData(const XMLCh* key, void* data, xercesc::DOMUserDataHandler* handler) {
  if (!isOfWrappers(key)) return DOMElementNSImpl::setUserData(key, data, handler);
  if (handler == nullptr && !isInTable_) return std::exchange(wrapper_, data);
  // From the first handler on all of it stands in the table.
  isInTable_ = true;
  void* const inTable = DOMElementNSImpl::setUserData(key, data, handler);
  void* const before = std::exchange(wrapper_, nullptr);
  return before != nullptr ? before : inTable;
}

void* ReadElement::getUserData(const XMLCh* key) const {
  const bool isHere = !isInTable_ && isOfWrappers(key);
  return isHere ? wrapper_ : DOMElementNSImpl::getUserData(key);
}
