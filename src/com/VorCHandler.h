// Builds the model of a COM service while its document is parsed.
#ifndef COM_VORCHANDLER_H_
#define COM_VORCHANDLER_H_

#include "com/COMFactory.h"
#include "com/COMParameterImpl.h"
#include "com/CSVocabulary.h"
#include "service/SSVocabulary.h"
#include "service/VorSHandler.h"

// What a COM service has of its own; services and operations are plain ones.
struct ComFlavour {
  using Factory = CCOMFactory;
  static constexpr std::span<const XMLCh* const> words = CS::words;
  static constexpr ModelBuilder::ElementWrapping rows[] = {
      {SS::parameter, ModelBuilder::wrapAs<CCOMParameterImpl>},
      {SS::field, ModelBuilder::wrapAs<CCOMParameterImpl>},
  };
};

class CVorCHandler final : public FlavourHandler<ComFlavour> {};

#endif  // COM_VORCHANDLER_H_
