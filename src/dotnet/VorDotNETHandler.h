// Builds the model of a .NET service while its document is parsed.
#ifndef DOTNET_VORDOTNETHANDLER_H_
#define DOTNET_VORDOTNETHANDLER_H_

#include "dotnet/DotNETFactory.h"
#include "dotnet/DotNETImpl.h"
#include "dotnet/DotNETOperationImpl.h"
#include "dotnet/DotNETParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/VorSHandler.h"

// What a .NET service has of its own.
struct DotNETFlavour {
  using Factory = CDotNETFactory;
  static constexpr std::span<const XMLCh* const> words = {};
  static constexpr ModelBuilder::ElementWrapping rows[] = {
      {SS::field, ModelBuilder::wrapAs<CDotNETParameterImpl>},
      {SS::parameter, ModelBuilder::wrapAs<CDotNETParameterImpl>},
      {SS::service, ModelBuilder::wrapAs<CDotNETImpl>},
      {SS::operation, ModelBuilder::wrapAs<CDotNETOperationImpl>},
  };
};

class CVorDotNETHandler final : public FlavourHandler<DotNETFlavour> {};

#endif  // DOTNET_VORDOTNETHANDLER_H_
