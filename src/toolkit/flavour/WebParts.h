// What documents in the namespace of Web services may hold beyond the plain service. Those of .NET
// services may stand there, too.
#ifndef TOOLKIT_FLAVOUR_WEBPARTS_H_
#define TOOLKIT_FLAVOUR_WEBPARTS_H_

#include <string>
#include <vector>

#include "toolkit/flavour/FlavourProfile.h"

namespace as::toolkit {

// What an accessor answers for a missing or unknown text that stands for one of two words.
inline constexpr int unknownCode = -1;

// The traits of what is told by one of two words, or by a text.
Trait useTrait(const char* key, int code);
Trait formTrait(const char* key, int code);
Trait styleTrait(const char* key, int code);
Trait textTrait(const char* key, const std::string& text);

// The headers and the faults of the operation; none of an operation that is no Web service's.
std::vector<Message> webMessagesOf(as::IOperation& operation);

// The attributes of the field; null for a field that is no Web service's.
as::IList* webAttributesOf(as::IField& field);

}  // namespace as::toolkit

#endif  // TOOLKIT_FLAVOUR_WEBPARTS_H_
