// A data item: what all kinds have in common, and the whole of pointer, object and index items.
#ifndef COBOL_DATAITEMIMPL_H_
#define COBOL_DATAITEMIMPL_H_

#include "as/IDataItem.h"
#include "cobol/ConditionList.h"
#include "xml/ElementImpl.h"

class CGroupImpl;

class CDataItemImpl : virtual public as::IDataItem, virtual public CElementImpl {
 public:
  explicit CDataItemImpl(xercesc::DOMElement* element)
      : CElementImpl(element), conditions_(element) {}
  AS_IDENTITY(CDataItemImpl)

  int getDataType() override;
  std::string getName() override;
  std::string getPicture() override;
  int getLength() override;
  int getMinOccurs() override;
  int getMaxOccurs() override;
  int getOffset() override;
  int getLine() override;
  as::IDataItem* getODO() override;
  bool hasODO() override;
  bool isLinkage() override;
  bool isSync() override;
  bool isRedefined() override;
  bool isRenamed() override;
  as::IList* getConditions() override;
  as::IGroup* getParent() override;

  void collectChildren() override;

  // Called by the list that takes the item in; null for one that no group owns.
  void setParent(CGroupImpl* parent) { parent_ = parent; }

 private:
  CConditionList conditions_;
  CGroupImpl* parent_ = nullptr;
};

#endif  // COBOL_DATAITEMIMPL_H_
