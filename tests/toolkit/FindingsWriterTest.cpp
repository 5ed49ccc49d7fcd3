// Tests of findings as text, JSON and SARIF.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/FindingsWriter.h"
#include "support/Json.h"

namespace {

namespace toolkit = as::toolkit;
using nlohmann::json;
using testing::ElementsAre;
using toolkit::Severity;

toolkit::FindingsOptions options() {
  return {"tool", "1.2.3", {{"odd", Severity::warning, "it is even", "add one"}}};
}

std::string written(const std::string& format, const std::vector<toolkit::FileFinding>& findings,
                    const toolkit::FindingsOptions& how = options()) {
  std::ostringstream out;
  const auto writer = toolkit::findFindingsFormat(format)->makeWriter(out, how);
  for (const toolkit::FileFinding& finding : findings) writer->add(finding);
  writer->end();
  return out.str();
}

const toolkit::FileFinding odd = {"a b.xml",
                                  {"odd", Severity::warning, "op.p", "it is odd", "look", 3, 7}};
const toolkit::FileFinding bare = {"/ä:%\n.xml", {"new", Severity::error, "", "\x1B", ""}};
const toolkit::FileFinding copied = {
    "c.cpy", {"odd", Severity::note, "", "so", "", 1, 2}, {{"p.cbl", 9, 8}, {"q.cbl"}}};

TEST(FindingsWriterTest, KnowsItsFormats) {
  std::vector<std::string> words;
  for (const toolkit::FindingsFormat& format : toolkit::findingsFormats()) {
    words.emplace_back(format.word);
  }
  EXPECT_THAT(words, ElementsAre("text", "json", "sarif"));
  EXPECT_EQ(toolkit::findFindingsFormat("xml"), nullptr);
}

TEST(FindingsWriterTest, WritesLines) {
  EXPECT_EQ(written("text", {odd, bare, copied}),
            "a b.xml:3:7: warning: op.p: it is odd; look\n"
            "/ä:%\\u000A.xml: error: \\u001B\n"
            "c.cpy:1:2: note: so\n"
            "p.cbl:9:8: note: copied here\n"
            "q.cbl: note: copied here\n");
}

TEST(FindingsWriterTest, ColoursSeverities) {
  toolkit::FindingsOptions how = options();
  how.isColored = true;
  EXPECT_EQ(written("text", {odd, bare, {"c.cpy", copied.finding}}, how),
            "a b.xml:3:7: \x1B[1;33mwarning\x1B[0m: op.p: it is odd; look\n"
            "/ä:%\\u000A.xml: \x1B[1;31merror\x1B[0m: \\u001B\n"
            "c.cpy:1:2: \x1B[1;36mnote\x1B[0m: so\n");
}

TEST(FindingsWriterTest, WritesAnObject) {
  EXPECT_EQ(test::parsedJson(written("json", {odd, copied})), test::parsedJson(R"json({
    "tool": "tool", "version": "1.2.3", "errors": 0, "warnings": 1, "notes": 1,
    "findings": [
      {"rule": "odd", "severity": "warning", "file": "a b.xml", "line": 3, "column": 7,
       "place": "op.p", "problem": "it is odd", "advice": "look"},
      {"rule": "odd", "severity": "note", "file": "c.cpy", "line": 1, "column": 2,
       "place": "", "problem": "so", "advice": "",
       "copiedAt": [{"file": "p.cbl", "line": 9, "column": 8},
                    {"file": "q.cbl", "line": 0, "column": 0}]}]})json"));
}

TEST(FindingsWriterTest, WritesNothingFoundAsJson) {
  EXPECT_EQ(test::parsedJson(written("json", {})).at("findings"), json::array());
  EXPECT_EQ(test::parsedJson(written("sarif", {})).at("runs").at(0).at("results"), json::array());
}

TEST(FindingsWriterTest, DescribesRulesInSarif) {
  const json log = test::parsedJson(written("sarif", {}));
  EXPECT_EQ(log.at("version"), "2.1.0");
  EXPECT_EQ(log.at("runs").at(0).at("columnKind"), "unicodeCodePoints");
  EXPECT_EQ(log.at("runs").at(0).at("tool").at("driver"), test::parsedJson(R"json({
    "name": "tool", "version": "1.2.3", "rules": [
      {"id": "odd", "shortDescription": {"text": "it is even"}, "help": {"text": "add one"},
       "defaultConfiguration": {"level": "warning"}}]})json"));
}

TEST(FindingsWriterTest, WritesResultsOfSarif) {
  const json results =
      test::parsedJson(written("sarif", {odd, bare, copied})).at("runs").at(0).at("results");
  EXPECT_EQ(results.at(0), test::parsedJson(R"json({
    "ruleId": "odd", "ruleIndex": 0, "level": "warning",
    "message": {"text": "op.p: it is odd; look"},
    "locations": [{
      "physicalLocation": {"artifactLocation": {"uri": "a%20b.xml"},
                           "region": {"startLine": 3, "startColumn": 7}},
      "logicalLocations": [{"fullyQualifiedName": "op.p"}]}],
    "partialFingerprints": {"place/v1": "odd op.p"}})json"));
  // A rule that is not described, a finding without a place, and text that is no plain one.
  EXPECT_EQ(results.at(1), test::parsedJson(R"json({
    "ruleId": "new", "level": "error", "message": {"text": "\u001B"},
    "locations": [{"physicalLocation":
                   {"artifactLocation": {"uri": "file:///%C3%A4%3A%25%0A.xml"}}}],
    "partialFingerprints": {"place/v1": "new "}})json"));
  EXPECT_EQ(results.at(2).at("relatedLocations"), test::parsedJson(R"json([
    {"physicalLocation": {"artifactLocation": {"uri": "p.cbl"},
                          "region": {"startLine": 9, "startColumn": 8}},
     "message": {"text": "copied here"}},
    {"physicalLocation": {"artifactLocation": {"uri": "q.cbl"}},
     "message": {"text": "copied here"}}])json"));
}

TEST(FindingsWriterTest, ReplacesWhatIsNoText) {
  const toolkit::FileFinding broken = {"\xFF", {"odd", Severity::error, "\xC3", "", ""}};
  for (const char* const format : {"json", "sarif"}) {
    EXPECT_FALSE(test::parsedJson(written(format, {broken})).is_discarded()) << format;
  }
}

TEST(UriTest, EncodesWhatIsNoPlainCharacter) {
  const struct {
    const char* file;
    const char* uri;
  } rows[] = {{"a/b-c.d_e~1.xml", "a/b-c.d_e~1.xml"},
              {"../x.xml", "../x.xml"},
              {"/a/b", "file:///a/b"},
              {"a:b", "a%3Ab"},
              {"a%20b", "a%2520b"},
              {"a b?#[]\\", "a%20b%3F%23%5B%5D%5C"},
              {"größe", "gr%C3%B6%C3%9Fe"},
              {"aZ09-._~", "aZ09-._~"},
              {"a:b@c[d]`e{f|g", "a%3Ab%40c%5Bd%5D%60e%7Bf%7Cg"},
              {"", ""}};
  for (const auto& row : rows) EXPECT_EQ(toolkit::uriOf(row.file), row.uri);
}

}  // namespace
