// Usages by the words of a program and by the items of a dictionary.
#include <string>

#include "as/IAlphanumeric.h"
#include "as/INumeric.h"
#include "as/toolkit/Storage.h"

namespace as::toolkit {

namespace {

struct UsageWord {
  const char* word;
  Usage usage;
};

constexpr UsageWord words[] = {
#define AS_USAGE(usage, word, form, bytes, digits) {word, Usage::usage},
#include "toolkit/storage/Usages.def"
#undef AS_USAGE
#define AS_USAGE_WORD(word, usage) {word, Usage::usage},
#include "toolkit/storage/UsageWords.def"
#undef AS_USAGE_WORD
};

Usage usageOfNumeric(INumeric& item) {
  switch (item.getUsage()) {
    case INumeric::USAGE_COMP:
      return Usage::comp;
    case INumeric::USAGE_COMP_X:
      return Usage::compX;
    case INumeric::USAGE_COMP_1:
      return Usage::comp1;
    case INumeric::USAGE_COMP_2:
      return Usage::comp2;
    case INumeric::USAGE_COMP_3:
      return Usage::comp3;
    case INumeric::USAGE_COMP_4:
      return Usage::comp4;
    case INumeric::USAGE_COMP_5:
      return Usage::comp5;
    case INumeric::USAGE_COMP_6:
      return Usage::comp6;
    case INumeric::USAGE_EXTERNAL_FLOAT:
      return Usage::externalFloat;
    default:
      return Usage::display;
  }
}

}  // namespace

std::optional<Usage> findUsage(std::string_view word) {
  std::string capitals;
  for (const char c : word) {
    capitals += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  constexpr std::string_view longWord = "COMPUTATIONAL";
  if (capitals.compare(0, longWord.size(), longWord) == 0) {
    capitals.replace(0, longWord.size(), "COMP");
  }
  if (capitals.empty()) return std::nullopt;
  for (const UsageWord& known : words) {
    if (known.word == capitals) return known.usage;
  }
  return std::nullopt;
}

std::optional<Usage> usageOf(IDataItem& item) {
  switch (item.getDataType()) {
    case IDataItem::TYPE_GROUP:
      return std::nullopt;
    case IDataItem::TYPE_POINTER:
      return Usage::pointer;
    case IDataItem::TYPE_INDEX:
      return Usage::index;
    case IDataItem::TYPE_NATIONAL:
      return Usage::national;
    case IDataItem::TYPE_ALPHANUMERIC:
      // An object reference answers this type, but has no such interface.
      return interface_cast<IAlphanumeric>(&item) == nullptr ? Usage::objectReference
                                                             : Usage::display;
    case IDataItem::TYPE_NUMERIC:
      if (auto* const numeric = interface_cast<INumeric>(&item)) return usageOfNumeric(*numeric);
      return Usage::display;
    default:
      return Usage::display;
  }
}

}  // namespace as::toolkit
