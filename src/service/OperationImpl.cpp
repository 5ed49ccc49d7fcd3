#include "service/OperationImpl.h"

#include "as/IEntryPoint.h"
#include "as/IService.h"
#include "cobol/NamedItems.h"
#include "cobol/ProgramImpl.h"
#include "service/HiddenParameterImpl.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/ServiceFactory.h"
#include "xml/XStr.h"

AS_DEFINE_IDENTITY2(COperationImpl, as::IOperation, CElementImpl)

std::string COperationImpl::getName() { return text(SS::name); }

void COperationImpl::setName(const char* name) { write(SS::name, name); }

as::IEntryPoint* COperationImpl::getEntryPoint() {
  auto* const service = as::interface_cast<as::IService>(rootOf(getElement()));
  if (service == nullptr) return nullptr;
  return GetEntryPoint(service->getProgram(), text(SS::entryPoint));
}

bool COperationImpl::setEntryPoint(as::IEntryPoint* entryPoint) {
  if (entryPoint == nullptr) return false;
  // An operation that is bound to an entry point of its program stays bound to it.
  if (getEntryPoint() != nullptr) return false;
  write(SS::entryPoint, entryPoint->getName());
  return true;
}

// The arguments have no part in it: the caller sets item and value on what is returned.
as::IHiddenParameter* COperationImpl::addHiddenParameter(as::IDataItem* /*dataItem*/,
                                                         const char* /*value*/) {
  CHiddenParameterImpl* const hidden = getFactory()->createHiddenParameter();
  // In front of everything else, whatever a flavour keeps in an operation.
  CServiceFactory::append(*this, hiddenParameters_, SS::hiddenParameters,
                          getElement()->getFirstChild(), hidden->getElement());
  return hidden;
}

as::IList* COperationImpl::getHiddenParameters() { return CList::orEmpty(hiddenParameters_); }

as::IParameter* COperationImpl::addParameter(as::IParameter::BY_TYPE byType, const char* name,
                                             int occurs) {
  CParameterImpl* const parameter = getFactory()->createParameter();
  parameter->setName(name);
  parameter->setByType(byType);
  parameter->setOccurs(occurs);
  addParameter(parameter);
  return parameter;
}

as::IList* COperationImpl::getParameters() { return CList::orEmpty(parameters_); }

int COperationImpl::getExitPoints() { return integer(SS::exitPoints); }

void COperationImpl::setExitPoints(unsigned int count) {
  write(SS::exitPoints, std::to_string(count));
}

void COperationImpl::collectChildren() {
  collectNamedList(SS::hiddenParameters, hiddenParameters_);
  collectNamedList(SS::parameters, parameters_);
}

void COperationImpl::addParameter(as::IParameter* parameter) {
  auto* const wrapper = as::interface_cast<CElementImpl>(parameter);
  if (wrapper == nullptr) return;
  // Behind the hidden parameters, in front of what a flavour keeps in an operation.
  const CElementImpl* const hidden = hiddenParameters_;
  CServiceFactory::append(
      *this, parameters_, SS::parameters,
      hidden == nullptr ? getElement()->getFirstChild() : hidden->getElement()->getNextSibling(),
      wrapper->getElement());
}

as::IEntryPoint* COperationImpl::GetEntryPoint(as::IProgram* program, const std::string& name) {
  if (program == nullptr) return nullptr;
  CXStr wide(name);
  if (CProgramImpl* const own = CProgramImpl::own(program)) {
    return as::interface_cast<as::IEntryPoint>(own->entryPointsByName().first(wide));
  }
  return NamedItems<as::IEntryPoint>(program->getEntryPoints(), wide).next();
}
