// The words that .NET services add: attribute names and values.
#ifndef DOTNET_DNSVOCABULARY_H_
#define DOTNET_DNSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

namespace DNS {
#define AS_WORD(constant, text) inline constexpr XMLCh constant[] = u##text;
#include "dotnet/DNSVocabulary.def"
}  // namespace DNS

#endif  // DOTNET_DNSVOCABULARY_H_
