// The data items of a section, a file or a group.
#ifndef COBOL_DATAITEMLIST_H_
#define COBOL_DATAITEMLIST_H_

#include "cobol/DDVocabulary.h"
#include "xml/List.h"
#include "xml/LocalNameFilter.h"

class CGroupImpl;

// Knows neither "alphanumericEdited" nor "object": such elements are members of no list.
class CDataItemNodeFilter
    : public NamedNodeFilter<CDataItemNodeFilter, DD::numeric, DD::alphanumeric, DD::group,
                             DD::numericEdited, DD::pointer, DD::national, DD::cobolObject,
                             DD::index> {};

class CDataItemList : virtual public as::IList, virtual public CList {
 public:
  // `group` is the group that the list is a member of, and whose element stays bound to it; null
  // for the list of a section or a file, which wraps an element of its own.
  CDataItemList(xercesc::DOMElement* element, CGroupImpl* group);
  AS_IDENTITY(CDataItemList)

  // Makes the list's group the parent of the data item. Anything but a data item is a programming
  // error that ends the process.
  void onAddChild(CElementImpl* child) override;

 private:
  CGroupImpl* group_;
};

#endif  // COBOL_DATAITEMLIST_H_
