// Models for the tests of memory running out, and all that can be seen of one.
#ifndef TESTS_MEMORY_MODELS_H_
#define TESTS_MEMORY_MODELS_H_

#include <memory>
#include <string>
#include <xercesc/dom/DOM.hpp>

#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "xml/ElementImpl.h"
#include "xml/XStr.h"

namespace memory {

// A service to add to: an operation with a parameter, a Web one with a header and a fault, too.
struct Model {
  explicit Model(std::unique_ptr<as::IService> of) : service(std::move(of)) {}

  as::IOperation* operation() const { return test::operationOf(*service); }
  template <class Parameter = as::IParameter>
  Parameter* parameter() const {
    return test::parameterOf<Parameter>(*service);
  }

  std::unique_ptr<as::IService> service;
};

// A new service: every list is there.
inline Model newModel(const test::Flavour& flavour) {
  Model model(test::newService(flavour));
  model.service->addOperation("op", nullptr)->addParameter(as::IParameter::BY_IN, "p", 0);
  if (auto* const web = as::interface_cast<as::IWSOperation>(model.operation())) {
    web->addHeader(as::IWSHeader::BY_IN);
    web->addFault();
  }
  return model;
}

// A parsed one, where only what has members has a list.
inline Model parsedModel(const test::Flavour& flavour) {
  const bool isWeb = flavour.implementation == as::IService::TYPE_WS;
  return Model(test::parseService(test::serviceDocument(
      flavour.own.uri, "",
      "<operations><operation name=\"op\"><parameters><parameter name=\"p\"/></parameters>" +
          std::string(isWeb ? "<header/><fault/>" : "") + "</operation></operations>")));
}

// An element with all below it, each with the class of its wrapper.
inline std::string treeText(const xercesc::DOMElement* element) {
  CElementImpl* const wrapper = CElementImpl::wrapperOf(element);
  std::string text = std::string(CXStr(element->getNodeName(), false)) + ":" +
                     (wrapper == nullptr                 ? "none"
                      : wrapper->getElement() != element ? "another's"
                                                         : wrapper->RTTI_vinfo().record()->name);
  const xercesc::DOMNamedNodeMap* const attributes = element->getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); i++) {
    text += " " + std::string(CXStr(attributes->item(i)->getNodeName(), false)) + "=" +
            std::string(CXStr(attributes->item(i)->getNodeValue(), false));
  }
  text += "(";
  for (auto* child = element->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    text += treeText(child);
  }
  return text + ")";
}

// What the model answers, and what stands in its document.
inline std::string stateOf(const Model& model) {
  return test::modelText(*model.service) + "\n" +
         treeText(as::interface_cast<CElementImpl>(model.service.get())->getElement());
}

}  // namespace memory

#endif  // TESTS_MEMORY_MODELS_H_
