// DOM documents for unit tests of the wrapper layer.
#ifndef TESTS_SUPPORT_DOM_H_
#define TESTS_SUPPORT_DOM_H_

#include <gtest/gtest.h>

#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "xml/XStr.h"

namespace test {

// A parsed document, with namespaces but without validation, as long as the object lives.
class Dom {
 public:
  explicit Dom(const std::string& document) {
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.data()),
                                            document.size(), u"dom");
    parser_.setDoNamespaces(true);
    parser_.parse(source);
  }

  xercesc::DOMDocument* document() { return parser_.getDocument(); }
  xercesc::DOMElement* root() { return document()->getDocumentElement(); }

  // The first element of that name anywhere in the document; a test failure when there is none.
  xercesc::DOMElement* find(const XMLCh* name) {
    auto* const node = document()->getElementsByTagNameNS(u"*", name)->item(0);
    EXPECT_NE(node, nullptr) << std::string(CXStr(name, false));
    return static_cast<xercesc::DOMElement*>(node);
  }

 private:
  xercesc::XercesDOMParser parser_;
};

inline std::string narrow(const XMLCh* text) { return CXStr(text, false); }

}  // namespace test

#endif  // TESTS_SUPPORT_DOM_H_
