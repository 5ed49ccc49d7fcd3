#include "toolkit/import/CodePage.h"

#include <iconv.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "toolkit/import/SourceReport.h"
#include "toolkit/text/Utf8.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

using Byte = unsigned char;

// Converts to UTF-8.
class Converter {
 public:
  explicit Converter(const std::string& name) : handle_(iconv_open("UTF-8", name.c_str())) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-cstyle-cast,performance-no-int-to-ptr): its own way
    if (handle_ == (iconv_t)-1) {
      throw std::invalid_argument("the encoding " + quoted(name) + " is not known");
    }
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() { iconv_close(handle_); }

  // Adds what `bytes` are to `text`, as far as they are something; the rest is left in them. The
  // reason is as errno tells it.
  int convert(std::string_view& bytes, std::string& text) {
    std::array<char, 4096> out{};
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    // It reads from there, and its interface is of C.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    char* from = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    int reason = 0;
    do {
      char* to = out.data();
      std::size_t room = out.size();
      const bool failed = iconv(handle_, &from, &left, &to, &room) == static_cast<std::size_t>(-1);
      reason = failed ? errno : 0;
      text.append(out.data(), out.size() - room);
    } while (reason == E2BIG);
    bytes.remove_prefix(bytes.size() - left);
    return reason;
  }

 private:
  iconv_t handle_;
};

// The shift-in that ends what the shift-out at `begin` opens: behind pairs of bytes that characters
// are made of, on the same line. npos when there is none.
std::size_t endOfShifted(std::string_view bytes, std::size_t begin) {
  std::size_t at = begin + 1;
  const auto isOfPair = [](char byte) {
    return static_cast<Byte>(byte) >= 0x40 && static_cast<Byte>(byte) != 0xFF;
  };
  while (at < bytes.size() && isOfPair(bytes[at])) at++;
  const bool isWhole = at < bytes.size() && bytes[at] == shiftIn && (at - begin) % 2 == 1;
  return isWhole ? at : std::string_view::npos;
}

}  // namespace

CodePage::CodePage(const std::string& name) : name_(name) {
  Converter converter(name);
  for (std::size_t i = 0; i < characters_.size(); i++) {
    const char byte = static_cast<char>(i);
    std::string_view rest(&byte, 1);
    const int reason = converter.convert(rest, characters_[i]);
    isWide_ = isWide_ || reason == EINVAL;
    if (reason != 0) {
      characters_[i].clear();
      appendUtf8(characters_[i], replacementCharacter);
    }
  }
  isEbcdic_ = characters_[0x40] == " " && characters_[0xC1] == "A";
  if (!isEbcdic_) return;
  characters_[0x15] = "\n";  // NEL
  characters_[0x25] = "\n";  // LF
  // What only shifts is no character.
  const auto shift = static_cast<std::size_t>(shiftOut);
  isWide_ = characters_[shift].empty();
  characters_[shift] = std::string(1, shiftOut);
  characters_[shift + 1] = std::string(1, shiftIn);
}

std::string CodePage::decode(std::string_view bytes) const {
  if (isEbcdic_) return decodeShifted(bytes);
  if (isWide_) return decodeWide(bytes);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) text += characters_[static_cast<Byte>(byte)];
  return text;
}

std::string CodePage::decodeShifted(std::string_view bytes) const {
  Converter converter(name_);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (std::size_t at = 0; at < bytes.size(); at++) {
    const std::size_t end =
        bytes[at] == shiftOut ? endOfShifted(bytes, at) : std::string_view::npos;
    if (end == std::string_view::npos) {
      text += characters_[static_cast<Byte>(bytes[at])];
      continue;
    }
    text += shiftOut;
    for (std::size_t pair = at + 1; pair < end; pair += 2) {
      const std::string framed = {shiftOut, bytes[pair], bytes[pair + 1], shiftIn};
      std::string_view rest = framed;
      std::string character;
      if (!isWide_) {
        constexpr std::uint32_t privateUse = 0xF0000;
        appendUtf8(text, privateUse + (std::uint32_t{static_cast<Byte>(bytes[pair])} << 8U) +
                             static_cast<Byte>(bytes[pair + 1]));
      } else if (converter.convert(rest, character) == 0) {
        text += character;
      } else {
        appendUtf8(text, replacementCharacter);
        text += ' ';
      }
    }
    text += shiftIn;
    at = end;
  }
  return text;
}

std::string CodePage::decodeWide(std::string_view bytes) const {
  Converter converter(name_);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 2);
  while (!bytes.empty()) {
    if (converter.convert(bytes, text) == 0) break;
    if (bytes.empty()) break;
    appendUtf8(text, replacementCharacter);
    bytes.remove_prefix(1);
  }
  return text;
}

}  // namespace as::toolkit
