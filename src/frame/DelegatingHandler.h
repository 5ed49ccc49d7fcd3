// Picks the flavour of a service document by its root's namespace and leaves the work to the
// flavour's own handler.
#ifndef FRAME_DELEGATINGHANDLER_H_
#define FRAME_DELEGATINGHANDLER_H_

#include <memory>
#include <variant>

#include "com/VorCHandler.h"
#include "dotnet/VorDotNETHandler.h"
#include "java/VorJHandler.h"
#include "ws/VorWSHandler.h"

class CDelegatingHandler : public CElementHandler {
 public:
  void newElement(xercesc::DOMNode* node) override;
  void startElement(xercesc::DOMNode* node) override;
  // Creates the delegate; throws as::CASInvalidNamespaceException when the root's namespace is that
  // of no flavour. The plain service namespace is none either: a service has to say what it is.
  void startDocument(xercesc::DOMNode* root) override;
  void endParse(xercesc::DOMDocument* document) override;
  bool takes(const xercesc::DOMNode* node) const override;
  void tellNames(NamePool& names) const override;
  virtual ~CDelegatingHandler();

  // The service that the delegate built; null without a delegate.
  CServiceImpl* getService() const;
  // The same, given away.
  std::unique_ptr<CServiceImpl> takeService();

 private:
  // The flavours' handlers have no virtual destructor: this destroys each as what it is.
  using Delegate =
      std::variant<std::monostate, CVorWSHandler, CVorJHandler, CVorCHandler, CVorDotNETHandler>;
  // A flavour is told by its namespace.
  struct Flavour {
    const XMLCh* namespaceURI;
    CVorSHandler* (*make)(Delegate&);
  };
  template <class Handler>
  static CVorSHandler* make(Delegate& delegate) {
    return &delegate.emplace<Handler>();
  }
  static const Flavour flavours[];

  Delegate storage_;
  CVorSHandler* delegate_ = nullptr;  // In the storage.
};

#endif  // FRAME_DELEGATINGHANDLER_H_
