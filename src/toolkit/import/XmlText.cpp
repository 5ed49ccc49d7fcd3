#include "toolkit/import/XmlText.h"

#include <array>
#include <charconv>
#include <utility>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

// The bytes of the character that stands there, if it is one that XML may hold; 0 otherwise.
std::size_t characterSize(std::string_view text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  if (first < 0x20) return first == '\t' || first == '\n' || first == '\r' ? 1 : 0;
  const std::string_view three = text.substr(at, 3);
  const bool isNone = three == "\xEF\xBF\xBE" || three == "\xEF\xBF\xBF";
  return isNone ? 0 : characterLength(text, at);
}

// Stands for what is no character that XML may hold.
constexpr const char* replacement = "\xEF\xBF\xBD";

// Whether the character stands for itself.
bool isPlain(char c) {
  return c >= ' ' && c <= '~' && c != '&' && c != '<' && c != '>' && c != '"';
}

}  // namespace

XmlText::XmlText() : text_(R"(<?xml version="1.0" encoding="UTF-8"?>)") {}

void XmlText::indent() {
  text_ += '\n';
  text_.append(2 * depth_, ' ');
}

void XmlText::open(std::string_view element) {
  if (isOpen_) text_ += '>';
  indent();
  text_ += '<';
  text_ += element;
  isOpen_ = true;
  ++depth_;
}

void XmlText::close(std::string_view element) {
  --depth_;
  if (isOpen_) {
    text_ += "/>";
  } else {
    indent();
    text_ += "</";
    text_ += element;
    text_ += '>';
  }
  isOpen_ = false;
}

void XmlText::attribute(std::string_view name, std::string_view value) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"";
  escape(value);
  text_ += '"';
}

void XmlText::attribute(std::string_view name, int value) {
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  attribute(name, std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
}

void XmlText::flag(std::string_view name, bool isSet) {
  if (isSet) attribute(name, "true");
}

void XmlText::escape(std::string_view value) {
  for (std::size_t at = 0; at < value.size();) {
    std::size_t end = at;
    while (end < value.size() && isPlain(value[end])) ++end;
    text_ += value.substr(at, end - at);
    at = end;
    if (at == value.size()) return;
    const std::size_t size = characterSize(value, at);
    const char c = value[at];
    if (size == 0) {
      text_ += replacement;
      hasReplaced_ = true;
    } else if (c == '&') {
      text_ += "&amp;";
    } else if (c == '<') {
      text_ += "&lt;";
    } else if (c == '>') {
      text_ += "&gt;";
    } else if (c == '"') {
      text_ += "&quot;";
    } else if (c == '\t' || c == '\n' || c == '\r') {
      text_ += c == '\t' ? "&#9;" : c == '\n' ? "&#10;" : "&#13;";
    } else {
      text_ += value.substr(at, size);
    }
    at += size == 0 ? 1 : size;
  }
}

std::string XmlText::heldOf(std::string_view value) {
  std::string held;
  for (std::size_t at = 0; at < value.size();) {
    const std::size_t size = characterSize(value, at);
    held += size == 0 ? std::string_view(replacement) : value.substr(at, size);
    at += size == 0 ? 1 : size;
  }
  return held;
}

std::string XmlText::take() {
  text_ += '\n';
  return std::move(text_);
}

}  // namespace as::toolkit
