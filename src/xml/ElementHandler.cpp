#include "xml/ElementHandler.h"

using xercesc::DOMNode;

void CElementHandler::startElement(DOMNode* /*node*/) {}

void CElementHandler::startDocument(DOMNode* /*root*/) {}

bool CElementHandler::takes(const DOMNode* /*node*/) const { return true; }

void CElementHandler::tellNames(NamePool& /*names*/) const {}

bool CElementHandler::keepsBlanks() const { return true; }
