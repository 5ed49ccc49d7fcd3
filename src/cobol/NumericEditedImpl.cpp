#include "cobol/NumericEditedImpl.h"

#include "cobol/DDVocabulary.h"

AS_DEFINE_IDENTITY2(CNumericEditedImpl, as::INumericEdited, CDataItemImpl)

int CNumericEditedImpl::getDigits() { return integer(DD::digits); }

bool CNumericEditedImpl::isBlankWhenZero() { return truth(DD::blankWhenZero); }

int CNumericEditedImpl::getAlignment() const { return integer(DD::alignment); }
