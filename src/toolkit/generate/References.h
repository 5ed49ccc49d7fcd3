// What fields have of the declared types that they refer to.
#ifndef TOOLKIT_GENERATE_REFERENCES_H_
#define TOOLKIT_GENERATE_REFERENCES_H_

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

// To be called when all of the model has been read. Marks types that stand in themselves, too.
void completeReferences(ServiceModel& model);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_REFERENCES_H_
