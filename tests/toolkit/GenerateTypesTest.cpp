// Tests of the types that generators give to COBOL items: they hold every value, and exactly.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/Generated.h"

namespace {

using testing::HasSubstr;

// An elementary item's clauses, and what the field of it is in each language.
struct Row {
  const char* clauses;
  const char* java;
  const char* csharp;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.clauses; }

const Row rows[] = {
    {"PIC 9(02)", "byte", "sbyte"},
    {"PIC S9(04)", "short", "short"},
    {"PIC S9(04) COMP", "short", "short"},
    {"PIC 9(09)", "int", "int"},
    {"PIC 9(15) COMP-3", "long", "long"},
    {"PIC S9(18)", "long", "long"},
    {"PIC 9(19)", "BigInteger", "ulong"},
    {"PIC S9(19)", "BigInteger", "decimal"},
    {"PIC S9(28)", "BigInteger", "decimal"},
    {"PIC S9(31)", "BigInteger", "global::System.Numerics.BigInteger"},
    {"PIC S9(13)V99 COMP-3", "BigDecimal", "decimal"},
    {"PIC S9(15)V99", "BigDecimal", "decimal"},
    {"PIC S9(29)V99", "BigDecimal", "string"},
    {"PIC 9(03)PPP", "int", "int"},
    {"PIC VPP9(03)", "BigDecimal", "decimal"},
    {"PIC 9(04) COMP-5", "int", "ushort"},
    {"PIC S9(18) COMP-5", "long", "long"},
    {"PIC 9(18) COMP-5", "BigInteger", "ulong"},
    {"COMP-1", "float", "float"},
    {"COMP-2", "double", "double"},
    {"PIC X(30)", "String", "string"},
    {"PIC N(10) NATIONAL", "String", "string"},
    {"PIC Z(5)9.99-", "String", "string"},
    {"POINTER", "long", "uint"},
    {"PIC 9(02) OCCURS 3", "List<Byte>", "IList<sbyte>"},
    {"PIC S9(5)V99 OCCURS 3", "List<BigDecimal>", "IList<decimal>"},
};

class GenerateTypes : public test::GenerateTest, public testing::WithParamInterface<Row> {
 protected:
  std::string of(const std::string& kind) const {
    return textOf(generated(kind, std::string("01 R. 05 THE-ITEM ") + GetParam().clauses + "."));
  }
};

TEST_P(GenerateTypes, HoldTheItemInJava) {
  EXPECT_THAT(of("java"), HasSubstr(std::string("(") + GetParam().java + " theItem)"));
}

TEST_P(GenerateTypes, HoldTheItemInCSharp) {
  EXPECT_THAT(of("csharp"), HasSubstr(std::string("public ") + GetParam().csharp + " TheItem {"));
}

INSTANTIATE_TEST_SUITE_P(Items, GenerateTypes, testing::ValuesIn(rows));

}  // namespace
