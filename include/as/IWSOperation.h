// An operation of a Web service, with its SOAP binding, headers and faults.
#ifndef AS_IWSOPERATION_H_
#define AS_IWSOPERATION_H_

#include <string>

#include "as/IOperation.h"
#include "as/IWSHeader.h"

namespace as {

class IWSFault;

// The getters of uses and style answer -1, which is no enumerator, when the attribute is absent or
// of no known text (letter case counts). Their setters write nothing for a value that is no
// enumerator. What setters do with texts is told with as::IElement.
class AS_EXPORT IWSOperation : virtual public IOperation {
 public:
  // How a message is encoded.
  enum USE : int {
    USE_LITERAL = 0,
    USE_ENCODED = 1,
  };

  // The binding style.
  enum STYLE : int {
    STYLE_RPC = 0,
    STYLE_DOCUMENT = 1,
  };

  ~IWSOperation() override;
  AS_RTTI(IWSOperation)

  // The headers, as::IWSHeader objects, in document order; never null.
  virtual IList* getHeaders() = 0;

  // The faults, as::IWSFault objects, in document order; never null.
  virtual IList* getFaults() = 0;

  // Adds a header with that direction ("io" for a value that is no enumerator) behind all children
  // of the operation and returns it; the service keeps it. It has no parameters yet. Works on
  // parsed documents as on new ones.
  virtual IWSHeader* addHeader(IWSHeader::BY_TYPE byType) = 0;

  // The same for a fault, which has no direction.
  virtual IWSFault* addFault() = 0;

  // Attribute "inputNamespace": the namespace of the request; empty when absent.
  virtual std::string getInputNamespace() = 0;
  virtual void setInputNamespace(const char* uri) = 0;

  // Attribute "outputNamespace": the namespace of the response; empty when absent.
  virtual std::string getOutputNamespace() = 0;
  virtual void setOutputNamespace(const char* uri) = 0;

  // Attribute "inputUse": USE_LITERAL for "literal", USE_ENCODED for "encoded".
  virtual USE getInputUse() = 0;
  virtual void setInputUse(USE use) = 0;

  // Attribute "outputUse": as "inputUse".
  virtual USE getOutputUse() = 0;
  virtual void setOutputUse(USE use) = 0;

  // Attribute "style": STYLE_RPC for "rpc", STYLE_DOCUMENT for "document".
  virtual STYLE getStyle() = 0;
  virtual void setStyle(STYLE style) = 0;
};

}  // namespace as

#endif  // AS_IWSOPERATION_H_
