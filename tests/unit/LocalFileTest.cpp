// Tests of files that are opened once: what is known of them, and how far they are read.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "support/TempDirectory.h"
#include "xml/FileSource.h"
#include "xml/LocalFile.h"

namespace {

using Kind = LocalFile::Kind;
using Opening = LocalFile::Opening;

std::size_t openDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

std::string contentOf(const LocalFile& file, std::size_t room = 1000) {
  std::string content(room, '\0');
  content.resize(file.read(content.data(), room, 0));
  return content;
}

class LocalFileTest : public testing::Test {
 protected:
  std::string fifo(const std::string& name) const {
    std::string path = directory_.path() + "/" + name;
    EXPECT_EQ(::mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
    return path;
  }

  test::TempDirectory directory_;
};

TEST_F(LocalFileTest, KnowsItsKindAndLeavesNothingOpen) {
  const std::string regular = directory_.write("regular", "x");
  std::filesystem::create_symlink("regular", directory_.path() + "/link");
  std::filesystem::create_symlink("nowhere", directory_.path() + "/broken");
  const struct {
    std::string path;
    Kind kind;
  } rows[] = {
      {regular, Kind::regular},
      {directory_.path() + "/link", Kind::regular},
      {directory_.path(), Kind::directory},
      {"/", Kind::directory},
      {"/dev/null", Kind::special},
      {directory_.path() + "/broken", Kind::missing},
      {directory_.path() + "/missing", Kind::missing},
      {regular + "/below", Kind::missing},
      {"", Kind::missing},
      {std::string(10000, 'x'), Kind::missing},
  };
  const std::size_t before = openDescriptors();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path.substr(0, 100));
    EXPECT_EQ(LocalFile::kindAt(row.path), row.kind);
    EXPECT_EQ(LocalFile(row.path, Opening::any).kind(), row.kind);
    EXPECT_EQ(LocalFile(row.path, Opening::regular).kind(), row.kind);
    EXPECT_EQ(openDescriptors(), before);
  }
}

// Nobody writes to it: who opened it as readers do would wait.
TEST_F(LocalFileTest, OfWhatIsNoRegularFileNothingIsOpened) {
  const std::string path = fifo("fifo");
  const LocalFile file(path, Opening::regular);
  EXPECT_EQ(file.kind(), Kind::special);
  EXPECT_EQ(::open(path.c_str(), O_WRONLY | O_NONBLOCK), -1) << "there is a reader";
}

TEST_F(LocalFileTest, ASocketCannotBeOpened) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const std::string path = directory_.path() + "/socket";
  ASSERT_LT(path.size(), sizeof(address.sun_path));
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  EXPECT_EQ(LocalFile(path, Opening::any).kind(), Kind::missing);
  EXPECT_EQ(LocalFile(path, Opening::regular).kind(), Kind::special);
  ::close(listener);
}

TEST_F(LocalFileTest, IsNotInheritedByOtherPrograms) {
  const int next = ::dup(0);
  ::close(next);
  const LocalFile file(directory_.write("f", "x"), Opening::any);
  EXPECT_EQ(::fcntl(next, F_GETFD), FD_CLOEXEC);
}

TEST_F(LocalFileTest, IsWhatWasOpenedWhateverStandsThereLater) {
  const std::string path = directory_.write("f", "first");
  const LocalFile file(path, Opening::regular);
  std::filesystem::remove(path);
  directory_.write("f", "second");
  EXPECT_EQ(contentOf(file), "first");
}

TEST_F(LocalFileTest, EndsWhereItEndedWhenItWasOpened) {
  const std::string path = directory_.write("f", "0123456789");
  const LocalFile file(path, Opening::any);
  std::ofstream(path, std::ios::app) << "more";
  EXPECT_EQ(contentOf(file), "0123456789");
  char byte = 0;
  EXPECT_EQ(file.read(&byte, 1, 10), 0u);
  EXPECT_EQ(file.read(&byte, 1, 1000), 0u);
  EXPECT_EQ(file.read(&byte, 1, 9), 1u);
  EXPECT_EQ(byte, '9');
}

TEST_F(LocalFileTest, MayBecomeShorter) {
  const std::string path = directory_.write("f", "0123456789");
  const LocalFile file(path, Opening::any);
  std::filesystem::resize_file(path, 4);
  EXPECT_EQ(contentOf(file), "0123");
}

TEST_F(LocalFileTest, ThatTellsNoLengthIsReadToItsEnd) {
  EXPECT_NE(contentOf(LocalFile("/proc/version", Opening::regular)), "");
}

// A pipe gives as much as it has; a short answer is not the end.
TEST_F(LocalFileTest, APipeIsReadUntilItsWriterIsDone) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const LocalFile file("/proc/self/fd/" + std::to_string(ends[0]), Opening::any);
  EXPECT_EQ(file.kind(), Kind::special);
  ASSERT_EQ(::write(ends[1], "abc", 3), 3);
  char three[3];
  EXPECT_EQ(file.read(three, 3, 0), 3u);
  ASSERT_EQ(::write(ends[1], "de", 2), 2);
  ::close(ends[1]);
  EXPECT_EQ(contentOf(file), "de");
  ::close(ends[0]);
}

// What comes behind a short answer has only the room that is left.
TEST_F(LocalFileTest, APipeIsReadNoFurtherThanThereIsRoom) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const LocalFile file("/proc/self/fd/" + std::to_string(ends[0]), Opening::any);
  ASSERT_EQ(::write(ends[1], "abc", 3), 3);
  std::thread writer([&ends] {
    for (int waiting = 1; waiting > 0;) ::ioctl(ends[0], FIONREAD, &waiting);
    EXPECT_EQ(::write(ends[1], "defghij", 7), 7);
  });
  std::string bytes(10, '-');
  EXPECT_EQ(file.read(bytes.data(), 5, 0), 5u);
  writer.join();
  EXPECT_EQ(bytes, "abcde-----");
  ::close(ends[0]);
  ::close(ends[1]);
}

TEST_F(LocalFileTest, ADirectoryCannotBeRead) {
  const LocalFile file(directory_.path(), Opening::any);
  char byte = 0;
  EXPECT_THROW(file.read(&byte, 1, 0), xercesc::XMLPlatformUtilsException);
}

TEST_F(LocalFileTest, IsGivenToTheParserFromItsStartEveryTime) {
  const FileSource source(
      std::make_shared<const LocalFile>(directory_.write("f", "content"), Opening::regular),
      u"its name");
  EXPECT_EQ(source.getSystemId(), std::u16string(u"its name"));
  for (int i = 0; i < 2; i++) {
    const std::unique_ptr<xercesc::BinInputStream> stream(source.makeStream());
    XMLByte bytes[5];
    EXPECT_EQ(stream->curPos(), 0u);
    EXPECT_EQ(stream->readBytes(bytes, 5), 5u);
    EXPECT_EQ(stream->curPos(), 5u);
    EXPECT_EQ(stream->readBytes(bytes, 5), 2u);
    EXPECT_EQ(bytes[0], 'n');
    EXPECT_EQ(stream->readBytes(bytes, 5), 0u);
  }
}

TEST_F(LocalFileTest, ThatIsMissingIsGivenToTheParserAsNothing) {
  const FileSource source(
      std::make_shared<const LocalFile>(directory_.path() + "/missing", Opening::any), u"name");
  EXPECT_EQ(source.makeStream(), nullptr);
}

}  // namespace
