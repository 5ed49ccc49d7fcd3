#include "as/toolkit/FindingsWriter.h"

#include "toolkit/findings/Formats.h"

namespace as::toolkit {

namespace {

bool isUnreserved(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~';
}

}  // namespace

FindingsWriter::~FindingsWriter() = default;

const std::vector<FindingsFormat>& findingsFormats() {
  static const std::vector<FindingsFormat> all = {
#define AS_FINDINGS_FORMAT(function, word, summary) {word, summary, function},
#include "toolkit/findings/Formats.def"
  };
  return all;
}

const FindingsFormat* findFindingsFormat(std::string_view word) {
  for (const FindingsFormat& format : findingsFormats()) {
    if (word == format.word) return &format;
  }
  return nullptr;
}

std::string uriOf(std::string_view file) {
  constexpr char hexDigits[] = "0123456789ABCDEF";
  constexpr unsigned int lowHalf = 0xF;
  std::string uri = !file.empty() && file.front() == '/' ? "file://" : "";
  for (const char c : file) {
    if (c == '/' || isUnreserved(c)) {
      uri += c;
      continue;
    }
    const auto code = static_cast<unsigned char>(c);
    uri += '%';
    uri += hexDigits[code >> 4U];
    uri += hexDigits[code & lowHalf];
  }
  return uri;
}

}  // namespace as::toolkit
