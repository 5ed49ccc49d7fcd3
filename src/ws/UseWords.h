// The words of "use", "inputUse" and "outputUse": how a message is written.
#ifndef WS_USEWORDS_H_
#define WS_USEWORDS_H_

#include "ws/WSSVocabulary.h"
#include "xml/WordTable.h"

// Interface is as::IWSOperation, as::IWSHeader or as::IWSFault: each has an enumeration USE of its
// own.
template <class Interface>
inline constexpr WordCode useWords[] = {
    {WSS::literal, Interface::USE_LITERAL},
    {WSS::encoded, Interface::USE_ENCODED},
};

// -1 for every other text.
template <class Interface>
typename Interface::USE useOfWord(const XMLCh* word) {
  return static_cast<typename Interface::USE>(codeOfWord(useWords<Interface>, word, -1));
}

// Null for every other number.
template <class Interface>
const XMLCh* wordOfUse(typename Interface::USE use) {
  return wordOfCode(useWords<Interface>, use);
}

#endif  // WS_USEWORDS_H_
