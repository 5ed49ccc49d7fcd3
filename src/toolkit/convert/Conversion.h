// Carries the document of a service over to another flavour.
#ifndef TOOLKIT_CONVERT_CONVERSION_H_
#define TOOLKIT_CONVERT_CONVERSION_H_

#include <string>

#include "as/toolkit/Finding.h"
#include "toolkit/flavour/FlavourProfile.h"
#include "toolkit/walk/ItemIndex.h"

namespace as::toolkit {

// `document`, as the library writes it, of flavour `from`, made one of flavour `to`: in its
// namespace, with its data types, and without what it cannot hold; everything else, comments and
// type definitions too, stays. What has no equivalent is noted. `items` helps to find data types;
// null when the program is unknown.
std::string convertDocument(const std::string& document, const FlavourProfile& from,
                            const FlavourProfile& to, const ItemIndex* items, Findings& notes);

}  // namespace as::toolkit

#endif  // TOOLKIT_CONVERT_CONVERSION_H_
