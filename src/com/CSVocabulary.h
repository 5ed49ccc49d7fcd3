// The words that COM services add: attribute names and values.
#ifndef COM_CSVOCABULARY_H_
#define COM_CSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace CS {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "com/CSVocabulary.def"

// All of them.
inline constexpr const XMLCh* words[] = {
#define AS_WORD(constant, text) constant,
#include "com/CSVocabulary.def"
};

}  // namespace CS

#endif  // COM_CSVOCABULARY_H_
