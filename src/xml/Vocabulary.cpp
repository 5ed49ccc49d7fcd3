#include "xml/Vocabulary.h"

const XMLCh APIDATA_KEY[] = u"ASAPI";
