#include "xml/XStr.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include "as/Globals.h"
#include "xml/Utf8Guard.h"

using xercesc::XMLException;
using xercesc::XMLString;
using xercesc::XMLTranscoder;

namespace {

// Scratch memory of one conversion: on the stack for the short texts that most attributes are.
template <class T>
class Scratch {
 public:
  explicit Scratch(std::size_t size) {
    if (size > fixed_.size()) heap_.reset(new T[size]);
  }
  T* get() { return heap_ ? heap_.get() : fixed_.data(); }

 private:
  std::array<T, 512> fixed_;
  std::unique_ptr<T[]> heap_;
};

// The length of the well-formed UTF-8 sequence at the start of `text`, 0 when there is none. The
// text's terminating zero is part of it: no sequence goes on behind that.
std::size_t sequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  for (std::size_t i = 1; i < length; i++) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  const unsigned char second = byte(1);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool surrogate = first == 0xED && second > 0x9F;
  const bool tooLarge = first == 0xF4 && second > 0x8F;
  return overlong || surrogate || tooLarge ? 0 : length;
}

// `text` with U+FFFD for every byte that is no part of a well-formed sequence.
std::string replaceMalformed(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = sequenceLength(text);
    if (length == 0) {
      result += "\xEF\xBF\xBD";
      text.remove_prefix(1);
    } else {
      result += text.substr(0, length);
      text.remove_prefix(length);
    }
  }
  return result;
}

// The XMLCh rendering of `text`, which includes its terminating zero; null for malformed text.
std::unique_ptr<XMLCh[]> transcode(std::string_view text) {
  // The transcoder loses some of those.
  if (std::any_of(text.begin(), text.end(), Utf8Guard::isNeverUtf8)) return nullptr;
  const std::size_t capacity = 2 * text.size() + 1;
  std::unique_ptr<XMLCh[]> wide(new XMLCh[capacity]);
  Scratch<unsigned char> charSizes(capacity);
  std::size_t filled = 0;
  // The transcoder may stop short of a sequence that it would refuse, or refuse it at once.
  while (!text.empty()) {
    XMLSize_t eaten = 0;
    try {
      filled += gUTF8Transcoder->transcodeFrom(reinterpret_cast<const XMLByte*>(text.data()),
                                               text.size(), wide.get() + filled, capacity - filled,
                                               eaten, charSizes.get());
    } catch (const XMLException&) {
      return nullptr;
    }
    if (eaten == 0) return nullptr;
    text.remove_prefix(eaten);
  }
  wide[filled] = 0;
  return wide;
}

}  // namespace

CXStr::CXStr(const char* text) { *this = text; }

CXStr::CXStr(const std::string& text) : CXStr(text.c_str()) {}

CXStr::CXStr(int number) {
  constexpr std::size_t room = 12;  // The 11 characters of the smallest int and the terminator.
  text_.reset(new char[room]);
  static_cast<void>(std::snprintf(text_.get(), room, "%d", number));
}

CXStr::CXStr(const XMLCh* text, bool /*flag*/) { copyXMLCh(text); }

CXStr::CXStr(const CXStr& other) { copyXMLCh(other.rendered().get()); }

CXStr& CXStr::operator=(const char* text) {
  if (text == nullptr) {
    text_.reset();
  } else {
    copyChars(text, std::strlen(text));
  }
  return *this;
}

CXStr& CXStr::operator=(const XMLCh* text) {
  copyXMLCh(text);
  return *this;
}

CXStr& CXStr::operator=(const CXStr& other) {
  if (this == &other) return *this;
  text_.reset();
  copyXMLCh(other.rendered().get());
  return *this;
}

CXStr::operator const XMLCh*() {
  wide_ = rendered();
  return wide_.get();
}

CXStr::operator char*() { return text_.get(); }

CXStr::operator std::string() { return text_ ? std::string(text_.get()) : std::string(); }

CXStr::operator int() {
  if (!text_) return 0;
  const long value = std::strtol(text_.get(), nullptr, 10);  // Saturates beyond long by itself.
  return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

CXStr::operator bool() { return text_ && ::strcasecmp(text_.get(), "true") == 0; }

bool CXStr::isEmpty() const { return !text_ || text_[0] == '\0'; }

void CXStr::copyChars(const char* text, std::size_t length) {
  std::unique_ptr<char[]> copy(new char[length + 1]);
  std::memcpy(copy.get(), text, length);
  copy[length] = '\0';
  text_ = std::move(copy);
}

void CXStr::copyXMLCh(const XMLCh* text) {
  const std::size_t length = XMLString::stringLen(text);
  if (length == 0) return;
  Scratch<char> scratch(6 * length + 1);
  XMLSize_t eaten = 0;
  const std::size_t bytes =
      gUTF8Transcoder->transcodeTo(text, length, reinterpret_cast<XMLByte*>(scratch.get()),
                                   6 * length, eaten, XMLTranscoder::UnRep_RepChar);
  copyChars(scratch.get(), bytes);
}

std::unique_ptr<XMLCh[]> CXStr::rendered() const {
  if (!text_) return nullptr;
  const std::string_view text(text_.get(), std::strlen(text_.get()) + 1);
  std::unique_ptr<XMLCh[]> wide = transcode(text);
  return wide ? std::move(wide) : transcode(replaceMalformed(text));
}

std::string textOf(const XMLCh* text) {
  if (text == nullptr) return {};
  // Most texts are a few letters.
  std::array<char, 32> few;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (std::size_t i = 0; i < few.size() && text[i] <= 0x7F; i++) {
    if (text[i] == 0) return {few.data(), i};
    few[i] = static_cast<char>(text[i]);
  }
  const std::size_t length = XMLString::stringLen(text);
  XMLCh all = 0;
  for (std::size_t i = 0; i < length; i++) all = static_cast<XMLCh>(all | text[i]);
  if (all > 0x7F) return CXStr(text, false);
  std::string result(length, '\0');
  for (std::size_t i = 0; i < length; i++) result[i] = static_cast<char>(text[i]);
  return result;
}

int integerOf(const XMLCh* text) {
  if (text == nullptr) return 0;
  const XMLCh* at = text;
  // Nearly all are a few digits and nothing else, or not there.
  constexpr int mostDigits = 9;
  unsigned few = 0;
  for (int i = 0; i <= mostDigits; i++) {
    const unsigned digit = at[i] - unsigned{u'0'};
    if (digit > 9) {
      if (at[i] == 0) return static_cast<int>(few);
      break;
    }
    few = 10 * few + digit;
  }
  while (*at == u' ' || (*at >= u'\t' && *at <= u'\r')) at++;
  // What else may count as a blank is for the C library to say.
  if (*at > 0x7F) return CXStr(text, false);
  const bool isNegative = *at == u'-';
  if (*at == u'-' || *at == u'+') at++;
  constexpr long long beyond = 1LL + INT_MAX;
  long long value = 0;
  for (; *at >= u'0' && *at <= u'9'; at++) value = std::min(10 * value + (*at - u'0'), beyond);
  return static_cast<int>(isNegative ? -value : std::min<long long>(value, INT_MAX));
}

bool truthOf(const XMLCh* text) {
  constexpr XMLCh lowerCase = 0x20;
  if (text == nullptr) return false;
  for (const XMLCh letter : {u't', u'r', u'u', u'e'}) {
    if ((*text++ | lowerCase) != letter) return false;
  }
  return *text == 0;
}
