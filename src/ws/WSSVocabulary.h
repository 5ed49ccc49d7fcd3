// The words that Web services add: element names, attribute names and values.
#ifndef WS_WSSVOCABULARY_H_
#define WS_WSSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace WSS {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "ws/WSSVocabulary.def"

// All of them.
inline constexpr const XMLCh* words[] = {
#define AS_WORD(constant, text) constant,
#include "ws/WSSVocabulary.def"
};

}  // namespace WSS

#endif  // WS_WSSVOCABULARY_H_
