#include "ws/WSOperationImpl.h"

#include "service/ServiceFactory.h"
#include "ws/UseWords.h"
#include "ws/WSFaultImpl.h"
#include "ws/WSHeaderImpl.h"
#include "ws/WSSVocabulary.h"
#include "xml/WordTable.h"

AS_DEFINE_IDENTITY2(CWSOperationImpl, as::IWSOperation, COperationImpl)

namespace {

constexpr WordCode styles[] = {
    {WSS::rpc, as::IWSOperation::STYLE_RPC},
    {WSS::document, as::IWSOperation::STYLE_DOCUMENT},
};

}  // namespace

as::IList* CWSOperationImpl::getHeaders() { return &headers_; }

as::IList* CWSOperationImpl::getFaults() { return &faults_; }

as::IWSHeader* CWSOperationImpl::addHeader(as::IWSHeader::BY_TYPE byType) {
  CServiceFactory* const factory = getFactory();
  if (factory == nullptr) return nullptr;
  auto* const header = as::interface_cast<CWSHeaderImpl>(factory->createHeader());
  if (header == nullptr) return nullptr;
  header->setByType(byType);
  headers_.addChild(header->getElement());
  return header;
}

as::IWSFault* CWSOperationImpl::addFault() {
  CServiceFactory* const factory = getFactory();
  if (factory == nullptr) return nullptr;
  auto* const fault = as::interface_cast<CWSFaultImpl>(factory->createFault());
  if (fault == nullptr) return nullptr;
  faults_.addChild(fault->getElement());
  return fault;
}

std::string CWSOperationImpl::getInputNamespace() { return text(WSS::inputNamespace); }

void CWSOperationImpl::setInputNamespace(const char* uri) { write(WSS::inputNamespace, uri); }

std::string CWSOperationImpl::getOutputNamespace() { return text(WSS::outputNamespace); }

void CWSOperationImpl::setOutputNamespace(const char* uri) { write(WSS::outputNamespace, uri); }

as::IWSOperation::USE CWSOperationImpl::getInputUse() {
  return useOfWord<as::IWSOperation>(wide(WSS::inputUse));
}

void CWSOperationImpl::setInputUse(USE use) {
  write(WSS::inputUse, wordOfUse<as::IWSOperation>(use));
}

as::IWSOperation::USE CWSOperationImpl::getOutputUse() {
  return useOfWord<as::IWSOperation>(wide(WSS::outputUse));
}

void CWSOperationImpl::setOutputUse(USE use) {
  write(WSS::outputUse, wordOfUse<as::IWSOperation>(use));
}

as::IWSOperation::STYLE CWSOperationImpl::getStyle() {
  return static_cast<STYLE>(codeOfWord(styles, wide(WSS::style), -1));
}

void CWSOperationImpl::setStyle(STYLE style) { write(WSS::style, wordOfCode(styles, style)); }

void CWSOperationImpl::collectChildren() {
  COperationImpl::collectChildren();
  headers_.addChildren();
  faults_.addChildren();
}
