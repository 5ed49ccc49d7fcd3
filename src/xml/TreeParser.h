// The parser that puts what it reads into a tree of the nodes of this library.
#ifndef XML_TREEPARSER_H_
#define XML_TREEPARSER_H_

#include <xercesc/parsers/XercesDOMParser.hpp>

#include "xml/NamePool.h"
#include "xml/ReadElement.h"

class ReadAttribute;

// Makes the tree that the DOM parser makes, of ReadElement and ReadAttribute, which know each other
// and need not ask what they are. Leaves out the default values that a schema tells for attributes
// which a document has: they would come back when an attribute is taken away, and nobody takes one
// away.
//
// REQUIRES: namespaces, no type information, and one parse.
class TreeParser : public xercesc::XercesDOMParser {
 public:
  using XercesDOMParser::XercesDOMParser;

  void ignorableWhitespace(const XMLCh* characters, XMLSize_t length, bool isCdata) override;

 protected:
  // What the DOM parser does as an element begins, whether it is empty or not.
  void beginElement(const xercesc::XMLElementDecl& declaration, unsigned int uriId,
                    const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                    XMLSize_t attributeCount);

  // Told of each declaration of a namespace in front of what is made of it; `prefix` is empty for
  // the default namespace.
  virtual void declaresNamespace(const XMLCh* prefix, const XMLCh* uri);

  // For what the model will ask for.
  NamePool& names() { return names_; }

 private:
  ReadElement* makeElement(const XMLCh* name, unsigned int uriId, const XMLCh* prefix);
  void addAttributes(ReadAttributes& map, const xercesc::RefVectorOf<xercesc::XMLAttr>& read,
                     XMLSize_t count);
  bool isSimple(const xercesc::XMLAttr& read) const;
  ReadAttribute* makeAttribute(const xercesc::XMLAttr& read);
  // The text of a namespace, pooled by the document; null for none.
  const XMLCh* pooledUri(unsigned int uriId);
  // The element that is being read; null outside of the root.
  ReadElement* parent() const;

  // The namespace that was asked for last: nearly always it is the one that all elements are in.
  unsigned int lastUriId_ = 0;
  const XMLCh* lastUri_ = nullptr;
  NamePool names_;
};

#endif  // XML_TREEPARSER_H_
