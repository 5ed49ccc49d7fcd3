#include "xml/ElementHandler.h"

#include <algorithm>
#include <utility>

#include "xml/ElementChildren.h"

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

CElementHandler::CElementHandler() = default;

CElementHandler::~CElementHandler() { forgetOwned(); }

void CElementHandler::startElement(DOMNode* /*node*/) {}

void CElementHandler::startDocument(DOMNode* /*root*/) {}

bool CElementHandler::takes(const DOMNode* /*node*/) const { return true; }

CElementImpl* CElementHandler::bindRoot(DOMDocument* document) {
  DOMElement* const root = ElementChildren(document, nullptr).next();
  CElementImpl* const wrapper = CElementImpl::wrapperOf(root);
  if (wrapper != nullptr) CElementImpl::bind(document, wrapper);
  return wrapper;
}

void CElementHandler::forgetOwned() {
  // All of them before any wrapper is deleted: its owner deletes them with itself.
  const auto owned = std::partition(
      wrappers_.begin(), wrappers_.end(),
      [](const std::unique_ptr<CElementImpl>& wrapper) { return !wrapper->isOwned(); });
  std::for_each(owned, wrappers_.end(), [](std::unique_ptr<CElementImpl>& wrapper) {
    static_cast<void>(wrapper.release());
  });
  wrappers_.erase(owned, wrappers_.end());
}

WrapperPool CElementHandler::releaseUnowned() {
  forgetOwned();
  return std::exchange(wrappers_, WrapperPool());
}
