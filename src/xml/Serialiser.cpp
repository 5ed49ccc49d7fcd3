#include "xml/Serialiser.h"

#include <memory>
#include <stdexcept>
#include <vector>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/Limits.h"

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMImplementation;
using xercesc::DOMImplementationRegistry;
using xercesc::DOMLSOutput;
using xercesc::DOMLSSerializer;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::MemBufFormatTarget;
using xercesc::XMLString;
using xercesc::XMLUni;

namespace {

struct Release {
  template <class Object>
  void operator()(Object* object) const {
    object->release();
  }
};

using WideText = std::basic_string<XMLCh>;

// The name that `element` is written by: its own, with a prefix of the document's namespace when it
// is in none (new elements are; they belong to the document's). That is the root's prefix, unless
// it means something else there: then it is that of the nearest element around that has one.
WideText writtenName(const DOMElement* element) {
  WideText name;
  if (element->getNamespaceURI() == nullptr) {
    const DOMNode* at = element;
    while (at->getNamespaceURI() == nullptr && at->getParentNode() != nullptr) {
      at = at->getParentNode();
    }
    const DOMElement* const root = element->getOwnerDocument()->getDocumentElement();
    const bool isRoots =
        XMLString::equals(at->lookupNamespaceURI(root->getPrefix()), root->getNamespaceURI());
    const XMLCh* const prefix = isRoots ? root->getPrefix() : at->getPrefix();
    if (prefix != nullptr) name.append(prefix).push_back(u':');
  }
  return name.append(element->getNodeName());
}

// Copies one node without its children into `to`, where names are nothing but names.
DOMNode* copyNode(DOMDocument* to, const DOMNode* node) {
  const XMLCh* const value = node->getNodeValue();
  switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE: {
      DOMElement* const copy =
          to->createElement(writtenName(static_cast<const DOMElement*>(node)).c_str());
      const DOMNamedNodeMap* const attributes = node->getAttributes();
      if (attributes->getLength() > limits::attributes) {
        throw std::length_error("too many attributes to be read again");
      }
      for (XMLSize_t i = 0; i < attributes->getLength(); i++) {
        const DOMNode* const attribute = attributes->item(i);
        copy->setAttribute(attribute->getNodeName(), attribute->getNodeValue());
      }
      return copy;
    }
    case DOMNode::TEXT_NODE:
      return to->createTextNode(value);
    case DOMNode::CDATA_SECTION_NODE:
      return to->createCDATASection(value);
    case DOMNode::COMMENT_NODE:
      return to->createComment(value);
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return to->createProcessingInstruction(node->getNodeName(), value);
    default:
      // A document type: what it declared has been put in place when the document was read.
      return nullptr;
  }
}

void copyChildren(DOMDocument* to, DOMNode* parent, const DOMNode* from) {
  for (DOMNode* child = from->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
    DOMNode* const copy = copyNode(to, child);
    if (copy == nullptr) continue;
    parent->appendChild(copy);
    copyChildren(to, copy, child);
  }
}

// Lays a tree out. The texts that it has inserted it takes away again unless told to keep them: a
// layout that is left half-way would be laid out anew by the next one.
class Layout {
 public:
  Layout() = default;
  ~Layout() {
    for (DOMNode* const node : inserted_) node->getParentNode()->removeChild(node);
  }
  Layout(const Layout&) = delete;
  Layout& operator=(const Layout&) = delete;

  // See prettyPrintTree().
  void layOut(DOMNode* node, int depth) {
    for (; node != nullptr; node = node->getNextSibling()) {
      if (depth >= static_cast<int>(limits::depth) &&
          node->getNodeType() == DOMNode::ELEMENT_NODE) {
        throw std::length_error("nested too deep to be read again");
      }
      // Children first: whether they are laid out depends on their parent's last child as it was.
      layOut(node->getFirstChild(), depth + 1);
      DOMNode* const parent = node->getParentNode();
      const bool isText = node->getNodeType() == DOMNode::TEXT_NODE;
      if (isText || parent == nullptr) continue;
      // Beside the root there is no place for text.
      const bool isTopLevel = parent->getNodeType() == DOMNode::DOCUMENT_NODE;
      if (!isTopLevel && needsCR(parent)) insertSpacer(parent, node, depth);
      if (node->hasChildNodes() && needsCR(node)) insertSpacer(node, nullptr, depth);
    }
  }

  void keep() { inserted_.clear(); }

 private:
  void insertSpacer(DOMNode* parent, DOMNode* before, int depth) {
    CXStr text = spacer(depth);
    DOMNode* const made = parent->getOwnerDocument()->createTextNode(text);
    inserted_.push_back(made);
    try {
      parent->insertBefore(made, before);
    } catch (...) {
      inserted_.pop_back();
      throw;
    }
  }

  std::vector<DOMNode*> inserted_;
};

}  // namespace

CXStr spacer(int depth) {
  std::string text(1, '\n');
  text.append(2 * static_cast<std::size_t>(depth), ' ');
  return text;
}

bool needsCR(DOMNode* node) {
  const DOMNode* const last = node->getLastChild();
  if (last->getNodeType() != DOMNode::TEXT_NODE) return true;
  return XMLString::indexOf(last->getNodeValue(), u'\r') >= 0;
}

void prettyPrintTree(DOMNode* node, int depth) {
  Layout layout;
  layout.layOut(node, depth);
  layout.keep();
}

std::string serialiseNode(DOMDocument* document) {
  // The parser's writer "repairs" namespaces: it declares anew what the tree's plain attributes
  // declare already. From a copy that knows no namespaces it writes what is there.
  DOMImplementation* const implementation = DOMImplementationRegistry::getDOMImplementation(u"LS");
  const auto newDocument = [&] {
    std::unique_ptr<DOMDocument, Release> made(implementation->createDocument());
    // Always XML 1.0: the writer does not escape line ends in attributes of 1.1.
    made->setXmlStandalone(document->getXmlStandalone());
    return made;
  };
  const std::unique_ptr<DOMDocument, Release> copy = newDocument();
  copyChildren(copy.get(), copy.get(), document);

  // The writer's own pretty-printing stays off: it would lay out anew what is laid out already.
  const std::unique_ptr<DOMLSSerializer, Release> writer(implementation->createLSSerializer());
  constexpr XMLSize_t initialCapacity = 1023;
  MemBufFormatTarget target(initialCapacity);
  const std::unique_ptr<DOMLSOutput, Release> output(implementation->createLSOutput());
  output->setEncoding(XMLUni::fgUTF8EncodingString);
  output->setByteStream(&target);
  const auto write = [&](const DOMNode* node) {
    target.reset();
    if (!writer->write(node, output.get())) throw std::runtime_error("not written");
    return std::string(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
  };

  // An empty document is written as its declaration; what follows stands on lines of its own.
  const std::unique_ptr<DOMDocument, Release> empty = newDocument();
  std::string text = write(empty.get());
  if (!text.empty() && text.back() != '\n') text += '\n';
  for (const DOMNode* node = copy->getFirstChild(); node != nullptr;
       node = node->getNextSibling()) {
    text += write(node) + '\n';
  }
  return text;
}
