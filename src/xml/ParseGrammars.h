// The grammars of one parse: those that are made for it, and those that it may share.
#ifndef XML_PARSEGRAMMARS_H_
#define XML_PARSEGRAMMARS_H_

#include <memory>
#include <utility>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

#include "xml/GrammarMemory.h"
#include "xml/NamespaceNames.h"
#include "xml/SharedSchemas.h"

// A grammar that is shared is there from when the document has said where its schema is, and not
// before: a document that does not is refused, whatever others have been read.
class ParseGrammars final : public xercesc::XMLGrammarPoolImpl {
 public:
  // `shared` is null for nothing.
  ParseGrammars(xercesc::MemoryManager* memory, std::shared_ptr<SharedSchemas> shared);
  ~ParseGrammars() override;

  // Null for a parse that shares nothing.
  SharedSchemas* shared() const { return shared_.get(); }
  // What the parser asks for names.
  NamespaceNames& names() { return names_; }

  // Called only where the parser has been told to use what is here: throws
  // SharedSchemas::NotShared for a schema that it needs and that is not.
  xercesc::Grammar* retrieveGrammar(xercesc::XMLGrammarDescription* description) override;
  xercesc::XMLStringPool* getURIStringPool() override;

 private:
  const std::shared_ptr<SharedSchemas> shared_;
  NamespaceNames names_;  // Behind those of what is shared.
};

// Them with the memory of those that are made, for a parser to derive from virtually: made in front
// of the parser and destroyed behind it.
struct GrammarStore {
  explicit GrammarStore(std::shared_ptr<SharedSchemas> shared = nullptr)
      : grammars(&memory, std::move(shared)) {}

  GrammarMemory memory;
  ParseGrammars grammars;
};

#endif  // XML_PARSEGRAMMARS_H_
