// How COBOL items are stored: their bytes by usage, picture and dialect of the compiler, where
// SYNCHRONIZED ones start, and the digits that bytes hold.
#ifndef AS_TOOLKIT_STORAGE_H_
#define AS_TOOLKIT_STORAGE_H_

#include <optional>
#include <string_view>
#include <vector>

#include "as/Export.h"
#include "as/IDataItem.h"
#include "as/toolkit/Picture.h"

namespace as::toolkit {

// The USAGE of an elementary item. Usages that only differ in their words are one.
enum class Usage {
  display,
  display1,  // Characters of two bytes.
  national,
  bit,
  externalFloat,  // DISPLAY with such a picture.
  comp,           // Also BINARY.
  comp4,
  comp5,  // Binary, holds all that its bytes can; so do COMP-X, COMP-N and BINARY-...
  compX,
  compN,
  comp3,  // Also PACKED-DECIMAL.
  comp6,  // Packed without a sign.
  binaryChar,
  binaryShort,
  binaryLong,
  binaryDouble,
  comp1,  // Also FLOAT-SHORT.
  comp2,  // Also FLOAT-LONG.
  floatExtended,
  floatDecimal16,
  floatDecimal34,
  index,
  pointer,
  pointer32,
  procedurePointer,  // Also PROGRAM-POINTER.
  functionPointer,
  objectReference,
  utf8,  // Characters of up to four bytes, for each of which there is room.
};

// The usage of that word or words as a program may write them, COMPUTATIONAL-3 and OBJECT REFERENCE
// for two, in letters of any case. Nothing for a word that is none.
AS_EXPORT std::optional<Usage> findUsage(std::string_view word);

// The word that a program writes: "COMP-3". Empty for external floating point, which is no word's.
AS_EXPORT const char* wordOf(Usage usage);

// The usage of an item of a dictionary. Nothing for a group.
AS_EXPORT std::optional<Usage> usageOf(IDataItem& item);

// Whether such items are floating-point numbers.
AS_EXPORT bool isFloating(Usage usage);

// Whether such items are integers that hold all that fits into their bytes, so that their picture
// does not tell the largest one.
AS_EXPORT bool isOfAllBits(Usage usage);

// How large binary items are.
enum class BinarySizes {
  from1,    // 1, 2, 4 or 8 bytes.
  from2,    // 2, 4 or 8 bytes.
  compact,  // As few bytes as hold the digits and, if there is one, the sign.
};

// Where the slack bytes stand that bring a SYNCHRONIZED item to its boundary when it is the first
// in its group.
enum class SlackPlace {
  insideGroup,   // The group starts with them.
  beforeGroups,  // In front of it, and of the groups that start with it.
};

// What a SYNCHRONIZED clause of a group is.
enum class GroupSync {
  ofNoEffect,
  ofRecords,  // At level 01, that of all its items.
};

// How compilers of a family lay items out. All text is of static duration.
struct Dialect {
  const char* word;       // Names it: "ibm".
  const char* summary;    // Which compilers and platforms that is.
  BinarySizes comp;       // COMP, COMP-4 and BINARY.
  BinarySizes comp5;      // COMP-5.
  int index;              // Bytes of an index data item,
  int pointer;            // of pointers to data,
  int procedurePointer;   // to programs,
  int functionPointer;    // to functions, and
  int objectReference;    // of references to objects.
  int binaryBoundary;     // The greatest multiple that SYNCHRONIZED lets binary items start on,
  int nativeBoundary;     // items of usage COMP-X and COMP-N,
  int floatingBoundary;   // floating-point items, and
  int addressBoundary;    // index items, pointers and references to objects.
  SlackPlace slackPlace;  // Where the bytes between items go.
  GroupSync groupSync;    // What SYNCHRONIZED at a group means.
};

// All of them, in the order in which they are documented; words are unique.
AS_EXPORT const std::vector<Dialect>& dialects();

// The dialect of that word; null when there is none.
AS_EXPORT const Dialect* findDialect(std::string_view word);

// The dialect for addresses of so many bytes, 4 or 8: its word stays, unless there is another one
// for such addresses (ibm and ibm64).
AS_EXPORT Dialect withAddresses(const Dialect& dialect, int bytes);

// The size of one occurrence of an item in bytes; a SIGN clause with SEPARATE makes it longer.
// Usages that take no picture are of one size whatever `picture` says. Nothing where such an item
// cannot be: without the picture that its usage needs, with one that does not go with it, or with
// more digits than binary items have.
AS_EXPORT std::optional<int> bytesOf(const Dialect& dialect, Usage usage,
                                     const std::optional<Picture>& picture = std::nullopt,
                                     bool hasSeparateSign = false);

// The multiple of bytes, counted from the start of its record, that an item of that size starts on
// when it is SYNCHRONIZED; 1 when it starts anywhere.
AS_EXPORT int boundaryOf(const Dialect& dialect, Usage usage, int bytes);

// The most decimal digits that an item of that usage and so many bytes holds: all of those of the
// largest number for items that hold all that fits into their bytes, those that are never lost for
// floating-point items. 0 when bytes do not tell it, and for what is no number.
AS_EXPORT int digitsIn(Usage usage, int bytes);

// The decimal digits of the largest number of so many bits.
AS_EXPORT int digitsOf(int bits);

// The bits of so many bytes; 0 for less than none, and the largest number when there are more.
AS_EXPORT int bitsOf(int bytes);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_STORAGE_H_
