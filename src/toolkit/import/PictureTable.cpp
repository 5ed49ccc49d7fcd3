#include "toolkit/import/PictureTable.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace as::toolkit {

namespace {

// "ZZ.Z9": what some compilers edit numbers with, though digits and what stands for leading zeros
// are mixed. Each symbol is a character, in whatever order. Nothing for other pictures.
std::optional<Picture> oddPicture(const std::string& text, bool isDecimalPointComma) {
  constexpr long long most = 1000;
  const char point = isDecimalPointComma ? ',' : '.';
  std::string plain;
  long long characters = 0;
  bool hasFiller = false;
  for (std::size_t at = 0; at < text.size();) {
    const char symbol = text[at] == 'z' ? 'Z' : text[at];
    if (std::string_view("9Z*.,").find(symbol) == std::string_view::npos) return std::nullopt;
    hasFiller = hasFiller || symbol == 'Z' || symbol == '*';
    std::size_t end = at + 1;
    long long times = 1;
    if (end < text.size() && text[end] == '(') {
      const std::size_t close = std::min(text.find(')', end), text.size());
      const std::string number = text.substr(end + 1, close - end - 1);
      const bool isNumber = !number.empty() && number.size() < 4 &&
                            number.find_first_not_of("0123456789") == std::string::npos;
      if (!isNumber || close == text.size()) return std::nullopt;
      times = std::stoll(number);
      end = close + 1;
    }
    characters += times;
    if (times == 0 || characters > most) return std::nullopt;
    plain.append(static_cast<std::size_t>(times), symbol == '*' || symbol == 'Z' ? '9' : symbol);
    at = end;
  }
  const auto points = std::count(plain.begin(), plain.end(), point);
  const auto digits = std::count(plain.begin(), plain.end(), '9');
  if (!hasFiller || points > 1) return std::nullopt;
  Picture picture;
  picture.category = Picture::Category::numericEdited;
  picture.characters = static_cast<int>(characters);
  picture.digits = static_cast<int>(digits);
  const std::size_t at = plain.find(point);
  if (at != std::string::npos) {
    picture.scale = static_cast<int>(
        std::count(plain.begin() + static_cast<std::ptrdiff_t>(at), plain.end(), '9'));
  }
  return picture;
}

}  // namespace

// Names of constants in parentheses are as good as numbers.
std::string PictureTable::withConstants(const std::string& picture) const {
  std::string result;
  for (std::size_t at = 0; at < picture.size(); ++at) {
    result += picture[at];
    if (picture[at] != '(') continue;
    const std::size_t close = picture.find(')', at);
    if (close == std::string::npos) return result.append(picture, at + 1);
    const std::string name = picture.substr(at + 1, close - at - 1);
    const bool isName =
        std::any_of(name.begin(), name.end(), [](unsigned char c) { return std::isalpha(c) != 0; });
    const ConstantEntry* const constant = isName ? constants_.find(name) : nullptr;
    result += constant != nullptr && constant->number ? std::to_string(*constant->number) : name;
    at = close - 1;
  }
  return result;
}

PictureRules PictureTable::rulesFor(const std::string& text, const std::string& written) const {
  PictureRules rules;
  rules.isDecimalPointComma = program_.isDecimalPointComma;
  // What programs around say of currencies counts, too. No other symbol is one then.
  const CurrencyTable::Currency* meant = nullptr;
  const CurrencyTable::Currency* first = nullptr;
  for (const CobolProgram* program = &program_; program != nullptr; program = program->outer) {
    if (program->currencies.empty()) continue;
    first = program->currencies.first();
    if (meant == nullptr) meant = program->currencies.lastIn(written);
  }
  if (meant == nullptr) meant = first;
  // Where code pages of Japan are used, it is the yen sign, and the symbol unless told otherwise.
  constexpr std::string_view yen = "\\";
  if (meant != nullptr) {
    rules.currencySymbol = meant->symbol;
    rules.currencyCharacters = meant->characters;
  } else if (text.find(yen) != std::string::npos) {
    rules.currencySymbol = yen;
  }
  return rules;
}

bool PictureTable::isPicture(const std::string& written) const {
  const std::string text = withConstants(written);
  return readPicture(text, rulesFor(text, written)).has_value();
}

std::optional<Picture> PictureTable::read(const std::string& text, const std::string& written,
                                          const SourcePlace& place) {
  PictureRules rules = rulesFor(text, written);
  std::optional<Picture> picture = readPicture(text, rules);
  if (picture || !program_.isCopybook || rules.isDecimalPointComma) return picture;
  // A copybook does not say what its programs say of the decimal point; its pictures may.
  rules.isDecimalPointComma = true;
  picture = readPicture(text, rules);
  if (picture) {
    problems_.tell(EntryRule::commaAssumed, place,
                   text + " is a PICTURE only where DECIMAL-POINT IS COMMA: so it is read");
  }
  return picture;
}

Index PictureTable::indexOf(const std::string& written, const SourcePlace& place) {
  const auto known = known_.find(written);
  if (known != known_.end() && program_.pictures[static_cast<std::size_t>(known->second)].picture) {
    return known->second;
  }
  PictureEntry entry{withConstants(written), std::nullopt};
  entry.picture = read(entry.text, written, place);
  if (!entry.picture) {
    entry.picture = oddPicture(entry.text, program_.isDecimalPointComma);
    if (entry.picture) {
      problems_.tell(EntryRule::oddPicture, place,
                     entry.text + " has its symbols in an order that other compilers refuse");
    }
  }
  if (!entry.picture) {
    problems_.tell(EntryRule::badPicture, place, entry.text + " is no PICTURE that can be read");
  }
  program_.pictures.push_back(std::move(entry));
  const auto index = static_cast<Index>(program_.pictures.size() - 1);
  known_[written] = index;
  return index;
}

}  // namespace as::toolkit
