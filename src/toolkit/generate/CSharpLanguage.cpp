#include "toolkit/generate/CSharpLanguage.h"

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

// Keywords, those that only some places reserve, and what every object has.
const Words& reserved() {
  static const Words words = {"abstract",
                              "as",
                              "async",
                              "await",
                              "base",
                              "bool",
                              "break",
                              "byte",
                              "case",
                              "catch",
                              "char",
                              "checked",
                              "class",
                              "const",
                              "continue",
                              "decimal",
                              "default",
                              "delegate",
                              "do",
                              "double",
                              "dynamic",
                              "else",
                              "enum",
                              "event",
                              "explicit",
                              "extern",
                              "false",
                              "finally",
                              "fixed",
                              "float",
                              "for",
                              "foreach",
                              "global",
                              "goto",
                              "if",
                              "implicit",
                              "in",
                              "int",
                              "interface",
                              "internal",
                              "is",
                              "lock",
                              "long",
                              "namespace",
                              "new",
                              "nint",
                              "notnull",
                              "null",
                              "nuint",
                              "object",
                              "operator",
                              "out",
                              "override",
                              "params",
                              "partial",
                              "private",
                              "protected",
                              "public",
                              "readonly",
                              "record",
                              "ref",
                              "return",
                              "sbyte",
                              "sealed",
                              "short",
                              "sizeof",
                              "stackalloc",
                              "static",
                              "string",
                              "struct",
                              "switch",
                              "this",
                              "throw",
                              "true",
                              "try",
                              "typeof",
                              "uint",
                              "ulong",
                              "unchecked",
                              "unmanaged",
                              "unsafe",
                              "ushort",
                              "using",
                              "var",
                              "virtual",
                              "void",
                              "volatile",
                              "where",
                              "while",
                              "yield",
                              "Equals",
                              "Finalize",
                              "GetHashCode",
                              "GetType",
                              "MemberwiseClone",
                              "ReferenceEquals",
                              "ToString"};
  return words;
}

bool mayFollow(char32_t character) { return isXmlNameStart(character) || isDigit(character); }

// Other languages of the platform do not tell capital letters from small ones.
NameRule rule(NameRule::Start start) {
  NameRule rule = {"C#", isXmlNameStart, mayFollow, &reserved()};
  rule.change = NameRule::Change::toHumps;
  rule.start = start;
  rule.tellsCases = false;
  return rule;
}

const TypeTable& values() {
  static const TypeTable table = {
      {"sbyte", integerOf(8)},
      {"byte", integerOf(8, false)},
      {"short", integerOf(16)},
      {"ushort", integerOf(16, false)},
      {"int", integerOf(32)},
      {"uint", integerOf(32, false)},
      {"long", integerOf(64)},
      {"ulong", integerOf(64, false)},
      {"decimal", {Kind::decimal, 28}},
      {"global::System.Numerics.BigInteger", {Kind::decimal, 0, 0, true, 0}},
      {"float", {Kind::floating, 6}},
      {"double", {Kind::floating, 15}},
      {"string", {Kind::text}},
      {"byte[]", {Kind::bytes}},
  };
  return table;
}

}  // namespace

const Language& csharpLanguage() {
  using Start = NameRule::Start;
  static const Language language = {rule(Start::capital),
                                    rule(Start::capital),
                                    rule(Start::capital),
                                    rule(Start::capital),
                                    values(),
                                    "string",
                                    "I",
                                    false,
                                    true};
  return language;
}

}  // namespace as::toolkit::gen
