#include "toolkit/import/SourceText.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "as/toolkit/Text.h"
#include "toolkit/import/Characters.h"
#include "toolkit/import/CodePage.h"
#include "toolkit/import/EncodingRecognition.h"
#include "toolkit/text/Utf8.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

using Byte = unsigned char;

constexpr std::size_t recordLength = 80;

std::string fromUtf16(std::string_view bytes, bool bigEnd) {
  std::string text;
  text.reserve(bytes.size());
  const auto unit = [&](std::size_t i) -> std::uint32_t {
    if (i + 1 >= bytes.size()) return replacementCharacter;
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
        code = replacementCharacter;
      }
    }
    appendUtf8(text, code);
  }
  return text;
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

// Some files hold a few; programs and pictures hold many.
bool isText(std::size_t size, std::size_t controls) {
  constexpr std::size_t few = 16;
  constexpr std::size_t share = 16;
  return controls <= few || controls * share <= size;
}

class Decoder {
 public:
  Decoder(std::int32_t file, SourceReport& report) : file_(file), report_(report) {}

  SourceText decode(std::string bytes, const std::string& encoding) {
    SourceText result;
    result.text = encoding.empty() ? recognised(std::move(bytes)) : as(std::move(bytes), encoding);
    unifyLineEnds(result.text);
    // An end of file as it was marked of old, and what blocks are filled up with.
    while (!result.text.empty() && (result.text.back() == '\x1A' || result.text.back() == '\0')) {
      result.text.pop_back();
    }
    if (!tellControls(result.text)) result.text.clear();
    result.wide = isWide_;
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
    if (looksLikeShiftJis(bytes)) {
      tell("is read as Shift-JIS", "name the encoding if it is another");
      return as(std::move(bytes), "CP932");
    }
    tell("is read as Latin-1, since it is not valid UTF-8", "name the encoding if it is another");
    return as(std::move(bytes), "ISO-8859-1");
  }

  std::string as(std::string bytes, const std::string& encoding) {
    if (encoding == "UTF-8") {
      if (std::string_view(bytes).substr(0, 3) == "\xEF\xBB\xBF") bytes.erase(0, 3);
      return withLines(mended(std::move(bytes)));
    }
    const CodePage page(encoding);
    isWide_ = page.isWide();
    if (!page.isEbcdic()) return withLines(page.decode(bytes));
    if (bytes.find_first_of("\x15\x25\x0D") == std::string::npos && bytes.size() > recordLength) {
      tellRecords();
      bytes = cutIntoRecords(bytes, '\x15');
    }
    std::string text = page.decode(bytes);
    if (!page.isWide()) tellShifted(text, encoding);
    return text;
  }

  // Tells of characters of two bytes that the code page does not have.
  void tellShifted(const std::string& text, const std::string& encoding) {
    // The first of those for private use.
    const std::size_t first = text.find(std::string(1, shiftOut) + '\xF3');
    if (first == std::string::npos) return;
    isWide_ = true;
    report_.add(SourceRule::twoByteText, placeOf(text, first),
                "the file has characters of two bytes, which the code page " + encoding +
                    " does not have: nobody can read them",
                "name the encoding that has them, IBM-939 for one");
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
        appendUtf8(result, replacementCharacter);
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

  // False when there are so many that it is no text.
  bool tellControls(const std::string& text) {
    // What shifts to characters of two bytes and back is none.
    const auto isTold = [this](char character) {
      const bool isShift = isWide_ && (character == shiftOut || character == shiftIn);
      return isControl(character) && !isShift;
    };
    const auto first = std::find_if(text.begin(), text.end(), isTold);
    if (first == text.end()) return true;
    const auto controls = static_cast<std::size_t>(std::count_if(first, text.end(), isTold));
    if (!isText(text.size(), controls)) {
      report_.add(SourceRule::noText, {file_, 0, 0},
                  "the file is no text: of its " + std::to_string(text.size()) + " bytes, " +
                      std::to_string(controls) + " are control characters",
                  "name its encoding if it is a source");
      return false;
    }
    report_.add(SourceRule::controlCharacter,
                placeOf(text, static_cast<std::size_t>(first - text.begin())),
                "the file has " + count(controls, "control character") +
                    ", this is the first; they count as blanks unless they are in literals");
    return true;
  }

  SourcePlace placeOf(const std::string& text, std::size_t at) const {
    const std::string_view before = std::string_view(text).substr(0, at);
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    const auto columns = std::count_if(
        line.begin(), line.end(), [](char character) { return !isWithinCharacter(character); });
    return {file_, static_cast<std::int32_t>(std::count(before.begin(), before.end(), '\n') + 1),
            static_cast<std::int32_t>(columns + 1)};
  }

  bool isWide_ = false;
  std::int32_t file_;
  SourceReport& report_;
};

}  // namespace

SourceText decodeSource(std::string bytes, const std::string& encoding, std::int32_t file,
                        SourceReport& report) {
  return Decoder(file, report).decode(std::move(bytes), encoding);
}

}  // namespace as::toolkit
