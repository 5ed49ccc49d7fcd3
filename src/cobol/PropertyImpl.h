// A "property" element of a dictionary or a service.
#ifndef COBOL_PROPERTYIMPL_H_
#define COBOL_PROPERTYIMPL_H_

#include "as/IProperty.h"
#include "xml/ElementImpl.h"

class CPropertyImpl : virtual public as::IProperty, virtual public CElementImpl {
 public:
  explicit CPropertyImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CPropertyImpl)

  std::string getValue() override;
  std::string getName() override;
};

#endif  // COBOL_PROPERTYIMPL_H_
