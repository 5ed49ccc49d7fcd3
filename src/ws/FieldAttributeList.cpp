#include "ws/FieldAttributeList.h"

AS_DEFINE_IDENTITY1(CFieldAttributeList, CList)
