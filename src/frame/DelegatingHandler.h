// Picks the flavour of a service document by its root's namespace and leaves the work to the
// flavour's own handler.
#ifndef FRAME_DELEGATINGHANDLER_H_
#define FRAME_DELEGATINGHANDLER_H_

#include <memory>

#include "service/VorSHandler.h"

class CDelegatingHandler : public CElementHandler {
 public:
  void newElement(xercesc::DOMNode* node) override;
  void startElement(xercesc::DOMNode* node) override;
  // Creates the delegate; throws as::CASInvalidNamespaceException when the root's namespace is that
  // of no flavour. The plain service namespace is none either: a service has to say what it is.
  void startDocument(xercesc::DOMNode* root) override;
  void endParse(xercesc::DOMDocument* document) override;
  bool takes(const xercesc::DOMNode* node) const override;
  virtual ~CDelegatingHandler();

  // The service that the delegate built; null without a delegate.
  CServiceImpl* getService() const;
  // The same, given away.
  std::unique_ptr<CServiceImpl> takeService();
  // What the delegate made and the model did not take in, given away.
  WrapperPool releaseUnowned();

 private:
  // Shared only so that each delegate is destroyed as what it is: handlers have no virtual
  // destructor.
  std::shared_ptr<CVorSHandler> delegate_;
};

#endif  // FRAME_DELEGATINGHANDLER_H_
