#include "ws/WSParameterImpl.h"

#include <xercesc/util/XMLString.hpp>

#include "service/SSVocabulary.h"
#include "service/ServiceFactory.h"
#include "ws/WSSVocabulary.h"
#include "xml/Assertion.h"
#include "xml/WordTable.h"
#include "xml/XStr.h"

AS_DEFINE_IDENTITY3(CWSParameterImpl, as::IWSParameter, CParameterImpl, as::IWSField)

namespace {

constexpr as::IWSField::FORM noForm = static_cast<as::IWSField::FORM>(-1);

constexpr WordCode forms[] = {
    {WSS::qualified, as::IWSField::FORM_QUALIFIED},
    {WSS::unqualified, as::IWSField::FORM_UNQUALIFIED},
};

// clang-format off
constexpr WordCode dataTypes[] = {
    {WSS::byte, as::IWSField::WS_BYTE},
    {WSS::unsignedByte, as::IWSField::WS_UNSIGNED_BYTE},
    {WSS::short_, as::IWSField::WS_SHORT},
    {WSS::unsignedShort, as::IWSField::WS_UNSIGNED_SHORT},
    {WSS::int_, as::IWSField::WS_INT},
    {WSS::unsignedInt, as::IWSField::WS_UNSIGNED_INT},
    {WSS::long_, as::IWSField::WS_LONG},
    {WSS::unsignedLong, as::IWSField::WS_UNSIGNED_LONG},
    {WSS::float_, as::IWSField::WS_FLOAT},
    {WSS::double_, as::IWSField::WS_DOUBLE},
    {WSS::integer, as::IWSField::WS_INTEGER},
    {WSS::decimal, as::IWSField::WS_DECIMAL},
    {WSS::string, as::IWSField::WS_STRING},
    {WSS::Array, as::IWSField::WS_ARRAY},
    {WSS::XML, as::IWSField::WS_XML},
};
// clang-format on

}  // namespace

std::string CWSParameterImpl::getNamespaceForParam() {
  const CWSParameterImpl* const from = definition();
  return (from == nullptr ? this : from)->text(WSS::namespace_);
}

std::string CWSParameterImpl::getNamespaceForField() {
  const CWSParameterImpl* const from = definition();
  return from == nullptr ? std::string() : from->text(WSS::namespace_);
}

std::string CWSParameterImpl::getNamespace() {
  return isParameter() ? getNamespaceForParam() : getNamespaceForField();
}

void CWSParameterImpl::setNamespace(const char* uri) { write(WSS::namespace_, uri); }

as::IWSField::FORM CWSParameterImpl::getElementFormForParam() { return form(WSS::elementForm); }

as::IWSField::FORM CWSParameterImpl::getElementFormForField() {
  return getReference() == nullptr ? noForm : form(WSS::elementForm);
}

as::IWSField::FORM CWSParameterImpl::getElementForm() {
  return isParameter() ? getElementFormForParam() : getElementFormForField();
}

void CWSParameterImpl::setElementForm(FORM form) {
  write(WSS::elementForm, wordOfCode(forms, form));
}

as::IWSField::FORM CWSParameterImpl::getAttributeFormForParam() { return form(WSS::attributeForm); }

as::IWSField::FORM CWSParameterImpl::getAttributeFormForField() {
  return getReference() == nullptr ? noForm : form(WSS::attributeForm);
}

as::IWSField::FORM CWSParameterImpl::getAttributeForm() {
  return isParameter() ? getAttributeFormForParam() : getAttributeFormForField();
}

void CWSParameterImpl::setAttributeForm(FORM form) {
  write(WSS::attributeForm, wordOfCode(forms, form));
}

void CWSParameterImpl::collectChildren() {
  CParameterImpl::collectChildren();
  // Where "ref" names a definition, too: the list is what the document holds.
  fieldAttributes_.addChildren();
}

as::IList* CWSParameterImpl::getFieldAttributes() {
  return &as::interface_cast<CWSParameterImpl>(source())->fieldAttributes_;
}

as::IWSParameter* CWSParameterImpl::addFieldAttribute(const char* name) {
  if (getReference() != nullptr) return nullptr;
  CServiceFactory* const factory = getFactory();
  if (factory == nullptr) return nullptr;
  auto* const attribute = as::interface_cast<CWSParameterImpl>(factory->createFieldAttribute());
  if (attribute == nullptr) return nullptr;
  attribute->setName(name);
  attribute->setOccurs(0);
  fieldAttributes_.addChild(attribute->getElement());
  return attribute;
}

as::IWSField::TYPE CWSParameterImpl::getType() {
  return StringToDataType(wideAtSource(WSS::dataType));
}

void CWSParameterImpl::setType(TYPE type) { write(WSS::dataType, DataTypeToString(type)); }

std::string CWSParameterImpl::getTypeToString() {
  return CXStr(DataTypeToString(getType()), false);
}

const XMLCh* CWSParameterImpl::DataTypeToString(TYPE type) {
  const XMLCh* const word = wordOfCode(dataTypes, type);
  if (word != nullptr) return word;
  // Clients' log watchers match this message to the letter: what stands in for line and signature
  // never changes, wherever the check itself may move.
  assertionFailed("false", "WSParameterImpl", 82,
                  "static const XMLCh* CWSParameterImpl::DataTypeToString(as::IWSField::TYPE)");
}

as::IWSField::TYPE CWSParameterImpl::StringToDataType(const XMLCh* word) {
  return static_cast<TYPE>(codeOfWord(dataTypes, word, -1));
}

CWSParameterImpl* CWSParameterImpl::definition() const {
  return as::interface_cast<CWSParameterImpl>(getReference());
}

bool CWSParameterImpl::isParameter() const {
  return xercesc::XMLString::equals(localName(), SS::parameter);
}

as::IWSField::FORM CWSParameterImpl::form(const XMLCh* attribute) {
  return static_cast<FORM>(codeOfWord(forms, wideAtSource(attribute), noForm));
}
