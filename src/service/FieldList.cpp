#include "service/FieldList.h"

AS_DEFINE_IDENTITY1(CFieldList, CList)
