// Tests of writing files so that nothing is lost, and of names of files in documents.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

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

// A signal ends a write that has begun: what is left goes behind it.
TEST_F(FilesTest, APipeHoldsAllWhateverInterrupts) {
  std::string content;
  for (int i = 0; content.size() < (1U << 20U); ++i) content += std::to_string(i) + "\n";
  ASSERT_EQ(::mkfifo("pipe", 0600), 0);
  struct sigaction interrupting = {};
  struct sigaction before = {};
  interrupting.sa_handler = [](int) {};
  ASSERT_EQ(::sigaction(SIGUSR1, &interrupting, &before), 0);
  const pthread_t writer = ::pthread_self();
  std::string read;
  std::thread reader([&read, writer] {
    const int pipe = ::open("pipe", O_RDONLY | O_CLOEXEC);
    std::string part(5000, '\0');
    for (ssize_t got = 1; got > 0;) {
      got = ::read(pipe, part.data(), part.size());
      if (got > 0) read.append(part, 0, static_cast<std::size_t>(got));
      ::pthread_kill(writer, SIGUSR1);
    }
    ::close(pipe);
  });
  EXPECT_NO_THROW(toolkit::replaceFile("pipe", content));
  reader.join();
  ::sigaction(SIGUSR1, &before, nullptr);
  EXPECT_TRUE(read == content);
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

TEST_F(FilesTest, AFullDiskLeavesTheOldFile) {
  write("there.txt", "old");
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  rlimit small = before;
  small.rlim_cur = 100;
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::string big(1000, 'x');
  const std::string there = fileErrorOf([&] { toolkit::replaceFile("there.txt", big); });
  const std::string fresh = fileErrorOf([&] { toolkit::replaceFile("new.txt", big); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(there, "there.txt cannot be written and is as it was: File too large");
  EXPECT_EQ(fresh, "new.txt cannot be written: File too large");
  EXPECT_EQ(contentOf("there.txt"), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
}

TEST_F(FilesTest, AFolderThatCannotBeWrittenIsTold) {
  write("closed/there.txt", "old");
  for (const char* const folder : {".", "closed"}) ASSERT_EQ(chmod(folder, 0555), 0);
  // Nothing is closed to the superuser.
  const bool isSuperuser = geteuid() == 0;
  if (isSuperuser) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  const std::string there = fileErrorOf([] { toolkit::replaceFile("closed/there.txt", "new"); });
  const std::string fresh = fileErrorOf([] { toolkit::replaceFile("closed/new.txt", "new"); });
  if (isSuperuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  for (const char* const folder : {".", "closed"}) ASSERT_EQ(chmod(folder, 0755), 0);
  EXPECT_EQ(there, "closed/there.txt cannot be written and is as it was: Permission denied");
  EXPECT_EQ(fresh, "closed/new.txt cannot be written: Permission denied");
  EXPECT_EQ(contentOf("closed/there.txt"), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator("closed"), fs::directory_iterator()), 1);
}

TEST_F(FilesTest, AFileThatMustNotBeWrittenIsToldAndStays) {
  write("closed.txt", "old");
  ASSERT_EQ(chmod("closed.txt", 0444), 0);
  // What a file's mode allows counts for who runs the process, unless that is the superuser.
  const bool isSuperuser = getuid() == 0;
  if (isSuperuser) {
    ASSERT_EQ(setreuid(65534, 0), 0);
  }
  const std::string closed = fileErrorOf([] { toolkit::replaceFile("closed.txt", "new"); });
  if (isSuperuser) {
    ASSERT_EQ(setreuid(0, 0), 0);
  }
  EXPECT_EQ(closed, "closed.txt cannot be written and is as it was: Permission denied");
  EXPECT_EQ(contentOf("closed.txt"), "old");
}

TEST_F(FilesTest, ASocketIsNoFileToWriteTo) {
  ASSERT_EQ(mknod("socket", S_IFSOCK | 0600, 0), 0);
  EXPECT_EQ(fileErrorOf([] { toolkit::replaceFile("socket", "x"); }),
            "socket cannot be written: No such device or address");
}

TEST_F(FilesTest, ALinkThatLeadsToNothingYetStaysOne) {
  fs::create_directory("there");
  fs::create_symlink("second.txt", "first.txt");
  fs::create_symlink("there/third.txt", "second.txt");
  toolkit::replaceFile("first.txt", "new");
  EXPECT_TRUE(fs::is_symlink("first.txt"));
  EXPECT_TRUE(fs::is_symlink("second.txt"));
  EXPECT_EQ(contentOf("there/third.txt"), "new");
}

TEST_F(FilesTest, FilesThatHoldThatAlreadyAreNotWritten) {
  write("same.txt", "abc");
  write("longer.txt", "abcd");
  write("other.txt", "abd");
  EXPECT_THAT(toolkit::replaceFiles({{"same.txt", "abc"},
                                     {"longer.txt", "abc"},
                                     {"other.txt", "abc"},
                                     {"new.txt", "abc"},
                                     {"/dev/null", "abc"}}),
              testing::ElementsAre("longer.txt", "other.txt", "new.txt", "/dev/null"));
  for (const char* const file : {"same.txt", "longer.txt", "other.txt", "new.txt"}) {
    EXPECT_EQ(contentOf(file), "abc") << file;
  }
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 4);
}

TEST_F(FilesTest, AllFilesAreAsTheyWereWhenOneFails) {
  write("there.txt", "old");
  EXPECT_THAT(
      fileErrorOf([] {
        toolkit::replaceFiles({{"there.txt", "new"}, {"new.txt", "new"}, {"/dev/full", "x"}});
      }),
      StartsWith("/dev/full cannot be written"));
  EXPECT_EQ(contentOf("there.txt"), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
}

// Nothing keeps what a file held where its other name is taken.
TEST_F(FilesTest, AFileThatCannotBeKeptIsNew) {
  write("there.txt", "old");
  write("there.txt.agentservices-old/x", "");
  EXPECT_THAT(fileErrorOf([] {
                toolkit::replaceFiles({{"there.txt", "new"}, {"/dev/full", "x"}});
              }),
              StartsWith("/dev/full cannot be written"));
  EXPECT_EQ(contentOf("there.txt"), "new");
  EXPECT_TRUE(fs::is_directory("there.txt.agentservices-old"));
}

TEST_F(FilesTest, AFolderThatIsGoneIsTold) {
  fs::create_directory("gone");
  fs::current_path("gone");
  fs::remove("../gone");
  EXPECT_EQ(fileErrorOf([] { toolkit::replaceFile("a.txt", "a"); }),
            "a.txt cannot be written: No such file or directory");
  EXPECT_EQ(toolkit::nameSeenFrom("s.xml", "a/p.xml"), "a/p.xml");
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
