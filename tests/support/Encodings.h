// Texts in encodings other than UTF-8.
#ifndef TESTS_SUPPORT_ENCODINGS_H_
#define TESTS_SUPPORT_ENCODINGS_H_

#include <iconv.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

// The declaration at the start of a document.
inline std::string encodingDeclaration(const std::string& encoding) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
}

inline std::vector<std::uint32_t> codePoints(const std::string& utf8) {
  std::vector<std::uint32_t> points;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80U) {
      points.push_back(byte);
    } else if (byte < 0xC0U) {
      points.back() = points.back() << 6U | (byte & 0x3FU);
    } else {
      points.push_back(byte < 0xE0U ? byte & 0x1FU : byte < 0xF0U ? byte & 0x0FU : byte & 0x07U);
    }
  }
  return points;
}

// With a byte order mark.
inline std::string utf16(const std::string& utf8, bool bigEndian) {
  std::string result;
  const auto put = [&](std::uint32_t unit) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    result += bigEndian ? high : low;
    result += bigEndian ? low : high;
  };
  put(0xFEFFU);
  for (const std::uint32_t point : codePoints(utf8)) {
    if (point < 0x10000U) {
      put(point);
    } else {
      put(0xD800U + ((point - 0x10000U) >> 10U));
      put(0xDC00U + ((point - 0x10000U) & 0x3FFU));
    }
  }
  return result;
}

inline std::string latin1(const std::string& utf8) {
  std::string result;
  for (const std::uint32_t point : codePoints(utf8)) result += static_cast<char>(point);
  return result;
}

// In any that the system knows; of UTF-16 and UCS-4 without a byte order mark when the order is
// part of the name (UTF-16LE).
inline std::string encoded(const std::string& utf8, const std::string& encoding) {
  const iconv_t converter = ::iconv_open(encoding.c_str(), "UTF-8");
  if (converter == reinterpret_cast<iconv_t>(-1)) throw std::runtime_error("no " + encoding);
  std::string from = utf8;
  std::string result(4 * utf8.size() + 4, '\0');
  char* in = from.data();
  char* out = result.data();
  std::size_t inLeft = from.size();
  std::size_t outLeft = result.size();
  const bool converted =
      ::iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
  ::iconv_close(converter);
  if (!converted) throw std::runtime_error("not in " + encoding);
  result.resize(result.size() - outLeft);
  return result;
}

}  // namespace test

#endif  // TESTS_SUPPORT_ENCODINGS_H_
