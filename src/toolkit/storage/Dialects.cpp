// The dialects as a list.
#include "as/toolkit/Storage.h"

namespace as::toolkit {

const std::vector<Dialect>& dialects() {
  static const std::vector<Dialect> all = {
#define AS_DIALECT(word, comp, comp5, ix, pt, pp, fp, ob, bi, nx, fl, ad, summary) \
  {word, summary, BinarySizes::comp, BinarySizes::comp5, ix, pt, pp, fp, ob, bi, nx, fl, ad},
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

}  // namespace as::toolkit
