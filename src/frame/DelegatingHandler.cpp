#include "frame/DelegatingHandler.h"

#include <xercesc/util/XMLString.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "com/VorCHandler.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/VorJHandler.h"
#include "ws/VorWSHandler.h"
#include "xml/Vocabulary.h"

using xercesc::DOMDocument;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

template <class Handler>
std::shared_ptr<CVorSHandler> makeHandler() {
  return std::make_shared<Handler>();
}

// The flavours, in the order in which a namespace is compared with theirs.
constexpr struct {
  const XMLCh* namespaceURI;
  std::shared_ptr<CVorSHandler> (*make)();
} flavours[] = {
    {XSDNS::wsURI, makeHandler<CVorWSHandler>},
    {XSDNS::javaURI, makeHandler<CVorJHandler>},
    {XSDNS::comURI, makeHandler<CVorCHandler>},
    {XSDNS::dotnetURI, makeHandler<CVorDotNETHandler>},
};

}  // namespace

CDelegatingHandler::~CDelegatingHandler() = default;

void CDelegatingHandler::startDocument(DOMNode* root) {
  for (const auto& flavour : flavours) {
    if (!XMLString::equals(root->getNamespaceURI(), flavour.namespaceURI)) continue;
    delegate_ = flavour.make();
    return;
  }
  throw as::CASInvalidNamespaceException();
}

void CDelegatingHandler::startElement(DOMNode* /*node*/) {}

void CDelegatingHandler::newElement(DOMNode* node) {
  if (delegate_) delegate_->newElement(node);
}

void CDelegatingHandler::endParse(DOMDocument* document) {
  if (delegate_) delegate_->endParse(document);
}

bool CDelegatingHandler::takes(const DOMNode* node) const {
  return !delegate_ || delegate_->takes(node);
}

CServiceImpl* CDelegatingHandler::getService() const {
  return delegate_ ? delegate_->getService() : nullptr;
}

std::unique_ptr<CServiceImpl> CDelegatingHandler::takeService() {
  return delegate_ ? delegate_->takeService() : nullptr;
}

WrapperPool CDelegatingHandler::releaseUnowned() {
  return delegate_ ? delegate_->releaseUnowned() : WrapperPool();
}
