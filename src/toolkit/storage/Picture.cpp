#include "as/toolkit/Picture.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

using Category = Picture::Category;

constexpr long long mostPositions = 1'000'000'000;

// What stands for symbols of more than one character, or of any.
constexpr char currency = '$';
constexpr char credit = 'c';
constexpr char debit = 'd';

// A symbol that stands so many times in a row.
struct Run {
  char symbol;
  long long times;
};

// The bytes of the UTF-8 character that `text` starts with.
std::size_t characterSize(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && isWithinCharacter(text[size])) ++size;
  return size;
}

char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Takes a picture apart into its symbols.
class SymbolReader {
 public:
  SymbolReader(std::string_view text, const PictureRules& rules)
      : rest_(text), rules_(rules), currency_(rules.currencySymbol) {}

  // Nothing for an unknown symbol or repetition.
  std::optional<std::vector<Run>> read() {
    std::vector<Run> runs;
    while (!rest_.empty()) {
      const char symbol = takeSymbol();
      const long long times = symbol == 0 ? 0 : takeTimes();
      if (times == 0) return std::nullopt;
      if (!runs.empty() && runs.back().symbol == symbol) {
        runs.back().times += times;
      } else {
        runs.push_back({symbol, times});
      }
      if (symbol != 'S' && symbol != 'V') positions_ += times;
      if (positions_ > mostPositions) return std::nullopt;
    }
    return runs;
  }

 private:
  // 0 when there is none.
  char takeSymbol() {
    const std::string_view character = rest_.substr(0, characterSize(rest_));
    const char letter = capital(character.front());
    const char next = rest_.size() < 2 ? '\0' : capital(rest_[1]);
    // A letter that is one may be written small or large.
    const bool isCurrency =
        !currency_.empty() && (rest_.substr(0, currency_.size()) == currency_ ||
                               (currency_.size() == 1 && capital(currency_.front()) == letter));
    if (isCurrency) {
      rest_.remove_prefix(currency_.size());
      return currency;
    }
    if ((letter == 'C' && next == 'R') || (letter == 'D' && next == 'B')) {
      rest_.remove_prefix(2);
      return letter == 'C' ? credit : debit;
    }
    constexpr std::string_view symbols = "9AXNG1SVPEZB0/+-*.,";
    if (symbols.find(letter) != std::string_view::npos) {
      rest_.remove_prefix(1);
      const bool isPoint = letter == '.' || letter == ',';
      return isPoint && rules_.isDecimalPointComma ? (letter == '.' ? ',' : '.') : letter;
    }
    // No currency symbol can be one of these.
    constexpr std::string_view others = " \t\r\n();\"'=CDR2345678";
    if (!currency_.empty() || others.find(letter) != std::string_view::npos) return 0;
    currency_ = character;
    rest_.remove_prefix(character.size());
    return currency;
  }

  // How many times the symbol that was taken stands there; 0 when that cannot be read.
  long long takeTimes() {
    if (rest_.empty() || rest_.front() != '(') return 1;
    const std::size_t close = rest_.find(')');
    if (close == std::string_view::npos) return 0;
    long long times = 0;
    for (const char digit : rest_.substr(1, close - 1)) {
      if (digit < '0' || digit > '9') return 0;
      times = std::min(10 * times + (digit - '0'), mostPositions + 1);
    }
    rest_.remove_prefix(close + 1);
    return times;
  }

  std::string_view rest_;
  const PictureRules& rules_;
  std::string_view currency_;
  long long positions_ = 0;
};

// Which symbols a picture has, and how many of them.
class Counts {
 public:
  explicit Counts(const std::vector<Run>& runs) {
    for (const Run& run : runs) times_[static_cast<unsigned char>(run.symbol)] += run.times;
  }

  long long of(std::string_view symbols) const {
    long long sum = 0;
    for (const char symbol : symbols) sum += times_[static_cast<unsigned char>(symbol)];
    return sum;
  }
  bool has(std::string_view symbols) const { return of(symbols) > 0; }
  bool hasOnly(std::string_view symbols) const { return of(symbols) == all(); }

 private:
  long long all() const {
    long long sum = 0;
    for (const long long times : times_) sum += times;
    return sum;
  }

  std::array<long long, 256> times_{};
};

// A picture of numbers without exponents, symbol by symbol from the left.
class NumberReader {
 public:
  NumberReader(const std::vector<Run>& runs, const Counts& counts, const PictureRules& rules)
      : runs_(runs), counts_(counts), rules_(rules) {}

  std::optional<Picture> read() {
    if (!goTogether()) return std::nullopt;
    for (at_ = 0; at_ < runs_.size(); ++at_) {
      if (!take(runs_[at_])) return std::nullopt;
    }
    // "P" alone is the number zero, of no bytes.
    if (digits_ == 0 && !counts_.hasOnly("P")) return std::nullopt;
    const bool isNumeric = counts_.hasOnly("9SVP");
    const long long scaling = counts_.of("P");
    if (counts_.has(currencyText)) characters_ += rules_.currencyCharacters - 1;
    if (characters_ > mostPositions || rules_.currencyCharacters < 1) return std::nullopt;
    Picture picture;
    picture.category = isNumeric ? Category::numeric : Category::numericEdited;
    picture.characters = static_cast<int>(characters_);
    picture.digits = static_cast<int>(digits_ + scaling);
    picture.scale = static_cast<int>(isScaledDown_ ? digits_ + scaling : places_);
    picture.scaling = static_cast<int>(scaling);
    picture.isSigned = counts_.has("S+-cd");
    return picture;
  }

 private:
  static constexpr std::string_view currencyText{&currency, 1};

  static bool isSign(const Run& run) {
    return std::string_view("+-").find(run.symbol) != std::string_view::npos ||
           run.symbol == credit || run.symbol == debit;
  }

  // Whether a symbol stands in for leading zeros, moving to the first digit.
  bool isFloating(char symbol) const {
    return (symbol == '+' || symbol == '-' || symbol == currency) && counts_.of({&symbol, 1}) > 1;
  }

  bool goTogether() const {
    const int signs = (counts_.has("+") ? 1 : 0) + (counts_.has("-") ? 1 : 0);
    const long long ends = counts_.of("cd");
    const int fillers = (counts_.has("Z") ? 1 : 0) + (counts_.has("*") ? 1 : 0) +
                        (isFloating('+') ? 1 : 0) + (isFloating('-') ? 1 : 0) +
                        (isFloating(currency) ? 1 : 0);
    if (signs + ends > 1 || fillers > 1) return false;
    if (counts_.of("V.") > 1 || counts_.of("S") > 1) return false;
    return !counts_.has("S") || (runs_.front().symbol == 'S' && counts_.hasOnly("9SVP"));
  }

  bool take(const Run& run) {
    const bool isFirst = at_ == 0;
    const bool isLast = at_ + 1 == runs_.size();
    if (run.symbol != 'S' && run.symbol != 'V' && run.symbol != 'P') {
      characters_ += run.times * (run.symbol == credit || run.symbol == debit ? 2 : 1);
    }
    if (isFloating(run.symbol)) return takeFiller(run);
    switch (run.symbol) {
      case '9':
        hasNine_ = true;
        return !hasFillerBehindPoint_ && takeDigits(run.times);
      case 'Z':
      case '*':
        return takeFiller(run);
      case 'P':
        return takeScaling();
      case 'V':
      case '.':
        // An assumed point may be written behind P, where it is anyway.
        if (hasScaling_ && (run.symbol == '.' || isScaledDown_)) return false;
        hasPoint_ = true;
        return true;
      case '+':
      case '-':
        return isFirst || isLast;
      case credit:
      case debit:
        return isLast;
      case currency:
        return isFirst || isLast || (at_ == 1 && isSign(runs_.front())) ||
               (at_ + 2 == runs_.size() && isSign(runs_.back()));
      default:
        return true;
    }
  }

  bool takeFiller(const Run& run) {
    if (hasNine_) return false;
    // Where one is behind the point, all are.
    hasFillerBehindPoint_ = hasPoint_;
    // The first of a string that moves is never a digit.
    const bool isOpening = isFloating(run.symbol) && !hasFloating_;
    hasFloating_ = hasFloating_ || isOpening;
    return takeDigits(run.times - (isOpening ? 1 : 0));
  }

  bool takeDigits(long long times) {
    // Behind P that stand for trailing zeros there are none.
    if (hasScaling_ && !isScaledDown_) return false;
    digits_ += times;
    if (hasPoint_) places_ += times;
    return true;
  }

  // P stand in front of all digits or behind them.
  bool takeScaling() {
    if (hasScaling_) return false;
    hasScaling_ = true;
    isScaledDown_ = digits_ == 0;
    return isScaledDown_ || !hasPoint_;
  }

  const std::vector<Run>& runs_;
  const Counts& counts_;
  const PictureRules& rules_;

  std::size_t at_ = 0;
  long long characters_ = 0;
  long long digits_ = 0;  // Without P.
  long long places_ = 0;  // Those behind the point.
  bool hasNine_ = false;
  bool hasFloating_ = false;
  bool hasPoint_ = false;
  bool hasFillerBehindPoint_ = false;
  bool hasScaling_ = false;
  bool isScaledDown_ = false;  // P stand in front.
};

// SIGN 9... E SIGN 99, with a point somewhere among the first digits.
std::optional<Picture> readExternalFloat(const std::vector<Run>& runs) {
  const auto isSign = [](const Run& run) {
    return (run.symbol == '+' || run.symbol == '-') && run.times == 1;
  };
  std::size_t at = 0;
  long long characters = 0;
  long long digits = 0;
  long long places = 0;
  bool hasPoint = false;
  if (!isSign(runs[at++])) return std::nullopt;
  for (; at < runs.size() && runs[at].symbol != 'E'; ++at) {
    const Run& run = runs[at];
    const bool isPoint = run.symbol == '.' || run.symbol == 'V';
    if (isPoint ? hasPoint || run.times > 1 : run.symbol != '9') return std::nullopt;
    hasPoint = hasPoint || isPoint;
    if (run.symbol != 'V') characters += run.times;
    if (!isPoint) digits += run.times;
    if (!isPoint && hasPoint) places += run.times;
  }
  constexpr std::size_t tail = 3;
  if (digits == 0 || runs.size() != at + tail || runs[at].times != 1) return std::nullopt;
  if (!isSign(runs[at + 1]) || runs[at + 2].symbol != '9' || runs[at + 2].times != 2) {
    return std::nullopt;
  }
  constexpr int signsAndExponent = 5;
  return Picture{Category::externalFloat,
                 static_cast<int>(characters + signsAndExponent),
                 static_cast<int>(digits),
                 static_cast<int>(places),
                 0,
                 true};
}

// What is no number: whole characters.
std::optional<Picture> textOf(const Counts& counts, std::string_view symbols,
                              std::string_view insertions, Category plain, Category edited) {
  Picture picture;
  picture.characters = static_cast<int>(counts.of(symbols) + counts.of(insertions));
  picture.category = counts.has(insertions) ? edited : plain;
  if (!counts.hasOnly(std::string(symbols).append(insertions))) return std::nullopt;
  return picture;
}

// Nothing but U, where that is no currency symbol.
std::optional<Picture> readUtf8(std::string_view text, const PictureRules& rules) {
  const std::string_view symbol = text.substr(0, 1);
  if ((symbol != "U" && symbol != "u") || rules.currencySymbol == symbol) return std::nullopt;
  PictureRules own = rules;
  own.currencySymbol = symbol;
  const std::optional<std::vector<Run>> runs = SymbolReader(text, own).read();
  // Four bytes for each have to be a number, too.
  if (!runs || runs->size() != 1 || runs->front().times > mostPositions / 2) return std::nullopt;
  Picture picture;
  picture.category = Category::utf8;
  picture.characters = static_cast<int>(runs->front().times);
  return picture;
}

}  // namespace

std::optional<Picture> readPicture(std::string_view text, const PictureRules& rules) {
  if (const std::optional<Picture> utf8 = readUtf8(text, rules)) return utf8;
  const std::optional<std::vector<Run>> runs = SymbolReader(text, rules).read();
  if (!runs || runs->empty()) return std::nullopt;
  const Counts counts(*runs);
  if (counts.has("E")) return readExternalFloat(*runs);
  if (counts.has("N")) {
    return textOf(counts, "N", "B0/", Category::national, Category::nationalEdited);
  }
  if (counts.has("G")) return textOf(counts, "G", "B", Category::dbcs, Category::dbcs);
  if (counts.has("1")) return textOf(counts, "1", "", Category::boolean, Category::boolean);
  if (counts.has("AX")) {
    const Category plain = counts.hasOnly("A") ? Category::alphabetic : Category::alphanumeric;
    return textOf(counts, "AX9", "B0/", plain, Category::alphanumericEdited);
  }
  return NumberReader(*runs, counts, rules).read();
}

}  // namespace as::toolkit
