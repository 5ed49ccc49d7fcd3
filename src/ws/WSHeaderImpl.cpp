#include "ws/WSHeaderImpl.h"

AS_DEFINE_IDENTITY2(CWSHeaderImpl, as::IWSHeader, CElementImpl)

namespace {

constexpr WordCode byTypes[] = {
    {SS::in, as::IWSHeader::BY_IN},
    {SS::out, as::IWSHeader::BY_OUT},
};

}  // namespace

CWSHeaderImpl::CWSHeaderImpl(xercesc::DOMElement* element)
    : CElementImpl(element), WSMessagePart(element) {}

CWSHeaderImpl::~CWSHeaderImpl() = default;

as::IWSHeader::BY_TYPE CWSHeaderImpl::getByType() {
  return static_cast<BY_TYPE>(codeOfWord(byTypes, wide(SS::byType), BY_IO));
}

void CWSHeaderImpl::setByType(BY_TYPE byType) { write(SS::byType, ByTypeToString(byType)); }

const XMLCh* CWSHeaderImpl::ByTypeToString(BY_TYPE byType) {
  const XMLCh* const word = wordOfCode(byTypes, byType);
  return word == nullptr ? SS::io : word;
}
