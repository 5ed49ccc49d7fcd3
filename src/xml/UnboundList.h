// A list that shows some of the children of an element without being that element's wrapper.
#ifndef XML_UNBOUNDLIST_H_
#define XML_UNBOUNDLIST_H_

#include "xml/List.h"

// A member of the element's wrapper, which the element stays bound to. Holds what Filter::filter
// accepts. The class derived from it adds its identity and takes over the constructor.
template <class Filter>
class UnboundList : virtual public CList {
 public:
  explicit UnboundList(xercesc::DOMElement* element) {
    pointAt(element);
    setFilter(&Filter::filter);
  }
};

#endif  // XML_UNBOUNDLIST_H_
