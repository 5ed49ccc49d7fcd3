#include "Peer.h"

#include <cctype>
#include <fstream>
#include <sstream>

namespace peers {

namespace {

std::string replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

bool startsName(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_' || (c & 0x80) != 0;
}

}  // namespace

std::string escaped(const std::string& text) {
  return replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), "'", "&apos;");
}

Peer::Peer(const std::filesystem::path& path) : path_(std::filesystem::absolute(path)) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  text_ = content.str();
}

std::string Peer::reference() const { return escaped(replaced(path_, " ", "%20")); }

std::optional<std::string> Peer::targetNamespace() const {
  const std::string ascii = replaced(text_, std::string(1, '\0'), "");
  const std::string name = "targetNamespace";
  std::size_t at = ascii.find(name);
  if (at == std::string::npos) return std::nullopt;
  at = ascii.find_first_of("\"'", at + name.size());
  if (at == std::string::npos) return std::nullopt;
  const std::size_t end = ascii.find(ascii[at], at + 1);
  if (end == std::string::npos) return std::nullopt;
  const std::string value = ascii.substr(at + 1, end - at - 1);
  if (value.empty() || value.find_first_of(" \t\r\n<&'") != std::string::npos) return std::nullopt;
  return value;
}

std::optional<Peer::Parts> Peer::parts() const {
  if (text_.find('\0') != std::string::npos) return std::nullopt;
  Parts parts;
  std::size_t at = text_.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
  if (text_.compare(at, 6, "<?xml ") == 0) {
    const std::size_t end = text_.find("?>", at);
    if (end == std::string::npos) return std::nullopt;
    parts.declaration = text_.substr(at, end + 2 - at);
    at = end + 2;
  }
  // Comments in front may hold what looks like an element.
  for (at = text_.find('<', at); at != std::string::npos && at + 1 < text_.size();
       at = text_.find('<', at + 1)) {
    if (startsName(text_[at + 1])) {
      parts.root = text_.substr(at);
      return parts;
    }
    if (text_.compare(at, 4, "<!--") == 0) at = text_.find("-->", at + 4);
    if (at == std::string::npos) break;
  }
  return std::nullopt;
}

}  // namespace peers
