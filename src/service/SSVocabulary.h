// The words of service definitions: element names, attribute names and values.
#ifndef SERVICE_SSVOCABULARY_H_
#define SERVICE_SSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace SS {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "service/SSVocabulary.def"

// All of them.
inline constexpr const XMLCh* words[] = {
#define AS_WORD(constant, text) constant,
#include "service/SSVocabulary.def"
};

}  // namespace SS

#endif  // SERVICE_SSVOCABULARY_H_
