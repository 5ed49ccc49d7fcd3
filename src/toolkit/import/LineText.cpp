#include "toolkit/import/LineText.h"

#include "toolkit/import/Characters.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

bool beginsWord(std::string_view text, std::string_view word) {
  return text.size() >= word.size() && sameWord(text.substr(0, word.size()), word) &&
         (text.size() == word.size() || isBlank(text[word.size()]));
}

std::string_view withoutBlanksInFront(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && isBlank(text[i])) i++;
  return text.substr(i);
}

std::string_view withoutBlanksBehind(std::string_view text) {
  std::size_t size = text.size();
  while (size > 0 && isBlank(text[size - 1])) size--;
  return text.substr(0, size);
}

std::string_view trimmed(std::string_view text) {
  return withoutBlanksBehind(withoutBlanksInFront(text));
}

bool isDollarDirective(std::string_view text) {
  if (text.empty() || text.front() != '$') return false;
  const std::string_view rest = withoutBlanksInFront(text.substr(1));
  for (const std::string_view known : {"SET", "IF", "ELSE", "ELIF", "ELSE-IF", "END", "END-IF",
                                       "DISPLAY", "REGION", "END-REGION", "XFD"}) {
    if (beginsWord(rest, known)) return true;
  }
  return false;
}

}  // namespace as::toolkit
