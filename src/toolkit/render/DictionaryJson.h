// Writes a data dictionary as JSON, for programs.
#ifndef TOOLKIT_RENDER_DICTIONARYJSON_H_
#define TOOLKIT_RENDER_DICTIONARYJSON_H_

#include <iosfwd>

namespace as {
class IProgram;
}

// One object, the program. Keys are named after the accessors of the model, without "get" and "is"
// (getDataType: "dataType", isLinkage: "linkage", hasODO: "hasODO"), and hold what these answer:
// - a number that is a code has a sibling that says it in words ("dataTypeText");
// - where the model answers another data item the value is its dotted name from its record down, or
//   null; one that is looked up by a name in the document has a sibling with that name ("odoText");
// - the members of an entry point are its "parameters", those of a condition its "values";
// - "accessMode" and "organization" of a file are the fixed numbers of the model; their siblings
//   hold what the document says.
void writeDictionaryJson(std::ostream& out, as::IProgram& program);

#endif  // TOOLKIT_RENDER_DICTIONARYJSON_H_
