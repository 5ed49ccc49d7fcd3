// The words that Java services add: attribute names and values.
#ifndef JAVA_JSVOCABULARY_H_
#define JAVA_JSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define JS_WORDS(word)                                                                      \
  word(bigDecimal, "BigDecimal") word(bigInteger, "BigInteger") word(byte, "byte")          \
      word(byteArray, "byteArray") word(dataType, "dataType") word(double_, "double")       \
          word(float_, "float") word(int_, "int") word(long_, "long") word(short_, "short") \
              word(string, "String") word(transactionType, "transactionType")               \
                  word(requires_, "requires") word(requiresNew, "requiresNew")              \
                      word(supports, "supports") word(notSupported, "notSupported")         \
                          word(mandatory, "mandatory") word(never, "never")

namespace JS {
#define JS_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
JS_WORDS(JS_DEFINE)
#undef JS_DEFINE
}  // namespace JS

#endif  // JAVA_JSVOCABULARY_H_
