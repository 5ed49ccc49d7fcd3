// The name of an attribute that is looked for.
#ifndef XML_ATTRIBUTENAME_H_
#define XML_ATTRIBUTENAME_H_

#include <cstdint>
#include <xercesc/util/XercesDefs.hpp>

// A name, and its sign, made of its first letters: most attributes that a model asks for are not
// there, and signs tell so without a look at the names (see ReadAttributes). The sign of a name
// that stands in the code is made by the compiler.
class AttributeName {
 public:
  static constexpr unsigned bitsOfASign = 8;
  static constexpr std::uint64_t lowestOfEach = 0x0101010101010101;
  static constexpr std::uint64_t highestOfEach = lowestOfEach << (bitsOfASign - 1);

  // REQUIRES: the text is not null, and outlives this.
  constexpr AttributeName(const XMLCh* text) : text_(text), signs_(signOf(text) * lowestOfEach) {}

  constexpr const XMLCh* text() const { return text_; }
  // Eight times its sign.
  constexpr std::uint64_t signs() const { return signs_; }

  // Never zero: the highest bit tells that there is a name.
  static constexpr std::uint64_t signOf(const XMLCh* text) {
    const unsigned first = text[0];
    const unsigned second = first == 0 ? 0U : text[1];
    const unsigned third = second == 0 ? 0U : text[2];
    // The factors tell the attributes of items apart, as far as three letters can.
    return ((2 * first + 6 * second + 7 * third) & 0xFF) | 0x80;
  }

  // Names that were read are texts of the code already, nearly all (see NamePool).
  bool operator==(const XMLCh* other) const {
    if (text_ == other) return true;
    for (const XMLCh* own = text_; *own == *other; own++, other++) {
      if (*own == 0) return true;
    }
    return false;
  }

 private:
  const XMLCh* text_;
  std::uint64_t signs_;
};

#endif  // XML_ATTRIBUTENAME_H_
