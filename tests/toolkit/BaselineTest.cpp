// Tests of baselines of findings, and of searching folders.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>

#include "as/toolkit/Baseline.h"
#include "as/toolkit/Files.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

class BaselineTest : public test::ToolkitTest {
 protected:
  static toolkit::Finding finding(const std::string& rule, const std::string& place) {
    return {rule, toolkit::Severity::error, place, "problem", "advice", 1, 2};
  }
};

TEST_F(BaselineTest, KnowsFindingsByDocumentRuleAndPlace) {
  toolkit::Baseline written("known.json");
  written.add("s.xml", finding("r", "p"));
  written.add("s.xml", finding("r", "p"));
  written.add("t.xml", finding("r", "ü\"\n"));
  written.write();
  toolkit::Baseline known("known.json");
  known.read();
  EXPECT_EQ(known.left(), 3U);
  EXPECT_EQ(known.left("./s.xml"), 2U);
  EXPECT_EQ(known.left("t.xml"), 1U);
  EXPECT_EQ(known.left("s"), 0U);
  EXPECT_FALSE(known.take("s.xml", finding("r", "q")));
  EXPECT_FALSE(known.take("s.xml", finding("q", "p")));
  EXPECT_FALSE(known.take("t.xml", finding("r", "p")));
  EXPECT_TRUE(known.take("t.xml", finding("r", "ü\"\n")));
  EXPECT_EQ(known.left("t.xml"), 0U);
  EXPECT_TRUE(known.take("s.xml", finding("r", "p")));
  EXPECT_EQ(known.left("s.xml"), 1U);
  EXPECT_TRUE(known.take("./s.xml", finding("r", "p")));
  EXPECT_FALSE(known.take("s.xml", finding("r", "p")));
  EXPECT_EQ(known.left(), 0U);
}

// Whatever failed before.
TEST_F(BaselineTest, TellsWhyItCannotBeRead) {
  std::filesystem::create_directory("folder");
  for (const auto& [file, reason] :
       {std::pair{"folder", "it is no file"}, {"lost.json", "No such file or directory"}}) {
    errno = EACCES;
    EXPECT_EQ(test::refusalOf([file = file] { toolkit::Baseline(file).read(); }).text,
              std::string("cannot be read: ") + reason);
  }
}

TEST_F(BaselineTest, NamesDocumentsAsSeenFromItsFolder) {
  std::filesystem::create_directories("a/b");
  toolkit::Baseline written("a/b/known.json");
  written.add("a/s.xml", finding("r", "p"));
  written.add("-", finding("r", "p"));
  written.write();
  std::filesystem::rename("a", "c");
  toolkit::Baseline known("c/b/known.json");
  known.read();
  EXPECT_TRUE(known.take("c/s.xml", finding("r", "p")));
  EXPECT_TRUE(known.take("-", finding("r", "p")));
}

TEST_F(BaselineTest, IsTheSameWhateverTheOrder) {
  toolkit::Baseline first("first.json");
  toolkit::Baseline second("second.json");
  first.add("s.xml", finding("r", "p"));
  first.add("s.xml", finding("r", "q"));
  second.add("s.xml", finding("r", "q"));
  second.add("s.xml", finding("r", "p"));
  first.write();
  second.write();
  EXPECT_EQ(test::contentOf("first.json"), test::contentOf("second.json"));
}

TEST_F(BaselineTest, RefusesWhatIsNone) {
  for (const char* const text :
       {"", "{", "[]", "[\"kind\", [], {\"findings\": []}]", "{\"kind\": 1}",
        "{\"kind\": \"agentservices lint baseline 1\"}",
        "{\"kind\": \"agentservices lint baseline 2\", \"findings\": []}"}) {
    write("known.json", text);
    EXPECT_EQ(test::refusalOf([] { toolkit::Baseline("known.json").read(); }).text,
              "not a baseline of findings")
        << text;
  }
  std::filesystem::create_directory("folder");
  for (const char* const file : {"missing.json", "folder", "/dev/null"}) {
    EXPECT_THAT(test::refusalOf([&] { toolkit::Baseline(file).read(); }).text,
                testing::StartsWith("cannot be read: "));
  }
}

TEST_F(BaselineTest, TakesThePlaceOfNothingElse) {
  write("s.xml", "<service/>");
  const toolkit::Refusal refusal = test::refusalOf([] { toolkit::Baseline("s.xml").write(); });
  EXPECT_EQ(refusal.text, "holds something other than a baseline of findings");
  EXPECT_EQ(test::contentOf("s.xml"), "<service/>");
  write("empty.json", "");
  for (const char* const file : {"empty.json", "new.json", "new.json", "/dev/null"}) {
    EXPECT_NO_THROW(toolkit::Baseline(file).write()) << file;
  }
}

TEST_F(BaselineTest, PassesOverRowsThatAreNone) {
  write("known.json",
        "{\"kind\": \"agentservices lint baseline 1\", \"findings\": [1, null, {\"file\": 1}, "
        "{\"file\": \"s.xml\", \"rule\": \"r\", \"place\": \"p\", \"count\": \"x\"}]}");
  toolkit::Baseline known("known.json");
  known.read();
  EXPECT_TRUE(known.take("s.xml", finding("r", "p")));
  EXPECT_FALSE(known.take("s.xml", finding("r", "p")));
}

// Neither objects elsewhere nor what a row may hold besides are rows.
TEST_F(BaselineTest, TakesRowsOfFindingsAlone) {
  const std::string row = R"({"file": "s.xml", "rule": "r", "place": ")";
  write("known.json", R"({"kind": "agentservices lint baseline 1", "version": -1, "part": 1.5,
    "isWhole": true, "nothing": null, "other": [)" +
                          row + R"(a"}], "object": )" + row + R"(b"},
    "findings": [true, -1, 1.5, [)" +
                          row + R"(c"}], )" + row + R"(d", "more": )" + row +
                          R"(e", "count": 9}, "isOld": false}, )" + row +
                          R"(f", "count": 2}], "behind": [)" + row + R"(g"}]})");
  toolkit::Baseline known("known.json");
  known.read();
  for (const char* const place : {"a", "b", "c", "e", "g"}) {
    EXPECT_FALSE(known.take("s.xml", finding("r", place))) << place;
  }
  EXPECT_TRUE(known.take("s.xml", finding("r", "d")));
  EXPECT_FALSE(known.take("s.xml", finding("r", "d")));
  EXPECT_TRUE(known.take("s.xml", finding("r", "f")));
  EXPECT_TRUE(known.take("s.xml", finding("r", "f")));
  EXPECT_FALSE(known.take("s.xml", finding("r", "f")));
}

TEST_F(BaselineTest, FoldersAreSearchedForFiles) {
  for (const char* const file : {"in/b.xml", "in/a/c.XML", "in/a/d.txt", "in/a/xml", "in/.xml"}) {
    write(file, "");
  }
  std::filesystem::create_directory("in/folder.xml");
  std::filesystem::create_directory_symlink("..", "in/a/up");
  std::filesystem::create_symlink("../b.xml", "in/a/link.xml");
  const toolkit::FoundFiles found = toolkit::filesIn("in", {".xml"});
  EXPECT_THAT(found.files, ElementsAre("a/c.XML", "a/link.xml", "b.xml"));
  EXPECT_THAT(found.refusals, IsEmpty());
}

TEST_F(BaselineTest, FoldersThatCannotBeReadAreTold) {
  const toolkit::FoundFiles found = toolkit::filesIn("missing", {".xml"});
  ASSERT_EQ(found.refusals.size(), 1U);
  EXPECT_EQ(textOf(found.refusals[0]), "missing: it cannot be read: No such file or directory");
}

}  // namespace
