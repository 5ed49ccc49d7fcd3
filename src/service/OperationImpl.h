// An operation of a service: an "operation" element.
#ifndef SERVICE_OPERATIONIMPL_H_
#define SERVICE_OPERATIONIMPL_H_

#include <string>

#include "as/IOperation.h"
#include "as/IProgram.h"
#include "xml/List.h"

class COperationImpl : virtual public as::IOperation, virtual public CElementImpl {
 public:
  explicit COperationImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(COperationImpl)

  std::string getName() override;
  void setName(const char* name) override;
  as::IEntryPoint* getEntryPoint() override;
  bool setEntryPoint(as::IEntryPoint* entryPoint) override;
  as::IHiddenParameter* addHiddenParameter(as::IDataItem* dataItem, const char* value) override;
  as::IList* getHiddenParameters() override;
  as::IParameter* addParameter(as::IParameter::BY_TYPE byType, const char* name,
                               int occurs) override;
  as::IList* getParameters() override;
  int getExitPoints() override;
  void setExitPoints(unsigned int count) override;

  void collectChildren() override;

  // Appends a parameter of this document; a null one is ignored.
  void addParameter(as::IParameter* parameter);
  // The program's first entry point of that name, null when there is none and for a null program.
  static as::IEntryPoint* GetEntryPoint(as::IProgram* program, const std::string& name);

 private:
  // Null for a list that the document lacks, and until the children are collected.
  CList* parameters_ = nullptr;
  CList* hiddenParameters_ = nullptr;
};

#endif  // SERVICE_OPERATIONIMPL_H_
