// COBOL's own rules: what a data item takes in bytes, what its picture says, and where the items of
// a record stand.
#ifndef TESTS_SCHEMA_COBOLLAYOUT_H_
#define TESTS_SCHEMA_COBOLLAYOUT_H_

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "as/AgentServices.h"

namespace cobol {

using as::IDataItem;
using as::IGroup;
using as::IList;
using as::INumeric;

// The platform of the examples, as their README tells it: 64 bits.
inline constexpr int kPointerSize = 8;
inline constexpr int kObjectSize = 8;
inline constexpr int kIndexSize = 4;
inline constexpr int kGreatestBoundary = 8;

// The kinds of items, cobolObject told from alphanumeric.
enum class Kind {
  kGroup,
  kNumeric,
  kAlphanumeric,
  kObject,
  kPointer,
  kNational,
  kNumericEdited,
  kIndex,
};

inline Kind kindOf(IDataItem* item) {
  switch (item->getDataType()) {
    case IDataItem::TYPE_GROUP:
      return Kind::kGroup;
    case IDataItem::TYPE_NUMERIC:
      return Kind::kNumeric;
    case IDataItem::TYPE_POINTER:
      return Kind::kPointer;
    case IDataItem::TYPE_NATIONAL:
      return Kind::kNational;
    case IDataItem::TYPE_NUMERIC_EDITED:
      return Kind::kNumericEdited;
    case IDataItem::TYPE_INDEX:
      return Kind::kIndex;
    default:
      // An object reference answers the alphanumeric type but has no alphanumeric interface.
      return as::interface_cast<as::IAlphanumeric>(item) == nullptr ? Kind::kObject
                                                                    : Kind::kAlphanumeric;
  }
}

// "S9(3)V99" as "S999V99".
inline std::string spelledOut(const std::string& picture) {
  std::string result;
  for (std::size_t i = 0; i < picture.size(); i++) {
    if (picture[i] != '(') {
      result += picture[i];
      continue;
    }
    const std::size_t close = picture.find(')', i);
    if (close == std::string::npos || result.empty()) return std::string();
    const int times = std::atoi(picture.substr(i + 1, close - i - 1).c_str());
    result.append(static_cast<std::size_t>(std::max(times - 1, 0)), result.back());
    i = close;
  }
  return result;
}

inline int countOf(const std::string& text, const std::string& characters) {
  return static_cast<int>(std::count_if(
      text.begin(), text.end(), [&](char c) { return characters.find(c) != std::string::npos; }));
}

struct Digits {
  int all;
  int behindPoint;
};

bool isExternalFloat(const std::string& picture) { return picture.find('E') != std::string::npos; }

// What a numeric picture says; P counts as a digit.
inline Digits digitsOfNumeric(const std::string& picture) {
  const std::string text = spelledOut(picture);
  if (isExternalFloat(text)) {
    const std::string mantissa = text.substr(0, text.find('E'));
    const std::size_t point = mantissa.find_first_of(".V");
    return {countOf(mantissa, "9"),
            point == std::string::npos ? 0 : countOf(mantissa.substr(point), "9")};
  }
  if (countOf(text, "X") > 0) {  // COMP-X by bytes: the digits of the largest value
    const int bytes = countOf(text, "X");
    return {static_cast<int>(std::floor(bytes * 8 * std::log10(2.0))) + 1, 0};
  }
  const int all = countOf(text, "9P");
  const std::size_t point = text.find('V');
  if (point != std::string::npos) return {all, countOf(text.substr(point), "9P")};
  // Without a V the P tells where the point is assumed: before leading ones, behind trailing ones.
  const std::size_t first = text.find_first_of("9P");
  const bool isFraction = first != std::string::npos && text[first] == 'P';
  return {all, isFraction ? all : 0};
}

// What a numeric edited picture has room for: a floating string gives one digit less than it has
// characters.
inline Digits digitsOfEdited(const std::string& picture) {
  std::string text = spelledOut(picture);
  for (const char* const suffix : {"CR", "DB"}) {
    const std::size_t at = text.find(suffix);
    if (at != std::string::npos) text.erase(at);
  }
  std::string places = "9Z*";
  int all = 0;
  for (const char floating : {'+', '-', '$'}) {
    if (std::count(text.begin(), text.end(), floating) < 2) continue;
    places += floating;
    all = -1;
  }
  all += countOf(text, places);
  const std::size_t point = text.find('.');
  return {all, point == std::string::npos ? 0 : countOf(text.substr(point), places)};
}

inline int binarySize(int digits) {
  if (digits <= 4) return 2;
  return digits <= 9 ? 4 : 8;
}

inline int numericSize(INumeric* item) {
  const std::string text = spelledOut(item->getPicture());
  const int stored = countOf(text, "9");
  const bool isSeparate = item->getSign() == INumeric::SIGN_LEADING_SEPARATE ||
                          item->getSign() == INumeric::SIGN_TRAILING_SEPARATE;
  switch (item->getUsage()) {
    case INumeric::USAGE_COMP:
    case INumeric::USAGE_COMP_4:
    case INumeric::USAGE_COMP_5:
      return binarySize(stored);
    case INumeric::USAGE_COMP_X: {
      const int bytes = countOf(text, "X");
      return bytes > 0 ? bytes : static_cast<int>(std::ceil(stored * std::log2(10.0) / 8));
    }
    case INumeric::USAGE_COMP_1:
      return 4;
    case INumeric::USAGE_COMP_2:
      return 8;
    case INumeric::USAGE_COMP_3:
      return stored / 2 + 1;
    case INumeric::USAGE_COMP_6:
      return (stored + 1) / 2;
    case INumeric::USAGE_EXTERNAL_FLOAT:
      return static_cast<int>(text.size());
    default:
      return stored + (isSeparate ? 1 : 0);
  }
}

inline int elementarySize(IDataItem* item) {
  const int characters = static_cast<int>(spelledOut(item->getPicture()).size());
  switch (kindOf(item)) {
    case Kind::kNumeric:
      return numericSize(as::interface_cast<INumeric>(item));
    case Kind::kNational:
      return 2 * characters;
    case Kind::kPointer:
      return kPointerSize;
    case Kind::kObject:
      return kObjectSize;
    case Kind::kIndex:
      return kIndexSize;
    default:
      return characters;
  }
}

inline bool hasBoundary(IDataItem* item) {
  const Kind kind = kindOf(item);
  if (kind == Kind::kPointer || kind == Kind::kObject || kind == Kind::kIndex) return true;
  auto* const numeric = as::interface_cast<INumeric>(item);
  if (numeric == nullptr) return false;
  switch (numeric->getUsage()) {
    case INumeric::USAGE_COMP:
    case INumeric::USAGE_COMP_1:
    case INumeric::USAGE_COMP_2:
    case INumeric::USAGE_COMP_4:
    case INumeric::USAGE_COMP_5:
      return true;
    default:
      return false;
  }
}

int roundedUp(int value, int boundary) { return (value + boundary - 1) / boundary * boundary; }

inline std::vector<IDataItem*> membersOf(IList* list) {
  std::vector<IDataItem*> result;
  for (int i = 0; list != nullptr && i < list->getLength(); i++)
    result.push_back(as::interface_cast<IDataItem>(list->getItem(i)));
  return result;
}

inline std::vector<IDataItem*> childrenOf(IDataItem* item) {
  auto* const group = as::interface_cast<IGroup>(item);
  return group == nullptr ? std::vector<IDataItem*>() : membersOf(group->getChildren());
}

inline void forEachItem(IDataItem* item, const std::function<void(IDataItem*)>& visit) {
  visit(item);
  for (IDataItem* const child : childrenOf(item)) forEachItem(child, visit);
}

struct Extent {
  int offset;
  int length;
};

// Where COBOL puts the items of one record.
class RecordLayout {
 public:
  explicit RecordLayout(IDataItem* record) { place(record, 0); }

  // RENAMES entries have no place of their own and are not in here.
  const std::map<IDataItem*, Extent>& extents() const { return extents_; }

 private:
  struct Placed {
    int end;       // behind the last occurrence
    int boundary;  // the greatest that a SYNCHRONIZED item inside asks for
  };

  Placed place(IDataItem* item, int at) {
    return kindOf(item) == Kind::kGroup ? placeGroup(item, at) : placeElementary(item, at);
  }

  Placed placeElementary(IDataItem* item, int at) {
    const int size = elementarySize(item);
    int boundary = 1;
    if (item->isSync() && hasBoundary(item)) boundary = std::min(size, kGreatestBoundary);
    return {occupy(item, roundedUp(at, boundary), size), boundary};
  }

  Placed placeGroup(IDataItem* item, int at) {
    int end = at;
    int redefined = at;  // where the latest entry that is no redefinition starts
    int boundary = 1;
    for (IDataItem* const child : childrenOf(item)) {
      if (child->isRenamed()) continue;
      const Placed placed = place(child, child->isRedefined() ? redefined : end);
      if (!child->isRedefined()) redefined = extents_.at(child).offset;
      boundary = std::max(boundary, placed.boundary);
      end = std::max(end, placed.end);
    }
    int size = end - at;
    // Slack behind each occurrence keeps the next one on its boundary.
    if (item->getMaxOccurs() > 0) size = roundedUp(size, boundary);
    return {occupy(item, at, size), boundary};
  }

  int occupy(IDataItem* item, int offset, int length) {
    extents_[item] = {offset, length};
    return offset + length * std::max(item->getMaxOccurs(), 1);
  }

  std::map<IDataItem*, Extent> extents_;
};

}  // namespace cobol

#endif  // TESTS_SCHEMA_COBOLLAYOUT_H_
