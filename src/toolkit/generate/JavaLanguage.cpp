#include "toolkit/generate/JavaLanguage.h"

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

// Keywords, literals, and words that some places of a program reserve.
const Words& keywords() {
  static const Words words = {
      "_",        "abstract",  "assert",    "boolean", "break",      "byte",         "case",
      "catch",    "char",      "class",     "const",   "continue",   "default",      "do",
      "double",   "else",      "enum",      "extends", "false",      "final",        "finally",
      "float",    "for",       "goto",      "if",      "implements", "import",       "instanceof",
      "int",      "interface", "long",      "native",  "new",        "null",         "package",
      "permits",  "private",   "protected", "public",  "record",     "return",       "sealed",
      "short",    "static",    "strictfp",  "super",   "switch",     "synchronized", "this",
      "throw",    "throws",    "transient", "true",    "try",        "var",          "void",
      "volatile", "while",     "yield"};
  return words;
}

// Types that the output itself makes use of, and the package that holds others of them.
const Words& typeWords() {
  static const Words words = with(
      keywords(), {"BigDecimal", "BigInteger", "Byte", "Double", "Float", "Integer", "List", "Long",
                   "Object", "Short", "String", "Transaction", "TransactionType", "java"});
  return words;
}

// Files that the output itself makes.
const Words& files() {
  static const Words words = {"transaction", "transactiontype"};
  return words;
}

// Every object has operations of these names, which nothing may have in their place; and the output
// names a constant of TransactionType.
const Words& memberWords() {
  static const Words words =
      with(keywords(), {"TransactionType", "clone", "equals", "finalize", "getClass", "hashCode",
                        "notify", "notifyAll", "toString", "wait"});
  return words;
}

bool mayStart(char32_t character) { return isXmlNameStart(character); }
bool mayFollow(char32_t character) { return isXmlNameStart(character) || isDigit(character); }
bool mayStartFile(char32_t character) { return isAsciiLetter(character) || character == U'_'; }
bool mayFollowFile(char32_t character) { return mayStartFile(character) || isDigit(character); }

// Types are files when they are compiled, whose names hold no more than so much in all.
NameRule typeRule(std::size_t longest) {
  NameRule rule = {"Java", mayStartFile, mayFollowFile, &typeWords()};
  rule.change = NameRule::Change::toHumps;
  rule.start = NameRule::Start::capital;
  rule.tellsCases = false;
  rule.taken = &files();
  rule.mostCharacters = longest;
  return rule;
}

NameRule memberRule() {
  NameRule rule = {"Java", mayStart, mayFollow, &memberWords()};
  rule.change = NameRule::Change::toHumps;
  rule.start = NameRule::Start::small;
  return rule;
}

const TypeTable& values() {
  static const TypeTable table = {
      {"byte", integerOf(8)},
      {"short", integerOf(16)},
      {"int", integerOf(32)},
      {"long", integerOf(64)},
      {"BigInteger", {Kind::decimal, 0, 0, true, 0}},
      {"BigDecimal", {Kind::decimal}},
      {"float", {Kind::floating, 6}},
      {"double", {Kind::floating, 15}},
      {"String", {Kind::text}},
      {"byte[]", {Kind::bytes}},
  };
  return table;
}

}  // namespace

const Language& javaLanguage() {
  static const Language language = {typeRule(70), typeRule(120), memberRule(), memberRule(),
                                    values(),     "String",      "",           true,
                                    false,        true};
  return language;
}

}  // namespace as::toolkit::gen
