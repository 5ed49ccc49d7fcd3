// An XML document as plain elements and attributes, names as they are written: for what the model
// leaves alone.
#ifndef TOOLKIT_IO_XMLDOCUMENT_H_
#define TOOLKIT_IO_XMLDOCUMENT_H_

#include <memory>
#include <string>
#include <vector>
#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
class XercesDOMParser;
XERCES_CPP_NAMESPACE_END

namespace as::toolkit {

// A handle of an element, good as long as the document lives. All text is UTF-8.
class XmlElement {
 public:
  explicit XmlElement(xercesc::DOMElement* element) : element_(element) {}

  // Whether there is an element at all: parent() of the root has none.
  bool isElement() const { return element_ != nullptr; }
  bool isSame(const XmlElement& other) const { return element_ == other.element_; }
  // Tells elements apart.
  const void* id() const { return element_; }

  std::string localName() const;
  std::string prefix() const;
  // What its prefix, or having none, stands for, where it declares that itself; empty otherwise.
  std::string declaredNamespace() const;
  // What the prefix stands for in the element; empty for nothing.
  std::string namespaceOf(const std::string& prefix) const;
  // Gives it another local name.
  void rename(const std::string& localName);

  XmlElement parent() const;
  std::vector<XmlElement> children() const;
  // The element behind it in document order that stands below `root`, as things are now.
  XmlElement next(const XmlElement& root) const;
  bool hasChild(const std::string& localName) const;
  void detach() const;

  std::vector<std::string> attributeNames() const;
  bool has(const std::string& name) const;
  // Empty when absent.
  std::string get(const std::string& name) const;
  void set(const std::string& name, const std::string& value);
  void remove(const std::string& name);

 private:
  xercesc::DOMElement* element_;
};

class XmlDocument {
 public:
  // Of a text that the library wrote. Throws std::runtime_error for one that is not well-formed.
  explicit XmlDocument(const std::string& text);
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  XmlElement root();
  std::string text();

 private:
  std::unique_ptr<xercesc::XercesDOMParser> parser_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IO_XMLDOCUMENT_H_
