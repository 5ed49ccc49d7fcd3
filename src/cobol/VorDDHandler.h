// Builds the model of a data dictionary while its document is parsed.
#ifndef COBOL_VORDDHANDLER_H_
#define COBOL_VORDDHANDLER_H_

#include "cobol/ProgramImpl.h"
#include "xml/ModelBuilder.h"

class CVorDDHandler final : public ModelBuilder {
 public:
  // Wraps the element by its local name alone. A name that it does not take is a programming error
  // that ends the process: the parser has let nothing else through.
  void newElement(xercesc::DOMNode* node) override;
  // Throws as::CASInvalidNamespaceException unless the root is in the dictionary namespace.
  void startDocument(xercesc::DOMNode* root) override;
  void endParse(xercesc::DOMDocument* document) override;
  bool takes(const xercesc::DOMNode* node) const override;
  void tellNames(NamePool& names) const override;
  // No: dictionaries are never written, and nothing that reads one can see them. As nodes they take
  // about as long to make as the wrappers.
  bool keepsBlanks() const override;

  // The program, null until endParse() and when the root is none. The handler owns it until the
  // caller takes it with takeProgram().
  CProgramImpl* getProgram() const { return program_; }
  std::unique_ptr<CProgramImpl> takeProgram();
  // Whether endParse() has done its work: a document whose root is no program is whole, too.
  bool isWhole() const { return isWhole_; }

 private:
  static const ElementWrapping rows[];
  static void wrapSection(ModelBuilder& builder, xercesc::DOMNode* node);

  CProgramImpl* program_ = nullptr;
  bool isWhole_ = false;
};

#endif  // COBOL_VORDDHANDLER_H_
