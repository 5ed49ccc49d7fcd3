// A COBOL program: the root element of a data dictionary.
#ifndef COBOL_PROGRAMIMPL_H_
#define COBOL_PROGRAMIMPL_H_

#include <memory>

#include "as/IProgram.h"
#include "cobol/DataItemIndex.h"
#include "cobol/NameIndex.h"
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

  // `program` as one of the library's own; null for one of a client's making and for null.
  static CProgramImpl* own(as::IProgram* program);

  // The entry of the data items of that name below those of `around` (see DataItemIndex), and the
  // entry points by their names. Nothing changes a program, so what is needed for this is made
  // once, when it is first asked for; where memory runs out on the way, nothing is kept of it.
  const NameIndex::Entry* dataItems(const NameIndex::Entry* around, NameIndex::View name);
  const NameIndex& entryPointsByName();

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
  // Null until asked for.
  std::unique_ptr<DataItemIndex> dataItemsByName_;
  std::unique_ptr<const NameIndex> entryPointsByName_;
  std::unique_ptr<CXMLParser> parser_;  // Outlives the pool: wrappers stand on the document.
  std::unique_ptr<WrapperPool> pool_;
};

#endif  // COBOL_PROGRAMIMPL_H_
