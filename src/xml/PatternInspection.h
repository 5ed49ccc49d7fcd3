// Tells the patterns of schemas that are matched in one go from those that may take for ever.
#ifndef XML_PATTERNINSPECTION_H_
#define XML_PATTERNINSPECTION_H_

#include <xercesc/util/XercesDefs.hpp>

// The parser matches by trying every way a pattern may go, recursively: a short one may take years
// for a short value, or more stack than there is. True for a pattern that leaves no choice: at
// every place the next character of the value decides how it goes on, nothing that may be empty is
// repeated, and only single characters are repeated without an end. What is not understood is taken
// for one that leaves a choice.
bool leavesNoChoice(const XMLCh* pattern);

#endif  // XML_PATTERNINSPECTION_H_
