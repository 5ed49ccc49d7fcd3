// A parameter, field or field attribute of a Web service: adds the XML Schema view of the value.
#ifndef WS_WSPARAMETERIMPL_H_
#define WS_WSPARAMETERIMPL_H_

#include <string>

#include "as/IWSParameter.h"
#include "service/ParameterImpl.h"
#include "ws/FieldAttributeList.h"

class CWSParameterImpl : virtual public as::IWSParameter,
                         virtual public CParameterImpl,
                         virtual public as::IWSField {
 public:
  explicit CWSParameterImpl(xercesc::DOMElement* element)
      : CElementImpl(element), CParameterImpl(element), fieldAttributes_(element) {}
  AS_IDENTITY(CWSParameterImpl)

  // "For param" and "for field" differ on purpose: a parameter has a namespace and forms of its
  // own, anything nested has them only through the type definition that it refers to. The ones
  // without either choose by the element's name.
  std::string getNamespaceForParam() override;
  std::string getNamespaceForField();
  std::string getNamespace() override;
  void setNamespace(const char* uri) override;
  FORM getElementFormForParam() override;
  FORM getElementFormForField();
  FORM getElementForm() override;
  void setElementForm(FORM form) override;
  FORM getAttributeFormForParam() override;
  FORM getAttributeFormForField();
  FORM getAttributeForm() override;
  void setAttributeForm(FORM form) override;

  void collectChildren() override;
  as::IList* getFieldAttributes() override;
  as::IWSParameter* addFieldAttribute(const char* name) override;
  TYPE getType() override;
  void setType(TYPE type) override;
  std::string getTypeToString() override;

  // The word of a type. Any other number is a programming error that ends the process.
  static const XMLCh* DataTypeToString(TYPE type);
  // The type of a word; -1 for every other text.
  static TYPE StringToDataType(const XMLCh* word);

 private:
  // The type definition that the element refers to; null when it refers to none.
  CWSParameterImpl* definition() const;
  bool isParameter() const;
  // The form that the attribute tells, at the end of the references.
  FORM form(const XMLCh* attribute);

  CFieldAttributeList fieldAttributes_;
};

#endif  // WS_WSPARAMETERIMPL_H_
