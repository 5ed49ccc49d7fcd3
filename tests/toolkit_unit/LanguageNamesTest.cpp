// Tests of what becomes of names that a language forbids, and that the documentation shows the
// types of each language as they are.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>

#include "toolkit/generate/CSharpLanguage.h"
#include "toolkit/generate/CodeText.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/IdlLanguage.h"
#include "toolkit/generate/JavaLanguage.h"
#include "toolkit/generate/NameUuid.h"

namespace {

namespace gen = as::toolkit::gen;

struct Row {
  const char* name;
  const char* java;  // As a member ...
  const char* csharp;
  const char* idl;
  const char* javaType;  // ... and as a type.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"serial", "serial", "serial", "serial", "serial"},
    {"LK-REQ-NO", "lkReqNo", "LkReqNo", "lkReqNo", "LkReqNo"},
    {"LK_REQ_NO", "LK_REQ_NO", "LK_REQ_NO", "LK_REQ_NO", "LK_REQ_NO"},
    {"Kfz-Art", "kfzArt", "KfzArt", "kfzArt", "KfzArt"},
    {"class", "class_", "class_", "class_", "class_"},
    {"decimal", "decimal", "decimal_", "decimal", "decimal"},
    {"long", "long_", "long_", "long_", "long_"},
    {"Long", "Long", "Long", "Long_", "Long_"},
    {"toString", "toString_", "toString", "toString", "toString"},
    {"1ST", "_1ST", "_1ST", "n1ST", "_1ST"},
    {"1ST-PART", "_1stPart", "_1stPart", "n1stPart", "_1stPart"},
    {"", "__", "_", "n", "__"},
    {"_", "__", "_", "n_", "__"},
    {"Prämie", "Prämie", "Prämie", "prMie", "PrMie"},
    {"*/\\u002a", "u002a", "U002a", "u002a", "U002a"},
    {"a\nb", "aB", "AB", "aB", "AB"},
};

class LanguageNames : public testing::TestWithParam<Row> {};

TEST_P(LanguageNames, AreLegalInJava) {
  const gen::NameRule& rule = gen::javaLanguage().members;
  EXPECT_EQ(gen::legalName(rule, GetParam().name), GetParam().java);
  EXPECT_TRUE(gen::isLegal(rule, GetParam().java));
}

TEST_P(LanguageNames, AreLegalInCSharp) {
  const gen::NameRule& rule = gen::csharpLanguage().members;
  EXPECT_EQ(gen::legalName(rule, GetParam().name), GetParam().csharp);
  EXPECT_TRUE(gen::isLegal(rule, GetParam().csharp));
}

TEST_P(LanguageNames, AreLegalInIdl) {
  const gen::NameRule& rule = gen::idlLanguage().members;
  EXPECT_EQ(gen::legalName(rule, GetParam().name), GetParam().idl);
  EXPECT_TRUE(gen::isLegal(rule, GetParam().idl));
}

TEST_P(LanguageNames, AreLegalForTypesOfJava) {
  const gen::NameRule& rule = gen::javaLanguage().types;
  EXPECT_EQ(gen::legalName(rule, GetParam().name), GetParam().javaType);
  EXPECT_TRUE(gen::isLegal(rule, GetParam().javaType));
}

INSTANTIATE_TEST_SUITE_P(All, LanguageNames, testing::ValuesIn(rows));

struct Documented {
  const char* page;
  const gen::Language& (*language)();
};

void PrintTo(const Documented& row, std::ostream* out) { *out << row.page; }

class LanguageTypes : public testing::TestWithParam<Documented> {};

TEST_P(LanguageTypes, AreDocumented) {
  std::ifstream in(std::string(AS_EXAMPLES_DIR "/../docs/") + GetParam().page);
  const std::string page((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  EXPECT_NE(page.find(gen::textOf(GetParam().language().values)), std::string::npos)
      << gen::textOf(GetParam().language().values);
}

const Documented pages[] = {
    {"generate-java.md", gen::javaLanguage},
    {"generate-csharp.md", gen::csharpLanguage},
    {"generate-idl.md", gen::idlLanguage},
};

INSTANTIATE_TEST_SUITE_P(All, LanguageTypes, testing::ValuesIn(pages));

TEST(DocText, HoldsNothingThatEndsAComment) {
  EXPECT_EQ(gen::docText("a*/b\\u002a/ <b> {@x} & \"q\"\n\xE2\x80\xA8."),
            "a*&#47;b&#92;u002a/ &#60;b&#62; &#123;&#64;x&#125; &#38; &#34;q&#34;  .");
}

TEST(CommentText, HoldsNothingThatEndsAComment) {
  EXPECT_EQ(gen::commentText("*/ *\\ -- \\u000a\n\xC2\x85\xE2\x80\xA9."), "* / * / - - /u000a   .");
}

TEST(DocText, HoldsNothingThatXmlOrCompilersRefuse) {
  EXPECT_EQ(gen::docText("a\x7F\xC2\x9F\xC2\xA0\xEF\xBF\xBE\xEF\xBF\xBFz"), "a  \xC2\xA0  z");
  EXPECT_EQ(gen::docText("\u200D\u200E\u200F\u2010\u202A\u2065\u2069\u206A"),
            "\u200D&#8206;&#8207;\u2010&#8234;\u2065&#8297;\u206A");
}

TEST(CommentText, SeparatesOnlyWhatMeansSomethingTogether) {
  EXPECT_EQ(gen::commentText("a/b *x -y ?z /* -- */"), "a/b *x -y ?z / * - - * /");
}

TEST(CommentText, HoldsNothingThatTurnsTextOrStandsForOtherCharacters) {
  EXPECT_EQ(gen::commentText("a\xE2\x80\xAE"
                             "b ?"
                             "?/"),
            "a b ? ?/");
  EXPECT_EQ(gen::docText("a\xE2\x80\xAE"
                         "b\xE2\x81\xA6\xD8\x9C"),
            "a&#8238;b&#8294;&#1564;");
}

TEST(NameUuid, IsTheSameForTheSameName) {
  EXPECT_EQ(gen::uuidOfName("library/MOTPREM"), gen::uuidOfName("library/MOTPREM"));
  EXPECT_NE(gen::uuidOfName("library/MOTPREM"), gen::uuidOfName("library/PAYSLIP"));
}

TEST(NameUuid, IsOfVersionFive) { EXPECT_EQ(gen::uuidOfName("a")[14], '5'); }

TEST(ReadUuid, TakesBraces) {
  EXPECT_EQ(gen::readUuid("{E01B3295-3B29-5706-99FA-193C6E82C6D2}"),
            "e01b3295-3b29-5706-99fa-193c6e82c6d2");
}

TEST(ReadUuid, TakesNothingElse) {
  for (const char* const text :
       {"", "e01b3295-3b29-5706-99fa", "{E01B3295-3B29-5706-99FA-193C6E82C6D2)",
        "(E01B3295-3B29-5706-99FA-193C6E82C6D2}", "{E01B3295-3B29-5706-99FA-193C6E82C6}",
        "E01B3295-3B29-5706-99FA-193C6E82C6DX"}) {
    EXPECT_EQ(gen::readUuid(text), "") << text;
  }
}

}  // namespace
