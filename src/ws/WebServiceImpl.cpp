#include "ws/WebServiceImpl.h"

AS_DEFINE_IDENTITY2(CWebServiceImpl, as::IWebService, CServiceImpl)
