#include "xml/ParseGrammars.h"

#include <utility>
#include <xercesc/framework/XMLSchemaDescription.hpp>

using xercesc::Grammar;
using xercesc::XMLGrammarDescription;
using xercesc::XMLSchemaDescription;
using xercesc::XMLStringPool;

ParseGrammars::ParseGrammars(xercesc::MemoryManager* memory, std::shared_ptr<SharedSchemas> shared)
    : XMLGrammarPoolImpl(memory),
      shared_(std::move(shared)),
      names_(shared_ == nullptr ? XMLGrammarPoolImpl::getURIStringPool() : shared_->names(),
             memory) {}

ParseGrammars::~ParseGrammars() = default;

Grammar* ParseGrammars::retrieveGrammar(XMLGrammarDescription* description) {
  if (description->getGrammarType() != Grammar::SchemaGrammarType) return nullptr;
  const auto* const schema = static_cast<const XMLSchemaDescription*>(description);
  // None where the parser only asks what there is.
  const auto* const places = schema->getLocationHints();
  if (places == nullptr || places->size() == 0) return nullptr;
  return shared_->grammarFor(schema->getTargetNamespace(), places->elementAt(0));
}

XMLStringPool* ParseGrammars::getURIStringPool() { return &names_; }
