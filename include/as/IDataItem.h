// One COBOL data description entry: what groups and elementary items have in common.
#ifndef AS_IDATAITEM_H_
#define AS_IDATAITEM_H_

#include "as/IElement.h"

namespace as {

class IGroup;
class IList;

// An absent integer attribute reads as 0; what the schema lets stand in one is 0 to 2,147,483,647.
// A boolean attribute is true for the text "true" in upper or lower case or any mix of them, and
// false when absent. An absent text is empty. Data items are read only.
class AS_EXPORT IDataItem : virtual public IElement {
 public:
  // What getDataType() answers.
  enum TYPE : int {
    TYPE_GROUP = 0,
    TYPE_NUMERIC = 1,
    TYPE_ALPHANUMERIC = 2,
    TYPE_OBJECT = 3,
    TYPE_POINTER = 4,
    TYPE_NATIONAL = 5,
    TYPE_NUMERIC_EDITED = 6,
    TYPE_ALPHANUMERIC_EDITED = 7,
    TYPE_INDEX = 8,
  };

  ~IDataItem() override;
  AS_RTTI(IDataItem)

  // The category of the item, one of TYPE, by the name of its element. Two of them are never
  // answered for an item of a dictionary: TYPE_OBJECT, since an object reference ("cobolObject")
  // counts as TYPE_ALPHANUMERIC, and TYPE_ALPHANUMERIC_EDITED, since the schema has no such items.
  // Groups, numeric, alphanumeric, national and numeric edited items cast to the interface of their
  // category; object references, pointers and indexes cast to as::IDataItem only.
  virtual int getDataType() = 0;

  // Attribute "name": the COBOL data name, "FILLER" for an unnamed item.
  virtual std::string getName() = 0;

  // Attribute "picture": the PICTURE string; empty when absent.
  virtual std::string getPicture() = 0;

  // Attribute "length": the size of one occurrence of the item in bytes.
  virtual int getLength() = 0;

  // Attribute "minOccurs": the least number of occurrences of a table item.
  virtual int getMinOccurs() = 0;

  // Attribute "maxOccurs": the greatest number of occurrences of a table item; 0 for an item that
  // has no OCCURS clause of its own.
  virtual int getMaxOccurs() = 0;

  // Attribute "offset": the distance in bytes from the start of the record (the level 01 item) to
  // the item's first occurrence.
  virtual int getOffset() = 0;

  // Attribute "line": the line of the entry in the program's source, counted from 1.
  virtual int getLine() = 0;

  // The object of the OCCURS DEPENDING ON clause: the item that attribute "odo" names. The name is
  // that of a top-level item, or dotted from the record down with every group on the way
  // (RECORD.GROUP.COUNT); "(" and what follows it are dropped. It is looked for among the program's
  // data items only, also for an item of the file section; the first in document order wins. Null
  // when the attribute is absent or nothing of that name is found. The program keeps it.
  virtual IDataItem* getODO() = 0;

  // True when attribute "odo" is present and not empty, found or not.
  virtual bool hasODO() = 0;

  // Attribute "linkage": the item stands in the linkage section.
  virtual bool isLinkage() = 0;

  // Attribute "sync": the item is SYNCHRONIZED.
  virtual bool isSync() = 0;

  // Attribute "redefines": the entry has a REDEFINES clause.
  virtual bool isRedefined() = 0;

  // Attribute "renames": the entry is a RENAMES entry (level 66).
  virtual bool isRenamed() = 0;

  // The numeric condition names of the item, as::ICondition objects, in document order; never null.
  // Alphanumeric conditions are no members.
  virtual IList* getConditions() = 0;

  // The group that holds the item, which owns it; null for an item that stands directly in a
  // section or a file.
  virtual IGroup* getParent() = 0;
};

}  // namespace as

#endif  // AS_IDATAITEM_H_
