#include "ws/HeaderList.h"

AS_DEFINE_IDENTITY1(CHeaderList, CList)
