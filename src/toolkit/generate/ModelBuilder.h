// Reads a service, or the records of a dictionary, into what generators work on.
#ifndef TOOLKIT_GENERATE_MODELBUILDER_H_
#define TOOLKIT_GENERATE_MODELBUILDER_H_

#include <memory>
#include <string>

#include "as/IProgram.h"
#include "as/IService.h"
#include "as/toolkit/Finding.h"
#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit {
class ItemIndex;
}

namespace as::toolkit::gen {

// The service's mappings lead into `program`; null when it is unknown. `index` is how its items are
// found; null when nobody has made one. Its types and operations have no errors that lint finds,
// types that refer to themselves aside.
ServiceModel modelOf(as::IService& service, as::IProgram* program,
                     std::shared_ptr<const ItemIndex> index);

// Each record a declared type, or the one of that name alone, of which there may be none. Items
// that redefine others are left out, with a note.
ServiceModel modelOf(as::IProgram& program, const std::string& record, Findings& findings);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_MODELBUILDER_H_
