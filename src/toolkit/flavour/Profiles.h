// The profiles of the flavours; each is defined in a file of its own.
#ifndef TOOLKIT_FLAVOUR_PROFILES_H_
#define TOOLKIT_FLAVOUR_PROFILES_H_

#include "toolkit/flavour/FlavourProfile.h"

namespace as::toolkit {

#define AS_PROFILE(name) const FlavourProfile& name();
#include "toolkit/flavour/Profiles.def"

}  // namespace as::toolkit

#endif  // TOOLKIT_FLAVOUR_PROFILES_H_
