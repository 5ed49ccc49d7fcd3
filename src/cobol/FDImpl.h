// A file description: an "fd" element.
#ifndef COBOL_FDIMPL_H_
#define COBOL_FDIMPL_H_

#include "as/IFD.h"
#include "xml/ElementImpl.h"
#include "xml/List.h"

class CFDImpl : virtual public as::IFD, virtual public CElementImpl {
 public:
  explicit CFDImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CFDImpl)

  std::string getName() override;
  int getAccessMode() override;
  int getOrganization() override;
  as::IList* getDataItems() override;
  void collectChildren() override;

 private:
  // Null until it is collected. The mode and organization that the document tells are read by
  // nobody.
  CList* dataItems_ = nullptr;
};

#endif  // COBOL_FDIMPL_H_
