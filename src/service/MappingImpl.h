// A mapping of a parameter or field to a data item or a special source: a "mapping" element.
#ifndef SERVICE_MAPPINGIMPL_H_
#define SERVICE_MAPPINGIMPL_H_

#include <string>

#include "as/IDataItem.h"
#include "as/IField.h"
#include "as/IMapping.h"
#include "xml/ElementImpl.h"

// The dotted path of an item from its record down, "A.B.C"; empty for null.
std::string GetNormalizedName(as::IDataItem* item);

class CMappingImpl : virtual public as::IMapping, virtual public CElementImpl {
 public:
  explicit CMappingImpl(xercesc::DOMElement* element) : CElementImpl(element) {}
  AS_IDENTITY(CMappingImpl)

  as::IDataItem* getDataItem() override;
  void setDataItem(as::IDataItem* item) override;
  int getInterfaceSubscripts(int* subscripts) override;
  int getDataItemSubscripts(int* subscripts) override;
  std::string getFullyQualifiedName() override;
  std::string getRawMapping() override;
  TYPE getType() override;

  // The parameter or field that the mapping belongs to; null for a hidden parameter.
  as::IField* getField() const { return field_; }
  void setField(as::IField* field) { field_ = field; }

 private:
  as::IField* field_ = nullptr;
};

#endif  // SERVICE_MAPPINGIMPL_H_
