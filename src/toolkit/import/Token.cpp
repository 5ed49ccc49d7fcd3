#include "toolkit/import/Token.h"

namespace as::toolkit {

bool sameWord(std::string_view one, std::string_view other) {
  const auto folded = [](char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
  };
  if (one.size() != other.size()) return false;
  for (std::size_t i = 0; i < one.size(); i++) {
    if (folded(one[i]) != folded(other[i])) return false;
  }
  return true;
}

}  // namespace as::toolkit
