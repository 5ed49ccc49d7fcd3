// The words that COM services add: attribute names and values.
#ifndef COM_CSVOCABULARY_H_
#define COM_CSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define CS_WORDS(word)                                                                          \
  word(byte, "byte") word(currency, "currency") word(dataType, "dataType") word(date, "date")   \
      word(double_, "double") word(float_, "float") word(int_, "int") word(long_, "long")       \
          word(object, "object") word(returnParameter, "returnParameter") word(short_, "short") \
              word(string, "string")

namespace CS {
#define CS_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
CS_WORDS(CS_DEFINE)
#undef CS_DEFINE
}  // namespace CS

#endif  // COM_CSVOCABULARY_H_
