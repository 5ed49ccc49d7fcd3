#include "cobol/VorDDHandler.h"

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

// The items of a section or a file belong to no group.
void CVorDDHandler::wrapSection(ModelBuilder& builder, DOMNode* node) {
  static_cast<CVorDDHandler&>(builder).wrap<CDataItemList>(node, static_cast<CGroupImpl*>(nullptr));
}

constinit const ModelBuilder::ElementWrapping CVorDDHandler::rows[] = {
    {DD::properties, wrapAs<CList>},
    {DD::property, wrapAs<CPropertyImpl>},
    {DD::fileSection, wrapAs<CList>},
    {DD::fd, wrapAs<CFDImpl>},
    {DD::dataItems, wrapSection},
    {DD::entryPoints, wrapAs<CList>},
    {DD::group, wrapAs<CGroupImpl>},
    {DD::numeric, wrapAs<CNumericImpl>},
    {DD::alphanumeric, wrapAs<CAlphanumericImpl>},
    {DD::numericEdited, wrapAs<CNumericEditedImpl>},
    {DD::pointer, wrapAs<CDataItemImpl>},
    {DD::national, wrapAs<CNationalImpl>},
    {DD::cobolObject, wrapAs<CDataItemImpl>},
    {DD::index, wrapAs<CDataItemImpl>},
    {DD::numericCondition, wrapAs<CConditionImpl>},
    {DD::alphanumericCondition, wrapAs<CConditionImpl>},
    {DD::numericRange, wrapAs<CConditionValueImpl>},
    {DD::numericConstant, wrapAs<CConditionValueImpl>},
    {DD::alphanumericRange, wrapAs<CConditionValueImpl>},
    {DD::alphanumericConstant, wrapAs<CConditionValueImpl>},
    {DD::entryPoint, wrapAs<CEntryPointImpl>},
    {DD::parameter, wrapAs<CLinkageItemImpl>},
    {DD::program, wrapAs<CProgramImpl>},
};

void CVorDDHandler::newElement(DOMNode* node) {
  if (!wrapByName(rows, node)) AS_ASSERT(false, "VorDDHandler");
}

bool CVorDDHandler::takes(const DOMNode* node) const { return rowFor(node, rows) != nullptr; }

void CVorDDHandler::tellNames(NamePool& names) const { names.expect(DD::words); }

bool CVorDDHandler::keepsBlanks() const { return false; }

void CVorDDHandler::startDocument(DOMNode* root) {
  if (!XMLString::equals(root->getNamespaceURI(), XSDNS::ddURI)) {
    throw as::CASInvalidNamespaceException();
  }
}

void CVorDDHandler::endParse(DOMDocument* document) {
  program_ = complete<CProgramImpl>(document);
  isWhole_ = true;
}

std::unique_ptr<CProgramImpl> CVorDDHandler::takeProgram() { return take(program_); }
