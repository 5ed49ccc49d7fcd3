// Tests of import from file to file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Import.h"
#include "support/Imports.h"
#include "support/TempDirectory.h"

namespace {

using as::toolkit::importCobolFile;
using as::toolkit::ImportedFile;
using as::toolkit::RefusedDocument;
using test::freeFormat;

std::string messageOf(const std::string& file) {
  try {
    importCobolFile(file, "");
  } catch (const RefusedDocument& refusal) {
    return refusal.what();
  }
  return "";
}

class ImportFiles : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return directory_.path() + "/" + name; }

  ImportedFile importOf(const std::string& source) const {
    const std::string file = directory_.write("a.cbl", source);
    return importCobolFile(file, path("out.xml"), {}, freeFormat());
  }

  test::TempDirectory directory_;
};

TEST_F(ImportFiles, AreCalledLikeTheirPrograms) {
  const ImportedFile file = importOf(
      "PROGRAM-ID. A. END PROGRAM A. PROGRAM-ID. 'b.c/d_e'. END PROGRAM 'b.c/d_e'. "
      "PROGRAM-ID. 'stra\xC3\x9F"
      "e'.");
  EXPECT_THAT(file.written, testing::ElementsAre(path("out.xml"), path("out-b-c-d_e.xml"),
                                                 path("out-stra\xC3\x9F"
                                                      "e.xml")));
  EXPECT_THAT(test::contentOf(path("out-b-c-d_e.xml")), testing::HasSubstr("name=\"b.c/d_e\""));
}

TEST_F(ImportFiles, OfOneNameAreNumbered) {
  const ImportedFile file = importOf(
      "PROGRAM-ID. A. END PROGRAM A. PROGRAM-ID. B. END PROGRAM B. PROGRAM-ID. B. "
      "END PROGRAM B. PROGRAM-ID. B.");
  EXPECT_THAT(file.written, testing::ElementsAre(path("out.xml"), path("out-B.xml"),
                                                 path("out-B-2.xml"), path("out-B-3.xml")));
}

TEST_F(ImportFiles, OfRefusedProgramsAreNotWritten) {
  const ImportedFile file =
      importOf("PROGRAM-ID. A. WORKING-STORAGE SECTION. 01 X PIC Q. END PROGRAM A. PROGRAM-ID. B.");
  EXPECT_THAT(file.written, testing::ElementsAre(path("out-B.xml")));
  EXPECT_FALSE(std::filesystem::exists(path("out.xml")));
}

TEST_F(ImportFiles, AreNotWrittenWithoutAnOutput) {
  const std::string file = directory_.write("a.cbl", "PROGRAM-ID. A.");
  const ImportedFile imported = importCobolFile(file, "", {}, freeFormat());
  EXPECT_TRUE(imported.written.empty());
  EXPECT_EQ(imported.imported.programs.size(), 1U);
}

TEST_F(ImportFiles, HaveCopybooksFromTheFolderOfTheSource) {
  directory_.write("REC.cpy", "01 X PIC X(9).");
  const ImportedFile file = importOf("PROGRAM-ID. A. WORKING-STORAGE SECTION. COPY REC.");
  EXPECT_EQ(test::placesOf(test::dictionaryOf(file.imported)), "X 0+9");
}

// A copybook, as a statement names it, and what is told of where it was found.
TEST_F(ImportFiles, TellOfCopybooksThatStandElsewhere) {
  directory_.write("REC.cpy", "01 X PIC X(9).");
  directory_.write("lib/DEEP.cpy", "01 X PIC X(9).");
  const struct {
    const char* name;
    const char* finding;
  } rows[] = {{"REC", ""},
              {"'REC.cpy'", ""},
              {"'../lib/REC'", "1:41 copybook-elsewhere"},
              {"'C:\\LIB\\REC.cpy'", "1:41 copybook-elsewhere"},
              {"'/lib/REC'", "1:41 copybook-elsewhere"},
              {"REC OF '../lib'", "1:41 copybook-elsewhere"},
              {"DEEP OF lib", ""},
              {"'lib/DEEP'", ""},
              {"'lib\\DEEP'", ""}};
  for (const auto& row : rows) {
    const ImportedFile file =
        importOf(std::string("PROGRAM-ID. A. WORKING-STORAGE SECTION. COPY ") + row.name + ".");
    EXPECT_EQ(test::findingsOf(file.imported), row.finding) << row.name;
    EXPECT_EQ(test::placesOf(test::dictionaryOf(file.imported)), "X 0+9") << row.name;
  }
}

TEST_F(ImportFiles, ThatAreFoldersAreRefused) {
  EXPECT_THAT(messageOf(directory_.path()),
              testing::HasSubstr("it cannot be read: Is a directory"));
}

TEST_F(ImportFiles, ThatAreNotThereAreRefused) {
  EXPECT_THAT(messageOf(path("nowhere.cbl")),
              testing::HasSubstr("it cannot be read: No such file or directory"));
}

TEST_F(ImportFiles, AreFoundInFolders) {
  for (const std::string name : {"b.CBL", "a.cob", "c/d.cobol", "c/e.pco", "f.cpy"}) {
    directory_.write(name, "");
  }
  EXPECT_THAT(as::toolkit::cobolSourcesIn(directory_.path()),
              testing::ElementsAre("a.cob", "b.CBL", "c/d.cobol", "c/e.pco"));
}

TEST_F(ImportFiles, AreNotFoundInFoldersThatAreNotThere) {
  EXPECT_THROW(as::toolkit::cobolSourcesIn(path("nowhere")), RefusedDocument);
}

// "FILE:LINE:COLUMN: error: PROBLEM; ADVICE" as far as they are known.
TEST(ImportMessages, TellWhatIsKnown) {
  as::toolkit::ImportFinding finding;
  finding.location = {"T.cbl", 0, 0};
  finding.problem = "it is empty";
  EXPECT_EQ(textOf(finding), "T.cbl: error: it is empty");
  finding.location = {"T.cbl", 3, 0};
  finding.advice = "fill it";
  EXPECT_EQ(textOf(finding), "T.cbl:3: error: it is empty; fill it");
  finding.location.column = 8;
  finding.copiedAt = {{"U.cbl", 1, 2}};
  EXPECT_EQ(textOf(finding),
            "T.cbl:3:8: error: it is empty; fill it\nU.cbl:1:2: note: copied here");
}

}  // namespace
