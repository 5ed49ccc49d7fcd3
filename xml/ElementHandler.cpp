#include "xml/ElementHandler.h"

#include <algorithm>
#include <utility>

#include "xml/ElementChildren.h"

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

CElementHandler::CElementHandler() = default;

CElementHandler::~CElementHandler() { releaseUnowned(); }

void CElementHandler::startElement(DOMNode* /*node*/) {}

void CElementHandler::startDocument(DOMNode* /*root*/) {}

CElementImpl* CElementHandler::bindRoot(DOMDocument* document) {
  DOMElement* const root = ElementChildren(document, nullptr).next();
  CElementImpl* const wrapper = CElementImpl::wrapperOf(root);
  if (wrapper != nullptr) CElementImpl::bind(document, wrapper);
  return wrapper;
}

WrapperPool CElementHandler::releaseUnowned() {
  // The owned ones are let go before any wrapper is deleted: its owner deletes them with itself.
  const auto unowned = std::partition(
      wrappers_.begin(), wrappers_.end(),
      [](const std::unique_ptr<CElementImpl>& wrapper) { return !wrapper->isOwned(); });
  std::for_each(unowned, wrappers_.end(), [](std::unique_ptr<CElementImpl>& wrapper) {
    static_cast<void>(wrapper.release());
  });
  wrappers_.erase(unowned, wrappers_.end());
  return std::exchange(wrappers_, WrapperPool());
}
