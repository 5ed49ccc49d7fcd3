// Tests of the endings that files of copybooks may have, and of what is told of those that cannot
// be read.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "as/toolkit/Copybooks.h"
#include "support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;
using as::toolkit::CopybookError;
using as::toolkit::FolderCopybooks;

// In the order in which they are looked for.
const std::vector<std::string> endings = {"",     ".cpy", ".CPY",  ".cbl",  ".CBL",
                                          ".cob", ".COB", ".copy", ".COPY", ".inc",
                                          ".INC", ".dcl", ".DCL",  ".cpb",  ".CPB"};

std::string textOf(const std::string& folder, const std::string& name) {
  FolderCopybooks folders({folder}, "main.cbl");
  const auto found = folders.find(name, "");
  return found ? found->text : "none";
}

TEST(CopybookEndings, AreLookedForInTheirOrder) {
  const test::TempDirectory directory;
  // The last one first: each takes the place of those behind it.
  for (auto ending = endings.rbegin(); ending != endings.rend(); ++ending) {
    directory.write("CUST" + *ending, "as" + *ending);
    EXPECT_EQ(textOf(directory.path(), "CUST"), "as" + *ending);
  }
}

TEST(CopybookEndings, CountForNamesInLettersOfAnyCase) {
  for (const std::string& ending : endings) {
    const test::TempDirectory directory;
    directory.write("cUsT" + ending, "as" + ending);
    EXPECT_EQ(textOf(directory.path(), "Cust"), "as" + ending);
  }
}

TEST(CopybookNames, InLettersOfAnyCaseAreTheFirstByName) {
  const test::TempDirectory directory;
  for (const char* const file : {"cUST.cpy", "CUst.CPY", "cuSt.inc"}) directory.write(file, file);
  EXPECT_EQ(textOf(directory.path(), "Cust"), "CUst.CPY");
  for (const char* const file : {"CUst", "cusT.txt", "cusT1"})
    fs::create_directory(directory.path() + "/" + file);
  EXPECT_EQ(textOf(directory.path(), "Cust"), "CUst.CPY");
}

TEST(CopybookNames, HaveLettersFromAToZ) {
  const std::string small = "abcdefghijklmnopqrstuvwxyz";
  const std::string capital = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const test::TempDirectory directory;
  directory.write(small, "small");
  EXPECT_EQ(textOf(directory.path(), capital), "small");
  const test::TempDirectory other;
  other.write(capital, "capital");
  EXPECT_EQ(textOf(other.path(), small), "capital");
  other.write("@[`{", "marks");
  EXPECT_EQ(textOf(other.path(), "`{@["), "none");
}

std::string errorOf(FolderCopybooks folders, const std::string& name) {
  try {
    folders.find(name, "");
  } catch (const CopybookError& error) {
    return error.what();
  }
  return "";
}

TEST(CopybookErrors, AreToldInFull) {
  const test::TempDirectory directory;
  EXPECT_EQ(errorOf({{directory.path()}, "main.cbl"}, "../CUST"),
            "its name leads out of the folders of copybooks");
  const std::string file = directory.write("CUST", "");
  fs::resize_file(file, 67108865);
  EXPECT_EQ(errorOf({{directory.path()}, "main.cbl"}, "CUST"), "it is longer than 67108864 bytes");
}

}  // namespace
