#include "toolkit/import/SourceText.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "as/toolkit/Text.h"

namespace as::toolkit {

namespace {

using Byte = unsigned char;

constexpr std::size_t recordLength = 80;

std::size_t roundedDown(std::size_t number, std::size_t by) { return number - number % by; }

bool isAscii(std::string_view text) {
  std::size_t i = 0;
  for (; i < roundedDown(text.size(), sizeof(std::uint64_t)); i += sizeof(std::uint64_t)) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + i, sizeof eight);
    if ((eight & 0x8080808080808080U) != 0) return false;
  }
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(),
                     [](char character) { return static_cast<Byte>(character) < 0x80; });
}

// How many bytes of `text` from `at` on are one character; 0 when they are none.
std::size_t characterLength(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<Byte>(text[i]) : Byte{0};
  };
  const auto goesOn = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
  const Byte first = byte(at);
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  if (first < 0xE0) return goesOn(at + 1) ? 2 : 0;
  const Byte second = byte(at + 1);
  if (first < 0xF0) {
    const bool isOverlong = first == 0xE0 && second < 0xA0;
    const bool isSurrogate = first == 0xED && second >= 0xA0;
    return goesOn(at + 1) && goesOn(at + 2) && !isOverlong && !isSurrogate ? 3 : 0;
  }
  const bool isOverlong = first == 0xF0 && second < 0x90;
  const bool isBeyond = first == 0xF4 && second >= 0x90;
  return goesOn(at + 1) && goesOn(at + 2) && goesOn(at + 3) && !isOverlong && !isBeyond ? 4 : 0;
}

bool isUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = characterLength(text, i);
    if (length == 0) return false;
    i += length;
  }
  return true;
}

void appendUtf8(std::string& text, std::uint32_t code) {
  const auto add = [&](std::uint32_t bits) { text += static_cast<char>(bits); };
  if (code < 0x80) {
    add(code);
  } else if (code < 0x800) {
    add(0xC0U | (code >> 6U));
    add(0x80U | (code & 0x3FU));
  } else if (code < 0x10000) {
    add(0xE0U | (code >> 12U));
    add(0x80U | ((code >> 6U) & 0x3FU));
    add(0x80U | (code & 0x3FU));
  } else {
    add(0xF0U | (code >> 18U));
    add(0x80U | ((code >> 12U) & 0x3FU));
    add(0x80U | ((code >> 6U) & 0x3FU));
    add(0x80U | (code & 0x3FU));
  }
}

constexpr std::uint32_t replacement = 0xFFFD;

std::string fromUtf16(std::string_view bytes, bool bigEnd) {
  std::string text;
  text.reserve(bytes.size());
  const auto unit = [&](std::size_t i) -> std::uint32_t {
    if (i + 1 >= bytes.size()) return replacement;
    const auto one = static_cast<Byte>(bytes[i]);
    const auto two = static_cast<Byte>(bytes[i + 1]);
    return bigEnd ? (std::uint32_t{one} << 8U) | two : (std::uint32_t{two} << 8U) | one;
  };
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    std::uint32_t code = unit(i);
    if (code >= 0xD800 && code < 0xE000) {
      const std::uint32_t second = unit(i + 2);
      if (code < 0xDC00 && second >= 0xDC00 && second < 0xE000) {
        code = 0x10000 + ((code - 0xD800) << 10U) + (second - 0xDC00);
        i += 2;
      } else {
        code = replacement;
      }
    }
    appendUtf8(text, code);
  }
  return text;
}

// What each byte of a code page is in UTF-8.
class CodePage {
 public:
  explicit CodePage(const std::string& name) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-cstyle-cast,performance-no-int-to-ptr): its own way
    const auto none = (iconv_t)-1;
    iconv_t converter = iconv_open("UTF-8", name.c_str());
    if (converter == none) {
      throw std::invalid_argument("the encoding " + quoted(name) + " is not known");
    }
    for (std::size_t i = 0; i < characters_.size(); i++) {
      char in = static_cast<char>(i);
      std::array<char, 8> out{};
      char* from = &in;
      char* to = out.data();
      std::size_t fromLeft = 1;
      std::size_t toLeft = out.size();
      iconv(converter, nullptr, nullptr, nullptr, nullptr);
      if (iconv(converter, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1)) {
        appendUtf8(characters_[i], replacement);
      } else {
        characters_[i].assign(out.data(), out.size() - toLeft);
      }
    }
    iconv_close(converter);
    isEbcdic_ = characters_[0x40] == " " && characters_[0xC1] == "A";
    if (isEbcdic_) {
      characters_[0x15] = "\n";  // NEL
      characters_[0x25] = "\n";  // LF
    }
  }

  bool isEbcdic() const { return isEbcdic_; }

  std::string decode(std::string_view bytes) const {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) text += characters_[static_cast<Byte>(byte)];
    return text;
  }

 private:
  std::array<std::string, 256> characters_;
  bool isEbcdic_ = false;
};

// Whether most of it are characters that COBOL is written with in EBCDIC, and more than in ASCII.
bool looksLikeEbcdic(std::string_view bytes) {
  constexpr std::size_t sample = 65536;
  bytes = bytes.substr(0, sample);
  const auto between = [](Byte byte, int first, int last) { return byte >= first && byte <= last; };
  std::size_t ebcdic = 0;
  std::size_t ascii = 0;
  std::size_t ebcdicBlanks = 0;
  std::size_t asciiBlanks = 0;
  for (const char character : bytes) {
    const auto byte = static_cast<Byte>(character);
    if (byte == 0x40) ebcdicBlanks++;
    if (byte == ' ') asciiBlanks++;
    const bool isLetter = between(byte, 0xC1, 0xC9) || between(byte, 0xD1, 0xD9) ||
                          between(byte, 0xE2, 0xE9) || between(byte, 0x81, 0x89) ||
                          between(byte, 0x91, 0x99) || between(byte, 0xA2, 0xA9);
    const bool isMark = byte == 0x40 || between(byte, 0x4B, 0x4E) || between(byte, 0x5B, 0x5E) ||
                        between(byte, 0x60, 0x61) || between(byte, 0x6B, 0x6F) ||
                        between(byte, 0x7A, 0x7F) || byte == 0x15 || byte == 0x25 || byte == 0x0D;
    if (isLetter || isMark || between(byte, 0xF0, 0xF9)) ebcdic++;
    if (between(byte, ' ', '~') || byte == '\n' || byte == '\r') ascii++;
  }
  return ebcdicBlanks > asciiBlanks && ebcdic > ascii && ebcdic * 10 >= bytes.size() * 8;
}

// Makes line feeds of CR LF and CR.
void unifyLineEnds(std::string& text) {
  std::size_t from = text.find('\r');
  if (from == std::string::npos) return;
  std::size_t to = from;
  for (; from < text.size(); from++) {
    if (text[from] == '\r') {
      if (from + 1 < text.size() && text[from + 1] == '\n') continue;
      text[to++] = '\n';
    } else {
      text[to++] = text[from];
    }
  }
  text.resize(to);
}

std::string cutIntoRecords(std::string_view bytes, char lineEnd) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / recordLength + 1);
  for (std::size_t i = 0; i < bytes.size(); i += recordLength) {
    text += bytes.substr(i, recordLength);
    text += lineEnd;
  }
  return text;
}

bool isControl(char character) {
  const auto byte = static_cast<Byte>(character);
  return (byte < ' ' && byte != '\n' && byte != '\t' && byte != '\f') || byte == 0x7F;
}

class Decoder {
 public:
  Decoder(std::int32_t file, SourceReport& report) : file_(file), report_(report) {}

  SourceText decode(std::string bytes, const std::string& encoding) {
    SourceText result;
    result.text = encoding.empty() ? recognised(std::move(bytes)) : as(std::move(bytes), encoding);
    unifyLineEnds(result.text);
    // An end of file as it was marked of old.
    while (!result.text.empty() && result.text.back() == '\x1A') result.text.pop_back();
    tellControls(result.text);
    result.plain = isAscii(result.text) && result.text.find('\t') == std::string::npos;
    return result;
  }

 private:
  std::string recognised(std::string bytes) {
    const auto startsWith = [&](std::string_view mark) {
      return std::string_view(bytes).substr(0, mark.size()) == mark;
    };
    if (startsWith("\xEF\xBB\xBF")) return as(std::move(bytes), "UTF-8");
    if (startsWith("\xFF\xFE") || startsWith("\xFE\xFF")) {
      tell("is read as UTF-16");
      return fromUtf16(std::string_view(bytes).substr(2), startsWith("\xFE\xFF"));
    }
    if (isAscii(bytes)) return withLines(std::move(bytes));
    if (looksLikeEbcdic(bytes)) {
      tell("is read as EBCDIC of code page 1047", "name the encoding if it is another");
      return as(std::move(bytes), "IBM-1047");
    }
    if (isUtf8(bytes)) return withLines(std::move(bytes));
    tell("is read as Latin-1, since it is not valid UTF-8", "name the encoding if it is another");
    return as(std::move(bytes), "ISO-8859-1");
  }

  std::string as(std::string bytes, const std::string& encoding) {
    if (encoding == "UTF-8") {
      if (std::string_view(bytes).substr(0, 3) == "\xEF\xBB\xBF") bytes.erase(0, 3);
      return withLines(mended(std::move(bytes)));
    }
    const CodePage page(encoding);
    if (!page.isEbcdic()) return withLines(page.decode(bytes));
    if (bytes.find_first_of("\x15\x25\x0D") == std::string::npos && bytes.size() > recordLength) {
      tellRecords();
      return page.decode(cutIntoRecords(bytes, '\x15'));
    }
    return page.decode(bytes);
  }

  std::string withLines(std::string text) {
    if (!isRecords(text)) return text;
    tellRecords();
    return cutIntoRecords(text, '\n');
  }

  // Whether it is one line that divides into records with an indicator in column 7 of each.
  static bool isRecords(std::string_view text) {
    constexpr std::size_t indicator = 6;
    constexpr std::string_view indicators = " *-/Dd$";
    if (text.size() < 2 * recordLength || text.size() % recordLength != 0 ||
        text.find_first_of("\r\n") != std::string_view::npos || !isAscii(text)) {
      return false;
    }
    for (std::size_t i = indicator; i < text.size(); i += recordLength) {
      if (indicators.find(text[i]) == std::string_view::npos) return false;
    }
    return true;
  }

  // What is no character becomes the one that stands for such.
  std::string mended(std::string text) {
    if (isAscii(text) || isUtf8(text)) return text;
    tell("is not valid UTF-8: what is none is replaced");
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
      const std::size_t length = characterLength(text, i);
      if (length == 0) {
        appendUtf8(result, replacement);
        i++;
      } else {
        result.append(text, i, length);
        i += length;
      }
    }
    return result;
  }

  void tell(const std::string& problem, const std::string& advice = "") {
    report_.add(SourceRule::encoding, {file_, 0, 0}, "the file " + problem, advice);
  }

  void tellRecords() {
    report_.add(SourceRule::records, {file_, 0, 0},
                "the file has no line ends and is read in records of 80 characters");
  }

  void tellControls(const std::string& text) {
    const auto first = std::find_if(text.begin(), text.end(), isControl);
    if (first == text.end()) return;
    const auto before = first - text.begin();
    const auto lineStart = text.rfind('\n', static_cast<std::size_t>(before)) + 1;
    const auto line = std::count(text.begin(), first, '\n') + 1;
    std::int32_t column = 1;
    for (auto i = lineStart; i < static_cast<std::size_t>(before); i++) {
      if ((static_cast<Byte>(text[i]) & 0xC0U) != 0x80U) column++;
    }
    report_.add(SourceRule::controlCharacter, {file_, static_cast<std::int32_t>(line), column},
                "the file has " +
                    count(static_cast<std::size_t>(std::count_if(first, text.end(), isControl)),
                          "control character") +
                    ", this is the first; they count as blanks unless they are in literals");
  }

  std::int32_t file_;
  SourceReport& report_;
};

}  // namespace

SourceText decodeSource(std::string bytes, const std::string& encoding, std::int32_t file,
                        SourceReport& report) {
  return Decoder(file, report).decode(std::move(bytes), encoding);
}

}  // namespace as::toolkit
