// Tests of where copybooks are found.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "as/toolkit/Copybooks.h"
#include "support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;
using as::toolkit::CopybookError;
using as::toolkit::FolderCopybooks;

struct Row {
  const char* name;
  std::vector<std::string> files;  // Each holds its name.
  std::string copybook;
  std::string library;
  std::string found;  // Empty for none.
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"AsWritten", {"one/Cust", "one/Cust.cpy"}, "Cust", "", "one/Cust"},
    {"WithItsExtension", {"one/Cust.cpy"}, "Cust.cpy", "", "one/Cust.cpy"},
    {"Cpy", {"one/CUST.cpy", "one/CUST.cbl"}, "CUST", "", "one/CUST.cpy"},
    {"CapitalCpy", {"one/CUST.CPY"}, "CUST", "", "one/CUST.CPY"},
    {"Cbl", {"one/CUST.cbl"}, "CUST", "", "one/CUST.cbl"},
    {"CapitalCbl", {"one/CUST.CBL"}, "CUST", "", "one/CUST.CBL"},
    {"Cob", {"one/CUST.cob"}, "CUST", "", "one/CUST.cob"},
    {"CapitalCob", {"one/CUST.COB"}, "CUST", "", "one/CUST.COB"},
    {"Copy", {"one/CUST.copy"}, "CUST", "", "one/CUST.copy"},
    {"CapitalCopy", {"one/CUST.COPY"}, "CUST", "", "one/CUST.COPY"},
    {"Inc", {"one/CUST.inc"}, "CUST", "", "one/CUST.inc"},
    {"CapitalInc", {"one/CUST.INC"}, "CUST", "", "one/CUST.INC"},
    {"Dcl", {"one/CUST.dcl"}, "CUST", "", "one/CUST.dcl"},
    {"CapitalCpb", {"one/CUST.CPB"}, "CUST", "", "one/CUST.CPB"},
    {"MixedNameInOtherLetters", {"one/cUST.Cpy"}, "Cust", "", "one/cUST.Cpy"},
    {"MixedNameInOtherLettersThanTwo",
     {"one/cUST.Cpy", "one/CUst.inc", "one/cUSTX", "one/CUst.txt"},
     "Cust",
     "",
     "one/CUst.inc"},
    {"MixedNameOfAFolderInOtherLetters", {"one/cUST/x", "two/cUST"}, "Cust", "", "two/cUST"},
    {"MixedNameInTheSecondFolder", {"two/cUST.cpy"}, "Cust", "", "two/cUST.cpy"},
    {"MixedNameOfNothing", {"one/CUSTX", "one/Cus"}, "Cust", "", ""},
    {"CapitalNameInMixedLetters", {"one/Cust.cpy"}, "CUST", "", ""},
    {"PathOfAnotherMachine", {"two/cust.cpy"}, "C:\\LIB\\CUST.CPY", "", "two/cust.cpy"},
    {"PathThatLeadsOut", {"one/CUST.cpy"}, "../lib/CUST", "", "one/CUST.cpy"},
    {"PathFromTheRoot", {"one/CUST.cpy"}, "/lib/CUST", "", "one/CUST.cpy"},
    {"LibraryThatLeadsOut", {"one/CUST.cpy"}, "CUST", "../lib", "one/CUST.cpy"},
    {"PathBeforeItsLastPart", {"one/CUST", "two/x/CUST"}, "x/CUST", "", "two/x/CUST"},
    {"OtherExtension", {"one/CUST.txt"}, "CUST", "", ""},
    {"SmallName", {"one/cust.cpy"}, "CUST", "", "one/cust.cpy"},
    {"CapitalName", {"one/CUST.cpy"}, "cust", "", "one/CUST.cpy"},
    {"AsWrittenBeforeOthers", {"one/Cust.cpy", "one/CUST", "one/cust"}, "Cust", "", "one/Cust.cpy"},
    {"FirstFolderFirst", {"one/CUST.inc", "two/CUST", "src/CUST"}, "CUST", "", "one/CUST.inc"},
    {"SecondFolder", {"two/CUST", "src/CUST"}, "CUST", "", "two/CUST"},
    {"FolderOfTheSource", {"src/CUST"}, "CUST", "", "src/CUST"},
    {"NowhereElse", {"CUST"}, "CUST", "", ""},
    {"Library", {"one/CUST", "two/LIB/CUST.cpy"}, "CUST", "LIB", "two/LIB/CUST.cpy"},
    {"SmallLibrary", {"one/lib/CUST"}, "CUST", "LIB", "one/lib/CUST"},
    {"NoLibrary", {"one/CUST"}, "CUST", "LIB", ""},
    {"Path", {"one/x/CUST.cpy"}, "x/CUST", "", "one/x/CUST.cpy"},
    {"PathWithBackslash", {"one/x/CUST.cpy"}, "x\\CUST", "", "one/x/CUST.cpy"},
    {"FolderIsNoCopybook", {"one/CUST/x", "one/CUST.cpy"}, "CUST", "", "one/CUST.cpy"},
    {"NoName", {"one/CUST"}, "", "", ""},
};

class Folders : public testing::TestWithParam<Row> {
 protected:
  Folders() {
    for (const std::string folder : {"one", "two", "src"}) fs::create_directories(path(folder));
  }

  std::string path(const std::string& name) const { return directory_.path() + "/" + name; }

  test::TempDirectory directory_;
};

TEST_P(Folders, HaveIt) {
  for (const std::string& file : GetParam().files) {
    fs::create_directories(fs::path(path(file)).parent_path());
    directory_.write(file, file);
  }
  FolderCopybooks folders({path("one"), path("two")}, path("src/main.cbl"));
  const auto found = folders.find(GetParam().copybook, GetParam().library);
  EXPECT_EQ(found ? found->text : "", GetParam().found);
  EXPECT_EQ(found ? found->name : "", found ? path(GetParam().found) : "");
}

INSTANTIATE_TEST_SUITE_P(Rows, Folders, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

class LeadingOut : public testing::TestWithParam<const char*> {};

TEST_P(LeadingOut, IsAnError) {
  FolderCopybooks folders({"."}, "main.cbl");
  EXPECT_THROW(folders.find(GetParam(), ""), CopybookError);
  EXPECT_THROW(folders.find("CUST", GetParam()), CopybookError);
}

INSTANTIATE_TEST_SUITE_P(Rows, LeadingOut,
                         testing::Values("/etc/passwd", "../x", "a/../../x", "..\\x", "\\x", "..",
                                         "x/.."));

TEST(FolderCopybooks, BinaryTextStaysAsItIs) {
  const test::TempDirectory directory;
  const std::string text("a\0\r\n\xFF", 5);
  directory.write("CUST", text);
  FolderCopybooks folders({}, directory.path() + "/main.cbl");
  EXPECT_EQ(folders.find("CUST", "")->text, text);
}

TEST(FolderCopybooks, SourceWithoutAFolderIsInTheCurrentOne) {
  FolderCopybooks folders({}, "main.cbl");
  EXPECT_FALSE(folders.find("no-such-copybook", ""));
}

TEST(FolderCopybooks, FileThatIsTooLongIsAnError) {
  const test::TempDirectory directory;
  fs::resize_file(directory.write("CUST", ""), 67108865);
  FolderCopybooks folders({directory.path()}, "main.cbl");
  EXPECT_THROW(folders.find("CUST", ""), CopybookError);
}

TEST(FolderCopybooks, AreFoundInTheCurrentFolderInOtherLetters) {
  const test::CurrentDirectory current;
  std::ofstream("cUST.Cpy") << "05 A PIC X.";
  const auto found = FolderCopybooks({}, "main.cbl").find("Cust", "");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->text, "05 A PIC X.");
}

TEST(FolderCopybooks, FileThatMustNotBeReadIsAnError) {
  const test::TempDirectory directory;
  const std::string file = directory.write("CUST", "05 A PIC X.");
  fs::permissions(file, fs::perms::none);
  // Nothing is closed to the superuser.
  const bool isSuperuser = geteuid() == 0;
  if (isSuperuser) {
    fs::permissions(directory.path(), fs::perms::all);
    ASSERT_EQ(seteuid(65534), 0);
  }
  FolderCopybooks folders({directory.path()}, "main.cbl");
  std::string message;
  try {
    folders.find("CUST", "");
  } catch (const CopybookError& error) {
    message = error.what();
  }
  if (isSuperuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  EXPECT_EQ(message, "the file cannot be read");
}

}  // namespace
