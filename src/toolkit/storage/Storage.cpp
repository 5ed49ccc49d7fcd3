#include "as/toolkit/Storage.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

namespace as::toolkit {

namespace {

// How the bytes of a usage follow from its picture.
enum class Form {
  characters,      // So many for each character, or digit and separate sign.
  bits,            // One for each character.
  binary,          // By the dialect's sizes of COMP,
  allBits,         // of COMP-5,
  native,          // or as few as hold the digits, or as there are X.
  fixedBinary,     // Without a picture; so are all that follow, but for the packed ones.
  packed,          // Two digits a byte, the sign's half byte included,
  unsignedPacked,  // or without one.
  floating,
  address,
};

struct UsageRow {
  const char* word;
  Usage usage;
  Form form;
  int bytes;
  int digits;
};

constexpr UsageRow usages[] = {
#define AS_USAGE(usage, word, form, bytes, digits) {word, Usage::usage, Form::form, bytes, digits},
#include "toolkit/storage/Usages.def"
#undef AS_USAGE
};

constexpr bool standInTheirPlaces() {
  for (std::size_t i = 0; i < std::size(usages); ++i) {
    if (static_cast<std::size_t>(usages[i].usage) != i) return false;
  }
  return true;
}
static_assert(standInTheirPlaces(), "the rows of Usages.def follow the enumerators");

const UsageRow& rowOf(Usage usage) { return usages[static_cast<std::size_t>(usage)]; }

constexpr int mostBinaryDigits = 18;
constexpr int most = std::numeric_limits<int>::max();

int roundedUp(double value) { return static_cast<int>(std::ceil(value)); }

// As few bytes as hold so many digits.
int compactBytes(int digits, bool isSigned) {
  return roundedUp((digits * std::log2(10.0) + (isSigned ? 1 : 0)) / 8);
}

std::optional<int> binaryBytes(BinarySizes sizes, const Picture& picture) {
  const int digits = picture.storedDigits();
  if (digits > mostBinaryDigits) return std::nullopt;
  if (sizes == BinarySizes::compact) return compactBytes(digits, picture.isSigned);
  if (digits <= 2 && sizes == BinarySizes::from1) return 1;
  return digits <= 4 ? 2 : digits <= 9 ? 4 : 8;
}

// Of an item that its picture gives so many bytes. Who has items of one byte rounds up to the size
// of a machine's word.
std::optional<int> binaryBytes(BinarySizes sizes, int bytes) {
  constexpr int largest = 8;
  if (sizes != BinarySizes::from1) return bytes;
  if (bytes > largest) return std::nullopt;
  return static_cast<int>(std::bit_ceil(static_cast<unsigned>(bytes)));
}

// Of a usage that counts characters; `bytes` for each of them, which the picture may raise.
std::optional<int> characterBytes(Usage usage, int bytes, const Picture& picture,
                                  bool hasSeparateSign) {
  using Category = Picture::Category;
  const Category category = picture.category;
  const bool isNational = category == Category::national || category == Category::nationalEdited;
  const bool isDbcs = category == Category::dbcs;
  const bool isText = category == Category::alphabetic || category == Category::alphanumeric ||
                      category == Category::alphanumericEdited;
  if (usage == Usage::national && (isText || isDbcs)) return std::nullopt;
  const bool isUtf8 = category == Category::utf8;
  if (isUtf8 ? usage != Usage::utf8 && usage != Usage::display : usage == Usage::utf8) {
    return std::nullopt;
  }
  if (usage == Usage::display1 && !isNational && !isDbcs) return std::nullopt;
  if (usage == Usage::externalFloat && category != Category::externalFloat) return std::nullopt;
  // N and G say what they need without a USAGE clause, too.
  if (isNational || isDbcs) bytes = 2;
  if (isUtf8) bytes = 4;
  const bool isLonger = category == Category::numeric && hasSeparateSign;
  return bytes * (picture.characters + (isLonger ? 1 : 0));
}

int addressBytes(const Dialect& dialect, const UsageRow& row) {
  switch (row.usage) {
    case Usage::index:
      return dialect.index;
    case Usage::procedurePointer:
      return dialect.procedurePointer;
    case Usage::functionPointer:
      return dialect.functionPointer;
    case Usage::objectReference:
      return dialect.objectReference;
    case Usage::pointer:
      return dialect.pointer;
    default:
      return row.bytes;
  }
}

}  // namespace

const char* wordOf(Usage usage) { return rowOf(usage).word; }

bool isFloating(Usage usage) {
  return usage == Usage::externalFloat || rowOf(usage).form == Form::floating;
}

bool isOfAllBits(Usage usage) {
  const Form form = rowOf(usage).form;
  return form == Form::allBits || form == Form::native || form == Form::fixedBinary;
}

std::optional<int> bytesOf(const Dialect& dialect, Usage usage,
                           const std::optional<Picture>& picture, bool hasSeparateSign) {
  const UsageRow& row = rowOf(usage);
  if (row.form == Form::fixedBinary || row.form == Form::floating) return row.bytes;
  if (row.form == Form::address) return addressBytes(dialect, row);
  if (!picture) return std::nullopt;
  if (row.form == Form::characters) {
    return characterBytes(usage, row.bytes, *picture, hasSeparateSign);
  }
  const Picture::Category category = picture->category;
  if (row.form == Form::bits) {
    if (category != Picture::Category::boolean) return std::nullopt;
    return picture->characters / 8 + (picture->characters % 8 == 0 ? 0 : 1);
  }
  // X(4) COMP-5 and X(4) COMP-X are binary items of so many bytes.
  if (category == Picture::Category::alphanumeric) {
    if (row.form == Form::native) return picture->characters;
    if (row.form == Form::allBits) return binaryBytes(dialect.comp5, picture->characters);
  }
  if (category != Picture::Category::numeric) return std::nullopt;
  switch (row.form) {
    case Form::binary:
      return binaryBytes(dialect.comp, *picture);
    case Form::allBits:
      return binaryBytes(dialect.comp5, *picture);
    case Form::packed:
      return picture->storedDigits() / 2 + 1;
    case Form::unsignedPacked:
      return (picture->storedDigits() + 1) / 2;
    default:
      return compactBytes(picture->storedDigits(), false);
  }
}

int boundaryOf(const Dialect& dialect, Usage usage, int bytes) {
  if (!std::has_single_bit(static_cast<unsigned>(std::max(bytes, 0)))) return 1;
  switch (rowOf(usage).form) {
    case Form::binary:
    case Form::allBits:
    case Form::fixedBinary:
      return std::min(bytes, dialect.binaryBoundary);
    case Form::native:
      return std::min(bytes, dialect.nativeBoundary);
    case Form::floating:
      return std::min(bytes, dialect.floatingBoundary);
    case Form::address:
      return std::min(bytes, dialect.addressBoundary);
    default:
      return 1;
  }
}

int digitsIn(Usage usage, int bytes) {
  const UsageRow& row = rowOf(usage);
  bytes = std::max(bytes, 0);
  switch (row.form) {
    case Form::characters:
      return usage == Usage::externalFloat || usage == Usage::display1 ? 0 : bytes / row.bytes;
    case Form::packed:
      return bytes == 0 ? 0 : 2 * std::min(bytes, most / 2) - 1;
    case Form::unsignedPacked:
      return 2 * std::min(bytes, most / 2);
    case Form::floating:
      return row.digits;
    case Form::bits:
    case Form::address:
      return 0;
    default:
      return digitsOf(bitsOf(bytes));
  }
}

int digitsOf(int bits) { return roundedUp(std::max(bits, 0) * std::log10(2.0)); }

int bitsOf(int bytes) { return bytes > most / 8 ? most : 8 * std::max(bytes, 0); }

}  // namespace as::toolkit
