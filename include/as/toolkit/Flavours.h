// The flavours of services as the toolkit knows them.
#ifndef AS_TOOLKIT_FLAVOURS_H_
#define AS_TOOLKIT_FLAVOURS_H_

#include <string>
#include <vector>

#include "as/Export.h"
#include "as/IService.h"
#include "as/Namespaces.h"

namespace as::toolkit {

// A flavour. Text of static duration.
struct Flavour {
  const char* word;  // The word of attribute "implementation", which names the flavour: "java".
  const char* name;  // As it is called in texts: "Java".
  as::IService::TYPE implementation;  // What services of it answer.
  as::Namespace documents;            // The namespace of its documents.
};

// All of them, sorted by their words.
AS_EXPORT const std::vector<Flavour>& flavours();

// The flavour of that word; null when there is none.
AS_EXPORT const Flavour* findFlavour(const std::string& word);

// The flavour of a service: what its objects are of, or, for a document in the Web services'
// namespace, what its "implementation" says. Of a service without operations and parameters that is
// neither a Web service nor a .NET service, its document is written to see whose namespace it is
// in.
AS_EXPORT const Flavour& flavourOf(as::IService& service);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_FLAVOURS_H_
