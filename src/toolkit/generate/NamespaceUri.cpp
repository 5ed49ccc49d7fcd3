#include "toolkit/generate/NamespaceUri.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/NameRule.h"

namespace as::toolkit::gen {

namespace {

bool isHexadecimal(char byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'f') ||
         (byte >= 'A' && byte <= 'F');
}

bool isOneOf(std::string_view some, char byte) { return some.find(byte) != std::string_view::npos; }

bool isPlain(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return isAsciiLetter(code) || isDigit(code) || isOneOf("-._~", byte);
}

// Plain characters, what separates parts of a part, "%2F", and `more`.
bool isText(std::string_view text, std::string_view more) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%') {
      if (text.size() - i < 3 || !isHexadecimal(text[i + 1]) || !isHexadecimal(text[i + 2])) {
        return false;
      }
    } else if (!isPlain(text[i]) && !isOneOf("!$&'()*+,;=", text[i]) && !isOneOf(more, text[i])) {
      return false;
    }
  }
  return true;
}

// A scheme ends at a ":" that no "/", "?" or "#" comes before; none is as good.
bool takeScheme(std::string_view& text) {
  const std::size_t end = text.find_first_of(":/?#");
  if (end == std::string_view::npos || text[end] != ':') return true;
  const std::string_view scheme = text.substr(0, end);
  text.remove_prefix(end + 1);
  return !scheme.empty() && isAsciiLetter(static_cast<unsigned char>(scheme.front())) &&
         std::all_of(scheme.begin(), scheme.end(), [](char byte) {
           return byte == '+' || (isPlain(byte) && !isOneOf("_~", byte));
         });
}

// USER@HOST:PORT, where the host may stand in brackets.
bool isAuthority(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at != std::string_view::npos) {
    if (!isText(text.substr(0, at), ":")) return false;
    text.remove_prefix(at + 1);
  }
  const std::size_t end = text.starts_with('[') ? text.find(']') : 0;
  if (end == std::string_view::npos) return false;
  const std::size_t sign = text.find(':', end);
  const std::string_view host = end > 0 ? text.substr(1, end - 1) : text.substr(0, sign);
  const std::string_view rest = text.substr(std::min(end > 0 ? end + 1 : sign, text.size()));
  // Without brackets a host ends at the first ":".
  return isText(host, ":") && (rest.empty() || rest.front() == ':') &&
         std::all_of(rest.begin() + (rest.empty() ? 0 : 1), rest.end(),
                     [](char byte) { return isDigit(static_cast<unsigned char>(byte)); });
}

}  // namespace

bool isUri(std::string_view text) {
  if (!takeScheme(text)) return false;
  if (text.starts_with("//")) {
    const std::size_t end = std::min(text.find_first_of("/?#", 2), text.size());
    if (!isAuthority(text.substr(2, end - 2))) return false;
    text.remove_prefix(end);
  }
  const std::size_t fragment = std::min(text.find('#'), text.size());
  return isText(text.substr(0, fragment), ":@/?") &&
         isText(text.substr(std::min(fragment + 1, text.size())), ":@/?");
}

std::string partOfUri(std::string_view name) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string result;
  for (const char byte : name) {
    if (isPlain(byte)) {
      result += byte;
      continue;
    }
    const auto code = static_cast<unsigned char>(byte);
    result.append({'%', digits[code >> 4U], digits[code & 0xFU]});
  }
  return result;
}

std::string namespaceOf(std::string_view name) { return "urn:agentservices:" + partOfUri(name); }

}  // namespace as::toolkit::gen
