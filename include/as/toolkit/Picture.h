// What the PICTURE of a COBOL item says.
#ifndef AS_TOOLKIT_PICTURE_H_
#define AS_TOOLKIT_PICTURE_H_

#include <optional>
#include <string_view>

#include "as/Export.h"

namespace as::toolkit {

// What a PICTURE says.
struct Picture {
  // What an item of it holds.
  enum class Category {
    alphabetic,          // A(5)
    alphanumeric,        // X(5), also mixed with A and 9
    alphanumericEdited,  // X(2)BX(3)
    boolean,             // 1(8)
    dbcs,                // G(5)
    externalFloat,       // +9(3).9(4)E+99
    national,            // N(5)
    nationalEdited,      // N(2)BN(3)
    numeric,             // S9(5)V99
    numericEdited,       // -Z(4)9.99
    utf8,                // U(5)
  };

  Category category = Category::alphanumeric;  // Told from its symbols.
  // How many character positions it describes: V, P and the S of an operational sign are none, CR
  // and DB are two.
  int characters = 0;
  // Of numbers, those of the mantissa for external floating point: how many digits they have, P
  // included, and how many of these stand behind the decimal point. VPPP9(4) has 7 digits, 7 of
  // them behind the point, and 9(4)PPP has 7, none of them.
  int digits = 0;
  int scale = 0;
  // How many of the digits are P: the item's bytes do not hold them.
  int scaling = 0;
  // Whether it shows or keeps a sign. An item's SIGN clause adds nothing to that.
  bool isSigned = false;

  // The digits that the bytes hold.
  int storedDigits() const { return digits - scaling; }
  // What the last stored digit counts: so many powers of ten, -2 for hundredths.
  int exponent() const { return scale > 0 ? -scale : scaling; }
};

// What a program says of its pictures.
struct PictureRules {
  // The currency symbol, one character in UTF-8. Empty when unknown: a character that means nothing
  // else in a picture is taken for it.
  std::string_view currencySymbol = "$";
  // How many characters the currency string has that stands in its place.
  int currencyCharacters = 1;
  // DECIMAL-POINT IS COMMA: period and comma have changed their places.
  bool isDecimalPointComma = false;
};

// Nothing for a text that is no picture of these rules: unknown symbols, repetitions that are no
// number from 1 on, symbols that do not go together or stand in the wrong order, and more than
// 1,000,000,000 characters or digits. Letters may be small ones.
AS_EXPORT std::optional<Picture> readPicture(std::string_view text, const PictureRules& rules = {});

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_PICTURE_H_
