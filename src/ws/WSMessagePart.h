// What a SOAP header and a SOAP fault have in common: parameters, a namespace and an encoding.
#ifndef WS_WSMESSAGEPART_H_
#define WS_WSMESSAGEPART_H_

#include <string>

#include "as/IWSParameter.h"
#include "service/SSVocabulary.h"
#include "service/ServiceFactory.h"
#include "ws/UseWords.h"
#include "ws/WSParameterImpl.h"
#include "ws/WSSVocabulary.h"
#include "xml/List.h"

// Interface is as::IWSHeader or as::IWSFault.
template <class Interface>
class WSMessagePart : virtual public Interface, virtual public CElementImpl {
 public:
  // The identity is that of the class made from this.
  RTTItypeid RTTI_vinfo() const override = 0;
  void* RTTI_cast(RTTItypeid id) override = 0;

  as::IWSParameter* addParameter(as::IParameter::BY_TYPE byType, const char* name,
                                 int occurs) override {
    auto* const parameter = as::interface_cast<CWSParameterImpl>(getFactory()->createParameter());
    parameter->setName(name);
    parameter->setByType(byType);
    parameter->setOccurs(occurs);
    addParameter(parameter);
    return parameter;
  }

  // Appends a parameter of this document; a null one is ignored.
  void addParameter(as::IWSParameter* parameter) {
    auto* const wrapper = as::interface_cast<CElementImpl>(parameter);
    if (wrapper == nullptr) return;
    CServiceFactory::append(*this, parameters_, SS::parameters, nullptr, wrapper->getElement());
  }

  as::IList* getParameters() override { return CList::orEmpty(parameters_); }
  std::string getNamespace() override { return text(WSS::namespace_); }
  void setNamespace(const char* uri) override { write(WSS::namespace_, uri); }

  typename Interface::USE getUse() override { return useOfWord<Interface>(wide(WSS::use)); }
  void setUse(typename Interface::USE use) override { write(WSS::use, wordOfUse<Interface>(use)); }

  void collectChildren() override { collectNamedList(SS::parameters, parameters_); }

 protected:
  explicit WSMessagePart(xercesc::DOMElement* element) : CElementImpl(element) {}

 private:
  CList* parameters_ = nullptr;
};

#endif  // WS_WSMESSAGEPART_H_
