// The words that Java services add: attribute names and values.
#ifndef JAVA_JSVOCABULARY_H_
#define JAVA_JSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace JS {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "java/JSVocabulary.def"

// All of them.
inline constexpr const XMLCh* words[] = {
#define AS_WORD(constant, text) constant,
#include "java/JSVocabulary.def"
};

}  // namespace JS

#endif  // JAVA_JSVOCABULARY_H_
