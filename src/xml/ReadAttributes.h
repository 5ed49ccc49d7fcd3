// The attributes of an element of a document that is read: the parser's own map, but lighter.
#ifndef XML_READATTRIBUTES_H_
#define XML_READATTRIBUTES_H_

#include <bit>
#include <cstdint>
#include <span>
#include <xercesc/dom/impl/DOMAttrMapImpl.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "xml/AttributeName.h"

// A document has more attributes than anything else, and of each the DOM makes three nodes and
// buffers: the attribute, a text below it, and what that text holds. All that a model asks for is
// the value. So names and values stand here as they were read, one behind the other, until the DOM
// asks for a node, as it does to change one; then it gets its nodes, and the map is one like any
// other from then on. Nothing else is different.
//
// Most attributes that a model asks for are not there: an item has five of the twenty that it may
// have. So there is a sign of each name, made of its first letters, which tells without a look at
// the names.
class ReadAttributes final : public xercesc::DOMAttrMapImpl {
 public:
  struct Attribute {
    const XMLCh* name;
    const XMLCh* value;
  };

  // Of an element of ReadElement.
  using DOMAttrMapImpl::DOMAttrMapImpl;

  // For the parser: makes room for attributes, and adds one that was specified and has a name
  // without a prefix, which none that is there has and the document has pooled.
  // REQUIRES: there is room, and no node was added.
  void makeRoom(XMLSize_t count);
  void add(const XMLCh* name, const XMLCh* value);

  // What was read, in the order of names; nothing once the nodes have been made.
  std::span<const Attribute> read() const { return {read_, count_}; }
  // The value of the attribute of that name; empty for none.
  const XMLCh* valueOf(AttributeName name) const {
    if (count_ == 0) return valueOfNode(name.text());
    const Attribute* const found = find(name);
    return found == nullptr ? u"" : found->value;
  }

  XMLSize_t getLength() const override;
  xercesc::DOMNode* item(XMLSize_t index) const override;
  int findNamePoint(const XMLCh* name) const override;
  int findNamePoint(const XMLCh* namespaceUri, const XMLCh* localName) const override;
  xercesc::DOMNode* getNamedItem(const XMLCh* name) const override;
  xercesc::DOMNode* getNamedItemNS(const XMLCh* namespaceUri,
                                   const XMLCh* localName) const override;
  xercesc::DOMNode* setNamedItem(xercesc::DOMNode* attribute) override;
  xercesc::DOMNode* setNamedItemNS(xercesc::DOMNode* attribute) override;
  xercesc::DOMNode* removeNamedItem(const XMLCh* name) override;
  xercesc::DOMNode* removeNamedItemNS(const XMLCh* namespaceUri, const XMLCh* localName) override;
  xercesc::DOMNode* removeNamedItemAt(XMLSize_t index) override;
  xercesc::DOMAttrMapImpl* cloneAttrMap(xercesc::DOMNode* element) override;
  void setReadOnly(bool isReadOnly, bool isDeep) override;

 protected:
  void cloneContent(const xercesc::DOMAttrMapImpl* other) override;

 private:
  // Gives the DOM its nodes, if it has not got them yet. When memory runs out the attributes stay
  // as they were.
  void makeNodes() const;
  void makeNodes();
  const Attribute* find(AttributeName name) const {
    // Zero where a sign is the one that is looked for.
    const std::uint64_t different = signs_ ^ name.signs();
    // A bit in each such place, and sometimes in the one behind it.
    std::uint64_t places =
        (different - AttributeName::lowestOfEach) & ~different & AttributeName::highestOfEach;
    for (; places != 0; places &= places - 1) {
      const auto place =
          static_cast<unsigned>(std::countr_zero(places)) / AttributeName::bitsOfASign;
      if (name == read_[place].name) return &read_[place];
    }
    return count_ <= signsThere ? nullptr : findBehindSigns(name);
  }
  const Attribute* findBehindSigns(AttributeName name) const;
  const XMLCh* valueOfNode(const XMLCh* name) const;

  static constexpr std::size_t signsThere = 8;

  std::uint32_t count_ = 0;
  Attribute* read_ = nullptr;  // In the document's memory.
  std::uint64_t signs_ = 0;    // Of the first eight in their order, the first in the lowest byte.
};

#endif  // XML_READATTRIBUTES_H_
