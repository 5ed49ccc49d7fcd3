#include "toolkit/outline/DocumentEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstddef>
#include <string_view>

namespace as::toolkit {

namespace {

using namespace std::string_view_literals;

// How a document may begin, and what that says: the longer ones first.
struct Start {
  std::string_view bytes;
  const char* encoding;  // Null: the XML declaration tells.
};

constexpr std::array<Start, 10> starts = {{
    {"\0\0\xFE\xFF"sv, "UCS-4BE"},
    {"\xFF\xFE\0\0"sv, "UCS-4LE"},
    {"\0\0\0<"sv, "UCS-4BE"},
    {"<\0\0\0"sv, "UCS-4LE"},
    {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFE\xFF"sv, "UTF-16BE"},
    {"\xFF\xFE"sv, "UTF-16LE"},
    {"\0<"sv, "UTF-16BE"},
    {"<\0"sv, "UTF-16LE"},
    {"\x4C\x6F\xA7\x94"sv, nullptr},
}};

// What marks of the order of bytes become.
constexpr std::string_view mark = "\xEF\xBB\xBF";

// An open conversion to UTF-8.
class Conversion {
 public:
  explicit Conversion(const std::string& from) : conversion_(::iconv_open("UTF-8", from.c_str())) {}
  ~Conversion() {
    if (isKnown()) ::iconv_close(conversion_);
  }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;

  // iconv's sign for an encoding that it does not know is minus one for a pointer.
  bool isKnown() const { return reinterpret_cast<std::ptrdiff_t>(conversion_) != -1; }

  std::optional<std::string> run(std::string_view bytes) const {
    std::string in(bytes);
    std::string result;
    std::array<char, 65536> part{};
    char* from = in.data();
    std::size_t left = in.size();
    while (left > 0) {
      char* to = part.data();
      std::size_t room = part.size();
      const bool isDone = ::iconv(conversion_, &from, &left, &to, &room) != static_cast<size_t>(-1);
      const bool isFull = !isDone && errno == E2BIG;
      result.append(part.data(), part.size() - room);
      if (!isDone && !isFull) return std::nullopt;
    }
    return result;
  }

 private:
  iconv_t conversion_;
};

std::optional<std::string> converted(std::string_view bytes, const std::string& encoding) {
  const Conversion conversion(encoding);
  if (!conversion.isKnown()) return std::nullopt;
  return conversion.run(bytes);
}

// What the XML declaration at the start of `text` says; empty when it says nothing.
std::string declaredEncoding(std::string_view text) {
  if (text.substr(0, 5) != "<?xml") return "";
  text = text.substr(0, text.find("?>"));
  const std::size_t word = text.find("encoding");
  if (word == std::string_view::npos) return "";
  const std::size_t from = text.find_first_of("'\"", word);
  if (from == std::string_view::npos) return "";
  const std::size_t to = text.find(text[from], from + 1);
  if (to == std::string_view::npos) return "";
  return std::string(text.substr(from + 1, to - from - 1));
}

bool isUtf8(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return name.empty() || name == "UTF-8" || name == "UTF8" || name == "US-ASCII" || name == "ASCII";
}

}  // namespace

std::optional<std::string> documentInUtf8(std::string bytes) {
  const auto start = std::find_if(starts.begin(), starts.end(), [&bytes](const Start& row) {
    return std::string_view(bytes).substr(0, row.bytes.size()) == row.bytes;
  });
  if (start == starts.end()) {
    const std::string declared = declaredEncoding(bytes);
    return isUtf8(declared) ? std::optional<std::string>(std::move(bytes))
                            : converted(bytes, declared);
  }
  if (start->encoding == nullptr) {
    // An EBCDIC declaration holds only characters that all of its code pages have in common.
    constexpr std::size_t longest = 200;
    const std::optional<std::string> declaration =
        converted(std::string_view(bytes).substr(0, longest), "IBM037");
    return declaration ? converted(bytes, declaredEncoding(*declaration)) : std::nullopt;
  }
  std::optional<std::string> text = start->encoding == "UTF-8"sv
                                        ? std::optional<std::string>(std::move(bytes))
                                        : converted(bytes, start->encoding);
  if (text && text->starts_with(mark)) text->erase(0, mark.size());
  return text;
}

}  // namespace as::toolkit
