// Tests of what is told when files cannot be written: each text whole.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using test::fileErrorOf;

class FileMessages : public test::ToolkitTest {};

TEST_F(FileMessages, TellTheFolderOfAReportThatCannotBeMade) {
  write("site", "a file");
  toolkit::Report report;
  report.files = {{"data/index.js", ""}};
  EXPECT_EQ(fileErrorOf([&] { toolkit::writeReport(report, "site"); }),
            "site/data: cannot be made: Not a directory");
}

TEST_F(FileMessages, TellTheFolderOfGeneratedFilesThatCannotBeMade) {
  write("out", "a file");
  EXPECT_EQ(fileErrorOf([&] {
              toolkit::generateFiles(reader(), *toolkit::findGeneratorKind("xsd"),
                                     AS_EXAMPLES_DIR "/PAYSLIP-ws.xml", "out/made/");
            }),
            "out/made/ cannot be made: Not a directory");
}

TEST_F(FileMessages, TellAFileInAFileThatCannotBeWritten) {
  write("file", "a file");
  EXPECT_EQ(fileErrorOf([] { toolkit::replaceFile("file/in.txt", ""); }),
            "file/in.txt cannot be written: Not a directory");
}

}  // namespace
