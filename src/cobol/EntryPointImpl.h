// An entry point: an "entryPoint" element. Every child element is one of its parameters.
#ifndef COBOL_ENTRYPOINTIMPL_H_
#define COBOL_ENTRYPOINTIMPL_H_

#include "as/IEntryPoint.h"
#include "xml/List.h"

class CEntryPointImpl : virtual public as::IEntryPoint, virtual public CList {
 public:
  explicit CEntryPointImpl(xercesc::DOMElement* element) : CElementImpl(element), CList(element) {}
  AS_IDENTITY(CEntryPointImpl)

  std::string getName() override;
  int getCallConv() override;
};

#endif  // COBOL_ENTRYPOINTIMPL_H_
