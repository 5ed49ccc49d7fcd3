// Builds the model of a service definition while its document is parsed: what the plain service
// schema knows. Each flavour's handler derives from it.
#ifndef SERVICE_VORSHANDLER_H_
#define SERVICE_VORSHANDLER_H_

#include <memory>

#include "service/ServiceImpl.h"
#include "xml/ModelBuilder.h"

class CVorSHandler : public ModelBuilder {
 public:
  // Wraps the element by its local name. A name that it does not take is a programming error that
  // ends the process: the parser has let nothing else through.
  void newElement(xercesc::DOMNode* node) override;
  void endParse(xercesc::DOMDocument* document) override;
  bool takes(const xercesc::DOMNode* node) const override;
  void tellNames(NamePool& names) const override;

  // The service, null until endParse() and when the root is none. The handler owns it until the
  // caller takes it with takeService().
  CServiceImpl* getService() const { return service_; }
  std::unique_ptr<CServiceImpl> takeService();

 protected:
  // For endParse(): the service is complete.
  void setService(CServiceImpl* service) { service_ = service; }

 private:
  static const ElementWrapping rows[];

  CServiceImpl* service_ = nullptr;
};

// A flavour: what it wraps by classes of its own, and the factory that its services get. Flavour
// has a table `rows` of ElementWrapping, `words` of its own vocabulary, and a type Factory.
template <class Flavour>
class FlavourHandler : public CVorSHandler {
 public:
  void newElement(xercesc::DOMNode* node) override {
    if (!wrapByName(Flavour::rows, node)) CVorSHandler::newElement(node);
  }
  void endParse(xercesc::DOMDocument* document) override {
    auto* const service = complete<CServiceImpl>(document);
    if (service == nullptr) return;
    service->setFactory(std::make_unique<typename Flavour::Factory>(document, service->getPool()));
    setService(service);
  }
  bool takes(const xercesc::DOMNode* node) const override {
    return rowFor(node, Flavour::rows) != nullptr || CVorSHandler::takes(node);
  }
  void tellNames(NamePool& names) const override {
    CVorSHandler::tellNames(names);
    names.expect(Flavour::words);
  }
};

#endif  // SERVICE_VORSHANDLER_H_
