// A COBOL program: the root element of a data dictionary.
#ifndef COBOL_PROGRAMIMPL_H_
#define COBOL_PROGRAMIMPL_H_

#include <memory>

#include "as/IProgram.h"
#include "xml/List.h"
#include "xml/XMLParser.h"

class CProgramImpl : virtual public as::IProgram, virtual public CElementImpl {
 public:
  explicit CProgramImpl(xercesc::DOMElement* element);
  // Releases the lists, with every wrapper below them, and last the document.
  ~CProgramImpl() override;
  AS_IDENTITY(CProgramImpl)

  std::string getName() override;
  as::IList* getFileSection() override;
  as::IList* getDataItems() override;
  as::IList* getProperties() override;
  as::IList* getEntryPoints() override;

  void collectChildren() override;

  // Hands over the parser that holds the program's document, to live as long as the program.
  void setParser(std::unique_ptr<CXMLParser> parser) { parser_ = std::move(parser); }

 private:
  // Owned; null for a section that the document lacks, and until the children are collected.
  CList* properties_ = nullptr;
  CList* fileSection_ = nullptr;
  CList* dataItems_ = nullptr;
  CList* entryPoints_ = nullptr;
  std::unique_ptr<CXMLParser> parser_;
};

#endif  // COBOL_PROGRAMIMPL_H_
