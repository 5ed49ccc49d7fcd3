#include "dotnet/DotNETImpl.h"

AS_DEFINE_IDENTITY2(CDotNETImpl, as::IDotNET, CServiceImpl)
