#include "as/toolkit/Text.h"

#include <cstddef>
#include <nlohmann/json.hpp>

#include "toolkit/text/NearNames.h"

namespace as::toolkit {

namespace {

unsigned char byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

}  // namespace

std::string printable(std::string_view text) {
  constexpr char hexDigits[] = "0123456789ABCDEF";
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    unsigned int code = byteAt(text, at);
    // U+0080 to U+009F are controls too; UTF-8 writes them in two bytes.
    constexpr unsigned int lead = 0xC2;
    const unsigned int next = byteAt(text, at + 1);
    const bool longControl = code == lead && next >= 0x80 && next <= 0x9F;
    if (longControl) {
      code = next;
      ++at;
    }
    if (longControl || code < 0x20 || code == 0x7F) {
      result += "\\u00";
      result += hexDigits[code >> 4U];
      result += hexDigits[code & 0xFU];
    } else {
      result += static_cast<char>(code);
    }
  }
  return result;
}

std::string count(std::size_t number, const char* what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::string jsonText(std::string_view text) {
  using nlohmann::json;
  return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string nearestName(const std::string& name, const std::vector<std::string>& names) {
  NearNames near;
  for (const std::string& known : names) near.add(known);
  const std::optional<std::size_t> nearest = near.nearestTo(name);
  return nearest ? names[*nearest] : "";
}

}  // namespace as::toolkit
