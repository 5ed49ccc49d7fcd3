#include "toolkit/generate/IdlLanguage.h"

#include "toolkit/generate/NameCharacters.h"

namespace as::toolkit::gen {

namespace {

using Kind = Capacity::Kind;

// Words of the language itself, and those of C and C++ that headers made of it would trip over, in
// small letters.
const Words& keywords() {
  static const Words words = {"alignas",
                              "alignof",
                              "and",
                              "asm",
                              "async",
                              "auto",
                              "boolean",
                              "bool",
                              "break",
                              "byte",
                              "callback",
                              "case",
                              "catch",
                              "cdecl",
                              "char",
                              "class",
                              "coclass",
                              "const",
                              "cpp_quote",
                              "declare",
                              "default",
                              "delegate",
                              "delete",
                              "dispinterface",
                              "do",
                              "double",
                              "else",
                              "enum",
                              "error_status_t",
                              "export",
                              "extern",
                              "false",
                              "far",
                              "fastcall",
                              "float",
                              "for",
                              "friend",
                              "goto",
                              "handle",
                              "handle_t",
                              "huge",
                              "hyper",
                              "if",
                              "import",
                              "importlib",
                              "in",
                              "inline",
                              "inout",
                              "int",
                              "int3264",
                              "int64",
                              "interface",
                              "library",
                              "long",
                              "methods",
                              "module",
                              "mutable",
                              "namespace",
                              "near",
                              "new",
                              "not",
                              "null",
                              "object",
                              "operator",
                              "or",
                              "out",
                              "pascal",
                              "private",
                              "properties",
                              "protected",
                              "public",
                              "register",
                              "return",
                              "runtimeclass",
                              "safearray",
                              "short",
                              "signed",
                              "sizeof",
                              "small",
                              "static",
                              "stdcall",
                              "string",
                              "struct",
                              "switch",
                              "template",
                              "this",
                              "throw",
                              "true",
                              "try",
                              "typedef",
                              "typename",
                              "union",
                              "unsigned",
                              "using",
                              "virtual",
                              "void",
                              "volatile",
                              "wchar_t",
                              "while",
                              "xor"};
  return words;
}

// Types that the platform's own definitions have, and those of Automation.
const Words& typeWords() {
  static const Words words =
      with(keywords(), {"address",        "advf",       "atom",         "bindopts",
                        "bindptr",        "bind_opts",  "blob",         "bstr",
                        "bstrblob",       "byte_blob",  "bytes",        "callconv",
                        "clipformat",     "clsid",      "colorref",     "cy",
                        "currency",       "custdata",   "custdataitem", "date",
                        "decimal",        "descvtype",  "desckind",     "dispid",
                        "dispparams",     "doubleword", "dvaspect",     "dword",
                        "dwordlong",      "elemdesc",   "errorinfo",    "excepinfo",
                        "exception",      "file",       "filetime",     "flag",
                        "fmtid",          "formatetc",  "funcdesc",     "funcflags",
                        "funckind",       "guid",       "hresult",      "hyper_sizedarr",
                        "idispatch",      "idldesc",    "iid",          "impltype",
                        "interfaceinfo",  "invokekind", "iunknown",     "langid",
                        "large_integer",  "libflags",   "locktype",     "logpalette",
                        "lpstr",          "lpwstr",     "memberid",     "memctx",
                        "mshctx",         "mshlflags",  "multi_qi",     "objectid",
                        "olechar",        "olestr",     "palette",      "paramdata",
                        "paramdesc",      "point",      "pointl",       "propid",
                        "qword",          "rect",       "rectl",        "refiid",
                        "safearraybound", "scode",      "sid",          "size",
                        "sizel",          "statdata",   "statflag",     "statstg",
                        "stgm",           "stgmedium",  "stgty",        "syskind",
                        "systemtime",     "tlibattr",   "tymed",        "typeattr",
                        "typedesc",       "typeflags",  "typekind",     "uchar",
                        "uint",           "ulong",      "ushort",       "userconst",
                        "vardesc",        "varenum",    "varflags",     "variant",
                        "variant_bool",   "variantarg", "varkind",      "vartype",
                        "windowsize",     "word",       "wparam",       "lparam",
                        "lresult"});
  return words;
}

// What every object with such an interface has.
const Words& methodWords() {
  static const Words words =
      with(keywords(), {"addref", "getidsofnames", "gettypeinfo", "gettypeinfocount", "invoke",
                        "queryinterface", "release"});
  return words;
}

bool mayFollow(char32_t character) {
  return isAsciiLetter(character) || isDigit(character) || character == U'_';
}

// Automation does not tell capital letters from small ones, and hides what begins with "_".
NameRule rule(const Words& reserved, NameRule::Start start) {
  constexpr std::size_t longest = 120;
  NameRule rule = {"IDL", isAsciiLetter, mayFollow, &reserved, true};
  rule.change = NameRule::Change::toHumps;
  rule.start = start;
  rule.tellsCases = false;
  rule.prefix = "n";
  rule.mostCharacters = longest;
  return rule;
}

const TypeTable& values() {
  static const TypeTable table = {
      {"unsigned char", integerOf(8, false)},
      {"short", integerOf(16)},
      {"long", integerOf(32)},
      {"CY", {Kind::decimal, 0, 0, true, 4, 14}},
      {"DECIMAL", {Kind::decimal, 28}},
      {"float", {Kind::floating, 6}},
      {"double", {Kind::floating, 15}},
      {"BSTR", {Kind::text}},
      {"DATE", {Kind::open}, "date"},
      {"VARIANT", {Kind::open}, "object"},
  };
  return table;
}

}  // namespace

const Language& idlLanguage() {
  using Start = NameRule::Start;
  static const Language language = {rule(typeWords(), Start::capital),
                                    rule(typeWords(), Start::capital),
                                    rule(methodWords(), Start::capital),
                                    rule(keywords(), Start::small),
                                    values(),
                                    "BSTR",
                                    "I"};
  return language;
}

}  // namespace as::toolkit::gen
