// Whatever can hold fields and mappings: a parameter, or a member of a structured parameter.
#ifndef AS_IFIELD_H_
#define AS_IFIELD_H_

#include <string>

#include "as/IElement.h"

namespace as {

class IDataItem;
class IList;
class IMapping;

// A parameter or field may refer to a parameter type definition of the service (attribute "ref").
// Occurrences, fields and mappings are then the definition's, and none can be added here. A "ref"
// that names no definition makes no reference, but the element's own fields and mappings are not
// shown then either. The setters write to the element itself, reference or not; a null text counts
// as an empty one.
//
// The adding operations work on parsed documents as on new ones. What they create goes behind its
// siblings, is of the document's flavour and belongs to the service.
class AS_EXPORT IField : virtual public IElement {
 public:
  ~IField() override;
  AS_RTTI(IField)

  // Attribute "name"; empty when absent. Always the element's own, reference or not.
  virtual std::string getName() = 0;
  virtual void setName(const char* name) = 0;

  // Attribute "occurs": the number of occurrences, of the definition when there is a reference.
  // 0 when absent or no number; a number that no int holds reads as the nearest one that does.
  virtual int getOccurs() = 0;

  // Writes the number in decimal to the element itself, so that with a reference getOccurs() does
  // not show it. Nothing is checked.
  virtual void setOccurs(int occurs) = 0;

  // The fields, as::IField objects, in document order, of the definition when there is a
  // reference; never null, possibly empty.
  virtual IList* getChildren() = 0;

  // True when getChildren() has members.
  virtual bool hasChildren();

  // The mappings, as::IMapping objects, in document order, of the definition when there is a
  // reference; never null, possibly empty.
  virtual IList* getMappings() = 0;

  // Adds a field of that name and number of occurrences behind the others and returns it; null,
  // and nothing changes, when there is a reference.
  virtual IField* addField(const char* name, int occurs) = 0;

  // Adds a mapping to `item` (see IMapping::setDataItem) behind the others and returns it; null,
  // and nothing changes, when there is a reference or `item` is null. A missing "mappings" child is
  // added first.
  virtual IMapping* addMapping(IDataItem* item) = 0;

  // The names on the way here, from the outside in: the operation's (where the way starts in an
  // operation's parameters), the parameter's, those of the fields around this one, and its own.
  // They are joined with nothing between them: field F of parameter P of operation OP is "OPPF".
  virtual std::string getQualifiedName() = 0;
};

}  // namespace as

#endif  // AS_IFIELD_H_
