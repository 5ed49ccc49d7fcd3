// Builds the model of a service definition while its document is parsed: what the plain service
// schema knows. Each flavour's handler derives from it.
#ifndef SERVICE_VORSHANDLER_H_
#define SERVICE_VORSHANDLER_H_

#include <memory>

#include "service/ServiceImpl.h"
#include "xml/ElementHandler.h"

class CVorSHandler : public CElementHandler {
 public:
  // Wraps the element by its local name. A name that it does not take is a programming error that
  // ends the process: the parser has let nothing else through.
  void newElement(xercesc::DOMNode* node) override;
  void endParse(xercesc::DOMDocument* document) override;
  bool takes(const xercesc::DOMNode* node) const override;

  // The service, null until endParse() and when the root is none. The handler owns it until the
  // caller takes it with takeService().
  CServiceImpl* getService() const { return service_; }
  std::unique_ptr<CServiceImpl> takeService();

 private:
  static const ElementWrapping rows[];

  CServiceImpl* service_ = nullptr;
};

// A flavour: what it wraps by classes of its own, and the factory that its services get. Flavour
// has a table `rows` of ElementWrapping, and a type Factory.
template <class Flavour>
class FlavourHandler : public CVorSHandler {
 public:
  void newElement(xercesc::DOMNode* node) override {
    if (!wrapByName(Flavour::rows, node)) CVorSHandler::newElement(node);
  }
  void endParse(xercesc::DOMDocument* document) override {
    CVorSHandler::endParse(document);
    if (getService() == nullptr) return;
    getService()->setFactory(std::make_unique<typename Flavour::Factory>(document));
  }
  bool takes(const xercesc::DOMNode* node) const override {
    return rowFor(node, Flavour::rows) != nullptr || CVorSHandler::takes(node);
  }
};

#endif  // SERVICE_VORSHANDLER_H_
