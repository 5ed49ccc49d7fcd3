#include "java/JavaOperationImpl.h"

#include "java/JSVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CJavaOperationImpl, as::IJavaOperation, COperationImpl)

namespace {

constexpr WordCode transactionTypes[] = {
    {JS::never, as::IJavaOperation::TRANS_NEVER},
    {JS::notSupported, as::IJavaOperation::TRANS_NOT_SUPPORTED},
    {JS::supports, as::IJavaOperation::TRANS_SUPPORTS},
    {JS::requiresNew, as::IJavaOperation::TRANS_REQUIRES_NEW},
    {JS::requires_, as::IJavaOperation::TRANS_REQUIRES},
    {JS::mandatory, as::IJavaOperation::TRANS_MANDATORY},
};

}  // namespace

as::IJavaOperation::TRANS_TYPE CJavaOperationImpl::getTransactionType() {
  return static_cast<TRANS_TYPE>(
      codeOfWord(transactionTypes, wide(JS::transactionType), TRANS_NEVER));
}

void CJavaOperationImpl::setTransactionType(TRANS_TYPE type) {
  const XMLCh* const word = wordOfCode(transactionTypes, type);
  write(JS::transactionType, word == nullptr ? JS::never : word);
}
