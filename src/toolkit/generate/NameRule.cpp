#include "toolkit/generate/NameRule.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "toolkit/generate/ServiceModel.h"
#include "toolkit/text/Phrases.h"
#include "toolkit/text/Utf8.h"

namespace as::toolkit::gen {

namespace {

constexpr char32_t replacement = 0xFFFD;

char32_t capitalOf(char32_t character) {
  return character >= U'a' && character <= U'z' ? character - U'a' + U'A' : character;
}

char32_t smallOf(char32_t character) {
  return character >= U'A' && character <= U'Z' ? character - U'A' + U'a' : character;
}

bool isReserved(const NameRule& rule, const std::string& name) {
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

// What makes two names one.
std::string keyOf(const NameRule& rule, const std::string& name) {
  return rule.tellsCases ? name : inSmallLetters(name);
}

// Names that are the same still are told apart by their order.
void count(const NameRule& rule, std::vector<std::string>& names) {
  std::unordered_map<std::string, int> given;
  for (std::string& name : names) {
    const std::string base = name;
    while (!given.try_emplace(keyOf(rule, name), 1).second) {
      name = base + "_" + std::to_string(++given[keyOf(rule, base)]);
    }
  }
}

}  // namespace

Words with(const Words& words, const Words& more) {
  Words all = words;
  all.insert(more.begin(), more.end());
  return all;
}

std::u32string charactersOf(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const auto first = static_cast<unsigned char>(text[i++]);
    if (first < 0x80) {
      characters += first;
      continue;
    }
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    char32_t character = more == 0 ? replacement : first & (0x3FU >> static_cast<unsigned>(more));
    for (int k = 0; k < more; ++k) {
      if (i == text.size() || (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
        character = replacement;
        break;
      }
      character = (character << 6U) | (static_cast<unsigned char>(text[i++]) & 0x3FU);
    }
    characters += character;
  }
  return characters;
}

std::string utf8Of(std::u32string_view text) {
  std::string bytes;
  for (const char32_t character : text) appendUtf8(bytes, character);
  return bytes;
}

bool isAsciiLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool isDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

bool isXmlNameStart(char32_t c) {
  return isAsciiLetter(c) || c == U'_' || (c >= 0xC0 && c <= 0xD6) || (c >= 0xD8 && c <= 0xF6) ||
         (c >= 0xF8 && c <= 0x131) || (c >= 0x134 && c <= 0x13E) || (c >= 0x141 && c <= 0x148) ||
         (c >= 0x14A && c <= 0x17E) || (c >= 0x391 && c <= 0x3A1) || (c >= 0x3A3 && c <= 0x3CE) ||
         (c >= 0x410 && c <= 0x44F) || (c >= 0x4E00 && c <= 0x9FA5) ||
         (c >= 0x3041 && c <= 0x3094) || (c >= 0x30A1 && c <= 0x30FA) ||
         (c >= 0xAC00 && c <= 0xD7A3);
}

bool isXmlNameCharacter(char32_t character) {
  return isXmlNameStart(character) || isDigit(character) || character == U'-' || character == U'.';
}

std::string inSmallLetters(std::string_view text) {
  std::u32string characters = charactersOf(text);
  std::transform(characters.begin(), characters.end(), characters.begin(), smallOf);
  return utf8Of(characters);
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

std::vector<NameWish> typeWishes(const ServiceModel& model) {
  constexpr std::string_view declared = "type ";
  std::vector<NameWish> wishes;
  for (const Type& type : model.types) {
    const std::string place = model.placeOf(type);
    if (type.isDeclared) {
      wishes.push_back({type.name, place});
    } else {
      wishes.push_back({place.starts_with(declared) && type.operation == none
                            ? place.substr(declared.size())
                            : place,
                        place, true});
    }
  }
  return wishes;
}

const std::string* NameGiver::chosenFor(const NameWish& wish) const {
  if (chosen_.empty()) return nullptr;
  auto found = chosen_.find(wish.place);
  if (found == chosen_.end()) found = chosen_.find(wish.name);
  return found == chosen_.end() ? nullptr : &found->second;
}

void NameGiver::tellChange(const NameWish& wish, const std::string& name) {
  if (wish.isMade || !told_.insert(wish.place).second) return;
  findings_.push_back({"changed-name", Severity::note, wish.place,
                       quote(wish.name) + " is no name in " + rule_.language +
                           ", or taken: " + quote(name) + " stands for it",
                       ""});
}

std::string NameGiver::wantedName(const NameWish& wish, int& rank) {
  const std::string* const chosen = chosenFor(wish);
  if (chosen == nullptr) {
    std::string name = legalName(rule_, wish.name);
    rank = name == wish.name && !wish.isMade ? 1 : 2;
    return name;
  }
  rank = 0;
  if (!isLegal(rule_, *chosen)) {
    findings_.push_back({"forbidden-name", Severity::error, wish.place,
                         quote(*chosen) + " is no name in " + rule_.language,
                         "choose another one"});
  }
  return *chosen;
}

// The first of them keeps the name.
void NameGiver::tellApart(const std::vector<NameWish>& wishes, std::vector<Claim> claimants,
                          std::vector<std::string>& names) {
  std::stable_sort(claimants.begin(), claimants.end(), [&](const Claim& left, const Claim& right) {
    return std::pair(left.rank, wishes[left.index].name) <
           std::pair(right.rank, wishes[right.index].name);
  });
  for (std::size_t i = 1; i < claimants.size(); ++i) {
    const std::size_t index = claimants[i].index;
    if (claimants[i].rank == 0) {
      findings_.push_back({"forbidden-name", Severity::error, wishes[index].place,
                           quote(names[index]) + " is chosen for another one, too",
                           "choose another one"});
      continue;
    }
    const bool isSameWord = wishes[index].name == wishes[claimants.front().index].name;
    names[index] += "_" + digitsOfText(isSameWord ? wishes[index].place : wishes[index].name);
  }
}

std::vector<std::string> NameGiver::namesIn(const std::vector<NameWish>& wishes) {
  std::vector<std::string> names(wishes.size());
  std::unordered_map<std::string, std::vector<Claim>> claims;
  claims.reserve(wishes.size());
  bool areApart = true;
  for (std::size_t i = 0; i < wishes.size(); ++i) {
    Claim claim{i};
    names[i] = wantedName(wishes[i], claim.rank);
    std::vector<Claim>& claimants = claims[keyOf(rule_, names[i])];
    claimants.push_back(claim);
    areApart = areApart && claimants.size() == 1;
  }
  for (std::size_t first = 0; first < wishes.size() && !areApart; ++first) {
    const auto found = claims.find(keyOf(rule_, names[first]));
    // Each group once, in the order of its first member.
    if (found == claims.end() || found->second.size() == 1) continue;
    std::vector<Claim> claimants = std::move(found->second);
    claims.erase(found);
    tellApart(wishes, std::move(claimants), names);
  }
  if (!areApart) count(rule_, names);
  for (std::size_t i = 0; i < wishes.size(); ++i) {
    if (names[i] != wishes[i].name && chosenFor(wishes[i]) == nullptr) {
      tellChange(wishes[i], names[i]);
    }
  }
  return names;
}

}  // namespace as::toolkit::gen
