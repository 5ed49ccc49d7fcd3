// The dialects as a list.
#include "as/toolkit/Storage.h"

namespace as::toolkit {

const std::vector<Dialect>& dialects() {
  static const std::vector<Dialect> all = {
#define AS_DIALECT(word, comp, comp5, ix, pt, pp, fp, ob, bi, nx, fl, ad, slack, group, summary) \
  {word, summary, BinarySizes::comp, BinarySizes::comp5, ix, pt, pp, fp, ob, bi, nx,             \
   fl,   ad,      SlackPlace::slack, GroupSync::group},
#include "toolkit/storage/Dialects.def"
#undef AS_DIALECT
  };
  return all;
}

const Dialect* findDialect(std::string_view word) {
  for (const Dialect& dialect : dialects()) {
    if (dialect.word == word) return &dialect;
  }
  return nullptr;
}

Dialect withAddresses(const Dialect& dialect, int bytes) {
  if (dialect.pointer == bytes) return dialect;
  constexpr std::string_view narrow = "ibm";
  constexpr std::string_view wide = "ibm64";
  if (dialect.word == narrow && bytes == 8) return *findDialect(wide);
  if (dialect.word == wide && bytes == 4) return *findDialect(narrow);
  Dialect other = dialect;
  other.pointer = other.procedurePointer = bytes;
  other.functionPointer = other.objectReference = bytes;
  other.addressBoundary = bytes;
  return other;
}

}  // namespace as::toolkit
