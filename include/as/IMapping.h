// Binds a parameter or field to a COBOL data item or to a special source of the program run.
#ifndef AS_IMAPPING_H_
#define AS_IMAPPING_H_

#include <string>

#include "as/IElement.h"

namespace as {

class IDataItem;

// Attribute "item" holds the dotted path of the data item from the record down, with the subscripts
// of the tables on the way behind it in parentheses: "RECORD.GROUP.ITEM(2,*)". Or it is one of four
// special names. Attribute "subscript" holds the subscripts on the interface's side. Subscripts are
// separated by commas, outermost table first; each is a decimal integer, or "*" for all
// occurrences.
class AS_EXPORT IMapping : virtual public IElement {
 public:
  // What getType() answers.
  enum TYPE : int {
    MAP_DATA_ITEM = 0,
    MAP_COMMAND_LINE = 1,
    MAP_RETURN_CODE = 2,
    MAP_STDIN = 3,
    MAP_STDOUT = 4,
  };

  // The most subscripts that a mapping has: 16, the room that the operations below want.
  static constexpr int MAX_SUBSCRIPTS = 16;

  ~IMapping() override;
  AS_RTTI(IMapping)

  // The data item that "item" names in the service's program; subscripts do not matter, and the
  // first match in document order wins at every level of the path (of several items called FILLER
  // in a group, say). Items of the file section are never found. Null when nothing is found, for a
  // special name, and always while the service has no program. The program keeps it.
  virtual IDataItem* getDataItem() = 0;

  // Maps to `item`: writes its path to "item". Only the path is kept: `item` may be of any program,
  // but only a data item of the service's program is found again by it, no record of a file. For an
  // item in one or more tables (its own OCCURS counts), "*" for each of them goes behind the path
  // and to "subscript". For any other item "subscript" stays as it was, neither removed nor
  // cleared: it may hold the list of an earlier table item. Null writes nothing. An item that has
  // "." or "(" in its name is not found again, or another one is; nor is one that is called like a
  // special name, which is then what "item" holds.
  // REQUIRES: `item` stands in no more than MAX_SUBSCRIPTS tables, and no name on its path holds a
  // "(" with commas behind it. The path of another item is written like any other, but the schemas
  // take no more subscripts, or what looks like them, than readers have room for: such a document
  // may not be read back.
  virtual void setDataItem(IDataItem* item) = 0;

  // The subscripts in "subscript". Sets the first 16 entries of `subscripts` to -1, then stores
  // each number in its entry; a "*" stays -1. Returns how many there are, each "*" counted.
  // `subscripts` must have room for 16 entries; more than 16 are counted but not stored. 0 when the
  // attribute is absent or empty, for a null `subscripts`, and when a subscript is neither "*" nor
  // a number; the entries before that one are stored then all the same.
  virtual int getInterfaceSubscripts(int* subscripts) = 0;

  // The same for the subscripts in parentheses in "item"; 0 also when it has none, or when its
  // first ")" is not its last character.
  virtual int getDataItemSubscripts(int* subscripts) = 0;

  // "item" the way COBOL qualifies names, without subscripts: "ITEM of GROUP of RECORD" for
  // "RECORD.GROUP.ITEM(2,*)"; empty when absent.
  virtual std::string getFullyQualifiedName() = 0;

  // Attribute "item" as it stands; empty when absent.
  virtual std::string getRawMapping() = 0;

  // By the whole text of "item": MAP_COMMAND_LINE for "$command_line", MAP_RETURN_CODE for
  // "$return_code", MAP_STDIN for "$stdin", MAP_STDOUT for "$stdout", else MAP_DATA_ITEM, also when
  // absent. Letter case counts. No operation writes one of its own accord.
  virtual TYPE getType() = 0;
};

}  // namespace as

#endif  // AS_IMAPPING_H_
