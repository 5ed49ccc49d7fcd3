// Pictures of programs that are not at hand.
#ifndef TOOLKIT_STORAGE_ANYPICTURE_H_
#define TOOLKIT_STORAGE_ANYPICTURE_H_

#include <optional>
#include <string>

#include "as/toolkit/Picture.h"

namespace as::toolkit {

// What a picture says whose program's currency symbol and decimal point are unknown; nothing for
// what is no picture anywhere.
std::optional<Picture> readAnyPicture(const std::string& text);

}  // namespace as::toolkit

#endif  // TOOLKIT_STORAGE_ANYPICTURE_H_
