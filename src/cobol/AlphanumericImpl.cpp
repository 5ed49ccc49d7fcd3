#include "cobol/AlphanumericImpl.h"

#include "cobol/DDVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CAlphanumericImpl, as::IAlphanumeric, CDataItemImpl)

namespace {

constexpr WordCode justifications[] = {{DD::right, as::IAlphanumeric::JUSTIFIED_RIGHT}};

}  // namespace

int CAlphanumericImpl::getJustification() {
  return codeOfWord(justifications, wide(DD::justified), JUSTIFIED_LEFT);
}
