#include "frame/DelegatingHandler.h"

#include <xercesc/util/XMLString.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "xml/Vocabulary.h"

using xercesc::DOMDocument;
using xercesc::DOMNode;
using xercesc::XMLString;

// In the order in which a namespace is compared with theirs.
const CDelegatingHandler::Flavour CDelegatingHandler::flavours[] = {
    {XSDNS::wsURI, make<CVorWSHandler>},
    {XSDNS::javaURI, make<CVorJHandler>},
    {XSDNS::comURI, make<CVorCHandler>},
    {XSDNS::dotnetURI, make<CVorDotNETHandler>},
};

CDelegatingHandler::~CDelegatingHandler() = default;

void CDelegatingHandler::startDocument(DOMNode* root) {
  for (const Flavour& flavour : flavours) {
    if (!XMLString::equals(root->getNamespaceURI(), flavour.namespaceURI)) continue;
    delegate_ = flavour.make(storage_);
    return;
  }
  throw as::CASInvalidNamespaceException();
}

void CDelegatingHandler::startElement(DOMNode* /*node*/) {}

void CDelegatingHandler::newElement(DOMNode* node) {
  if (delegate_ != nullptr) delegate_->newElement(node);
}

void CDelegatingHandler::endParse(DOMDocument* document) {
  if (delegate_ != nullptr) delegate_->endParse(document);
}

bool CDelegatingHandler::takes(const DOMNode* node) const {
  return !delegate_ || delegate_->takes(node);
}

void CDelegatingHandler::tellNames(NamePool& names) const {
  if (delegate_ != nullptr) delegate_->tellNames(names);
}

CServiceImpl* CDelegatingHandler::getService() const {
  return delegate_ != nullptr ? delegate_->getService() : nullptr;
}

std::unique_ptr<CServiceImpl> CDelegatingHandler::takeService() {
  return delegate_ != nullptr ? delegate_->takeService() : nullptr;
}
