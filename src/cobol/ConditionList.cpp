#include "cobol/ConditionList.h"

AS_DEFINE_IDENTITY2(CConditionList, as::IList, CList)
