// The words of data dictionary documents: element names, attribute names and values.
#ifndef COBOL_DDVOCABULARY_H_
#define COBOL_DDVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace DD {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "cobol/DDVocabulary.def"

// All of them.
inline constexpr const XMLCh* words[] = {
#define AS_WORD(constant, text) constant,
#include "cobol/DDVocabulary.def"
};

}  // namespace DD

#endif  // COBOL_DDVOCABULARY_H_
