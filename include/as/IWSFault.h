// A SOAP fault of a Web service operation.
#ifndef AS_IWSFAULT_H_
#define AS_IWSFAULT_H_

#include <string>

#include "as/IParameter.h"

namespace as {

class IList;
class IWSParameter;

class AS_EXPORT IWSFault : virtual public IElement {
 public:
  // How the fault is encoded.
  enum USE : int {
    USE_LITERAL = 0,
    USE_ENCODED = 1,
  };

  ~IWSFault() override;
  AS_RTTI(IWSFault)

  // Adds a parameter behind the others and returns it; the service keeps it. The arguments are
  // given to its setByType(), setName() and setOccurs(). Works on parsed documents as on new ones;
  // a missing "parameters" child is added first.
  virtual IWSParameter* addParameter(IParameter::BY_TYPE byType, const char* name, int occurs) = 0;

  // The parameters, as::IWSParameter objects, in document order; never null.
  virtual IList* getParameters() = 0;

  // Attribute "namespace"; empty when absent.
  virtual std::string getNamespace() = 0;

  // Writes the attribute. What setters do with texts is told with as::IElement.
  virtual void setNamespace(const char* uri) = 0;

  // Attribute "use": USE_LITERAL for "literal", USE_ENCODED for "encoded", else -1, which is no
  // enumerator.
  virtual USE getUse() = 0;

  // Writes attribute "use"; a value that is no enumerator writes nothing.
  virtual void setUse(USE use) = 0;
};

}  // namespace as

#endif  // AS_IWSFAULT_H_
