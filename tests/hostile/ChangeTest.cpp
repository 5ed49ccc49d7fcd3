// Tests of files that others write to while they are read. What is done to them is done between two
// of the reads, by the read itself: a function of this program stands in front of the C library's.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "as/Export.h"
#include "hostile/Row.h"
#include "support/Labels.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

// Done after each read; nothing when empty.
std::function<void()> afterRead;

}  // namespace

extern "C" AS_EXPORT ssize_t pread(int file, void* bytes, size_t size, off_t place) {
#ifdef __LP64__
  const ssize_t got = ::syscall(SYS_pread64, file, bytes, size, place);
#else
  const ssize_t got = ::syscall(SYS_pread64, file, bytes, size, place, 0);
#endif
  if (afterRead) afterRead();
  return got;
}

namespace hostile {

namespace {

namespace fs = std::filesystem;
using test::outcomeOfFile;
using test::Result;

struct Change {
  const char* label;
  Result result;
  // Done to the file after two reads: one may only try whether there is something to read.
  std::function<void(const fs::path& file)> make;
};

void PrintTo(const Change& change, std::ostream* out) { *out << change.label; }

void append(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary | std::ios::app) << text;
}

// No part is as long.
const std::string comment = "<!--" + std::string(100000, 'x') + "-->";

const Change changes[] = {
    {"Nothing", Result::root, [](const fs::path&) {}},
    // It is read no further than it reached when it was opened.
    {"GrowsByAComment", Result::root, [](const fs::path& file) { append(file, comment); }},
    {"GrowsByAnElement", Result::root, [](const fs::path& file) { append(file, "<program/>"); }},
    {"GrowsByBytes", Result::root, [](const fs::path& file) { append(file, "\xFF\xFF\xFF\xFF"); }},
    {"IsCut", Result::parseException, [](const fs::path& file) { fs::resize_file(file, 90000); }},
    {"IsEmptied", Result::parseException, [](const fs::path& file) { fs::resize_file(file, 0); }},
    {"IsEmptiedAndFilledWithNulls", Result::parseException,
     [](const fs::path& file) {
       fs::resize_file(file, 0);
       fs::resize_file(file, 200000);
     }},
    {"IsWrittenAnew", Result::parseException,
     [](const fs::path& file) { std::ofstream(file) << std::string(200000, '<'); }},
    // What was opened stays what it is.
    {"IsRemoved", Result::root, [](const fs::path& file) { fs::remove(file); }},
    {"IsReplaced", Result::root,
     [](const fs::path& file) {
       std::ofstream(file.string() + "~") << "nothing good";
       fs::rename(file.string() + "~", file);
     }},
    {"BecomesADirectory", Result::root,
     [](const fs::path& file) {
       fs::remove(file);
       fs::create_directory(file);
     }},
};

class ChangingFile : public testing::Test {
 protected:
  // What comes of a document to which that is done after each read.
  test::Outcome<as::IProgram> outcomeWith(const std::function<void()>& change) {
    afterRead = [this, change] {
      reads_++;
      change();
    };
    auto outcome = outcomeOfFile(file_);
    afterRead = nullptr;
    return outcome;
  }

  const test::TempDirectory folder_;
  const fs::path file_ =
      folder_.write("d.xml", documentOf(dictionary, comment + "<dataItems/>" + comment));
  int reads_ = 0;
};

class HostileChange : public ChangingFile, public testing::WithParamInterface<Change> {};

TEST_P(HostileChange, ComesToWhatIsExpected) {
  const auto outcome = outcomeWith([this] {
    if (reads_ == 2) GetParam().make(file_);
  });
  EXPECT_EQ(outcome.result, GetParam().result) << outcome.text;
  EXPECT_GT(reads_, 2);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileChange, testing::ValuesIn(changes), test::labelOf<Change>);

TEST_F(ChangingFile, ThatGrowsAndGrowsDoesNotKeepTheReader) {
  constexpr int manyReads = 100;
  const auto outcome = outcomeWith([this] { append(file_, comment); });
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  EXPECT_GT(reads_, 1);
  EXPECT_LT(reads_, manyReads);
}

}  // namespace

}  // namespace hostile
