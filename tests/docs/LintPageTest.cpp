// Tests of the page on the rules of lint: each rule is there, the wrong document is found by it and
// by nothing else, in the words that are shown, and the right one is clean.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Toolkit.h"
#include "docs/Page.h"
#include "support/Documents.h"
#include "support/SchemasOfMoreWords.h"
#include "support/TempDirectory.h"

namespace {

namespace toolkit = as::toolkit;

bool startsWith(const std::string& text, const std::string& start) {
  return text.rfind(start, 0) == 0;
}

std::string around(const std::string& element, const std::string& content) {
  return "<" + element + ">" + content + "</" + element + ">";
}

// The whole document of a snippet; its first element tells where it belongs.
std::string documentOf(const docs::Block& snippet) {
  const toolkit::Flavour& flavour = *toolkit::findFlavour(snippet.is("ws")    ? "ws"
                                                          : snippet.is("com") ? "com"
                                                                              : "java");
  const std::string uri = flavour.documents.uri;
  std::string content = snippet.text;
  if (startsWith(content, "<service ")) {
    return content.insert(8, " " + test::declarations(uri));
  }
  if (startsWith(content, "<hiddenParameter ")) content = around("hiddenParameters", content);
  if (startsWith(content, "<parameter ")) content = around("parameters", content);
  if (startsWith(content, "<hiddenParameters>") || startsWith(content, "<parameters>") ||
      startsWith(content, "<header")) {
    content =
        "<operation name='pay' entryPoint='PAY' style='document' inputUse='literal' "
        "outputUse='literal' inputNamespace='urn:in' outputNamespace='urn:out'>" +
        content + "</operation>";
    if (!snippet.is("ws")) {
      content.replace(0, content.find('>'), "<operation name='pay' entryPoint='PAY'");
    }
  }
  if (startsWith(content, "<operation ")) content = around("operations", content);
  return test::serviceDocument(uri,
                               std::string("name='Pay' implementation='") + flavour.word +
                                   "' programName='PAYROLL' dataDictFilename='PAY.xml'",
                               content);
}

class LintPageTest : public testing::Test {
 protected:
  LintPageTest() : page_(docs::guide() / "lint.md") {
    for (const docs::Block& block : page_.blocks()) {
      if (block.is("dictionary")) directory_.write("PAY.xml", block.text);
    }
  }

  toolkit::Findings findingsOf(const docs::Block& snippet) {
    directory_.write("service.xml", documentOf(snippet));
    if (!snippet.is("more-words")) return toolkit::lintFile(reader_, "service.xml");
    const test::TempDirectory schemas;
    test::writeSchemasOfMoreWords(schemas);
    return toolkit::lintFile(toolkit::DocumentReader(schemas.path()), "service.xml");
  }

  docs::Page page_;
  test::CurrentDirectory directory_;
  toolkit::DocumentReader reader_{AS_SCHEMA_DIR};
};

TEST_F(LintPageTest, TellsOfEveryRuleWhatItWants) {
  const std::string text = page_.text();
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    const std::string start = std::string("\n### ") + rule.id + "\n\n*" + wordOf(rule.severity) +
                              "*: " + rule.summary + ". ";
    EXPECT_NE(text.find(start), std::string::npos) << start;
  }
}

TEST_F(LintPageTest, HasAWrongAndARightDocumentForEveryRule) {
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    for (const char* const kind : {"wrong", "right"}) {
      const auto& blocks = page_.blocks();
      EXPECT_EQ(
          std::count_if(blocks.begin(), blocks.end(),
                        [&](const docs::Block& b) { return b.heading == rule.id && b.is(kind); }),
          1)
          << rule.id << " " << kind;
    }
  }
}

TEST_F(LintPageTest, WrongDocumentsAreFoundInTheWordsShown) {
  for (std::size_t i = 0; i + 1 < page_.blocks().size(); i++) {
    const docs::Block& wrong = page_.blocks()[i];
    if (!wrong.is("wrong")) continue;
    SCOPED_TRACE(wrong.heading);
    std::string texts;
    for (const toolkit::Finding& finding : findingsOf(wrong)) {
      EXPECT_EQ(finding.rule, wrong.heading) << textOf(finding);
      texts += textOf(finding) + "\n";
    }
    EXPECT_NE(texts, "");
    docs::Block& shown = page_.blocks()[i + 1];
    EXPECT_TRUE(shown.is("text"));
    if (docs::Page::isUpdated()) shown.text = texts;
    EXPECT_EQ(shown.text, texts);
  }
  if (docs::Page::isUpdated()) page_.write();
}

TEST_F(LintPageTest, RightDocumentsAreClean) {
  for (const docs::Block& right : page_.blocks()) {
    if (!right.is("right")) continue;
    for (const toolkit::Finding& finding : findingsOf(right)) {
      ADD_FAILURE() << right.heading << ": " << textOf(finding);
    }
  }
}

}  // namespace
