// A list that shows some of the children of an element without being that element's wrapper.
#ifndef XML_UNBOUNDLIST_H_
#define XML_UNBOUNDLIST_H_

#include "xml/List.h"

// Constructed with no element and then pointed at its owner's, so that the element stays bound to
// the owner. Holds what Filter::filter accepts. The class derived from it constructs its virtual
// bases CElementImpl and CList with null.
template <class Filter>
class UnboundList : virtual public CList {
 protected:
  explicit UnboundList(xercesc::DOMElement* element) : CElementImpl(nullptr), CList(nullptr) {
    pointAt(element);
    setFilter(&Filter::filter);
  }
};

#endif  // XML_UNBOUNDLIST_H_
