#include "toolkit/outline/EntityTexts.h"

#include <cstdint>

#include "toolkit/text/Utf8.h"

namespace as::toolkit {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;
constexpr std::string_view blanks = " \t\r\n";

bool startsAt(std::string_view text, std::size_t at, std::string_view with) {
  return text.substr(at, with.size()) == with;
}

// Behind the first `end` from `at` on.
std::size_t behind(std::string_view text, std::size_t at, std::string_view end) {
  const std::size_t found = text.find(end, at);
  return found == nowhere ? nowhere : found + end.size();
}

std::size_t afterBlanks(std::string_view text, std::size_t at) {
  return text.find_first_not_of(blanks, at);
}

// Behind a ">" that no quotes are around.
std::size_t behindDeclaration(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    at = text.find_first_of("'\">", at);
    if (at == nowhere) return nowhere;
    if (text[at] == '>') return at + 1;
    at = behind(text, at + 1, text.substr(at, 1));
  }
  return nowhere;
}

// The value of an entity with its references to characters, "&#60;", replaced.
std::string replacementOf(std::string_view value) {
  std::string text;
  for (std::size_t at = 0; at < value.size();) {
    const std::size_t end = startsAt(value, at, "&#") ? value.find(';', at) : nowhere;
    if (end == nowhere) {
      text += value[at++];
      continue;
    }
    const bool isHex = startsAt(value, at + 2, "x");
    std::uint32_t code = 0;
    for (std::size_t i = at + (isHex ? 3 : 2); i < end; ++i) {
      const char c = value[i];
      const auto digit = static_cast<std::uint32_t>(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
      code = code * (isHex ? 16 : 10) + digit;
    }
    appendUtf8(text, code);
    at = end + 1;
  }
  return text;
}

}  // namespace

std::size_t EntityTexts::read(std::string_view text, std::size_t at) {
  // The name and the identifiers in front of the declarations.
  while (at < text.size() && text[at] != '[') {
    if (text[at] == '>') return at + 1;
    const bool isQuote = text[at] == '"' || text[at] == '\'';
    at = isQuote ? behind(text, at + 1, text.substr(at, 1)) : at + 1;
  }
  if (at >= text.size()) return nowhere;
  for (at = afterBlanks(text, at + 1); at < text.size(); at = afterBlanks(text, at)) {
    if (text[at] == ']') return behind(text, at, ">");
    if (startsAt(text, at, "<!--")) {
      at = behind(text, at + 4, "-->");
    } else if (startsAt(text, at, "<?")) {
      at = behind(text, at, "?>");
    } else if (startsAt(text, at, "<!ENTITY")) {
      at = readDeclaration(text, at);
    } else {
      at = behindDeclaration(text, at);
    }
    if (at == nowhere) return nowhere;
  }
  return nowhere;
}

// <!ENTITY name "value">; an external one has a word in the value's place.
std::size_t EntityTexts::readDeclaration(std::string_view text, std::size_t at) {
  const std::size_t end = behindDeclaration(text, at);
  const std::size_t name = afterBlanks(text, at + std::string_view("<!ENTITY").size());
  if (end == nowhere || name == nowhere) return nowhere;
  const std::size_t nameEnd = text.find_first_of(blanks, name);
  const std::size_t value = afterBlanks(text, nameEnd);
  if (value >= end || (text[value] != '"' && text[value] != '\'')) return end;
  const std::size_t valueEnd = text.find(text[value], value + 1);
  if (valueEnd == nowhere) return nowhere;
  store_.push_back(replacementOf(text.substr(value + 1, valueEnd - value - 1)));
  // The first declaration of a name is the one that counts.
  texts_.try_emplace(text.substr(name, nameEnd - name), &store_.back());
  return end;
}

const std::string* EntityTexts::find(std::string_view name) const {
  const auto found = texts_.find(name);
  return found == texts_.end() ? nullptr : found->second;
}

}  // namespace as::toolkit
