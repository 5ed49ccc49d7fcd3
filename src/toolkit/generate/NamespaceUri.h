// Which texts can be the namespaces of schemas, and names as parts of such.
#ifndef TOOLKIT_GENERATE_NAMESPACEURI_H_
#define TOOLKIT_GENERATE_NAMESPACEURI_H_

#include <string>
#include <string_view>

namespace as::toolkit::gen {

// Whether it is a reference to a URI (RFC 3986), a relative one, too: readers of XML refuse others.
bool isUri(std::string_view text);

// The name as a part of a URI: what a URI cannot hold, or gives a meaning of its own, is written as
// "%2F".
std::string partOfUri(std::string_view name);

// "urn:agentservices:NAME", the name as such a part.
std::string namespaceOf(std::string_view name);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_NAMESPACEURI_H_
