// A service: the root element of a service definition.
#ifndef SERVICE_SERVICEIMPL_H_
#define SERVICE_SERVICEIMPL_H_

#include <memory>
#include <string>

#include "as/IProgram.h"
#include "as/IService.h"
#include "cobol/NameIndex.h"
#include "service/ServiceFactory.h"
#include "xml/DocumentPointer.h"
#include "xml/List.h"
#include "xml/WrapperPool.h"
#include "xml/XMLParser.h"

class CParameterImpl;

// Deleted, it releases the program, the factory, every other wrapper of its document, and last the
// document.
class CServiceImpl : virtual public as::IService, virtual public CElementImpl {
 public:
  explicit CServiceImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CServiceImpl)

  std::string getNamespaceURI() override;
  as::IList* getProperties() override;
  as::IList* getParameterTypeDefs() override;
  as::IList* getOperations() override;
  as::IOperation* addOperation(const char* name, as::IEntryPoint* entryPoint) override;
  std::string getName() override;
  void setName(const char* name) override;
  TYPE getImplementation() override;
  as::IProgram* getProgram() override;
  std::string getDDFilename() override;
  void setDDFilename(const char* fileName) override;
  std::string getExitProgramName() override;
  void setExitProgramName(const char* name) override;

  // May be called again: it finds the same lists.
  void collectChildren() override;

  // Takes ownership of the program and writes its name and the file name of its dictionary. A null
  // program is a programming error that ends the process.
  void setProgram(as::IProgram* program);
  // Appends an operation of this document; a null one is ignored.
  void addOperation(as::IOperation* operation);
  // Writes the word of the type; leaves the attribute alone for any other number.
  void setImplementation(TYPE type);
  // The type that `word` names; TYPE_WS for every other text.
  static TYPE GetImplementation(const XMLCh* word);
  // The first parameter type definition of that name, null when there is none.
  CParameterImpl* getPrototypeByName(const std::string& name);

  // The factory of the document's flavour.
  CServiceFactory* getServiceFactory() const { return factory_.get(); }
  void setFactory(std::unique_ptr<CServiceFactory> factory) { factory_ = std::move(factory); }
  // Hand over what lives as long as the service: the wrappers, and what holds the document, a
  // parsed one's parser or a new one itself.
  void setPool(std::unique_ptr<WrapperPool> pool) { pool_ = std::move(pool); }
  void setParser(std::unique_ptr<CXMLParser> parser) { parser_ = std::move(parser); }
  void setDocument(DocumentPointer document) { document_ = std::move(document); }
  // REQUIRES: it has been handed over.
  WrapperPool& getPool() const { return *pool_; }

 private:
  // Finds definitions fast while the children are collected, when nobody can change a name: one
  // look-up for each reference of the document, however many definitions there are.
  struct DefinitionIndex {
    NameIndex byName;
    int definitions = 0;  // How many are in it; the list grows meanwhile.
  };
  CParameterImpl* definitionAt(int index) const;

  // Null unless the children are being collected.
  std::unique_ptr<DefinitionIndex> index_;
  // Null for a list that the document lacks, and until the children are collected.
  CList* parameterTypeDefs_ = nullptr;
  CList* operations_ = nullptr;
  CList* properties_ = nullptr;
  // Destroyed from the last to the first: everything stands on the document.
  std::unique_ptr<CXMLParser> parser_;
  DocumentPointer document_;
  std::unique_ptr<WrapperPool> pool_;
  std::unique_ptr<CServiceFactory> factory_;
  std::unique_ptr<as::IProgram> program_;
};

#endif  // SERVICE_SERVICEIMPL_H_
