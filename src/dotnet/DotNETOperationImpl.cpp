#include "dotnet/DotNETOperationImpl.h"

AS_DEFINE_IDENTITY2(CDotNETOperationImpl, as::IDotNETOperation, COperationImpl)
