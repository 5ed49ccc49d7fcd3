// A parameter of a Web service, of a SOAP header or of a SOAP fault; also a field and a field
// attribute of one.
#ifndef AS_IWSPARAMETER_H_
#define AS_IWSPARAMETER_H_

#include <string>

#include "as/IParameter.h"
#include "as/IWSField.h"

namespace as {

// The plain getters are those of as::IWSField and go by the kind of the element; the "ForParam"
// getters take every element for a parameter. With a reference to a parameter type definition both
// answer for the definition.
//
// The setters write to the element itself. So a getter does not show what was set when there is a
// reference, and the plain one never does on a field or a field attribute.
class AS_EXPORT IWSParameter : virtual public IParameter, virtual public IWSField {
 public:
  ~IWSParameter() override;
  AS_RTTI(IWSParameter)

  // Attribute "namespace", of the nearest definition when there is a reference; empty when absent.
  virtual std::string getNamespaceForParam() = 0;

  // See IWSField. The body here is a stand-in that answers an empty text; objects of the model have
  // their own.
  std::string getNamespace() override;

  // Writes attribute "namespace". What setters do with texts is told with as::IElement.
  virtual void setNamespace(const char* uri) = 0;

  // Attribute "elementForm": FORM_QUALIFIED for "qualified", FORM_UNQUALIFIED for "unqualified",
  // else -1, which is no enumerator. With a reference that of the definition at the end of the
  // chain.
  virtual FORM getElementFormForParam() = 0;

  // See IWSField. The body here is a stand-in that answers -1; objects of the model have their own.
  FORM getElementForm() override;

  // Writes attribute "elementForm"; a value that is no enumerator writes nothing.
  virtual void setElementForm(FORM form) = 0;

  // The same three for attribute "attributeForm".
  virtual FORM getAttributeFormForParam() = 0;
  FORM getAttributeForm() override;
  virtual void setAttributeForm(FORM form) = 0;
};

}  // namespace as

#endif  // AS_IWSPARAMETER_H_
