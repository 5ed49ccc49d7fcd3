#include "ws/FaultList.h"

AS_DEFINE_IDENTITY1(CFaultList, CList)
