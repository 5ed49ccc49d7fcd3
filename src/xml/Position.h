// Positions in documents, as messages tell them.
#ifndef XML_POSITION_H_
#define XML_POSITION_H_

#include <algorithm>
#include <climits>
#include <xercesc/util/XercesDefs.hpp>

// The line or column as a message holds it.
inline int position(XMLFileLoc at) {
  return static_cast<int>(std::min<XMLFileLoc>(at, static_cast<XMLFileLoc>(INT_MAX)));
}

#endif  // XML_POSITION_H_
