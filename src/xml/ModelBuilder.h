// A handler that wraps every element of a document: the base of the builders of models.
#ifndef XML_MODELBUILDER_H_
#define XML_MODELBUILDER_H_

#include <cstddef>
#include <memory>
#include <utility>
#include <xercesc/util/XMLString.hpp>

#include "xml/ElementHandler.h"
#include "xml/WrapperPool.h"

// Serves one document. Until the root is taken the builder owns what it has made, so that a parse
// that fails half-way releases it.
class ModelBuilder : public CElementHandler {
 public:
  // A row of a builder's table: elements of that local name are wrapped so.
  struct ElementWrapping {
    const XMLCh* localName;
    void (*wrap)(ModelBuilder&, xercesc::DOMNode*);
  };
  // Wraps by class Wrapper, constructed from the element alone.
  template <class Wrapper>
  static void wrapAs(ModelBuilder& builder, xercesc::DOMNode* node) {
    builder.wrap<Wrapper>(node);
  }

 protected:
  ModelBuilder() = default;
  ~ModelBuilder() = default;

  // Creates a wrapper of class Wrapper for `node`, an element: in the pool, or, for the document's
  // root, by itself.
  template <class Wrapper, class... Arguments>
  void wrap(xercesc::DOMNode* node, Arguments... arguments) {
    auto* const element = static_cast<xercesc::DOMElement*>(node);
    if (node->getOwnerDocument()->getDocumentElement() != element) {
      pool_->make<Wrapper>(element, arguments...);
      pool_->close(*pool_->newest());
    } else {
      auto made = std::make_unique<Wrapper>(element, arguments...);
      root_.reset(as::interface_cast<CElementImpl>(made.get()));
      static_cast<void>(made.release());
      pool_->close(*root_);
    }
  }

  // The first row for the element's local name; null when there is none.
  template <std::size_t N>
  static const ElementWrapping* rowFor(const xercesc::DOMNode* node,
                                       const ElementWrapping (&rows)[N]) {
    const XMLCh* const name = node->getLocalName();
    if (name == nullptr) return nullptr;
    for (const ElementWrapping& row : rows) {
      // Most are told apart by their first letters.
      if (*row.localName == *name && xercesc::XMLString::equals(row.localName, name)) return &row;
    }
    return nullptr;
  }

  // Wraps the element as its row says; false when there is none.
  template <std::size_t N>
  bool wrapByName(const ElementWrapping (&rows)[N], xercesc::DOMNode* node) {
    const ElementWrapping* const row = rowFor(node, rows);
    if (row != nullptr) row->wrap(*this, node);
    return row != nullptr;
  }

  // For endParse(): binds the root's wrapper to the document and, if it is a Root, has it own the
  // pool and collect its children. Null when it is none.
  template <class Root>
  Root* complete(xercesc::DOMDocument* document) {
    if (root_ != nullptr) CElementImpl::bind(document, root_.get());
    auto* const root = as::interface_cast<Root>(root_.get());
    if (root == nullptr) return nullptr;
    root->setPool(std::move(pool_));
    root->collectChildren();
    return root;
  }

  // Gives the root away that complete() returned; null for null.
  template <class Root>
  std::unique_ptr<Root> take(Root*& root) {
    if (root != nullptr) static_cast<void>(root_.release());
    return std::unique_ptr<Root>(std::exchange(root, nullptr));
  }

 private:
  std::unique_ptr<WrapperPool> pool_ = std::make_unique<WrapperPool>();
  std::unique_ptr<CElementImpl> root_;
};

#endif  // XML_MODELBUILDER_H_
