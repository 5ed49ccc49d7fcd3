// Tests of which records below a type definition are told as wrong: the first of them, however many
// right ones stand in front, and whichever way leads there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "as/IDataItem.h"
#include "as/IList.h"
#include "as/IProgram.h"
#include "as/toolkit/DocumentReader.h"
#include "support/Documents.h"
#include "support/TempDirectory.h"
#include "toolkit/lint/ProgramFacts.h"
#include "toolkit/lint/TypeStorage.h"

namespace as::toolkit {
namespace {

class TypeStorageTest : public testing::Test {
 protected:
  TypeStorageTest() {
    std::string items;
    for (int i = 0; i < 150; ++i) {
      items += "<alphanumeric name='" + std::to_string(i) + "' length='1'/>";
    }
    directory_.write("p.xml", test::dictionaryOf(items));
    program_ = reader_.readDictionary("p.xml");
  }

  as::IDataItem& record(int number) {
    return *as::interface_cast<as::IDataItem>(program_->getDataItems()->getItem(number));
  }

  // A definition with those records, and references behind them.
  std::size_t define(int first, int end, const std::vector<std::size_t>& references = {}) {
    const std::size_t definition = storage_.addDefinition();
    for (int i = first; i < end; ++i) storage_.addRecord(definition, record(i));
    for (const std::size_t other : references) storage_.addReference(definition, other);
    return definition;
  }

  // The numbers of the wrong records below a definition, where those from that one on are wrong;
  // and "more".
  std::string wrongOnes(std::size_t definition, int firstWrong = 0) {
    const TypeStorage::WrongOnes wrong = storage_.wrongOnes(
        definition, interfaces_[firstWrong], 0,
        [firstWrong](as::IDataItem& item) { return std::stoi(item.getName()) >= firstWrong; });
    std::string text;
    for (as::IDataItem* const item : wrong.told) text += item->getName() + " ";
    return text + (wrong.areMore ? "more" : "");
  }

  // "3 4 5 "
  static std::string numbers(int first, int end) {
    std::string text;
    for (int i = first; i < end; ++i) text += std::to_string(i) + " ";
    return text;
  }

 private:
  const test::CurrentDirectory directory_;
  DocumentReader reader_{AS_SCHEMA_DIR};
  std::unique_ptr<as::IProgram> program_;
  // What answers depend on.
  std::map<int, CallInterface> interfaces_;
  TypeStorage storage_;
};

TEST_F(TypeStorageTest, TwentyAreToldAndThatThereAreMore) {
  EXPECT_EQ(wrongOnes(define(0, 20)), numbers(0, 20));
  EXPECT_EQ(wrongOnes(define(0, 21)), numbers(0, 20) + "more");
  EXPECT_EQ(wrongOnes(define(0, 0)), "");
}

TEST_F(TypeStorageTest, ManyRightOnesHideNone) {
  const std::size_t definition = define(0, 150);
  for (const int first : {0, 43, 44, 45, 63, 64, 65, 129, 130, 149, 150}) {
    const int end = std::min(first + 20, 150);
    EXPECT_EQ(wrongOnes(definition, first), numbers(first, end) + (first + 20 < 150 ? "more" : ""))
        << first;
  }
}

TEST_F(TypeStorageTest, RecordsOfReferencesComeInTheirOrderAndOnce) {
  const std::size_t one = define(0, 3);
  const std::size_t two = define(2, 5);
  EXPECT_EQ(wrongOnes(define(9, 10, {two, one, two})), "9 2 3 4 0 1 ");
  EXPECT_EQ(wrongOnes(define(1, 2, {one})), "1 0 2 ");
  EXPECT_EQ(wrongOnes(define(0, 0, {one, one})), "0 1 2 ");
}

TEST_F(TypeStorageTest, FullOnesTakeNoMore) {
  const std::size_t many = define(0, 150);
  EXPECT_EQ(wrongOnes(define(140, 145, {many})), numbers(140, 145) + numbers(0, 15) + "more");
  EXPECT_EQ(wrongOnes(define(0, 64, {many})), numbers(0, 20) + "more");
  EXPECT_EQ(wrongOnes(define(0, 0, {many, define(70, 80)}), 64), numbers(64, 84) + "more");
  EXPECT_EQ(wrongOnes(define(145, 150, {many}), 140), numbers(145, 150) + numbers(140, 145));
}

TEST_F(TypeStorageTest, ReferencesAloneAreWhatTheyLeadTo) {
  std::size_t last = define(3, 6);
  for (int i = 0; i < 50; ++i) last = define(0, 0, {last});
  EXPECT_EQ(wrongOnes(last), "3 4 5 ");
  EXPECT_EQ(wrongOnes(last), "3 4 5 ");
}

// A reference to what does not stand in front of it leads nowhere.
TEST_F(TypeStorageTest, ReferencesForwardDefineNothing) {
  const std::size_t self = define(1, 2, {0, 1});
  EXPECT_EQ(self, 0U);
  EXPECT_EQ(wrongOnes(self), "1 ");
}

}  // namespace
}  // namespace as::toolkit
