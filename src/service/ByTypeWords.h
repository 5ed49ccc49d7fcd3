// The words of "byType", the attribute that tells which way a value travels.
#ifndef SERVICE_BYTYPEWORDS_H_
#define SERVICE_BYTYPEWORDS_H_

#include "service/SSVocabulary.h"
#include "xml/WordTable.h"

// Interface is as::IParameter or as::IWSHeader: each has an enumeration BY_TYPE of its own.
template <class Interface>
inline constexpr WordCode byTypes[] = {
    {SS::in, Interface::BY_IN},
    {SS::out, Interface::BY_OUT},
};

// BY_IO for every other text.
template <class Interface>
typename Interface::BY_TYPE byTypeOfWord(const XMLCh* word) {
  return static_cast<typename Interface::BY_TYPE>(
      codeOfWord(byTypes<Interface>, word, Interface::BY_IO));
}

// "in" and "out" for BY_IN and BY_OUT, "io" for everything else.
template <class Interface>
const XMLCh* wordOfByType(typename Interface::BY_TYPE byType) {
  const XMLCh* const word = wordOfCode(byTypes<Interface>, byType);
  return word == nullptr ? SS::io : word;
}

#endif  // SERVICE_BYTYPEWORDS_H_
