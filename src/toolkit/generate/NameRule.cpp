#include "toolkit/generate/NameRule.h"

#include <algorithm>
#include <cstdint>

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

bool isReserved(const NameRule& rule, const std::string& name) {
  if (rule.taken != nullptr && rule.taken->contains(inSmallLetters(name))) return true;
  if (rule.reserved == nullptr) return false;
  return rule.reserved->contains(rule.isReservedInAnyCase ? inSmallLetters(name) : name);
}

// Step 2 for underscores: each run of forbidden characters is one.
std::u32string withUnderscores(const NameRule& rule, const std::u32string& name) {
  std::u32string changed;
  bool isGap = false;
  for (const char32_t character : name) {
    if (rule.mayFollow(character)) {
      changed += character;
      isGap = false;
    } else if (!isGap) {
      changed += U'_';
      isGap = true;
    }
  }
  return changed;
}

// Step 2 for humps. A name in capital letters alone is one of COBOL: its letters become small ones.
std::u32string withHumps(const NameRule& rule, const std::u32string& name) {
  const bool isShouted = std::none_of(name.begin(), name.end(), [](char32_t character) {
    return character != capitalOf(character);
  });
  std::u32string changed;
  bool isHump = false;
  for (const char32_t character : name) {
    if (!rule.mayFollow(character)) {
      isHump = !changed.empty();
      continue;
    }
    changed += isHump ? capitalOf(character) : isShouted ? smallOf(character) : character;
    isHump = false;
  }
  if (!changed.empty() && rule.start == NameRule::Start::small) changed[0] = smallOf(changed[0]);
  if (!changed.empty() && rule.start == NameRule::Start::capital) {
    changed[0] = capitalOf(changed[0]);
  }
  return changed;
}

}  // namespace

Words with(const Words& words, const Words& more) {
  Words all = words;
  all.insert(more.begin(), more.end());
  return all;
}

std::string digitsOfText(std::string_view text) {
  // FNV-1a.
  std::uint32_t hash = 2166136261U;
  for (const char byte : text) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 16777619U;
  }
  static constexpr char digits[] = "0123456789abcdef";
  std::string result;
  for (unsigned shift = 32; shift > 0; shift -= 4) result += digits[(hash >> (shift - 4U)) & 0xFU];
  return result;
}

bool isLegal(const NameRule& rule, std::string_view name) {
  // Most names are of ASCII: their bytes are their characters.
  const bool isAscii = std::all_of(
      name.begin(), name.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
  if (isAscii) {
    return !name.empty() && name.size() <= rule.mostCharacters &&
           rule.mayStart(static_cast<unsigned char>(name.front())) &&
           std::all_of(
               name.begin(), name.end(),
               [&rule](char byte) { return rule.mayFollow(static_cast<unsigned char>(byte)); }) &&
           !isReserved(rule, std::string(name));
  }
  const std::u32string characters = charactersOf(name);
  return !characters.empty() && characters.size() <= rule.mostCharacters &&
         rule.mayStart(characters.front()) &&
         std::all_of(characters.begin(), characters.end(), rule.mayFollow) &&
         !isReserved(rule, std::string(name));
}

std::string legalName(const NameRule& rule, std::string_view name) {
  if (isLegal(rule, name)) return std::string(name);
  const std::u32string original = charactersOf(name);
  std::u32string changed = original;
  if (!std::all_of(original.begin(), original.end(), rule.mayFollow)) {
    changed = rule.change == NameRule::Change::toHumps ? withHumps(rule, original)
                                                       : withUnderscores(rule, original);
  }
  if (changed.empty() || !rule.mayStart(changed.front())) {
    changed = charactersOf(rule.prefix) + changed;
  }
  std::string result = utf8Of(changed);
  if (changed.size() > rule.mostCharacters) {
    changed.resize(rule.mostCharacters - 9);
    result = utf8Of(changed) + "_" + digitsOfText(name);
  }
  while (isReserved(rule, result)) result += '_';
  return result;
}

}  // namespace as::toolkit::gen
