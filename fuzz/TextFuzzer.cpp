// Conversions of text and the readers of dotted names and subscripts, against code that does the
// same in another way.
#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
#include <xercesc/util/XMLString.hpp>

#include "Requests.h"
#include "cobol/DataItemPath.h"
#include "service/ParameterImpl.h"
#include "xml/XStr.h"

namespace {

using Wide = std::basic_string<XMLCh>;

void require(bool condition) {
  if (!condition) std::abort();
}

void appendUtf8(std::string& out, std::uint32_t code) {
  static constexpr unsigned char leads[] = {0x00, 0xC0, 0xE0, 0xF0};
  const std::size_t tails = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
  out += static_cast<char>(leads[tails] | code >> (6 * tails));
  for (std::size_t i = tails; i-- > 0;) out += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
}

void appendUtf16(Wide& out, std::uint32_t code) {
  if (code < 0x10000) {
    out += static_cast<XMLCh>(code);
    return;
  }
  out += static_cast<XMLCh>(0xD7C0 + (code >> 10));
  out += static_cast<XMLCh>(0xDC00 | (code & 0x3FF));
}

// The character at the start of `text`; none when no character is encoded so. Decodes first and
// asks then whether the encoder would have made the same bytes.
std::optional<std::uint32_t> characterAt(std::string_view text, std::size_t& length) {
  for (length = 1; length <= 4 && length <= text.size(); length++) {
    std::uint32_t code = static_cast<unsigned char>(text[0]);
    if (length > 1) code &= 0x7FU >> length;
    for (std::size_t i = 1; i < length; i++) {
      code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool isCharacter = code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
    std::string encoded;
    if (isCharacter) appendUtf8(encoded, code);
    if (isCharacter && encoded == text.substr(0, length)) return code;
  }
  return std::nullopt;
}

// What CXStr is to make of UTF-8 text: U+FFFD in place of every byte that belongs to no character.
struct Expected {
  std::string utf8;
  Wide utf16;
};

Expected expectedOf(std::string_view text) {
  Expected expected;
  while (!text.empty()) {
    std::size_t length = 1;
    const std::optional<std::uint32_t> code = characterAt(text, length);
    appendUtf8(expected.utf8, code.value_or(0xFFFD));
    appendUtf16(expected.utf16, code.value_or(0xFFFD));
    text.remove_prefix(code ? length : 1);
  }
  return expected;
}

void checkUtf8(const std::string& input) {
  const std::string text = input.c_str();  // Up to the first zero, as C text is.
  const Expected expected = expectedOf(text);
  CXStr converted(input);
  require(static_cast<std::string>(converted) == text);
  require(converted.isEmpty() == text.empty());
  const XMLCh* const rendered = converted;
  require(rendered != nullptr && rendered == expected.utf16);
  const XMLCh* const wide = expected.utf16.c_str();
  // And back, by every way.
  CXStr back(wide, true);
  require(static_cast<std::string>(back) == expected.utf8);
  CXStr copy(converted);
  require(static_cast<std::string>(copy) == expected.utf8);
  CXStr assigned("something else");
  assigned = copy;
  require(static_cast<std::string>(assigned) == expected.utf8);
  assigned = "x";
  assigned = wide;
  require(static_cast<std::string>(assigned) == (wide[0] == 0 ? "x" : expected.utf8));
}

void checkUtf16(std::string_view input) {
  Wide wide;
  std::string utf8;
  bool isWellFormed = true;
  for (std::size_t i = 0; i + 1 < input.size(); i += 2) {
    const auto unit = static_cast<XMLCh>(static_cast<unsigned char>(input[i]) << 8 |
                                         static_cast<unsigned char>(input[i + 1]));
    if (unit == 0) break;
    wide += unit;
  }
  for (std::size_t i = 0; i < wide.size(); i++) {
    std::uint32_t code = wide[i];
    if (code >= 0xD800 && code <= 0xDBFF && i + 1 < wide.size() && wide[i + 1] >= 0xDC00 &&
        wide[i + 1] <= 0xDFFF) {
      code = 0x10000 + ((code & 0x3FF) << 10 | (wide[++i] & 0x3FFU));
    } else if (code >= 0xD800 && code <= 0xDFFF) {
      isWellFormed = false;
    }
    if (isWellFormed) appendUtf8(utf8, code);
  }
  CXStr converted(wide.c_str(), false);
  const std::string result = converted;
  // Halves of characters have no UTF-8: whatever the parser's transcoder makes of the first of them
  // and what follows it.
  if (!isWellFormed) return require(result.compare(0, utf8.size(), utf8) == 0);
  require(result == utf8);
  const XMLCh* const again = converted;
  require(wide.empty() ? again == nullptr : again == wide);
}

// The number at the start of `text` as a C programmer expects it: blanks, a sign, digits.
int expectedNumber(const std::string& text) {
  std::size_t at = 0;
  while (text[at] == ' ' || (text[at] >= '\t' && text[at] <= '\r')) at++;
  const bool isNegative = text[at] == '-';
  if (isNegative || text[at] == '+') at++;
  std::int64_t value = 0;
  for (; text[at] >= '0' && text[at] <= '9'; at++) {
    value = std::min<std::int64_t>(value * 10 + (text[at] - '0'), INT64_C(1) << 40);
  }
  if (isNegative) value = -value;
  return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
}

void checkNumbersAndTruth(const std::string& input) {
  const std::string text = input.c_str();
  CXStr converted(input);
  const int number = converted;
  require(number == expectedNumber(text));
  CXStr printed(number);
  require(static_cast<std::string>(printed) == std::to_string(number));
  std::string lower = text;
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  const bool truth = converted;
  require(truth == (lower == "true"));
}

void checkPaths(const std::string& path) {
  // Every piece between dots in front of "(", but no empty last one.
  std::vector<std::string> expected(1);
  for (const char c : path) {
    if (c == '(') break;
    if (c == '.') {
      expected.emplace_back();
    } else {
      expected.back() += c;
    }
  }
  if (expected.back().empty()) expected.pop_back();
  require(splitDataItemPath(path) == expected);
  std::string qualified;
  for (std::size_t i = expected.size(); i-- > 0;) {
    qualified += expected[i];
    if (i > 0) qualified += " of ";
  }
  require(CParameterImpl::GetFullyQualifiedName(path) == qualified);
}

// The number of a subscript, "*" being -1; none when it is neither.
std::optional<std::int64_t> subscriptOf(const std::string& text) {
  if (text == "*") return -1;
  const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  if (text.size() == sign) return std::nullopt;
  std::int64_t value = 0;
  for (std::size_t i = sign; i < text.size(); i++) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    value = std::min<std::int64_t>(value * 10 + (text[i] - '0'), INT64_C(1) << 40);
  }
  if (text[0] == '-') value = -value;
  if (value < INT_MIN || value > INT_MAX) return std::nullopt;
  return value;
}

void checkSubscripts(const std::string& list, int count, const int* entries) {
  std::vector<std::string> pieces(1);
  for (const char c : list) {
    if (c == ',') {
      pieces.emplace_back();
    } else {
      pieces.back() += c;
    }
  }
  std::vector<int> expected(16, -1);
  int expectedCount = static_cast<int>(pieces.size());
  for (std::size_t i = 0; i < pieces.size(); i++) {
    const std::optional<std::int64_t> value = subscriptOf(pieces[i]);
    if (!value) {
      expectedCount = 0;
      break;
    }
    if (i < expected.size()) expected[i] = static_cast<int>(*value);
  }
  if (list.empty()) expectedCount = 0;
  require(count == expectedCount);
  require(std::equal(expected.begin(), expected.end(), entries));
}

// A mapping of a service of its own, the text being the whole of both attributes.
void checkMapping(const std::string& input) {
  std::string escaped;
  for (const char c : expectedOf(input.c_str()).utf8) {
    const auto number = static_cast<unsigned int>(static_cast<unsigned char>(c));
    const bool isOdd = number < 0x20 || c == '<' || c == '&' || c == '"';
    escaped += isOdd ? "&#" + std::to_string(number) + ";" : std::string(1, c);
  }
  const std::string ns = as::namespaces::java.uri;
  const std::string document =
      "<service xmlns='" + ns + "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
      "xsi:schemaLocation='" + ns + " " + ns + "'><operations><operation><hiddenParameters>" +
      "<hiddenParameter item=\"" + escaped + "\" subscript=\"" + escaped +
      "\"/></hiddenParameters></operation></operations></service>";
  // Refused: a character that XML does not know, or too many subscripts.
  const std::unique_ptr<as::IService> service = fuzz::unlessRefused(
      [&] { return fuzz::parseService(fuzz::services(), "text.xml", document, false); });
  if (!service) return;
  auto* const operation = as::interface_cast<as::IOperation>(service->getOperations()->getItem(0));
  auto* const mapping =
      as::interface_cast<as::IMapping>(operation->getHiddenParameters()->getItem(0));
  const std::string item = mapping->getRawMapping();
  require(item == expectedOf(input.c_str()).utf8);
  int entries[16] = {};
  const int count = mapping->getInterfaceSubscripts(entries);
  checkSubscripts(item, count, entries);
  const std::size_t open = item.find('(');
  const std::size_t close = item.find(')');
  const bool hasList =
      open != item.npos && close != item.npos && close == item.size() - 1 && open < close;
  const int itemCount = mapping->getDataItemSubscripts(entries);
  if (hasList) {
    const std::string list = item.substr(open + 1, close - open - 1);
    // "()" is a list of one subscript, which is none.
    checkSubscripts(list.empty() ? "x" : list, itemCount, entries);
  } else {
    require(itemCount == 0);
    require(std::all_of(entries, entries + 16, [](int entry) { return entry == -1; }));
  }
  require(mapping->getFullyQualifiedName() == CParameterImpl::GetFullyQualifiedName(item));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  checkUtf8(input);
  checkUtf16(input);
  checkNumbersAndTruth(input);
  checkPaths(input);
  // A request takes a thousand times as long as everything else here.
  if (size < 200 && input.find_first_of("*(),") != input.npos) checkMapping(input);
  return 0;
}
