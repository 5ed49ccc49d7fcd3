#include "toolkit/import/QuoteState.h"

#include "toolkit/import/Characters.h"

namespace as::toolkit {

std::size_t QuoteState::read(std::string_view part) {
  closedAt_ = std::string_view::npos;
  for (std::size_t i = skipsFirst_ ? 1 : 0; i < part.size(); i++) {
    const char character = part[i];
    const char following = i + 1 < part.size() ? part[i + 1] : ' ';
    if (open_) {
      if (character != quote_) continue;
      if (following == quote_) {
        i++;
      } else {
        open_ = false;
        closedAt_ = i + 1;
      }
    } else if (isQuote(character)) {
      open(character);
    } else if ((character == '*' && following == '>') ||
               (character == '|' && isCommentBar(i > 0 ? part[i - 1] : ' ', following))) {
      skipsFirst_ = false;
      return i;
    }
  }
  skipsFirst_ = false;
  return std::string_view::npos;
}

void QuoteState::open(char quote) {
  open_ = true;
  quote_ = quote;
}

void QuoteState::reopen() {
  open_ = true;
  skipsFirst_ = true;
}

}  // namespace as::toolkit
