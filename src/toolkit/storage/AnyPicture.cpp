#include "toolkit/storage/AnyPicture.h"

namespace as::toolkit {

std::optional<Picture> readAnyPicture(const std::string& text) {
  PictureRules rules;
  rules.currencySymbol = "";
  const std::optional<Picture> picture = readPicture(text, rules);
  if (picture) return picture;
  rules.isDecimalPointComma = true;
  return readPicture(text, rules);
}

}  // namespace as::toolkit
