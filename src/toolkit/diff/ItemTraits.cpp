#include "toolkit/diff/ItemTraits.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <utility>

#include "toolkit/text/Words.h"

namespace as::toolkit {

namespace {

std::string yesOrNo(bool flag) { return flag ? "yes" : "no"; }

std::string pictureOr(const ItemFacts& item) {
  return item.picture.empty() ? describe(item) : item.picture;
}

// How much an item holds, in the unit of its category.
int widthOf(const ItemFacts& item) {
  return item.digits > 0 ? item.digits : std::max(item.length, 0);
}

// The kind of what happened to the PICTURE; null when nothing did.
const char* pictureKind(const ItemFacts& before, const ItemFacts& after) {
  const bool isNumber = before.category == as::IDataItem::TYPE_NUMERIC;
  if (isNumber && before.scale != after.scale) return "scale-changed";
  if (before.picture == after.picture) {
    // Documents may leave the number of digits out.
    const bool areTold = before.digits > 0 && after.digits > 0;
    return isNumber && areTold && before.digits != after.digits
               ? (before.digits < after.digits ? "picture-widened" : "picture-narrowed")
               : nullptr;
  }
  // Only a number, and a text with another picture, has a width of its own.
  if (before.digits != after.digits || !isNumber) {
    if (widthOf(before) < widthOf(after)) return "picture-widened";
    if (widthOf(before) > widthOf(after)) return "picture-narrowed";
  }
  if (normalPicture(before.picture) == normalPicture(after.picture)) return "picture-respelled";
  // The sign has a change of its own.
  const auto unsignedPart = [](const ItemFacts& item) {
    std::string text = normalPicture(item.picture);
    const bool isSigned = text.rfind("S1", 0) == 0;
    return isSigned ? text.substr(2) : text;
  };
  if (isNumber && before.sign != after.sign && unsignedPart(before) == unsignedPart(after)) {
    return nullptr;
  }
  return "picture-changed";
}

}  // namespace

std::string describe(const ItemFacts& item) {
  std::string text = dataTypeWord(item.category);
  if (!item.picture.empty()) text += " " + item.picture;
  const bool isNumber = item.category == as::IDataItem::TYPE_NUMERIC;
  if (isNumber && item.usage != "display") text += " " + item.usage;
  if (item.picture.empty() && item.length >= 0) {
    text += " of " + std::to_string(item.length) + (item.length == 1 ? " byte" : " bytes");
  }
  return text;
}

std::string normalPicture(const std::string& picture) {
  constexpr std::uint64_t most = 1000000000;
  std::string text;
  char current = 0;
  std::uint64_t times = 0;
  const auto flush = [&] {
    if (times > 0) text += current + std::to_string(times);
  };
  for (std::size_t i = 0; i < picture.size(); ++i) {
    const char c = static_cast<char>(std::toupper(static_cast<unsigned char>(picture[i])));
    if (c != '(') {
      if (c != current) {
        flush();
        current = c;
        times = 0;
      }
      ++times;
      continue;
    }
    std::uint64_t number = 0;
    for (++i; i < picture.size() && picture[i] != ')'; ++i) {
      if (picture[i] < '0' || picture[i] > '9') return picture;
      number = std::min(most, number * 10 + static_cast<std::uint64_t>(picture[i] - '0'));
    }
    if (times > 0) times += number;
    if (times > 0) --times;
  }
  flush();
  return text;
}

std::vector<TraitChange> traitChanges(const ItemFacts& before, const ItemFacts& after) {
  std::vector<TraitChange> changes;
  const auto note = [&](const char* kind, std::string old, std::string added, bool changesSize) {
    changes.push_back({kind, std::move(old), std::move(added), changesSize});
  };
  if (before.category != after.category) {
    note("category-changed", describe(before), describe(after), true);
    return changes;
  }
  const auto compare = [&](const char* kind, const std::string& old, const std::string& added,
                           bool changesSize) {
    if (old != added) note(kind, old, added, changesSize);
  };
  if (const char* const kind = before.isGroup() ? nullptr : pictureKind(before, after)) {
    note(kind, pictureOr(before), pictureOr(after), true);
  }
  compare("usage-changed", before.usage, after.usage, true);
  compare("sign-changed", before.sign, after.sign, true);
  compare("justification-changed", before.isJustified ? "right" : "left",
          after.isJustified ? "right" : "left", false);
  compare("blank-when-zero-changed", yesOrNo(before.isBlankWhenZero),
          yesOrNo(after.isBlankWhenZero), false);
  compare("sync-changed", yesOrNo(before.isSync), yesOrNo(after.isSync), false);
  compare("renames-changed", yesOrNo(before.renames), yesOrNo(after.renames), false);
  return changes;
}

}  // namespace as::toolkit
