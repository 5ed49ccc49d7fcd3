#include "toolkit/text/Utf8.h"

namespace as::toolkit {

void appendUtf8(std::string& text, std::uint32_t code) {
  const auto add = [&text](std::uint32_t bits) { text += static_cast<char>(bits); };
  const auto addRest = [&](unsigned shift) { add(0x80U | ((code >> shift) & 0x3FU)); };
  if (code < 0x80) {
    add(code);
  } else if (code < 0x800) {
    add(0xC0U | (code >> 6U));
    addRest(0);
  } else if (code < 0x10000) {
    add(0xE0U | (code >> 12U));
    addRest(6);
    addRest(0);
  } else {
    add(0xF0U | ((code >> 18U) & 0x7U));
    addRest(12);
    addRest(6);
    addRest(0);
  }
}

}  // namespace as::toolkit
