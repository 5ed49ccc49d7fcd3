#include "frame/DelegatingHandler.h"

#include "as/CASInvalidNamespaceException.h"

using xercesc::DOMDocument;
using xercesc::DOMNode;

CDelegatingHandler::~CDelegatingHandler() = default;

void CDelegatingHandler::startDocument(DOMNode* /*root*/) {
  // No flavour has landed yet, so there is no namespace to accept.
  throw as::CASInvalidNamespaceException();
}

void CDelegatingHandler::startElement(DOMNode* /*node*/) {}

void CDelegatingHandler::newElement(DOMNode* node) {
  if (delegate_) delegate_->newElement(node);
}

void CDelegatingHandler::endParse(DOMDocument* document) {
  if (delegate_) delegate_->endParse(document);
}

CServiceImpl* CDelegatingHandler::getService() const { return nullptr; }
