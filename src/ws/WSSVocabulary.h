// The words that Web services add: element names, attribute names and values.
#ifndef WS_WSSVOCABULARY_H_
#define WS_WSSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define WSS_WORDS(word)                                                                            \
  word(address, "address") word(Array, "Array") word(attributeForm, "attributeForm") word(         \
      byte, "byte") word(dataType, "dataType") word(decimal, "decimal") word(document, "document") \
      word(double_, "double") word(elementForm, "elementForm") word(encoded, "encoded")            \
          word(fault, "fault") word(fieldAttribute, "fieldAttribute") word(float_, "float")        \
              word(header, "header") word(inputNamespace, "inputNamespace")                        \
                  word(inputUse, "inputUse") word(int_, "int") word(integer, "integer")            \
                      word(literal, "literal") word(long_, "long") word(namespace_, "namespace")   \
                          word(outputNamespace, "outputNamespace") word(outputUse, "outputUse")    \
                              word(qualified, "qualified") word(rpc, "rpc") word(short_, "short")  \
                                  word(string, "string") word(style, "style")                      \
                                      word(unqualified, "unqualified")                             \
                                          word(unsignedByte, "unsignedByte")                       \
                                              word(unsignedInt, "unsignedInt")                     \
                                                  word(unsignedLong, "unsignedLong")               \
                                                      word(unsignedShort, "unsignedShort")         \
                                                          word(use, "use") word(XML, "XML")

namespace WSS {
#define WSS_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
WSS_WORDS(WSS_DEFINE)
#undef WSS_DEFINE
}  // namespace WSS

#endif  // WS_WSSVOCABULARY_H_
