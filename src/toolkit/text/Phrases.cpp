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

bool isNumeral(std::string_view text) {
  static constexpr std::string_view digits = "0123456789";
  const auto takeOne = [&text](std::string_view of) {
    const bool isThere = !text.empty() && of.find(text.front()) != std::string_view::npos;
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
  };
  const auto takeDigits = [&text] {
    const std::size_t count = std::min(text.find_first_not_of(digits), text.size());
    text.remove_prefix(count);
    return count > 0;
  };
  takeOne("+-");
  const bool hasWhole = takeDigits();
  const bool hasPart = takeOne(".,") && takeDigits();
  return (hasWhole || hasPart) && text.empty();
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return !isWithinCharacter(byte); }));
}

}  // namespace as::toolkit
