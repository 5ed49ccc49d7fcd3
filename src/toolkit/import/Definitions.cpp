#include "toolkit/import/Definitions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "toolkit/import/ImportLimits.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/Token.h"

namespace as::toolkit {

namespace {

std::string upperCase(std::string_view text) {
  std::string result(text);
  for (char& character : result) {
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
  }
  return result;
}

// The outcomes of a comparison that make it true.
struct Relation {
  bool below = false;
  bool equal = false;
  bool above = false;
};

std::optional<Relation> relation(DirectiveText& text) {
  const auto orEqual = [&](Relation result) {
    text.accept("THAN");
    if (text.accept("OR")) {
      if (!text.accept("EQUAL") && !text.accept("=")) throw DirectiveError("EQUAL is wanting");
      text.accept("TO");
      result.equal = true;
    }
    return result;
  };
  if (text.accept("=")) return Relation{false, true, false};
  if (text.accept("<>")) return Relation{true, false, true};
  if (text.accept("<=")) return Relation{true, true, false};
  if (text.accept(">=")) return Relation{false, true, true};
  if (text.accept("<")) return Relation{true, false, false};
  if (text.accept(">")) return Relation{false, false, true};
  if (text.accept("EQUAL") || text.accept("EQUALS")) {
    text.accept("TO");
    return Relation{false, true, false};
  }
  if (text.accept("LESS")) return orEqual({true, false, false});
  if (text.accept("GREATER")) return orEqual({false, false, true});
  return std::nullopt;
}

}  // namespace

DirectiveValue DirectiveValue::of(const DirectivePart& part) {
  DirectiveValue value;
  value.text = part.text.substr(0, importLimits::definitionText + 1);
  std::string_view digits = part.text;
  if (digits.substr(0, 1) == "+") digits.remove_prefix(1);
  value.isNumber = part.kind == DirectivePart::Kind::number;
  if (value.isNumber) {
    std::from_chars(digits.data(), digits.data() + digits.size(), value.number);
  }
  return value;
}

int compare(const DirectiveValue& one, const DirectiveValue& other) {
  if (one.isNumber && other.isNumber) {
    return one.number < other.number ? -1 : static_cast<int>(one.number > other.number);
  }
  return one.text.compare(other.text);
}

void Definitions::define(std::string_view name, const DirectiveValue& value, bool overrides) {
  if (name.size() > importLimits::definitionText ||
      value.text.size() > importLimits::definitionText) {
    throw DirectiveError("a definition is longer than " +
                         std::to_string(importLimits::definitionText) + " bytes");
  }
  const auto [known, isNew] = values_.try_emplace(upperCase(name), value);
  if (isNew) return;
  if (!overrides && compare(known->second, value) != 0) {
    throw DirectiveError(quoted(name) + " is defined already, as " + quoted(known->second.text));
  }
  known->second = value;
}

void Definitions::remove(std::string_view name) { values_.erase(upperCase(name)); }

const DirectiveValue* Definitions::find(std::string_view name) const {
  if (name.size() > importLimits::definitionText) return nullptr;
  const auto found = values_.find(upperCase(name));
  return found == values_.end() ? nullptr : &found->second;
}

std::optional<DirectiveValue> Definitions::valueOf(DirectiveText& text,
                                                   const Undefined& undefined) const {
  const DirectivePart part = text.take();
  switch (part.kind) {
    case DirectivePart::Kind::number:
    case DirectivePart::Kind::literal:
      return DirectiveValue::of(part);
    case DirectivePart::Kind::word:
      if (const DirectiveValue* value = find(part.text)) return *value;
      undefined(part.text);
      return std::nullopt;
    case DirectivePart::Kind::mark:
      throw DirectiveError(quoted(part.text) + " stands where a name or a literal is to be");
    case DirectivePart::Kind::end:
      break;
  }
  throw DirectiveError("a name or a literal is wanting");
}

namespace {

// "+" to "/" as DEFINE writes them, with blanks around; 0 for anything else.
char operatorOf(const DirectivePart& part) {
  const bool isOne = part.kind == DirectivePart::Kind::word && part.text.size() == 1 &&
                     std::string_view("+-*/").find(part.text.front()) != std::string_view::npos;
  return isOne ? part.text.front() : '\0';
}

double applied(double one, char op, double other) {
  switch (op) {
    case '+':
      return one + other;
    case '-':
      return one - other;
    case '*':
      return one * other;
    default:
      if (other == 0) throw DirectiveError("a number is divided by zero");
      return std::trunc(one / other);
  }
}

}  // namespace

// Operators wait until one that binds no more comes, so that no function calls itself.
std::optional<DirectiveValue> Definitions::resultOf(DirectiveText& text,
                                                    const Undefined& undefined) const {
  if (text.peek().kind != DirectivePart::Kind::mark) {
    auto first = valueOf(text, undefined);
    if (!first || !first->isNumber || operatorOf(text.peek()) == '\0') return first;
    return sumBehind(*first, text, undefined);
  }
  return sumBehind(std::nullopt, text, undefined);
}

std::optional<DirectiveValue> Definitions::sumBehind(std::optional<DirectiveValue> first,
                                                     DirectiveText& text,
                                                     const Undefined& undefined) const {
  std::vector<double> numbers;
  std::vector<char> waiting;
  const auto rankOf = [](char op) { return op == '(' ? 0 : op == '*' || op == '/' ? 2 : 1; };
  const auto applyFrom = [&](int least) {
    while (!waiting.empty() && rankOf(waiting.back()) >= least) {
      const double last = numbers.back();
      numbers.pop_back();
      numbers.back() = applied(numbers.back(), waiting.back(), last);
      waiting.pop_back();
    }
  };
  while (true) {
    while (!first && text.accept("(")) waiting.push_back('(');
    const auto value = first ? std::exchange(first, std::nullopt) : valueOf(text, undefined);
    if (!value) return std::nullopt;
    if (!value->isNumber) throw DirectiveError(quoted(value->text) + " is no number");
    numbers.push_back(value->number);
    while (std::find(waiting.begin(), waiting.end(), '(') != waiting.end() && text.accept(")")) {
      applyFrom(1);
      waiting.pop_back();
    }
    const char op = operatorOf(text.peek());
    if (op == '\0') break;
    text.take();
    applyFrom(rankOf(op));
    waiting.push_back(op);
  }
  applyFrom(1);
  if (!waiting.empty()) throw DirectiveError("a \"(\" has no \")\"");
  constexpr double most = 1e15;
  if (!(std::abs(numbers.front()) < most)) throw DirectiveError("the number is too large");
  DirectiveValue result;
  result.isNumber = true;
  result.number = numbers.front();
  result.text = std::to_string(static_cast<std::int64_t>(std::trunc(numbers.front())));
  return result;
}

namespace {

// What DEFINE without a value, or with B'0' or B'1', makes a name.
bool isTruth(const DirectiveValue& value) {
  return value.text.empty() || (value.isNumber && (value.number == 0 || value.number == 1));
}

// Whether a name by itself was the condition.
bool endsCondition(DirectiveText text) {
  return text.isAtEnd() || text.accept("AND") || text.accept("OR") || text.accept(")");
}

}  // namespace

bool Definitions::simpleCondition(DirectiveText& text, const Undefined& undefined) const {
  const bool isName = text.peek().kind == DirectivePart::Kind::word;
  DirectiveText behind = text;
  const std::string_view name = behind.take().text;
  behind.accept("IS");
  const bool isNot = behind.accept("NOT");
  if (isName && (behind.accept("DEFINED") || behind.accept("SET"))) {
    text = behind;
    return (find(name) != nullptr) != isNot;
  }
  const auto one = valueOf(text, undefined);
  if (isName && endsCondition(text) && (!one || isTruth(*one))) {
    return one && (one->text.empty() || one->number != 0);
  }
  text.accept("IS");
  text.accept("NOT");
  const auto wanted = relation(text);
  if (!wanted) throw DirectiveError("DEFINED or a comparison is wanting behind " + quoted(name));
  const auto other = valueOf(text, undefined);
  if (!one || !other) return false;
  const int result = compare(*one, *other);
  const bool holds = result < 0 ? wanted->below : result > 0 ? wanted->above : wanted->equal;
  return holds != isNot;
}

// Operators wait until one that binds less comes; no function calls itself, however deep it nests.
bool Definitions::isTrue(DirectiveText& text, const Undefined& undefined) const {
  enum class Operator { opening, isOr, isAnd, isNot };
  std::vector<Operator> waiting;
  std::vector<char> results;
  const auto apply = [&] {
    const Operator last = waiting.back();
    waiting.pop_back();
    if (last == Operator::isNot) {
      results.back() = results.back() == 0 ? 1 : 0;
      return;
    }
    const char second = results.back();
    results.pop_back();
    const bool first = results.back() != 0;
    const bool both = last == Operator::isAnd ? first && second != 0 : first || second != 0;
    results.back() = both ? 1 : 0;
  };
  const auto applyFrom = [&](Operator least) {
    while (!waiting.empty() && waiting.back() >= least) apply();
  };
  while (true) {
    while (true) {
      if (text.accept("NOT")) {
        waiting.push_back(Operator::isNot);
      } else if (text.accept("(")) {
        waiting.push_back(Operator::opening);
      } else {
        break;
      }
    }
    results.push_back(simpleCondition(text, undefined) ? 1 : 0);
    while (text.accept(")")) {
      applyFrom(Operator::isOr);
      if (waiting.empty()) throw DirectiveError("a \")\" has no \"(\"");
      waiting.pop_back();
    }
    if (text.accept("AND")) {
      applyFrom(Operator::isAnd);
      waiting.push_back(Operator::isAnd);
    } else if (text.accept("OR")) {
      applyFrom(Operator::isOr);
      waiting.push_back(Operator::isOr);
    } else {
      break;
    }
  }
  applyFrom(Operator::isOr);
  if (!waiting.empty()) throw DirectiveError("a \"(\" has no \")\"");
  return results.back() != 0;
}

}  // namespace as::toolkit
