#include "service/ServiceImpl.h"

#include <xercesc/dom/DOMDocument.hpp>

#include "as/IEntryPoint.h"
#include "as/IOperation.h"
#include "cobol/ProgramImpl.h"
#include "service/OperationImpl.h"
#include "service/ParameterImpl.h"
#include "service/SSVocabulary.h"
#include "xml/Assertion.h"
#include "xml/WordTable.h"
#include "xml/XStr.h"

AS_DEFINE_IDENTITY2(CServiceImpl, as::IService, CElementImpl)

namespace {

// clang-format off
constexpr WordCode implementations[] = {
    {SS::java, as::IService::TYPE_JAVA},
    {SS::xd, as::IService::TYPE_XD},
    {SS::com, as::IService::TYPE_COM},
    {SS::dotnet, as::IService::TYPE_DOTNET},
    {SS::ws, as::IService::TYPE_WS},
};
// clang-format on

// The part of a path or URI behind its last directory separator; all of it when nothing is left
// there.
std::string fileNameOf(const std::string& uri) {
  const std::size_t base = uri.rfind('/') + 1;  // npos wraps to 0: there is no directory.
  return base == uri.size() ? uri : uri.substr(base);
}

}  // namespace

std::string CServiceImpl::getNamespaceURI() {
  // The document node's own, which has none: clients rely on the empty answer.
  return CXStr(getElement()->getOwnerDocument()->getNamespaceURI(), false);
}

as::IList* CServiceImpl::getProperties() { return CList::orEmpty(properties_); }

as::IList* CServiceImpl::getParameterTypeDefs() { return CList::orEmpty(parameterTypeDefs_); }

as::IList* CServiceImpl::getOperations() { return CList::orEmpty(operations_); }

as::IOperation* CServiceImpl::addOperation(const char* name, as::IEntryPoint* entryPoint) {
  COperationImpl* const operation = getFactory()->createOperation();
  operation->setName(name);
  operation->setEntryPoint(entryPoint);
  addOperation(operation);
  return operation;
}

std::string CServiceImpl::getName() { return text(SS::name); }

void CServiceImpl::setName(const char* name) { write(SS::name, name); }

as::IService::TYPE CServiceImpl::getImplementation() {
  return GetImplementation(wide(SS::implementation));
}

as::IProgram* CServiceImpl::getProgram() { return program_.get(); }

std::string CServiceImpl::getDDFilename() { return text(SS::dataDictFilename); }

void CServiceImpl::setDDFilename(const char* fileName) { write(SS::dataDictFilename, fileName); }

std::string CServiceImpl::getExitProgramName() { return text(SS::exitProgramName); }

void CServiceImpl::setExitProgramName(const char* name) { write(SS::exitProgramName, name); }

void CServiceImpl::collectChildren() {
  index_ = std::make_unique<DefinitionIndex>();
  try {
    // The definitions first: what follows refers to them.
    collectNamedList(SS::parameterTypeDefs, parameterTypeDefs_);
    collectNamedList(SS::properties, properties_);
    collectNamedList(SS::operations, operations_);
  } catch (...) {
    index_.reset();
    throw;
  }
  index_.reset();
}

void CServiceImpl::setProgram(as::IProgram* pProgram) {
  AS_ASSERT(pProgram, "ServiceImpl");
  write(SS::programName, pProgram->getName());
  if (auto* const wrapper = as::interface_cast<CElementImpl>(pProgram)) {
    const std::string uri =
        CXStr(wrapper->getElement()->getOwnerDocument()->getDocumentURI(), false);
    write(SS::dataDictFilename, fileNameOf(uri));
  }
  // Last: should the writing fail, the program is still the caller's.
  if (program_.get() != pProgram) program_.reset(pProgram);
}

void CServiceImpl::addOperation(as::IOperation* operation) {
  auto* const wrapper = as::interface_cast<CElementImpl>(operation);
  if (wrapper == nullptr) return;
  CServiceFactory::append(*this, operations_, SS::operations, nullptr, wrapper->getElement());
}

void CServiceImpl::setImplementation(TYPE type) {
  write(SS::implementation, wordOfCode(implementations, type));
}

as::IService::TYPE CServiceImpl::GetImplementation(const XMLCh* word) {
  return static_cast<TYPE>(codeOfWord(implementations, word, TYPE_WS));
}

CParameterImpl* CServiceImpl::getPrototypeByName(const std::string& name) {
  CXStr wanted(name);
  const XMLCh* const wideName = wanted;
  const int count = parameterTypeDefs_ == nullptr ? 0 : parameterTypeDefs_->getLength();
  if (index_) {
    for (int& i = index_->definitions; i < count; i++) {
      if (CParameterImpl* const found = definitionAt(i)) {
        const XMLCh* const itsName = parameterTypeDefs_->getNode(i)->getAttribute(SS::name);
        index_->byName.add(nullptr, itsName, found);
      }
    }
    return as::interface_cast<CParameterImpl>(index_->byName.first(wideName));
  }
  if (count == 0) return nullptr;
  for (int i = parameterTypeDefs_->find(SS::name, wideName); i >= 0;
       i = parameterTypeDefs_->find(SS::name, wideName, i + 1)) {
    if (CParameterImpl* const found = definitionAt(i)) return found;
  }
  return nullptr;
}

CParameterImpl* CServiceImpl::definitionAt(int index) const {
  return as::interface_cast<CParameterImpl>(parameterTypeDefs_->getElement(index));
}

// What every wrapper of a service document reaches through its root. Declared low, with the
// wrapper; at home here, where services are known.
CServiceImpl* CElementImpl::getService() const {
  return as::interface_cast<CServiceImpl>(rootOf(getElement()));
}

CServiceFactory* CElementImpl::getFactory() const {
  CServiceImpl* const service = getService();
  return service == nullptr ? nullptr : service->getServiceFactory();
}
