#include "xml/Serialiser.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLString.hpp>

#include "as/Globals.h"
#include "xml/AttributeValue.h"
#include "xml/Limits.h"

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLChar1_0;
using xercesc::XMLString;
using xercesc::XMLTranscoder;

namespace {

using WideText = std::basic_string<XMLCh>;

// What stands for a character of a text; null where it stands for itself.
const XMLCh* referenceInText(XMLCh character) {
  switch (character) {
    case u'&':
      return u"&amp;";
    case u'<':
      return u"&lt;";
    case u'>':
      return u"&gt;";
    case u'\r':
      return u"&#xD;";
    default:
      return nullptr;
  }
}

// The same for one of an attribute's value, which is read again with its line ends and tabs.
const XMLCh* referenceInValue(XMLCh character) {
  switch (character) {
    case u'&':
      return u"&amp;";
    case u'<':
      return u"&lt;";
    case u'"':
      return u"&quot;";
    case u'\n':
      return u"&#xA;";
    case u'\r':
      return u"&#xD;";
    case u'\t':
      return u"&#x9;";
    default:
      return nullptr;
  }
}

const XMLCh* noReference(XMLCh /*character*/) { return nullptr; }

// Writes nodes with all below them, as they are: the parser's own writer "repairs" namespaces, it
// declares anew what the tree's plain attributes declare already. Always XML 1.0. Throws
// std::runtime_error for what that cannot hold: some characters, and names that only 1.1 knows.
class Writer {
 public:
  void write(const DOMNode* node) {
    Around nothing = {node, std::nullopt};
    write(node, nothing);
  }

  void write(std::basic_string_view<XMLCh> text) { text_ += text; }

  // All that has been written, in UTF-8.
  std::string text() const {
    constexpr std::size_t room = 16384;
    constexpr std::size_t bytesACharacter = 3;  // At most, also when two make one character.
    std::string narrow;
    narrow.reserve(text_.size() + text_.size() / 8);
    std::vector<XMLByte> bytes(room);
    for (std::size_t at = 0; at < text_.size();) {
      XMLSize_t eaten = 0;
      const XMLSize_t length = gUTF8Transcoder->transcodeTo(
          text_.data() + at, std::min(room / bytesACharacter, text_.size() - at), bytes.data(),
          room, eaten, XMLTranscoder::UnRep_Throw);
      if (eaten == 0) throw std::runtime_error("half a character");
      narrow.append(reinterpret_cast<const char*>(bytes.data()), length);
      at += eaten;
    }
    return narrow;
  }

 private:
  // The nearest element around that is in a namespace (the root where none is), and the prefix that
  // elements in none have below it, once one of them has been written.
  struct Around {
    const DOMNode* element = nullptr;
    std::optional<const XMLCh*> prefix;
  };

  void write(const DOMNode* node, Around& around) {
    switch (node->getNodeType()) {
      case DOMNode::ELEMENT_NODE:
        writeElement(static_cast<const DOMElement*>(node), around);
        break;
      case DOMNode::TEXT_NODE:
        writeText<referenceInText>(node->getNodeValue());
        break;
      case DOMNode::CDATA_SECTION_NODE:
        text_.append(u"<![CDATA[").append(node->getNodeValue()).append(u"]]>");
        break;
      case DOMNode::COMMENT_NODE:
        text_ += u"<!--";
        writeText<noReference>(node->getNodeValue());
        text_ += u"-->";
        break;
      case DOMNode::PROCESSING_INSTRUCTION_NODE:
        text_ += u"<?";
        writeName(node->getNodeName());
        if (XMLString::stringLen(node->getNodeValue()) != 0) {
          text_ += u' ';
          writeText<noReference>(node->getNodeValue());
        }
        text_ += u"?>";
        break;
      default:
        // A document type: what it declared has been put in place when the document was read.
        break;
    }
  }

  void writeElement(const DOMElement* element, Around& outer) {
    const bool isInNamespace = element->getNamespaceURI() != nullptr;
    Around own = {element, std::nullopt};
    Around& around = isInNamespace ? own : outer;
    text_ += u'<';
    const std::size_t nameAt = text_.size();
    if (!isInNamespace) writePrefixBelow(around);
    writeName(element->getNodeName());
    const std::size_t nameLength = text_.size() - nameAt;
    if (element->getAttributes()->getLength() > limits::attributes) {
      throw std::length_error("too many attributes to be read again");
    }
    visitAttributes(*element, [this](const XMLCh* name, const XMLCh* value) {
      // A prefix that is taken back, as XML 1.1 can: nothing below has it, and 1.0 knows no way.
      if (*value == 0 && XMLString::startsWith(name, u"xmlns:")) return;
      text_ += u' ';
      writeName(name);
      text_ += u"=\"";
      writeText<referenceInValue>(value);
      text_ += u'"';
    });
    const DOMNode* child = element->getFirstChild();
    if (child == nullptr) {
      text_ += u"/>";
      return;
    }
    text_ += u'>';
    for (; child != nullptr; child = child->getNextSibling()) write(child, around);
    text_ += u"</";
    text_.append(text_, nameAt, nameLength);
    text_ += u'>';
  }

  // Elements in no namespace (new ones are; they belong to the document's) are written with a
  // prefix of the document's: that is the root's prefix, unless it means something else there; then
  // it is that of the nearest element around that has one.
  void writePrefixBelow(Around& around) {
    if (!around.prefix) {
      const DOMNode* const at = around.element;
      const DOMElement* const root = at->getOwnerDocument()->getDocumentElement();
      const bool isRoots =
          XMLString::equals(at->lookupNamespaceURI(root->getPrefix()), root->getNamespaceURI());
      around.prefix = isRoots ? root->getPrefix() : at->getPrefix();
    }
    if (*around.prefix != nullptr) text_.append(*around.prefix).push_back(u':');
  }

  void writeName(const XMLCh* name) {
    const XMLSize_t length = XMLString::stringLen(name);
    if (!XMLChar1_0::isValidName(name, length)) throw std::runtime_error("no name");
    text_.append(name, length);
  }

  // Runs of characters that stand for themselves are written at once.
  template <const XMLCh* (*referenceFor)(XMLCh)>
  void writeText(const XMLCh* text) {
    const XMLCh* run = text;
    for (; *text != 0; text++) {
      if (!XMLChar1_0::isXMLChar(*text)) {
        // Two may make one character.
        if (text[1] == 0 || !XMLChar1_0::isXMLChar(text[0], text[1])) {
          throw std::runtime_error("a character that XML cannot hold");
        }
        text++;
      } else if (const XMLCh* const reference = referenceFor(*text)) {
        text_.append(run, text).append(reference);
        run = text + 1;
      }
    }
    text_.append(run, text);
  }

  WideText text_;
};

// Lays a tree out. All places for its texts are found before the first is inserted: a tree that is
// nested too deep is to stay as it is, since texts that are taken away again go on taking memory of
// the document, and a client may try again and again. Only when memory runs out are they taken away
// again: a layout that is left half-way would be laid out anew by the next one.
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
    if (node == nullptr) return;
    DOMNode* const parent = node->getParentNode();
    // Beside the root there is no place for text.
    const bool isApart =
        parent != nullptr && parent->getNodeType() != DOMNode::DOCUMENT_NODE && needsCR(parent);
    findPlaces(parent, isApart, node, depth);
    inserted_.reserve(places_.size());
    for (const Place& place : places_) insertSpacer(place);
    inserted_.clear();
  }

 private:
  // Where a text is to stand: in `parent`, in front of `before`, or behind all for null.
  struct Place {
    DOMNode* parent;
    DOMNode* before;
    int depth;
  };

  // Those of `node` and what follows it below `parent`, on lines of its own if `isApart`.
  void findPlaces(DOMNode* parent, bool isApart, DOMNode* node, int depth) {
    for (; node != nullptr; node = node->getNextSibling()) {
      const DOMNode::NodeType type = node->getNodeType();
      if (type == DOMNode::TEXT_NODE) continue;
      if (depth >= static_cast<int>(limits::depth) && type == DOMNode::ELEMENT_NODE) {
        throw std::length_error("nested too deep to be read again");
      }
      DOMNode* const first = node->getFirstChild();
      const bool areApart = first != nullptr && needsCR(node);
      if (first != nullptr) findPlaces(node, areApart, first, depth + 1);
      if (isApart) places_.push_back({parent, node, depth});
      if (areApart && parent != nullptr) places_.push_back({node, nullptr, depth});
    }
  }

  void insertSpacer(const Place& place) {
    CXStr text = spacer(place.depth);
    DOMNode* const made = place.parent->getOwnerDocument()->createTextNode(text);
    place.parent->insertBefore(made, place.before);
    inserted_.push_back(made);
  }

  std::vector<Place> places_;
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

void prettyPrintTree(DOMNode* node, int depth) { Layout().layOut(node, depth); }

std::string serialiseNode(DOMDocument* document) {
  Writer writer;
  writer.write(u"<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"");
  writer.write(document->getXmlStandalone() ? u"yes" : u"no");
  writer.write(u"\" ?>\n");
  // What stands beside the root stands on lines of its own.
  for (const DOMNode* node = document->getFirstChild(); node != nullptr;
       node = node->getNextSibling()) {
    if (node->getNodeType() == DOMNode::DOCUMENT_TYPE_NODE) continue;
    writer.write(node);
    writer.write(u"\n");
  }
  return writer.text();
}
