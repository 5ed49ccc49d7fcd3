// Tests of files that are no ordinary ones: wherever the client finds a document, the request ends
// with a model or with an exception that tells of it.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Labels.h"
#include "support/OwnProcess.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace hostile {

namespace {

namespace fs = std::filesystem;
using test::outcomeOf;
using test::outcomeOfFile;
using test::Result;
using test::TempDirectory;
using testing::HasSubstr;

// A file by the name that the client gives of it.
struct Source {
  const char* label;
  Answer answer;
  // Makes it in the folder, in which "good.xml" is a good dictionary, and returns its name.
  std::function<std::string(const fs::path& folder)> make;
};

void PrintTo(const Source& source, std::ostream* out) { *out << source.label; }

std::function<std::string(const fs::path&)> named(const std::string& name) {
  return [name](const fs::path&) { return name; };
}

// By a name in the folder.
std::function<std::string(const fs::path&)> inFolder(const std::string& name) {
  return [name](const fs::path& folder) { return (folder / name).string(); };
}

std::function<std::string(const fs::path&)> holding(const std::string& content) {
  return [content](const fs::path& folder) {
    std::ofstream(folder / "d.xml", std::ios::binary) << content;
    return (folder / "d.xml").string();
  };
}

// "link", which leads to `target`, and with `back` the link of that name, which leads back.
std::function<std::string(const fs::path&)> linkTo(const std::string& target,
                                                   const std::string& back = "") {
  return [target, back](const fs::path& folder) {
    fs::create_symlink(target, folder / "link");
    if (!back.empty()) fs::create_symlink("link", folder / back);
    return (folder / "link").string();
  };
}

const Answer noFile = refused("unable to open primary document entity", 0);
const Answer directory = refused("it is a directory", 0);

const Source sources[] = {
    {"Good", model(), inFolder("good.xml")},
    {"NoName", refused(""), named("")},
    {"Empty", refused(""), holding("")},
    {"BlanksOnly", refused(""), holding(" \n \n")},
    {"MarkOnly", refused(""), holding("\xEF\xBB\xBF")},
    {"Directory", directory, inFolder("")},
    {"Dot", directory, named(".")},
    {"DotDot", directory, named("..")},
    {"Root", directory, named("/")},
    {"RootByUrl", directory, named("file:///")},
    {"InAFile", noFile, inFolder("good.xml/d.xml")},
    {"FileAsDirectory", noFile, inFolder("good.xml/")},
    {"InAMissingDirectory", noFile, inFolder("missing/d.xml")},
    {"InAMissingDirectoryAndOut", refused(""), inFolder("missing/../good.xml")},
    {"NullDevice", refused(""), named("/dev/null")},
    {"ZeroDevice", refused(""), named("/dev/zero")},
    {"FullDevice", refused(""), named("/dev/full")},
    {"ZeroDeviceByUrl", refused(""), named("file:///dev/zero")},
    {"ThatFailsToBeRead", noFile, named("/proc/self/mem")},
    {"StateOfTheProcess", refused(""), named("/proc/self/status")},
    {"LinkToADocument", model(), linkTo("good.xml")},
    {"LinkToNothing", noFile, linkTo("missing.xml")},
    {"LinkToItself", noFile, linkTo("link")},
    {"LinksInACircle", noFile, linkTo("other", "other")},
    {"LinkToADirectory", directory, linkTo(".")},
    {"LinkToADevice", refused(""), linkTo("/dev/zero")},
    {"LongName", noFile, inFolder(std::string(NAME_MAX + 1, 'n') + ".xml")},
    {"LongPath", noFile, inFolder(repeated("d/", PATH_MAX / 2) + "d.xml")},
    {"VeryLongPath", noFile, inFolder(repeated("d/", 500000) + "d.xml")},
    {"LongPathToADocument", model(),
     [](const fs::path& folder) { return folder.string() + repeated("/.", 1000) + "/good.xml"; }},
    {"NameThatIsNoUtf8", refused(""), inFolder("\xFF.xml")},
    {"NameWithLineEnds", noFile, inFolder("a\nb\r.xml")},
    {"NameOfBlanks", noFile, inFolder("   ")},
    {"NameWithEscapes", noFile, inFolder("%67ood.xml")},
    {"UrlWithEscapes", model(),
     [](const fs::path& folder) { return "file://" + folder.string() + "/%67ood.xml"; }},
    {"UrlWithWrongEscapes", refused(""), named("file:///%zz.xml")},
    {"UrlWithANull", refused(""), named("file:///dev/zero%00.xml")},
    {"UrlOfNothing", refused(""), named("file:")},
    {"UrlOfNoPath", refused(""), named("file://")},
    {"UrlOfNoHost", refused(""), named("http://")},
    {"UrlOfAnUnknownProtocol", refused(""), named("gopher://127.0.0.1/d.xml")},
    {"UrlOfData", refused(""), named("data:text/xml,<x/>")},
    {"Binary", refused(""), named("/proc/self/exe")},
};

class HostileSource : public testing::TestWithParam<Source> {};

TEST_P(HostileSource, ComesToWhatIsExpected) {
  const TempDirectory folder;
  folder.write("good.xml", documentOf(dictionary));
  const std::string name = GetParam().make(folder.path());
  const Answer& answer = GetParam().answer;
  const auto outcome = outcomeOfFile(name);
  EXPECT_EQ(outcome.result, answer.result) << outcome.text;
  EXPECT_THAT(outcome.text, HasSubstr(answer.text));
  if (answer.line != anyLine) {
    EXPECT_EQ(outcome.message.getLineNum(), answer.line);
  }
  // As a service the good one is a document of another kind.
  const auto service =
      outcomeOf([&] { return test::newServices()->parseService(name.c_str(), true); });
  EXPECT_EQ(service.result,
            answer.result == Result::root ? Result::namespaceException : answer.result);
  EXPECT_EQ(service.text, outcome.text);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileSource, testing::ValuesIn(sources), test::labelOf<Source>);

// Takes the rights that root has, if it is root who runs the tests.
void becomeNobody() {
  if (::geteuid() == 0 && ::seteuid(65534) != 0) std::abort();
}

TEST(HostileSourceDeathTest, ThatMayNotBeReadIsRefused) {
  const TempDirectory folder;
  const std::string file = folder.write("d.xml", documentOf(dictionary));
  fs::permissions(folder.path(), fs::perms::all);
  fs::permissions(file, fs::perms::none);
  const auto outcome = [&] {
    becomeNobody();
    return outcomeOfFile(file);
  };
  EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcome(),
                               HasSubstr("unable to open primary document entity '" + file + "'"));
}

TEST(HostileSourceDeathTest, SchemaThatMayNotBeReadIsTold) {
  const TempDirectory folder;
  const std::string schema = folder.write(dictionary.own.schemaFile, "<xs:schema/>");
  fs::permissions(folder.path(), fs::perms::all);
  fs::permissions(schema, fs::perms::none);
  const auto outcome = [&] {
    const auto services = test::servicesWithoutSchemas();
    services->setSchemaLocation(folder.path().c_str());
    becomeNobody();
    return outcomeOf(*services, documentOf(dictionary));
  };
  EXPECT_RESULT_IN_OWN_PROCESS(parseException, outcome(), HasSubstr(dictionary.own.schemaFile));
}

// Pipes. A client may name one.

class HostilePipe : public testing::Test {
 protected:
  // What comes of the document that is written into the pipe in these pieces.
  test::Outcome<as::IProgram> outcomeOfPieces(const std::vector<std::string>& pieces) const {
    const std::string path = folder_.path() + "/pipe";
    EXPECT_EQ(::mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
    std::thread writer([&] {
      const int end = ::open(path.c_str(), O_WRONLY);
      for (const std::string& piece : pieces) {
        EXPECT_EQ(::write(end, piece.data(), piece.size()), static_cast<ssize_t>(piece.size()));
      }
      ::close(end);
    });
    auto outcome = outcomeOfFile(path);
    // Lets the writer go if nobody read.
    const int end = ::open(path.c_str(), O_RDONLY | O_NONBLOCK);
    writer.join();
    ::close(end);
    return outcome;
  }

 private:
  const TempDirectory folder_;
};

TEST_F(HostilePipe, IsReadToItsEnd) {
  EXPECT_EQ(outcomeOfPieces({documentOf(dictionary)}).result, Result::root);
}

TEST_F(HostilePipe, IsReadInWhateverPieces) {
  std::vector<std::string> bytes;
  for (const char c : documentOf(dictionary)) bytes.emplace_back(1, c);
  EXPECT_EQ(outcomeOfPieces(bytes).result, Result::root);
}

TEST_F(HostilePipe, ThatEndsInTheMiddleIsRefused) {
  const std::string document = documentOf(dictionary);
  EXPECT_EQ(outcomeOfPieces({document.substr(0, document.size() / 2)}).result,
            Result::parseException);
}

TEST_F(HostilePipe, OfNothingIsRefused) {
  EXPECT_EQ(outcomeOfPieces({}).result, Result::parseException);
}

}  // namespace

}  // namespace hostile
