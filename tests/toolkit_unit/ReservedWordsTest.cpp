// Tests of the words that languages reserve: a name that is one gets another. Each is written here
// once more, as the languages' own documents have them.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "toolkit/generate/CSharpLanguage.h"
#include "toolkit/generate/IdlLanguage.h"
#include "toolkit/generate/JavaLanguage.h"

namespace {

namespace gen = as::toolkit::gen;

const char* const javaKeywords =
    "_ abstract assert boolean break byte case catch char class const continue default "
    "do double else enum extends false final finally float for goto if implements "
    "import instanceof int interface long native new null package permits private "
    "protected public record return sealed short static strictfp super switch "
    "synchronized this throw throws transient true try var void volatile while yield";

const char* const javaTypes =
    "BigDecimal BigInteger Byte Double Float Integer List Long Object Short String "
    "Transaction TransactionType java";

const char* const javaMembers =
    "TransactionType clone equals finalize getClass hashCode notify notifyAll toString "
    "wait";

const char* const csharpWords =
    "abstract as async await base bool break byte case catch char checked class const "
    "continue decimal default delegate do double dynamic else enum event explicit "
    "extern false finally fixed float for foreach global goto if implicit in int "
    "interface internal is lock long namespace new nint notnull null nuint object "
    "operator out override params partial private protected public readonly record ref "
    "return sbyte sealed short sizeof stackalloc static string struct switch this throw "
    "true try typeof uint ulong unchecked unmanaged unsafe ushort using var virtual "
    "void volatile where while yield Equals Finalize GetHashCode GetType "
    "MemberwiseClone ReferenceEquals ToString";

const char* const idlKeywords =
    "alignas alignof and asm async auto boolean bool break byte callback case catch "
    "cdecl char class coclass const cpp_quote declare default delegate delete "
    "dispinterface do double else enum error_status_t export extern false far fastcall "
    "float for friend goto handle handle_t huge hyper if import importlib in inline "
    "inout int int3264 int64 interface library long methods module mutable namespace "
    "near new not null object operator or out pascal private properties protected "
    "public register return runtimeclass safearray short signed sizeof small static "
    "stdcall string struct switch template this throw true try typedef typename union "
    "unsigned using virtual void volatile wchar_t while xor";

const char* const idlTypes =
    "address advf atom bindopts bindptr bind_opts blob bstr bstrblob byte_blob bytes "
    "callconv clipformat clsid colorref cy currency custdata custdataitem date decimal "
    "descvtype desckind dispid dispparams doubleword dvaspect dword dwordlong elemdesc "
    "errorinfo excepinfo exception file filetime flag fmtid formatetc funcdesc "
    "funcflags funckind guid hresult hyper_sizedarr idispatch idldesc iid impltype "
    "interfaceinfo invokekind iunknown langid large_integer libflags locktype "
    "logpalette lpstr lpwstr memberid memctx mshctx mshlflags multi_qi objectid olechar "
    "olestr palette paramdata paramdesc point pointl propid qword rect rectl refiid "
    "safearraybound scode sid size sizel statdata statflag statstg stgm "
    "stgmedium stgty syskind systemtime tlibattr tymed typeattr typedesc typeflags "
    "typekind uchar uint ulong ushort userconst vardesc varenum varflags variant "
    "variant_bool variantarg varkind vartype windowsize word wparam lparam lresult";

const char* const idlMethods =
    "addref getidsofnames gettypeinfo gettypeinfocount invoke queryinterface release";

void expectReserved(const char* words, const gen::NameRule& rule) {
  std::istringstream in(words);
  for (std::string word; in >> word;) {
    EXPECT_FALSE(gen::isLegal(rule, word)) << word;
    EXPECT_EQ(gen::legalName(rule, word), word + "_");
  }
}

TEST(ReservedWords, OfJavaAreNoNames) {
  const gen::Language& java = gen::javaLanguage();
  for (const gen::NameRule* const rule : {&java.service, &java.types, &java.members}) {
    expectReserved(javaKeywords, *rule);
  }
  expectReserved(javaTypes, java.types);
  expectReserved(javaMembers, java.members);
  EXPECT_TRUE(gen::isLegal(java.members, "String"));
  EXPECT_TRUE(gen::isLegal(java.types, "notify"));
}

TEST(ReservedWords, OfCSharpAreNoNames) {
  expectReserved(csharpWords, gen::csharpLanguage().types);
  expectReserved(csharpWords, gen::csharpLanguage().members);
}

// In no case.
TEST(ReservedWords, OfIdlAreNoNames) {
  const gen::Language& idl = gen::idlLanguage();
  std::string capitals = idlKeywords;
  std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  });
  for (const gen::NameRule* const rule : {&idl.types, &idl.methods, &idl.members}) {
    expectReserved(idlKeywords, *rule);
    expectReserved(capitals.c_str(), *rule);
  }
  expectReserved(idlTypes, idl.types);
  expectReserved(idlMethods, idl.methods);
  EXPECT_TRUE(gen::isLegal(idl.members, "invoke"));
  EXPECT_TRUE(gen::isLegal(idl.members, "guid"));
}

// Files are called as types are.
TEST(LongNames, AreCut) {
  const struct {
    const gen::NameRule& rule;
    std::size_t longest;
  } rows[] = {{gen::javaLanguage().service, 70},
              {gen::javaLanguage().types, 120},
              {gen::javaLanguage().members, 200},
              {gen::idlLanguage().service, 120},
              {gen::csharpLanguage().members, 200}};
  for (const auto& row : rows) {
    const std::string name(row.longest, 'a');
    EXPECT_EQ(gen::legalName(row.rule, name), name);
    const std::string cut = gen::legalName(row.rule, name + "a");
    EXPECT_EQ(cut, name.substr(9) + "_" + gen::digitsOfText(name + "a"));
  }
}

// The ends of what names may hold.
TEST(NamesOfLanguages, HoldLettersAndDigits) {
  for (const gen::NameRule* const rule :
       {&gen::javaLanguage().types, &gen::javaLanguage().members, &gen::csharpLanguage().types,
        &gen::idlLanguage().types}) {
    for (const char* const name : {"az", "AZ", "a09", "z_", "Za"}) {
      EXPECT_TRUE(gen::isLegal(*rule, name)) << name;
    }
    for (const char* const name :
         {"", "0a", "9", "a-b", "a/", "a:", "a@", "a[", "a`", "a{", "a.b"}) {
      EXPECT_FALSE(gen::isLegal(*rule, name)) << name;
    }
  }
  EXPECT_TRUE(gen::isLegal(gen::javaLanguage().types, "_a"));
  EXPECT_TRUE(gen::isLegal(gen::javaLanguage().members, "\u00e4"));
  EXPECT_FALSE(gen::isLegal(gen::javaLanguage().types, "\u00e4"));
  EXPECT_FALSE(gen::isLegal(gen::javaLanguage().types, "a\u00e4"));
  EXPECT_FALSE(gen::isLegal(gen::idlLanguage().types, "_a"));
  EXPECT_FALSE(gen::isLegal(gen::idlLanguage().types, "a\u00e4"));
}

}  // namespace
