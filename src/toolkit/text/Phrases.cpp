#include "toolkit/text/Phrases.h"

#include <algorithm>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

std::string quote(const std::string& text) { return "'" + text + "'"; }

std::string didYouMean(const std::string& name) { return "did you mean " + quote(name) + "?"; }

std::string dotted(const std::vector<std::string>& names) {
  std::string path;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) path += '.';
    path += names[i];
  }
  return path;
}

std::string firstOf(const std::vector<std::string>& names) {
  const std::size_t told = std::min(names.size(), mostTold);
  std::string text;
  for (std::size_t i = 0; i < told; ++i) text += (i == 0 ? "" : ", ") + names[i];
  if (names.size() > told) text += " and " + count(names.size() - told, "other");
  return text;
}

bool isNumeral(const std::string& text) {
  return text.find_first_of("0123456789") != std::string::npos &&
         text.find_first_not_of("+-.,0123456789") == std::string::npos;
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return !isWithinCharacter(byte); }));
}

}  // namespace as::toolkit
