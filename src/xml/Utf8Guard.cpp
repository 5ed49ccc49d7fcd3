#include "xml/Utf8Guard.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view blanks = " \t\r\n";

// How the texts begin that the parser does not begin to read byte by byte, as ASCII.
bool isWideOrEbcdic(std::string_view text) {
  return text.substr(0, 4).find('\0') != std::string_view::npos || text.starts_with("\xFE\xFF") ||
         text.starts_with("\xFF\xFE") || text.starts_with("\x4C\x6F\xA7\x94\x93\x40");
}

bool isNameOfUtf8(std::string_view name) {
  const auto is = [&](std::string_view other) {
    return std::equal(name.begin(), name.end(), other.begin(), other.end(), [](char a, char b) {
      return (a >= 'a' && a <= 'z' ? a - 'a' + 'A' : a) == b;
    });
  };
  return is("UTF-8") || is("UTF8");
}

// The encoding that an XML declaration names; empty where it names none. What is no declaration as
// it should be the parser refuses.
std::string_view declaredEncoding(std::string_view text) {
  constexpr std::string_view name = "encoding";
  constexpr std::string_view beginning = "<?xml";
  if (!text.starts_with(beginning) || text.find_first_of(blanks) != beginning.size()) return {};
  std::string_view declaration = text.substr(0, text.find('>'));
  const std::size_t at = declaration.find(name);
  if (at == std::string_view::npos) return {};
  declaration.remove_prefix(at + name.size());
  const std::size_t begin = declaration.find_first_of("'\"");
  if (begin == std::string_view::npos) return {};
  const std::size_t end = declaration.find(declaration[begin], begin + 1);
  return declaration.substr(begin + 1, end - begin - 1);
}

bool isUtf8(std::string_view beginning) {
  if (isWideOrEbcdic(beginning)) return false;
  // What is declared counts for more than a mark.
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (beginning.starts_with(mark)) beginning.remove_prefix(mark.size());
  const std::string_view declared = declaredEncoding(beginning);
  return declared.empty() || isNameOfUtf8(declared);
}

}  // namespace

void Utf8Guard::look(XMLByte* piece, XMLSize_t size) {
  if (size == 0) return;
  if (encoding_ == Encoding::unknown) {
    encoding_ =
        isUtf8({reinterpret_cast<const char*>(piece), size}) ? Encoding::utf8 : Encoding::other;
  }
  if (encoding_ != Encoding::utf8) return;
  constexpr XMLByte refused = 0xC1;
  std::transform(piece, piece + size, piece,
                 [](XMLByte byte) { return isNeverUtf8(byte) ? refused : byte; });
}
