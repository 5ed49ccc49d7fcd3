// Whether fields of two structures can share what is made of one.
#ifndef TOOLKIT_GENERATE_FIELDSHAPE_H_
#define TOOLKIT_GENERATE_FIELDSHAPE_H_

#include "toolkit/generate/ServiceModel.h"

namespace as::toolkit::gen {

// Whether both have the same values, or parts of the same names that do. Their own names and how
// often they occur are of no account.
bool areOfOneShape(const ServiceModel& model, const Field& left, const Field& right);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_FIELDSHAPE_H_
