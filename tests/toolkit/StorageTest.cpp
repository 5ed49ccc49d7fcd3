// Tests of the bytes, boundaries and digits of items, of the dialects, and of usages and their
// words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "as/toolkit/Storage.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

using as::toolkit::BinarySizes;
using as::toolkit::Dialect;
using as::toolkit::Picture;
using as::toolkit::Usage;

constexpr int mostInt = std::numeric_limits<int>::max();

const std::vector<Usage>& allUsages() {
  static const std::vector<Usage> all = [] {
    std::vector<Usage> usages;
    for (int i = 0; i <= static_cast<int>(Usage::utf8); ++i) {
      usages.push_back(static_cast<Usage>(i));
    }
    return usages;
  }();
  return all;
}

// The dialects in the order of the columns below.
const char* const columns[] = {"ibm", "ibm64", "natural", "gnucobol", "compact"};

TEST(Dialects, AreThoseOfTheTables) {
  std::vector<std::string> words;
  for (const Dialect& dialect : as::toolkit::dialects()) words.emplace_back(dialect.word);
  EXPECT_THAT(words, testing::ElementsAreArray(columns));
}

TEST(Dialects, AreFoundByTheirWords) {
  for (const Dialect& dialect : as::toolkit::dialects()) {
    EXPECT_EQ(as::toolkit::findDialect(dialect.word), &dialect);
    EXPECT_STRNE(dialect.summary, "");
  }
}

TEST(Dialects, AreNotFoundByOtherWords) {
  EXPECT_EQ(as::toolkit::findDialect(""), nullptr);
  EXPECT_EQ(as::toolkit::findDialect("IBM"), nullptr);
}

// What import's `--pointer-size` makes of dialects.
TEST(Dialects, ForOtherAddressesAreThoseOfTheFamily) {
  const Dialect& ibm = *as::toolkit::findDialect("ibm");
  const Dialect& ibm64 = *as::toolkit::findDialect("ibm64");
  EXPECT_STREQ(as::toolkit::withAddresses(ibm, 8).word, ibm64.word);
  EXPECT_STREQ(as::toolkit::withAddresses(ibm64, 4).word, ibm.word);
  EXPECT_STREQ(as::toolkit::withAddresses(ibm, 4).word, ibm.word);
}

TEST(Dialects, ForOtherAddressesAreTheSameButForThem) {
  const Dialect narrow = as::toolkit::withAddresses(*as::toolkit::findDialect("gnucobol"), 4);
  EXPECT_STREQ(narrow.word, "gnucobol");
  for (const Usage usage :
       {Usage::pointer, Usage::procedurePointer, Usage::functionPointer, Usage::objectReference}) {
    EXPECT_EQ(as::toolkit::bytesOf(narrow, usage), 4);
    EXPECT_EQ(as::toolkit::boundaryOf(narrow, usage, 4), 4);
  }
  EXPECT_EQ(as::toolkit::bytesOf(narrow, Usage::index), 4);
}

struct SizeRow {
  Usage usage;
  const char* name;
  const char* picture;
  bool hasSeparateSign;
  int bytes[5];
};

void PrintTo(const SizeRow& row, std::ostream* out) { *out << row.name << " " << row.picture; }

const SizeRow sizeRows[] = {
#define SIZES(usage, picture, separate, ...) \
  {Usage::usage, #usage, picture, separate, {__VA_ARGS__}},
#include "toolkit/Sizes.def"
#undef SIZES
};

class SizeTest : public testing::TestWithParam<SizeRow> {};

TEST_P(SizeTest, IsThatOfTheRow) {
  const SizeRow& row = GetParam();
  const std::optional<Picture> picture = as::toolkit::readPicture(row.picture);
  ASSERT_EQ(picture.has_value(), *row.picture != '\0');
  for (std::size_t i = 0; i < std::size(columns); ++i) {
    const Dialect& dialect = *as::toolkit::findDialect(columns[i]);
    EXPECT_EQ(as::toolkit::bytesOf(dialect, row.usage, picture, row.hasSeparateSign).value_or(0),
              row.bytes[i])
        << columns[i];
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, SizeTest, testing::ValuesIn(sizeRows));

TEST(Sizes, AreTestedForEveryUsage) {
  std::set<Usage> tested;
  for (const SizeRow& row : sizeRows) tested.insert(row.usage);
  EXPECT_EQ(tested.size(), allUsages().size());
}

TEST(Sizes, AreThereForTheLongestPicture) {
  const Dialect& dialect = *as::toolkit::findDialect("natural");
  const auto longest = as::toolkit::readPicture("S9(1000000000)");
  EXPECT_EQ(as::toolkit::bytesOf(dialect, Usage::national, longest, true), 2'000'000'002);
  EXPECT_EQ(as::toolkit::bytesOf(dialect, Usage::comp3, longest), 500'000'001);
  EXPECT_EQ(as::toolkit::bytesOf(dialect, Usage::comp5, longest), std::nullopt);
}

struct BoundaryRow {
  Usage usage;
  const char* name;
  int bytes;
  int boundaries[5];
};

void PrintTo(const BoundaryRow& row, std::ostream* out) { *out << row.name << " " << row.bytes; }

const BoundaryRow boundaryRows[] = {
#define BOUNDARIES(usage, bytes, ...) {Usage::usage, #usage, bytes, {__VA_ARGS__}},
#include "toolkit/Boundaries.def"
#undef BOUNDARIES
};

class BoundaryTest : public testing::TestWithParam<BoundaryRow> {};

TEST_P(BoundaryTest, IsThatOfTheRow) {
  const BoundaryRow& row = GetParam();
  for (std::size_t i = 0; i < std::size(columns); ++i) {
    const Dialect& dialect = *as::toolkit::findDialect(columns[i]);
    EXPECT_EQ(as::toolkit::boundaryOf(dialect, row.usage, row.bytes), row.boundaries[i])
        << columns[i];
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, BoundaryTest, testing::ValuesIn(boundaryRows));

struct DigitsRow {
  Usage usage;
  int bytes;
  int digits;
};

void PrintTo(const DigitsRow& row, std::ostream* out) {
  *out << as::toolkit::wordOf(row.usage) << " " << row.bytes;
}

class DigitsTest : public testing::TestWithParam<DigitsRow> {};

TEST_P(DigitsTest, AreThoseOfTheRow) {
  EXPECT_EQ(as::toolkit::digitsIn(GetParam().usage, GetParam().bytes), GetParam().digits);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DigitsTest,
    testing::Values(
        DigitsRow{Usage::display, 5, 5}, DigitsRow{Usage::display, 0, 0},
        DigitsRow{Usage::display, -1, 0}, DigitsRow{Usage::display1, 4, 0},
        DigitsRow{Usage::national, 10, 5}, DigitsRow{Usage::bit, 2, 0},
        DigitsRow{Usage::externalFloat, 13, 0}, DigitsRow{Usage::comp, 2, 5},
        DigitsRow{Usage::comp4, 4, 10}, DigitsRow{Usage::comp5, 8, 20},
        DigitsRow{Usage::compX, 1, 3}, DigitsRow{Usage::compX, 2, 5}, DigitsRow{Usage::compX, 3, 8},
        DigitsRow{Usage::compN, 4, 10}, DigitsRow{Usage::compX, -1, 0},
        DigitsRow{Usage::comp3, 5, 9}, DigitsRow{Usage::comp3, 0, 0},
        DigitsRow{Usage::comp3, mostInt, mostInt - 2}, DigitsRow{Usage::comp6, 3, 6},
        DigitsRow{Usage::comp6, mostInt, mostInt - 1}, DigitsRow{Usage::binaryChar, 1, 3},
        DigitsRow{Usage::binaryShort, 2, 5}, DigitsRow{Usage::binaryLong, 4, 10},
        DigitsRow{Usage::binaryDouble, 8, 20}, DigitsRow{Usage::comp1, 4, 6},
        DigitsRow{Usage::comp2, 8, 15}, DigitsRow{Usage::floatExtended, 16, 18},
        DigitsRow{Usage::floatDecimal16, 8, 16}, DigitsRow{Usage::floatDecimal34, 16, 34},
        DigitsRow{Usage::index, 4, 0}, DigitsRow{Usage::pointer, 8, 0},
        DigitsRow{Usage::pointer32, 4, 0}, DigitsRow{Usage::procedurePointer, 8, 0},
        DigitsRow{Usage::functionPointer, 8, 0}, DigitsRow{Usage::objectReference, 8, 0}));

// The bytes of 2^bits - 1, written out.
TEST(Digits, AreThoseOfTheLargestNumberOfSoManyBits) {
  unsigned long long largest = 0;
  for (int bits = 1; bits <= 64; ++bits) {
    largest = 2 * largest + 1;
    EXPECT_EQ(as::toolkit::digitsOf(bits), static_cast<int>(std::to_string(largest).size()))
        << bits;
  }
  EXPECT_EQ(as::toolkit::digitsOf(0), 0);
  EXPECT_EQ(as::toolkit::digitsOf(-8), 0);
}

TEST(Bits, AreEightAByte) {
  EXPECT_EQ(as::toolkit::bitsOf(0), 0);
  EXPECT_EQ(as::toolkit::bitsOf(-1), 0);
  EXPECT_EQ(as::toolkit::bitsOf(8), 64);
  EXPECT_EQ(as::toolkit::bitsOf(mostInt), mostInt);
}

TEST(Usages, FloatingOnesAreKnown) {
  for (const Usage usage : allUsages()) {
    const bool isOne = usage == Usage::externalFloat || usage == Usage::comp1 ||
                       usage == Usage::comp2 || usage == Usage::floatExtended ||
                       usage == Usage::floatDecimal16 || usage == Usage::floatDecimal34;
    EXPECT_EQ(as::toolkit::isFloating(usage), isOne) << as::toolkit::wordOf(usage);
  }
}

TEST(Usages, ThoseOfAllBitsAreKnown) {
  for (const Usage usage : allUsages()) {
    const bool isOne = usage == Usage::comp5 || usage == Usage::compX || usage == Usage::compN ||
                       usage == Usage::binaryChar || usage == Usage::binaryShort ||
                       usage == Usage::binaryLong || usage == Usage::binaryDouble;
    EXPECT_EQ(as::toolkit::isOfAllBits(usage), isOne) << as::toolkit::wordOf(usage);
  }
}

TEST(Usages, AreFoundByTheirOwnWords) {
  for (const Usage usage : allUsages()) {
    if (usage == Usage::externalFloat) continue;  // It is told by the picture.
    EXPECT_EQ(as::toolkit::findUsage(as::toolkit::wordOf(usage)), usage)
        << as::toolkit::wordOf(usage);
  }
}

struct WordRow {
  const char* word;
  std::optional<Usage> usage;
};

void PrintTo(const WordRow& row, std::ostream* out) { *out << row.word; }

class UsageWordTest : public testing::TestWithParam<WordRow> {};

TEST_P(UsageWordTest, IsThatUsage) {
  EXPECT_EQ(as::toolkit::findUsage(GetParam().word), GetParam().usage);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UsageWordTest,
    testing::Values(
        WordRow{"COMPUTATIONAL", Usage::comp}, WordRow{"BINARY", Usage::comp},
        WordRow{"Computational-3", Usage::comp3}, WordRow{"computational-x", Usage::compX},
        WordRow{"PACKED-DECIMAL", Usage::comp3}, WordRow{"FLOAT-SHORT", Usage::comp1},
        WordRow{"FLOAT", Usage::comp1}, WordRow{"DOUBLE", Usage::comp2},
        WordRow{"FLOAT-BINARY-32", Usage::comp1}, WordRow{"FLOAT-LONG", Usage::comp2},
        WordRow{"FLOAT-BINARY-64", Usage::comp2}, WordRow{"comp-5", Usage::comp5},
        WordRow{"PROGRAM-POINTER", Usage::procedurePointer},
        WordRow{"FLOAT-BINARY-128", Usage::floatExtended}, WordRow{"BINARY-INT", Usage::binaryLong},
        WordRow{"BINARY-LONG-LONG", Usage::binaryDouble},
        WordRow{"BINARY-C-LONG", Usage::binaryDouble}, WordRow{"SIGNED-SHORT", Usage::binaryShort},
        WordRow{"UNSIGNED-SHORT", Usage::binaryShort}, WordRow{"SIGNED-INT", Usage::binaryLong},
        WordRow{"UNSIGNED-INT", Usage::binaryLong}, WordRow{"SIGNED-LONG", Usage::binaryDouble},
        WordRow{"UNSIGNED-LONG", Usage::binaryDouble},
        WordRow{"object reference", Usage::objectReference}, WordRow{"", std::nullopt},
        WordRow{"COMP-7", std::nullopt}, WordRow{"COMPUTATION", std::nullopt},
        WordRow{"X-COMP", std::nullopt}));

struct ItemRow {
  const char* item;
  std::optional<Usage> usage;
};

void PrintTo(const ItemRow& row, std::ostream* out) { *out << row.item; }

class UsageOfItemTest : public testing::TestWithParam<ItemRow> {};

TEST_P(UsageOfItemTest, IsThatOfTheRow) {
  const auto program = test::parse(test::dictionaryOf(GetParam().item));
  auto* const item = as::interface_cast<as::IDataItem>(program->getDataItems()->getItem(0));
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(as::toolkit::usageOf(*item), GetParam().usage);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UsageOfItemTest,
    testing::Values(
        ItemRow{"<group name='A' offset='0' length='1'/>", std::nullopt},
        ItemRow{"<numeric name='A' offset='0' length='1'/>", Usage::display},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp'/>", Usage::comp},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-1'/>", Usage::comp1},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-2'/>", Usage::comp2},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-3'/>", Usage::comp3},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-4'/>", Usage::comp4},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-5'/>", Usage::comp5},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-6'/>", Usage::comp6},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='comp-x'/>", Usage::compX},
        ItemRow{"<numeric name='A' offset='0' length='1' usage='externalFloat'/>",
                Usage::externalFloat},
        ItemRow{"<numericEdited name='A' offset='0' length='1'/>", Usage::display},
        ItemRow{"<alphanumeric name='A' offset='0' length='1'/>", Usage::display},
        ItemRow{"<national name='A' offset='0' length='1'/>", Usage::national},
        ItemRow{"<pointer name='A' offset='0' length='1'/>", Usage::pointer},
        ItemRow{"<index name='A' offset='0' length='1'/>", Usage::index},
        ItemRow{"<cobolObject name='A' offset='0' length='1'/>", Usage::objectReference}));

// The sample programs, whose rules examples/README.md tells.
class ExampleStorageTest : public testing::TestWithParam<const char*> {
 protected:
  using Check = std::function<void(as::IDataItem&, Usage)>;

  // Calls `check` for all elementary items that have a place of their own.
  static void forEachElementary(as::IDataItem& item, const Check& check) {
    SCOPED_TRACE(item.getName() + " of line " + std::to_string(item.getLine()));
    auto* const group = as::interface_cast<as::IGroup>(&item);
    const std::optional<Usage> usage = as::toolkit::usageOf(item);
    if (usage && !item.isRenamed()) check(item, *usage);
    if (group != nullptr) forEachElementary(group->getChildren(), check);
  }

  static void forEachElementary(as::IList* items, const Check& check) {
    for (int i = 0; i < items->getLength(); ++i) {
      if (auto* const item = as::interface_cast<as::IDataItem>(items->getItem(i))) {
        forEachElementary(*item, check);
      }
    }
  }

  static void forEachElementary(const Check& check) {
    const std::unique_ptr<as::IProgram> program(test::newServices()->parseCobolDD(
        (std::string(AS_EXAMPLES_DIR "/") + GetParam() + ".xml").c_str()));
    ASSERT_NE(program, nullptr);
    as::IList* const files = program->getFileSection();
    for (int i = 0; i < files->getLength(); ++i) {
      if (auto* const file = as::interface_cast<as::IFD>(files->getItem(i))) {
        forEachElementary(file->getDataItems(), check);
      }
    }
    forEachElementary(program->getDataItems(), check);
  }
};

TEST_P(ExampleStorageTest, LengthsAreThoseOfTheNaturalDialect) {
  const Dialect& natural = *as::toolkit::findDialect("natural");
  int items = 0;
  forEachElementary([&](as::IDataItem& item, Usage usage) {
    ++items;
    auto* const numeric = as::interface_cast<as::INumeric>(&item);
    const int sign = numeric == nullptr ? as::INumeric::SIGN_NONE : numeric->getSign();
    const bool isSeparate =
        sign == as::INumeric::SIGN_LEADING_SEPARATE || sign == as::INumeric::SIGN_TRAILING_SEPARATE;
    EXPECT_EQ(as::toolkit::bytesOf(natural, usage, as::toolkit::readPicture(item.getPicture()),
                                   isSeparate),
              item.getLength());
  });
  EXPECT_GT(items, 50);
}

TEST_P(ExampleStorageTest, DigitsAreThoseOfThePictures) {
  forEachElementary([](as::IDataItem& item, Usage usage) {
    const std::optional<Picture> picture = as::toolkit::readPicture(item.getPicture());
    EXPECT_EQ(picture.has_value(), !item.getPicture().empty());
    if (!picture || picture->digits == 0) return;
    EXPECT_EQ(std::to_string(picture->digits), item.getAttributeValue("digits"));
    const std::string scale = item.getAttributeValue("alignment");
    EXPECT_EQ(std::to_string(picture->scale), scale.empty() ? "0" : scale);
    EXPECT_EQ(picture->category == Picture::Category::externalFloat, usage == Usage::externalFloat);
  });
}

TEST_P(ExampleStorageTest, SynchronizedItemsStartOnBoundariesOfTheNaturalDialect) {
  const Dialect& natural = *as::toolkit::findDialect("natural");
  forEachElementary([&](as::IDataItem& item, Usage usage) {
    if (!item.isSync()) return;
    const int boundary = as::toolkit::boundaryOf(natural, usage, item.getLength());
    EXPECT_GT(boundary, 1);
    EXPECT_EQ(item.getOffset() % boundary, 0);
  });
}

INSTANTIATE_TEST_SUITE_P(Programs, ExampleStorageTest,
                         testing::Values("DEPINT01", "MOTPREM", "WHSLOTS", "PAYSLIP"));

}  // namespace
