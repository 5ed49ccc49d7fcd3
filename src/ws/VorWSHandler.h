// Builds the model of a Web service while its document is parsed.
#ifndef WS_VORWSHANDLER_H_
#define WS_VORWSHANDLER_H_

#include "service/SSVocabulary.h"
#include "service/VorSHandler.h"
#include "ws/WSFaultImpl.h"
#include "ws/WSHeaderImpl.h"
#include "ws/WSOperationImpl.h"
#include "ws/WSParameterImpl.h"
#include "ws/WSSVocabulary.h"
#include "ws/WebServiceFactory.h"
#include "ws/WebServiceImpl.h"

// What a Web service has of its own.
struct WebFlavour {
  using Factory = CWebServiceFactory;
  static constexpr std::span<const XMLCh* const> words = WSS::words;
  static constexpr ModelBuilder::ElementWrapping rows[] = {
      {SS::field, ModelBuilder::wrapAs<CWSParameterImpl>},
      {SS::parameter, ModelBuilder::wrapAs<CWSParameterImpl>},
      {WSS::fieldAttribute, ModelBuilder::wrapAs<CWSParameterImpl>},
      {SS::service, ModelBuilder::wrapAs<CWebServiceImpl>},
      {SS::operation, ModelBuilder::wrapAs<CWSOperationImpl>},
      {WSS::header, ModelBuilder::wrapAs<CWSHeaderImpl>},
      {WSS::fault, ModelBuilder::wrapAs<CWSFaultImpl>},
  };
};

class CVorWSHandler final : public FlavourHandler<WebFlavour> {};

#endif  // WS_VORWSHANDLER_H_
