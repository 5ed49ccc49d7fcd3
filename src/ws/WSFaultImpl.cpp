#include "ws/WSFaultImpl.h"

AS_DEFINE_IDENTITY2(CWSFaultImpl, as::IWSFault, CElementImpl)
