// The elements that the messages of operations are made of.
#ifndef TOOLKIT_GENERATE_MESSAGEPLAN_H_
#define TOOLKIT_GENERATE_MESSAGEPLAN_H_

#include <string>

#include "toolkit/generate/SchemaSet.h"

namespace as::toolkit::gen {

// The wishes for the names of an operation's messages.
NameWish requestWish(const ServiceModel& model, const Operation& operation);
NameWish answerWish(const ServiceModel& model, const Operation& operation);
// "quoteFault", and "quoteFault2" for the second one.
NameWish faultWish(const ServiceModel& model, const Operation& operation, const Message& fault);

// The parameters that a request, or an answer, holds.
SchemaSet::Members requestMembers(const ServiceModel& model, const Operation& operation);
SchemaSet::Members answerMembers(const ServiceModel& model, const Operation& operation);
// All parameters of a header or fault.
SchemaSet::Members membersOf(const ServiceModel& model, const Operation& operation,
                             const Message& message);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_MESSAGEPLAN_H_
