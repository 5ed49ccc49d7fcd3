// The XML Schema view of a value in a Web service: a parameter, a field or a field attribute.
#ifndef AS_IWSFIELD_H_
#define AS_IWSFIELD_H_

#include <string>

#include "as/IField.h"

namespace as {

class IWSParameter;

// All model objects that have this interface are as::IWSParameter objects too; the setters of
// namespace and forms are there.
//
// With a reference to a parameter type definition (attribute "ref", see as::IField) every getter
// here answers for a definition: getNamespace() for the nearest one, all others for the one at the
// end of the chain. The setters write to the element itself.
class AS_EXPORT IWSField : virtual public IField {
 public:
  // The data type: the built-in types of XML Schema, a repeated group and an XML fragment.
  enum TYPE : int {
    WS_BYTE = 0,
    WS_UNSIGNED_BYTE = 1,
    WS_SHORT = 2,
    WS_UNSIGNED_SHORT = 3,
    WS_INT = 4,
    WS_UNSIGNED_INT = 5,
    WS_LONG = 6,
    WS_UNSIGNED_LONG = 7,
    WS_FLOAT = 8,
    WS_DOUBLE = 9,
    WS_DECIMAL = 10,
    WS_INTEGER = 11,
    WS_STRING = 12,
    WS_ARRAY = 13,
    WS_XML = 14,
  };

  // Whether names are written with their namespace.
  enum FORM : int {
    FORM_QUALIFIED = 0,
    FORM_UNQUALIFIED = 1,
  };

  ~IWSField() override;
  AS_RTTI(IWSField)

  // Attribute "dataType", one of TYPE: XML Schema's own name of the type ("unsignedByte"), "Array"
  // or "XML". Compared exactly; -1, which is no enumerator, when absent or of any other text: also
  // for the types of new .NET services, which the schema lets stand here ("Int32").
  virtual TYPE getType() = 0;

  // The text of "dataType" for getType().
  // REQUIRES: getType() is not -1. Else the process is aborted: ask it first.
  virtual std::string getTypeToString() = 0;

  // Writes attribute "dataType" of the element itself.
  // REQUIRES: `type` is an enumerator. Else the process is aborted, also by -1 from getType().
  virtual void setType(TYPE type) = 0;

  // The field attributes, as::IWSParameter objects, in document order; never null. They are values
  // that travel as XML attributes of this one.
  virtual IList* getFieldAttributes() = 0;

  // Adds a field attribute of that name with 0 occurrences behind the others and returns it; the
  // service keeps it. Null, and nothing changes, when there is a reference. A null name counts as
  // an empty one. With a "ref" that finds nothing the field attributes are shown all the same, read
  // or added.
  // A field attribute takes fields and field attributes too; they are written and read back, but
  // XML attributes have no parts, so nothing can come of them.
  // REQUIRES: elements are nested no deeper than can be written, 2,048 levels.
  virtual IWSParameter* addFieldAttribute(const char* name) = 0;

  // For a "parameter" element: attribute "namespace"; empty when absent.
  // For any other element (a field, a field attribute): always empty, whatever its own attribute
  // says; such an element has a namespace only through a reference.
  // With a reference, both: attribute "namespace" of the nearest definition.
  virtual std::string getNamespace() = 0;

  // For a "parameter" element: attribute "elementForm", FORM_QUALIFIED for "qualified",
  // FORM_UNQUALIFIED for "unqualified", else -1, which is no enumerator.
  // For any other element: always -1, whatever its own attribute says.
  // With a reference, both: that of the definition at the end of the chain.
  virtual FORM getElementForm() = 0;

  // The same by attribute "attributeForm".
  virtual FORM getAttributeForm() = 0;
};

}  // namespace as

#endif  // AS_IWSFIELD_H_
