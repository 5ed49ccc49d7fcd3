#include "xml/TreeParser.h"

#include <xercesc/framework/XMLBuffer.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/ReadAttribute.h"

using xercesc::DOMNode;
using xercesc::DOMTextImpl;
using xercesc::RefVectorOf;
using xercesc::XMLAttDef;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLString;

namespace {

bool isEmpty(const XMLCh* text) { return text == nullptr || *text == 0; }

}  // namespace

void TreeParser::beginElement(const XMLElementDecl& declaration, unsigned int uriId,
                              const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                              XMLSize_t attributeCount) {
  ReadElement* const element = makeElement(declaration.getBaseName(), uriId, prefix);
  addAttributes(element->attributes(), attributes, attributeCount);
  if (ReadElement* const around = parent()) {
    around->append(element);
  } else {
    fCurrentParent->appendChild(element);
  }
  fCurrentParent = element;
  fCurrentNode = element;
  fWithinElement = true;
}

void TreeParser::ignorableWhitespace(const XMLCh* characters, XMLSize_t length, bool isCdata) {
  ReadElement* const around = parent();
  const bool isNewText = fWithinElement && fIncludeIgnorableWhitespace && around != nullptr &&
                         fCurrentNode->getNodeType() != DOMNode::TEXT_NODE;
  if (!isNewText) {
    XercesDOMParser::ignorableWhitespace(characters, length, isCdata);
    return;
  }
  auto* const text = static_cast<DOMTextImpl*>(createText(characters, length));
  text->fNode.ignorableWhitespace(true);
  around->append(text);
  fCurrentNode = text;
}

ReadElement* TreeParser::makeElement(const XMLCh* name, unsigned int uriId, const XMLCh* prefix) {
  if (isEmpty(prefix) || uriId == fScanner->getEmptyNamespaceId()) {
    return new (fDocument)
        ReadElement(fDocument, pooledUri(uriId), names_.pooled(name, *fDocument));
  }
  xercesc::XMLBufBid bid(&fBufMgr);
  xercesc::XMLBuffer& qualified = bid.getBuffer();
  qualified.append(prefix);
  qualified.append(u':');
  qualified.append(name);
  return new (fDocument)
      ReadElement(fDocument, fScanner->getURIText(uriId), prefix, name, qualified.getRawBuffer());
}

void TreeParser::addAttributes(ReadAttributes& map, const RefVectorOf<XMLAttr>& read,
                               XMLSize_t count) {
  bool areSimple = true;
  for (XMLSize_t i = 0; i < count; i++) areSimple = areSimple && isSimple(*read.elementAt(i));
  if (areSimple) {
    map.makeRoom(count);
    for (XMLSize_t i = 0; i < count; i++) {
      const XMLAttr& attribute = *read.elementAt(i);
      map.add(names_.pooled(attribute.getName(), *fDocument), attribute.getValue());
    }
  } else {
    map.reserve(count);
    for (XMLSize_t i = 0; i < count; i++) map.setNamedItemNSFast(makeAttribute(*read.elementAt(i)));
  }
}

// Whether name and value are all that there is to an attribute.
bool TreeParser::isSimple(const XMLAttr& read) const {
  return isEmpty(read.getPrefix()) && read.getURIId() == fScanner->getEmptyNamespaceId() &&
         !XMLString::equals(read.getName(), xercesc::XMLUni::fgXMLNSString) &&
         read.getSpecified() && read.getType() != XMLAttDef::ID;
}

void TreeParser::declaresNamespace(const XMLCh* /*prefix*/, const XMLCh* /*uri*/) {}

ReadAttribute* TreeParser::makeAttribute(const XMLAttr& read) {
  const XMLCh* const name = read.getName();
  const XMLCh* const prefix = read.getPrefix();
  const bool isDefault = isEmpty(prefix) && XMLString::equals(name, xercesc::XMLUni::fgXMLNSString);
  const unsigned int xmlns = fScanner->getXMLNSNamespaceId();
  const unsigned int uriId = isDefault ? xmlns : read.getURIId();
  if (uriId == xmlns) declaresNamespace(isDefault ? u"" : name, read.getValue());
  const XMLCh* const uri =
      uriId == fScanner->getEmptyNamespaceId() ? nullptr : fScanner->getURIText(uriId);
  auto* const attribute = new (fDocument, xercesc::DOMMemoryManager::ATTR_NS_OBJECT)
      ReadAttribute(fDocument, uri, prefix, name, read.getQName());
  attribute->setValueFast(read.getValue());
  if (read.getType() == XMLAttDef::ID) attribute->addAttrToIDNodeMap();
  attribute->setSpecified(read.getSpecified());
  return attribute;
}

const XMLCh* TreeParser::pooledUri(unsigned int uriId) {
  if (uriId == fScanner->getEmptyNamespaceId()) return nullptr;
  if (lastUri_ == nullptr || uriId != lastUriId_) {
    const XMLCh* const uri = fScanner->getURIText(uriId);
    lastUri_ = isEmpty(uri) ? nullptr : fDocument->getPooledString(uri);
    lastUriId_ = uriId;
  }
  return lastUri_;
}

// All elements of the document are made here.
ReadElement* TreeParser::parent() const {
  const bool isElement = fCurrentParent->getNodeType() == DOMNode::ELEMENT_NODE;
  return isElement ? ReadElement::of(fCurrentParent) : nullptr;
}
