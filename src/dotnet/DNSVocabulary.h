// The words that .NET services add: attribute names and values.
#ifndef DOTNET_DNSVOCABULARY_H_
#define DOTNET_DNSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define DNS_WORDS(word)                                                                          \
  word(byte, "Byte") word(dataType, "dataType") word(decimal, "Decimal") word(double_, "Double") \
      word(int16, "Int16") word(int32, "Int32") word(int64, "Int64") word(sByte, "SByte")        \
          word(single_, "Single") word(string, "String") word(uint16, "UInt16")                  \
              word(uint32, "UInt32") word(uint64, "UInt64")

namespace DNS {
#define DNS_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
DNS_WORDS(DNS_DEFINE)
#undef DNS_DEFINE
}  // namespace DNS

#endif  // DOTNET_DNSVOCABULARY_H_
