#include "toolkit/import/ConditionReader.h"

#include <utility>

namespace as::toolkit {

namespace {

// Whether a literal of that prefix is written in the digits of its bytes or characters.
bool isCoded(const std::string& prefix) {
  return prefix.find('X') != std::string::npos || prefix == "B" || prefix == "H";
}

}  // namespace

void ConditionReader::read(DataEntry* item) {
  ConditionEntry condition;
  condition.place = words_.peek().token.place;
  const Word& name = words_.peek();
  const bool isNamed =
      name.is(TokenKind::word) && !name.is(Keyword::value) && !name.is(Keyword::values);
  if (isNamed) condition.name = words_.take().token.text;
  condition.firstValue = static_cast<Index>(program_.values.size());
  if (!words_.accept(Keyword::value)) words_.accept(Keyword::values);
  words_.accept(Keyword::isWord);
  words_.accept(Keyword::are);
  readValues();
  words_.skipSentence();
  condition.valueCount = static_cast<Index>(program_.values.size()) - condition.firstValue;
  if (condition.name.empty() || condition.valueCount == 0) {
    problems_.tell(EntryRule::noValue, condition.place,
                   condition.name.empty() ? "level 88 is followed by no name"
                                          : condition.name + " has no values that are known");
    return;
  }
  if (item == nullptr) {
    problems_.tell(EntryRule::noItem, condition.place, condition.name + " follows no item");
    return;
  }
  const auto next = static_cast<Index>(program_.conditions.size());
  if (item->conditionCount == 0) {
    item->firstCondition = next;
  } else if (item->firstCondition + item->conditionCount != next) {
    // Those of its type stand elsewhere.
    for (Index i = 0; i < item->conditionCount; ++i) {
      const Index from = item->firstCondition + i;
      ConditionEntry copy = program_.conditions[static_cast<std::size_t>(from)];
      program_.conditions.push_back(std::move(copy));
    }
    item->firstCondition = next;
  }
  ++item->conditionCount;
  program_.conditions.push_back(std::move(condition));
}

void ConditionReader::readValues() {
  while (!words_.peek().is(TokenKind::period) && !words_.atEnd()) {
    const Word& word = words_.peek();
    // WHEN SET TO FALSE tells what makes the condition untrue; IN tells the character set.
    if (word.is(Keyword::when) || word.is(Keyword::falseWord)) return;
    if (words_.accept(Keyword::in)) {
      words_.skip();
      continue;
    }
    ConditionValueEntry value;
    std::optional<std::string> first = takeValue();
    if (!first) return;
    value.first = std::move(*first);
    if (words_.accept(Keyword::thru) || words_.accept(Keyword::through)) {
      std::optional<std::string> last = takeValue();
      if (!last) return;
      value.last = std::move(*last);
      value.isRange = true;
    }
    program_.values.push_back(std::move(value));
    words_.accept(Keyword::orWord);
  }
}

// Nothing, after an error was told, for what is no value.
std::optional<std::string> ConditionReader::takeValue() {
  const Word& word = words_.peek();
  const SourcePlace place = word.token.place;
  if (word.is(TokenKind::literal)) {
    std::string text = takeLiteral();
    while (words_.peek().isMark("&") && words_.peek(1).is(TokenKind::literal)) {
      words_.skip();
      text += takeLiteral();
    }
    return text;
  }
  if (word.is(TokenKind::number)) return words_.take().token.text;
  if (word.is(Keyword::all)) {
    words_.skip();
    const Word& what = words_.peek();
    if (what.is(TokenKind::literal)) {
      const std::string quote(1, what.token.quote);
      return "ALL " + what.token.prefix + quote + words_.take().token.text + quote;
    }
    if (what.meaning.role == KeywordRole::figurative) return words_.take().token.text;
  } else if (word.is(TokenKind::word)) {
    if (word.meaning.role == KeywordRole::figurative) return words_.take().token.text;
    if (const std::optional<std::int64_t> number = readInteger(word.token.text)) {
      const std::string text = words_.take().token.text;
      return text.find('#') == std::string::npos ? text : std::to_string(*number);
    }
    if (std::optional<std::string> text = constants_.textOf(word.token)) {
      words_.skip();
      return text;
    }
  }
  problems_.tell(EntryRule::noValue, place,
                 words_.peek().token.text + " is no value of a condition that is known");
  return std::nullopt;
}

std::string ConditionReader::takeLiteral() {
  const Word word = words_.take();
  const Token& token = word.token;
  if (!isCoded(token.prefix)) return token.text;
  const std::string quote(1, token.quote);
  std::string text = token.prefix + quote + token.text + quote;
  problems_.tell(EntryRule::codedLiteral, token.place,
                 text +
                     " and others stay as they are written: which characters they are, the "
                     "source does not tell");
  return text;
}

}  // namespace as::toolkit
