// A parameter of an operation, or a field inside one: a "parameter" or "field" element.
#ifndef SERVICE_PARAMETERIMPL_H_
#define SERVICE_PARAMETERIMPL_H_

#include <string>

#include "as/IParameter.h"
#include "as/IProgram.h"
#include "service/FieldList.h"
#include "xml/List.h"

class CParameterImpl : virtual public as::IParameter,
                       virtual public as::IField,
                       virtual public CElementImpl {
 public:
  explicit CParameterImpl(xercesc::DOMElement* element) : CElementImpl(element), fields_(element) {}
  AS_IDENTITY(CParameterImpl)

  std::string getName() override;
  void setName(const char* name) override;
  int getOccurs() override;
  void setOccurs(int count) override;
  as::IList* getChildren() override;
  as::IList* getMappings() override;
  as::IField* addField(const char* name, int occurs) override;
  as::IMapping* addMapping(as::IDataItem* dataItem) override;
  std::string getQualifiedName() override;
  BY_TYPE getByType() override;
  void setByType(BY_TYPE byType) override;
  as::IParameter* getReferenceType() override;

  // Resolves the reference to a type definition, once; definitions that come later, or that are
  // added afterwards, are not found.
  void collectChildren() override;

  // "in" and "out" for BY_IN and BY_OUT, "io" for everything else.
  static const XMLCh* ByTypeToString(BY_TYPE byType);
  // A dotted name in COBOL's order of qualification: "A.B.C" becomes "C of B of A". Subscripts are
  // dropped.
  static std::string GetFullyQualifiedName(const std::string& path);
  // The data item that a dotted name leads to; see findDataItem().
  static as::IDataItem* GetDataItem(const std::string& path, as::IProgram* program);

 protected:
  // The type definition that the element refers to; null when it refers to none.
  CParameterImpl* getReference() const { return reference_; }
  // What tells of the element: the definition at the end of the references that start here, or the
  // object itself when it refers to none. Documents may hold chains of any length: none is followed
  // twice.
  CParameterImpl* source() { return source_; }
  // The value of an attribute of that object's element.
  const XMLCh* wideAtSource(const XMLCh* attribute);

 private:
  CFieldList fields_;
  CList* mappings_ = nullptr;
  CParameterImpl* reference_ = nullptr;
  CParameterImpl* source_ = this;
};

#endif  // SERVICE_PARAMETERIMPL_H_
