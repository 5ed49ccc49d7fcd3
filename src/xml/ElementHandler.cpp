#include "xml/ElementHandler.h"

using xercesc::DOMNode;

void CElementHandler::startElement(DOMNode* /*node*/) {}

void CElementHandler::startDocument(DOMNode* /*root*/) {}
