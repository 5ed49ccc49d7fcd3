// Builds the model of a Java service while its document is parsed.
#ifndef JAVA_VORJHANDLER_H_
#define JAVA_VORJHANDLER_H_

#include "java/JSVocabulary.h"
#include "java/JavaFactory.h"
#include "java/JavaOperationImpl.h"
#include "java/JavaParameterImpl.h"
#include "service/SSVocabulary.h"
#include "service/VorSHandler.h"

// What a Java service has of its own; the service element is a plain one.
struct JavaFlavour {
  using Factory = CJavaFactory;
  static constexpr std::span<const XMLCh* const> words = JS::words;
  static constexpr ModelBuilder::ElementWrapping rows[] = {
      {SS::parameter, ModelBuilder::wrapAs<CJavaParameterImpl>},
      {SS::field, ModelBuilder::wrapAs<CJavaParameterImpl>},
      {SS::operation, ModelBuilder::wrapAs<CJavaOperationImpl>},
  };
};

class CVorJHandler final : public FlavourHandler<JavaFlavour> {};

#endif  // JAVA_VORJHANDLER_H_
