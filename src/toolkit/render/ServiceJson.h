// Writes a service as JSON, for programs.
#ifndef TOOLKIT_RENDER_SERVICEJSON_H_
#define TOOLKIT_RENDER_SERVICEJSON_H_

#include <iosfwd>

namespace as {
class IService;
}

// One object, the service. Keys are named after the accessors of the model as those of a
// dictionary are (see DictionaryJson.h), and hold what these answer. Beyond that:
// - "flavour" names the flavour; its accessors' answers stand among those of the plain service;
// - "programName" is the document's; "program" is the name of the program itself, null without it;
// - an entry point, a type definition and a data item stand as their name, null when there is none,
//   and the name in the document beside them ("entryPointText", "referenceTypeText");
// - a parameter that refers to a type definition has no "mappings" and "children": they are the
//   definition's, under "parameterTypeDefs", where it may refer to itself;
// - subscripts are arrays, with -1 for all occurrences.
void writeServiceJson(std::ostream& out, as::IService& service);

#endif  // TOOLKIT_RENDER_SERVICEJSON_H_
