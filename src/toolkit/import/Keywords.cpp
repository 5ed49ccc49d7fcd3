#include "toolkit/import/Keywords.h"

#include <array>
#include <cstddef>
#include <unordered_map>

namespace as::toolkit {

namespace {

constexpr std::size_t longestWord = 30;

char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

struct KeywordRow {
  const char* word;
  Keyword keyword;
  KeywordRole role;
};

constexpr KeywordRow rows[] = {
#define AS_KEYWORD(name, word, role) {word, Keyword::name, KeywordRole::role},
#include "toolkit/import/Keywords.def"
#undef AS_KEYWORD
};

// Usages of one word, COMPUTATIONAL spelt out as well.
constexpr const char* usageWords[] = {
#define AS_USAGE(usage, word, form, bytes, digits) word,
#include "toolkit/storage/Usages.def"
#undef AS_USAGE
#define AS_USAGE_WORD(word, usage) word,
#include "toolkit/storage/UsageWords.def"
#undef AS_USAGE_WORD
};

using Table = std::unordered_map<std::string, WordMeaning>;

Table makeTable() {
  Table table;
  for (const char* const word : usageWords) {
    const std::optional<Usage> usage = findUsage(word);
    if (!usage) continue;
    const std::string text = word;
    table[text] = {Keyword::name, KeywordRole::usage, usage};
    if (text.compare(0, 4, "COMP") == 0) {
      table["COMPUTATIONAL" + text.substr(4)] = {Keyword::name, KeywordRole::usage, usage};
    }
  }
  for (const KeywordRow& row : rows) {
    WordMeaning& meaning = table[row.word];
    meaning.keyword = row.keyword;
    if (!meaning.usage) meaning.role = row.role;
  }
  return table;
}

}  // namespace

WordMeaning meaningOf(std::string_view word) {
  static const Table table = makeTable();
  if (word.empty() || word.size() > longestWord) return {};
  // Most words are names; most of these are told by a digit or their length at no cost.
  std::array<char, longestWord> capitals{};
  for (std::size_t i = 0; i < word.size(); ++i) capitals[i] = capital(word[i]);
  const auto found = table.find(std::string(capitals.data(), word.size()));
  return found == table.end() ? WordMeaning() : found->second;
}

std::string inCapitals(std::string_view word) {
  std::string result(word);
  for (char& c : result) c = capital(c);
  return result;
}

}  // namespace as::toolkit
