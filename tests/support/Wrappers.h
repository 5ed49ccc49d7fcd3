// What unit tests of the builders and factories ask about wrapped elements.
#ifndef TESTS_SUPPORT_WRAPPERS_H_
#define TESTS_SUPPORT_WRAPPERS_H_

#include <memory>
#include <string>

#include "service/VorSHandler.h"
#include "support/Dom.h"
#include "xml/ElementHandler.h"

namespace test {

// Calls newElement for every element below `element` and then for itself, as a parse does.
inline void buildWrappers(CElementHandler& handler, xercesc::DOMElement* element) {
  for (auto* child = element->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    buildWrappers(handler, child);
  }
  handler.newElement(element);
}

// The builder of plain services. Builders have no virtual destructor, so that only a final one can
// be held by a pointer.
class PlainHandler final : public CVorSHandler {};

template <class Handler>
std::shared_ptr<CVorSHandler> makeHandler() {
  return std::make_shared<Handler>();
}

// The class of a wrapper, "(none)" for null.
inline std::string classOf(const CElementImpl* wrapper) {
  return wrapper == nullptr ? "(none)" : wrapper->RTTI_vinfo().record()->name;
}

// The class of the wrapper bound to `node`.
inline std::string classAt(const xercesc::DOMNode* node) {
  return classOf(CElementImpl::wrapperOf(node));
}

// The names of the child elements of `element`, each with a blank behind it.
inline std::string childrenOf(const xercesc::DOMElement* element) {
  std::string names;
  for (auto* child = element->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    names += narrow(child->getNodeName()) + " ";
  }
  return names;
}

}  // namespace test

#endif  // TESTS_SUPPORT_WRAPPERS_H_
