// A SOAP header of a Web service operation.
#ifndef AS_IWSHEADER_H_
#define AS_IWSHEADER_H_

#include <string>

#include "as/IParameter.h"

namespace as {

class IList;
class IWSParameter;

// An unreadable direction counts as BY_IO, but an unreadable use as none: getUse() answers -1.
class AS_EXPORT IWSHeader : virtual public IElement {
 public:
  // Which of the messages the header travels with: request, response or both.
  enum BY_TYPE : int {
    BY_IN = 0,
    BY_OUT = 1,
    BY_IO = 2,
  };

  // How the header is encoded.
  enum USE : int {
    USE_LITERAL = 0,
    USE_ENCODED = 1,
  };

  ~IWSHeader() override;
  AS_RTTI(IWSHeader)

  // Attribute "byType": BY_IN for "in", BY_OUT for "out", else BY_IO, also when absent.
  virtual BY_TYPE getByType() = 0;

  // Writes attribute "byType": "in", "out", and "io" for every other value.
  virtual void setByType(BY_TYPE byType) = 0;

  // Adds a parameter behind the others and returns it; the service keeps it. The arguments are
  // given to its setByType() (the parameter's own direction), setName() and setOccurs(). Works on
  // parsed documents as on new ones; a missing "parameters" child is added first.
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

#endif  // AS_IWSHEADER_H_
