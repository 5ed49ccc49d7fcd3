#include "toolkit/import/ConstantReader.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "toolkit/import/Characters.h"

namespace as::toolkit {

namespace {

bool isOperator(const Word& word) {
  return word.isMark("+") || word.isMark("-") || word.isMark("*") || word.isMark("/");
}

int rankOf(char op) { return op == '*' || op == '/' ? 2 : 1; }

// Nothing for what a 64-bit number does not hold.
std::optional<std::int64_t> apply(char op, std::int64_t left, std::int64_t right) {
  std::int64_t result = 0;
  switch (op) {
    case '+':
      if (__builtin_add_overflow(left, right, &result)) return std::nullopt;
      return result;
    case '-':
      if (__builtin_sub_overflow(left, right, &result)) return std::nullopt;
      return result;
    case '*':
      if (__builtin_mul_overflow(left, right, &result)) return std::nullopt;
      return result;
    default:
      if (right == 0 || (right == -1 && left == INT64_MIN)) return std::nullopt;
      return left / right;
  }
}

// Nothing for literals of other kinds, whose characters are not of one byte each.
std::optional<std::int64_t> bytesOf(const Token& literal) {
  const auto isFirst = [](char c) { return !isWithinCharacter(c); };
  const auto characters = std::count_if(literal.text.begin(), literal.text.end(), isFirst);
  if (literal.prefix.empty()) return characters;
  if (literal.prefix == "Z") return characters + 1;  // A zero ends it.
  if (literal.prefix == "X") return characters / 2;
  return std::nullopt;
}

// "X#1F", "H#1F", "B#101", "O#17": the number behind its base; nothing for what is none of these.
std::optional<std::int64_t> readBased(const std::string& text) {
  constexpr std::size_t lengthOfBase = 2;
  if (text.size() <= lengthOfBase || text[1] != '#') return std::nullopt;
  int base = 0;
  switch (text.front() & ~0x20) {
    case 'X':
    case 'H':
      base = 16;
      break;
    case 'O':
      base = 8;
      break;
    case 'B':
      base = 2;
      break;
    default:
      return std::nullopt;
  }
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data() + lengthOfBase, end, number, base);
  if (error != std::errc() || stop != end || text[lengthOfBase] == '-') return std::nullopt;
  return number;
}

}  // namespace

std::optional<std::int64_t> readInteger(const std::string& text) {
  if (const std::optional<std::int64_t> based = readBased(text)) return based;
  const char* begin = text.data();
  const char* const end = begin + text.size();
  if (begin != end && *begin == '+') ++begin;
  std::int64_t number = 0;
  const auto [stop, error] = std::from_chars(begin, end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

const ConstantEntry* ConstantReader::find(const std::string& name) const {
  const Index id = names_.idOf(name);
  for (const CobolProgram* program = &program_; program != nullptr; program = program->outer) {
    const auto found = program->constants.find(id);
    if (found != program->constants.end()) return &found->second;
  }
  return nullptr;
}

std::optional<std::string> ConstantReader::textOf(const Token& name) const {
  const ConstantEntry* const constant = find(name.text);
  if (constant == nullptr || !budget_.addText(constant->text.size(), name.place)) {
    return std::nullopt;
  }
  return constant->text;
}

std::optional<std::int64_t> ConstantReader::takeInteger() {
  const Word& word = words_.peek();
  if (!word.is(TokenKind::word) && !word.is(TokenKind::number)) return std::nullopt;
  std::optional<std::int64_t> number = readInteger(word.token.text);
  if (!number && word.is(TokenKind::word)) {
    const ConstantEntry* const constant = find(word.token.text);
    const auto definition =
        constant != nullptr ? std::nullopt : words_.source().definition(word.token.text);
    if (constant != nullptr) number = constant->number;
    if (definition && definition->isNumber) number = readInteger(definition->text);
  }
  if (number) words_.skip();
  return number;
}

std::vector<NameReference::Name> ConstantReader::takeName() {
  std::vector<NameReference::Name> names;
  if (!words_.peek().is(TokenKind::word)) return names;
  names.push_back(names_.nameOf(words_.take().token.text));
  while ((words_.peek().is(Keyword::of) || words_.peek().is(Keyword::in)) &&
         words_.peek(1).is(TokenKind::word)) {
    words_.skip();
    names.push_back(names_.nameOf(words_.take().token.text));
  }
  return names;
}

std::optional<std::int64_t> ConstantReader::takeOperand() {
  if (words_.peek().is(Keyword::length) || words_.peek().is(Keyword::byteLength)) {
    words_.skip();
    words_.accept(Keyword::of);
    if (words_.peek().is(TokenKind::literal)) return bytesOf(words_.take().token);
    NameReference reference;
    reference.place = words_.peek().token.place;
    reference.names = takeName();
    return lengthOf_(reference);
  }
  if (words_.peek().is(TokenKind::literal) && words_.peek().token.prefix == "H") {
    const std::string digits = words_.take().token.text;
    std::int64_t number = 0;
    constexpr int base = 16;
    const auto [stop, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (error != std::errc() || stop != digits.data() + digits.size()) return std::nullopt;
    return number;
  }
  return takeInteger();
}

// Without recursion, however many parentheses there are.
std::optional<std::int64_t> ConstantReader::takeSum() {
  std::vector<std::int64_t> numbers;
  std::vector<char> operators;
  const auto applyLast = [&] {
    // Every operator stands between operands.
    const std::int64_t right = numbers.back();
    numbers.pop_back();
    const std::optional<std::int64_t> result = apply(operators.back(), numbers.back(), right);
    operators.pop_back();
    if (result) numbers.back() = *result;
    return result.has_value();
  };
  const auto applyDownTo = [&](int rank) {
    while (!operators.empty() && operators.back() != '(' && rankOf(operators.back()) >= rank) {
      if (!applyLast()) return false;
    }
    return true;
  };
  for (bool wantsOperand = true;;) {
    if (wantsOperand) {
      if (words_.acceptMark("(")) {
        operators.push_back('(');
        continue;
      }
      const std::optional<std::int64_t> operand = takeOperand();
      if (!operand) return std::nullopt;
      numbers.push_back(*operand);
      wantsOperand = false;
      continue;
    }
    const Word& word = words_.peek();
    if (isOperator(word)) {
      const char op = word.token.text.front();
      if (!applyDownTo(rankOf(op))) return std::nullopt;
      operators.push_back(op);
      words_.skip();
      wantsOperand = true;
    } else if (word.is(TokenKind::number) && readInteger(word.token.text)) {
      // "A -1": the sign is the operator.
      if (!applyDownTo(1)) return std::nullopt;
      operators.push_back('+');
      wantsOperand = true;
    } else if (word.isMark(")") && !operators.empty()) {
      if (!applyDownTo(1) || operators.empty()) return std::nullopt;
      operators.pop_back();
      words_.skip();
    } else {
      break;
    }
  }
  if (!applyDownTo(1) || !operators.empty()) return std::nullopt;
  return numbers.front();
}

std::optional<ConstantEntry> ConstantReader::takeDefinition() {
  if (!words_.peek().is(TokenKind::word)) return std::nullopt;
  const auto definition = words_.source().definition(words_.peek().token.text);
  if (!definition || !budget_.addText(definition->text.size(), words_.peek().token.place)) {
    return std::nullopt;
  }
  words_.skip();
  return ConstantEntry{definition->text,
                       definition->isNumber ? readInteger(definition->text) : std::nullopt,
                       definition->isNumber};
}

std::optional<ConstantEntry> ConstantReader::takeValue() {
  const Word& first = words_.peek();
  const bool isAlone = words_.peek(1).is(TokenKind::period) || words_.peek(1).is(TokenKind::end);
  if (first.is(TokenKind::literal) && first.token.prefix != "H") {
    ConstantEntry constant{words_.take().token.text, std::nullopt, false};
    while (words_.acceptMark("&")) {
      if (!words_.peek().is(TokenKind::literal)) return std::nullopt;
      constant.text += words_.take().token.text;
    }
    return constant;
  }
  if (isAlone && first.is(TokenKind::word)) {
    if (const ConstantEntry* const other = find(first.token.text)) {
      if (!budget_.addText(other->text.size(), first.token.place)) return std::nullopt;
      words_.skip();
      return *other;
    }
    if (first.meaning.role == KeywordRole::figurative) {
      return ConstantEntry{words_.take().token.text, std::nullopt, false};
    }
  }
  if (isAlone && first.is(TokenKind::number) && !readInteger(first.token.text)) {
    return ConstantEntry{words_.take().token.text, std::nullopt, true};
  }
  const std::optional<std::int64_t> number = takeSum();
  if (!number) return std::nullopt;
  return ConstantEntry{std::to_string(*number), number, true};
}

}  // namespace as::toolkit
