// Whatever can hold fields and mappings: a parameter, or a member of a structured parameter.
#ifndef AS_IFIELD_H_
#define AS_IFIELD_H_

#include <string>

#include "as/IElement.h"

namespace as {

class IDataItem;
class IList;
class IMapping;

// A parameter or field may refer to a parameter type definition of the service (attribute "ref"),
// which may refer to a further one, and so on. What such an element answers comes
//  - from itself: name, direction (as::IParameter), whether it is the return value
//    (as::ICOMParameter);
//  - from the nearest definition, the one that "ref" names: occurrences, and the namespace of a Web
//    service (as::IWSField);
//  - from the definition at the end of the chain: fields, mappings, data type, and of a Web service
//    forms and field attributes.
// Nothing can be added to it. Fields and mappings added to the definition at the end show in all
// that lead there. The setters write to the element itself, so that only what comes from itself
// shows what was set.
//
// A reference finds the first definition of its name among those in front of the element, and the
// one that it stands inside. So definitions may be recursive through their fields (a list node that
// holds a field of its own type), and a walk over the fields that does not remember the definitions
// it is in may never end. A definition's own "ref" never leads back to it.
//
// A "ref" that finds nothing makes no reference: everything comes from the element itself. But the
// fields and mappings that the document has there are not shown; those that are added are shown,
// and written, but no more once they are read again.
//
// The adding operations work on parsed documents as on new ones. What they create goes behind its
// siblings, is of the document's flavour and belongs to the service.
class AS_EXPORT IField : virtual public IElement {
 public:
  ~IField() override;
  AS_RTTI(IField)

  // Attribute "name"; empty when absent. Always the element's own, reference or not. What setters
  // do with texts is told with as::IElement.
  virtual std::string getName() = 0;
  virtual void setName(const char* name) = 0;

  // Attribute "occurs": the number of occurrences, of the nearest definition when there is a
  // reference. 0 when absent or no number; a number that no int holds reads as the nearest one that
  // does.
  virtual int getOccurs() = 0;

  // Writes the number in decimal to the element itself, so that with a reference getOccurs() does
  // not show it. Nothing is checked.
  virtual void setOccurs(int occurs) = 0;

  // The fields, as::IField objects, in document order, of the definition at the end when there is a
  // reference; never null, possibly empty.
  virtual IList* getChildren() = 0;

  // True when getChildren() has members.
  virtual bool hasChildren();

  // The mappings, as::IMapping objects, in document order, of the definition at the end when there
  // is a reference; never null, possibly empty.
  virtual IList* getMappings() = 0;

  // Adds a field of that name and number of occurrences (see setName() and setOccurs()) behind the
  // others and returns it; null, and nothing changes, when there is a reference.
  // REQUIRES: elements are nested no deeper than can be written, 2,048 levels.
  virtual IField* addField(const char* name, int occurs) = 0;

  // Adds a mapping to `item` behind the others and returns it; null, and nothing changes, when
  // there is a reference or `item` is null. A missing "mappings" child is added first.
  // REQUIRES: what IMapping::setDataItem does of `item`; and that the mapping, two levels below the
  // element, is nested no deeper than can be written.
  virtual IMapping* addMapping(IDataItem* item) = 0;

  // The names on the way here, from the outside in: the operation's (where the way starts in an
  // operation's parameters, and the document writes its elements without a prefix), the
  // parameter's, those of the fields around this one, and its own. They are joined with nothing
  // between them: field F of parameter P of operation OP is "OPPF". Inside a field attribute (see
  // as::IWSField) the way starts behind that: its field F is "F". References have no part in it:
  // a field reached through one is named by where it stands, inside the definition. An operation
  // added to a document with a prefix has none before it has been written and read again.
  virtual std::string getQualifiedName() = 0;
};

}  // namespace as

#endif  // AS_IFIELD_H_
