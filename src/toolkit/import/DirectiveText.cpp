#include "toolkit/import/DirectiveText.h"

#include <algorithm>

#include "toolkit/import/Characters.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

namespace {

bool isNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  return std::any_of(text.begin(), text.end(), isDigit) &&
         std::all_of(text.begin(), text.end(),
                     [](char character) { return isDigit(character) || character == '.'; }) &&
         std::count(text.begin(), text.end(), '.') <= 1;
}

}  // namespace

DirectiveText::DirectiveText(std::string_view text) : rest_(text) { scan(); }

DirectivePart DirectiveText::take() {
  const DirectivePart taken = current_;
  scan();
  return taken;
}

bool DirectiveText::accept(std::string_view wordOrMark) {
  const bool is =
      (current_.kind == DirectivePart::Kind::word || current_.kind == DirectivePart::Kind::mark) &&
      sameWord(current_.text, wordOrMark);
  if (is) scan();
  return is;
}

void DirectiveText::scan() {
  while (!rest_.empty() && (isBlank(rest_.front()) || rest_.front() == ',')) rest_.remove_prefix(1);
  // A comment ends it.
  if (rest_.empty() || rest_.substr(0, 2) == "*>") {
    current_ = {};
    return;
  }
  // B'1' is as good as 1.
  const bool isBoolean = rest_.size() > 1 && sameWord(rest_.substr(0, 1), "B") && isQuote(rest_[1]);
  if (isBoolean) rest_.remove_prefix(1);
  std::size_t size = 1;
  if (isQuote(rest_.front())) {
    const std::size_t end = rest_.find(rest_.front(), 1);
    current_ = {DirectivePart::Kind::literal,
                rest_.substr(1, end == std::string_view::npos ? std::string_view::npos : end - 1)};
    if (isBoolean && isNumber(current_.text)) current_.kind = DirectivePart::Kind::number;
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return;
  }
  const auto isMark = [](char character) { return classOf(character) == CharacterClass::mark; };
  if (isMark(rest_.front())) {
    const std::string_view two = rest_.substr(0, 2);
    if (two == "<=" || two == ">=" || two == "<>") size = 2;
    current_ = {DirectivePart::Kind::mark, rest_.substr(0, size)};
  } else {
    while (size < rest_.size() && !isBlank(rest_[size]) && !isQuote(rest_[size]) &&
           !isMark(rest_[size]) && rest_[size] != ',') {
      size++;
    }
    std::string_view text = rest_.substr(0, size);
    // Some end directives as they end sentences.
    if (text.size() > 1 && text.back() == '.' && size == rest_.size()) text.remove_suffix(1);
    current_ = {isNumber(text) ? DirectivePart::Kind::number : DirectivePart::Kind::word, text};
  }
  rest_.remove_prefix(size);
}

}  // namespace as::toolkit
