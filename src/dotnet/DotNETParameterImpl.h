// A parameter or field of a .NET service: adds the .NET value type.
#ifndef DOTNET_DOTNETPARAMETERIMPL_H_
#define DOTNET_DOTNETPARAMETERIMPL_H_

#include <string>

#include "as/IDotNETParameter.h"
#include "service/ParameterImpl.h"

class CDotNETParameterImpl : virtual public as::IDotNETParameter,
                             virtual public CParameterImpl,
                             virtual public as::IDotNETField {
 public:
  explicit CDotNETParameterImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CParameterImpl(element) {}
  AS_IDENTITY(CDotNETParameterImpl)

  TYPE getType() override;
  void setType(TYPE type) override;
  std::string getTypeToString() override;

  // The word of a type. Any other number is a programming error that ends the process.
  static const XMLCh* DataTypeToString(TYPE type);
  // The type of a word; NET_BYTE for every other text.
  static TYPE StringToDataType(const XMLCh* word);
};

#endif  // DOTNET_DOTNETPARAMETERIMPL_H_
