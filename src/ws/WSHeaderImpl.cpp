#include "ws/WSHeaderImpl.h"

#include "service/ByTypeWords.h"

AS_DEFINE_IDENTITY2(CWSHeaderImpl, as::IWSHeader, CElementImpl)

as::IWSHeader::BY_TYPE CWSHeaderImpl::getByType() {
  return byTypeOfWord<as::IWSHeader>(wide(SS::byType));
}

void CWSHeaderImpl::setByType(BY_TYPE byType) { write(SS::byType, ByTypeToString(byType)); }

const XMLCh* CWSHeaderImpl::ByTypeToString(BY_TYPE byType) {
  return wordOfByType<as::IWSHeader>(byType);
}
