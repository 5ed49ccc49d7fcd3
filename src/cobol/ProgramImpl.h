// A COBOL program: the root element of a data dictionary.
#ifndef COBOL_PROGRAMIMPL_H_
#define COBOL_PROGRAMIMPL_H_

#include <memory>

#include "as/IProgram.h"
#include "xml/List.h"
#include "xml/WrapperPool.h"
#include "xml/XMLParser.h"

// Deleted, it releases every other wrapper of its document, and last the document.
class CProgramImpl : virtual public as::IProgram, virtual public CElementImpl {
 public:
  explicit CProgramImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CProgramImpl)

  std::string getName() override;
  as::IList* getFileSection() override;
  as::IList* getDataItems() override;
  as::IList* getProperties() override;
  as::IList* getEntryPoints() override;

  void collectChildren() override;

  // Hand over what lives as long as the program: the parser that holds its document, and the
  // wrappers.
  void setParser(std::unique_ptr<CXMLParser> parser) { parser_ = std::move(parser); }
  void setPool(std::unique_ptr<WrapperPool> pool) { pool_ = std::move(pool); }

 private:
  // Null for a section that the document lacks, and until the children are collected.
  CList* properties_ = nullptr;
  CList* fileSection_ = nullptr;
  CList* dataItems_ = nullptr;
  CList* entryPoints_ = nullptr;
  std::unique_ptr<CXMLParser> parser_;  // Outlives the pool: wrappers stand on the document.
  std::unique_ptr<WrapperPool> pool_;
};

#endif  // COBOL_PROGRAMIMPL_H_
