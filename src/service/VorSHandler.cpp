#include "service/VorSHandler.h"

#include "cobol/PropertyImpl.h"
#include "service/HiddenParameterImpl.h"
#include "service/MappingImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "xml/Assertion.h"

using xercesc::DOMDocument;
using xercesc::DOMNode;

constinit const ModelBuilder::ElementWrapping CVorSHandler::rows[] = {
    {SS::field, wrapAs<CParameterImpl>},
    {SS::parameter, wrapAs<CParameterImpl>},
    {SS::operations, wrapAs<CList>},
    {SS::parameters, wrapAs<CList>},
    {SS::hiddenParameter, wrapAs<CHiddenParameterImpl>},
    {SS::operation, wrapAs<COperationImpl>},
    {SS::service, wrapAs<CServiceImpl>},
    {SS::mapping, wrapAs<CMappingImpl>},
    {SS::hiddenParameters, wrapAs<CList>},
    {SS::mappings, wrapAs<CList>},
    {SS::parameterTypeDefs, wrapAs<CList>},
    {SS::properties, wrapAs<CList>},
    {SS::property, wrapAs<CPropertyImpl>},
};

void CVorSHandler::newElement(DOMNode* node) {
  if (!wrapByName(rows, node)) AS_ASSERT(false, "VorSHandler");
}

bool CVorSHandler::takes(const DOMNode* node) const { return rowFor(node, rows) != nullptr; }

void CVorSHandler::tellNames(NamePool& names) const { names.expect(SS::words); }

void CVorSHandler::endParse(DOMDocument* document) { setService(complete<CServiceImpl>(document)); }

std::unique_ptr<CServiceImpl> CVorSHandler::takeService() { return take(service_); }
