// Puts operations into a new service.
#ifndef TOOLKIT_MAKE_SERVICEMAKER_H_
#define TOOLKIT_MAKE_SERVICEMAKER_H_

#include <string>
#include <vector>

#include "as/toolkit/Make.h"
#include "toolkit/flavour/FlavourProfile.h"

namespace as::toolkit {

// Adds an operation for each entry point of the program of `made.service`, or for those of the
// names given: a parameter for each linkage item, fields for the members of groups, a mapping and a
// data type for each elementary item that a data type holds. Counts them and notes what is left
// out, or needs a word.
void fillService(MadeService& made, const FlavourProfile& flavour,
                 const std::vector<std::string>& entryPoints);

}  // namespace as::toolkit

#endif  // TOOLKIT_MAKE_SERVICEMAKER_H_
