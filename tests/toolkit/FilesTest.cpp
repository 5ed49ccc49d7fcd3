// Tests of writing files so that nothing is lost, and of names of files in documents.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

namespace fs = std::filesystem;
namespace toolkit = as::toolkit;
using test::contentOf;
using test::fileErrorOf;
using test::refusalOf;
using testing::StartsWith;

class FilesTest : public test::ToolkitTest {};

TEST_F(FilesTest, AFileHoldsWhatItIsGiven) {
  const std::string content("a\0b\r\n", 5);
  toolkit::replaceFile("new.txt", content);
  EXPECT_EQ(contentOf("new.txt"), content);
  toolkit::replaceFile("new.txt", "");
  EXPECT_EQ(contentOf("new.txt"), "");
}

TEST_F(FilesTest, NothingElseIsLeftBeside) {
  toolkit::replaceFile("a.txt", "a");
  fs::create_directory("folder");
  EXPECT_EQ(fileErrorOf([] { toolkit::replaceFile("folder", "b"); }),
            "folder cannot be written and is as it was: Is a directory");
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 2);
}

TEST_F(FilesTest, PermissionsAndLinksStay) {
  write("real.txt", "old");
  ASSERT_EQ(chmod("real.txt", 0640), 0);
  fs::create_symlink("real.txt", "link.txt");
  toolkit::replaceFile("link.txt", "new");
  EXPECT_TRUE(fs::is_symlink("link.txt"));
  EXPECT_EQ(contentOf("real.txt"), "new");
  EXPECT_EQ(fs::status("real.txt").permissions(), static_cast<fs::perms>(0640));
}

TEST_F(FilesTest, ADeviceIsWrittenToAsItIs) {
  toolkit::replaceFile("/dev/null", "gone");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_THAT(fileErrorOf([] { toolkit::replaceFile("/dev/full", "x"); }),
              StartsWith("/dev/full cannot be written"));
}

TEST_F(FilesTest, AServiceIsWrittenAsItsDocument) {
  const auto service = reader().readServiceText(test::payService(""), "s.xml");
  toolkit::writeService(*service, "s.xml");
  EXPECT_EQ(contentOf("s.xml"), as::CAgentServicesFactory::SerializeToString(service.get()));
  service->setName("x\x01");
  EXPECT_EQ(refusalOf([&] { toolkit::writeService(*service, "s.xml"); }).file, "s.xml");
  EXPECT_THAT(contentOf("s.xml"), testing::HasSubstr("name=\"Pay\""));
}

TEST_F(FilesTest, NamesInADocumentCountFromItsFolder) {
  const struct {
    const char* file;
    const char* name;
    const char* meant;
  } rows[] = {{"s.xml", "p.xml", "p.xml"},
              {"a/s.xml", "p.xml", "a/p.xml"},
              {"a/s.xml", "../p.xml", "a/../p.xml"},
              {"a/s.xml", "/b/p.xml", "/b/p.xml"}};
  for (const auto& row : rows) EXPECT_EQ(toolkit::besideFile(row.file, row.name), row.meant);
}

TEST_F(FilesTest, AFolderThatIsALinkIsFollowedBeforeItIsLeft) {
  write("real/p.xml", "");
  fs::create_directories("real/deep");
  fs::create_directory_symlink("real/deep", "link");
  EXPECT_EQ(toolkit::besideFile("link/s.xml", "../p.xml"), fs::canonical("real/p.xml").string());
}

TEST_F(FilesTest, AFileIsNamedAsADocumentSeesIt) {
  fs::create_directories("a/deep");
  fs::create_directory("b");
  fs::create_directory_symlink("a/deep", "link");
  const struct {
    const char* from;
    const char* to;
    const char* name;
  } rows[] = {{"s.xml", "p.xml", "p.xml"},
              {"a/s.xml", "a/p.xml", "p.xml"},
              {"a/s.xml", "b/p.xml", "../b/p.xml"},
              {"s.xml", "a/deep/p.xml", "a/deep/p.xml"},
              {"link/s.xml", "p.xml", "../../p.xml"},
              {"missing/s.xml", "p.xml", "../p.xml"}};
  for (const auto& row : rows) {
    EXPECT_EQ(toolkit::nameSeenFrom(row.from, row.to), row.name) << row.from << ' ' << row.to;
  }
}

}  // namespace
