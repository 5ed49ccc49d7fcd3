// Turns documents into XML text, indented.
#ifndef XML_SERIALISER_H_
#define XML_SERIALISER_H_

#include <string>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "xml/XStr.h"

// A line feed and two blanks for each level of depth.
CXStr spacer(int depth);

// Whether the content of `node`, which has some, is laid out on lines of its own: unless its last
// child is a text without a carriage return, which is data or indentation that is there already.
bool needsCR(xercesc::DOMNode* node);

// Indents `node`, which stands at `depth`, its siblings behind it and all below them, by text nodes
// that it inserts into the tree. They stay there, unless it throws: std::length_error, when the
// tree is nested so deep that no parser of this library would read it again, or for want of memory.
// Null ends the walk.
void prettyPrintTree(xercesc::DOMNode* node, int depth);

// `document` as XML text in UTF-8. Each namespace is declared where, and as, the attributes of the
// tree declare it, and elements without a namespace go by the root's prefix: what comes out reads
// back as the model that it was written from. The tree itself stays as it is. Throws
// std::length_error when an element has so many attributes that no parser of this library would
// read it again, and std::runtime_error for what XML 1.0 cannot hold.
std::string serialiseNode(xercesc::DOMDocument* document);

#endif  // XML_SERIALISER_H_
