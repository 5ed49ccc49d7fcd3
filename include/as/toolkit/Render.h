// Writes a model for reading, as text, and for programs, as JSON.
#ifndef AS_TOOLKIT_RENDER_H_
#define AS_TOOLKIT_RENDER_H_

#include <iosfwd>

#include "as/Export.h"
#include "as/IProgram.h"
#include "as/IService.h"

namespace as::toolkit {

// All of them write piece by piece, so that a model of any size needs no second copy in memory, and
// leave the model as it is. Whether everything arrived is for the caller to ask of `out`.

// A tree. Sections come in the order of the document; those without members are left out. Names and
// clauses of the program's own are in its letters, everything that is added is in small letters,
// section titles aside. Control characters are written as \u001B.
AS_EXPORT void renderText(std::ostream& out, as::IProgram& program);
// The same of a service; with its program it is shown with the data items that its mappings lead
// to.
AS_EXPORT void renderText(std::ostream& out, as::IService& service);

// One object, the program. Keys are named after the accessors of the model, without "get" and "is"
// (getDataType: "dataType", isLinkage: "linkage", hasODO: "hasODO"), and hold what these answer:
// - a number that is a code has a sibling that says it in words ("dataTypeText");
// - where the model answers another data item the value is its dotted name from its record down, or
//   null; one that is looked up by a name in the document has a sibling with that name ("odoText");
// - the members of an entry point are its "parameters", those of a condition its "values";
// - "accessMode" and "organization" of a file are the fixed numbers of the model; their siblings
//   hold what the document says.
AS_EXPORT void renderJson(std::ostream& out, as::IProgram& program);

// One object, the service; keys as above. Beyond that:
// - "flavour" names the flavour; its accessors' answers stand among those of the plain service;
// - "programName" is the document's; "program" is the name of the program itself, null without it;
// - an entry point, a type definition and a data item stand as their name, null when there is none,
//   and the name in the document beside them ("entryPointText", "referenceTypeText");
// - a parameter that refers to a type definition has no "mappings" and "children": they are the
//   definition's, under "parameterTypeDefs", where it may refer to itself;
// - subscripts are arrays, with -1 for all occurrences.
AS_EXPORT void renderJson(std::ostream& out, as::IService& service);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_RENDER_H_
