#include "cobol/VorDDHandler.h"

#include <utility>
#include <xercesc/util/XMLString.hpp>

#include "as/CASInvalidNamespaceException.h"
#include "cobol/AlphanumericImpl.h"
#include "cobol/ConditionImpl.h"
#include "cobol/ConditionValueImpl.h"
#include "cobol/DDVocabulary.h"
#include "cobol/DataItemImpl.h"
#include "cobol/DataItemList.h"
#include "cobol/EntryPointImpl.h"
#include "cobol/FDImpl.h"
#include "cobol/GroupImpl.h"
#include "cobol/LinkageItemImpl.h"
#include "cobol/NationalImpl.h"
#include "cobol/NumericEditedImpl.h"
#include "cobol/NumericImpl.h"
#include "cobol/PropertyImpl.h"
#include "xml/Assertion.h"
#include "xml/List.h"
#include "xml/Vocabulary.h"

using xercesc::DOMDocument;
using xercesc::DOMNode;
using xercesc::XMLString;

void CVorDDHandler::newElement(DOMNode* node) {
  // The order of comparison: the names have no order of their own, but containers come first.
  static constexpr struct {
    const XMLCh* localName;
    void (*wrapElement)(CVorDDHandler&, DOMNode*);
  } wrappers[] = {
#define DD_WRAPPER(name, Wrapper)                                                              \
  {                                                                                            \
    DD::name, [](CVorDDHandler& handler, DOMNode* element) { handler.wrap<Wrapper>(element); } \
  }
      DD_WRAPPER(properties, CList),
      DD_WRAPPER(property, CPropertyImpl),
      DD_WRAPPER(fileSection, CList),
      DD_WRAPPER(fd, CFDImpl),
      {DD::dataItems,
       [](CVorDDHandler& handler, DOMNode* element) {
         handler.wrap<CDataItemList>(element, static_cast<CGroupImpl*>(nullptr));
       }},
      DD_WRAPPER(entryPoints, CList),
      DD_WRAPPER(group, CGroupImpl),
      DD_WRAPPER(numeric, CNumericImpl),
      DD_WRAPPER(alphanumeric, CAlphanumericImpl),
      DD_WRAPPER(numericEdited, CNumericEditedImpl),
      DD_WRAPPER(pointer, CDataItemImpl),
      DD_WRAPPER(national, CNationalImpl),
      DD_WRAPPER(cobolObject, CDataItemImpl),
      DD_WRAPPER(index, CDataItemImpl),
      DD_WRAPPER(numericCondition, CConditionImpl),
      DD_WRAPPER(alphanumericCondition, CConditionImpl),
      DD_WRAPPER(numericRange, CConditionValueImpl),
      DD_WRAPPER(numericConstant, CConditionValueImpl),
      DD_WRAPPER(alphanumericRange, CConditionValueImpl),
      DD_WRAPPER(alphanumericConstant, CConditionValueImpl),
      DD_WRAPPER(entryPoint, CEntryPointImpl),
      DD_WRAPPER(parameter, CLinkageItemImpl),
      DD_WRAPPER(program, CProgramImpl),
#undef DD_WRAPPER
  };
  const XMLCh* const localName = node->getLocalName();
  for (const auto& row : wrappers) {
    if (XMLString::equals(row.localName, localName)) return row.wrapElement(*this, node);
  }
  AS_ASSERT(false, "VorDDHandler");
}

void CVorDDHandler::startDocument(DOMNode* root) {
  if (!XMLString::equals(root->getNamespaceURI(), XSDNS::ddURI)) {
    throw as::CASInvalidNamespaceException();
  }
}

void CVorDDHandler::endParse(DOMDocument* document) {
  program_ = as::interface_cast<CProgramImpl>(bindRoot(document));
  if (program_ != nullptr) program_->collectChildren();
}

std::unique_ptr<CProgramImpl> CVorDDHandler::takeProgram() {
  if (program_ != nullptr) program_->setOwned();
  return std::unique_ptr<CProgramImpl>(std::exchange(program_, nullptr));
}
