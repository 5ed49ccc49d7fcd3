// An operation of a Web service: adds the SOAP binding, headers and faults.
#ifndef WS_WSOPERATIONIMPL_H_
#define WS_WSOPERATIONIMPL_H_

#include <string>

#include "as/IWSOperation.h"
#include "service/OperationImpl.h"
#include "ws/FaultList.h"
#include "ws/HeaderList.h"

class CWSOperationImpl : virtual public as::IWSOperation, virtual public COperationImpl {
 public:
  explicit CWSOperationImpl(xercesc::DOMElement* element)
      : CElementImpl(element), COperationImpl(element), headers_(element), faults_(element) {}
  AS_IDENTITY(CWSOperationImpl)

  as::IList* getHeaders() override;
  as::IList* getFaults() override;
  as::IWSHeader* addHeader(as::IWSHeader::BY_TYPE byType) override;
  as::IWSFault* addFault() override;
  std::string getInputNamespace() override;
  void setInputNamespace(const char* uri) override;
  std::string getOutputNamespace() override;
  void setOutputNamespace(const char* uri) override;
  USE getInputUse() override;
  void setInputUse(USE use) override;
  USE getOutputUse() override;
  void setOutputUse(USE use) override;
  STYLE getStyle() override;
  void setStyle(STYLE style) override;

  void collectChildren() override;

 private:
  CHeaderList headers_;
  CFaultList faults_;
};

#endif  // WS_WSOPERATIONIMPL_H_
