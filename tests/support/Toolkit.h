// Calls the toolkit, each test in a directory of its own.
#ifndef TESTS_SUPPORT_TOOLKIT_H_
#define TESTS_SUPPORT_TOOLKIT_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"
#include "support/Json.h"
#include "support/Labels.h"
#include "support/TempDirectory.h"

namespace test {

namespace toolkit = as::toolkit;

// Has a directory of its own, which is the current one as long as the test runs: files go by short
// names, as users name them.
class ToolkitTest : public testing::Test {
 protected:
  const toolkit::DocumentReader& reader() const { return reader_; }

  void write(const std::string& name, const std::string& content) const {
    directory_.write(name, content);
  }

  // The tree and the JSON of a model.
  template <class Root>
  static std::string treeOf(Root& root) {
    std::ostringstream out;
    toolkit::renderText(out, root);
    return out.str();
  }
  template <class Root>
  static nlohmann::json jsonOf(Root& root) {
    std::ostringstream out;
    toolkit::renderJson(out, root);
    return parsedJson(out.str());
  }

  // Those of the document in `file`; a service is shown without its program.
  std::string treeOfFile(const std::string& file) const {
    const toolkit::Document document = reader_.read(file);
    return document.dictionary ? treeOf(*document.dictionary) : treeOf(*document.service);
  }
  nlohmann::json jsonOfFile(const std::string& file) const {
    const toolkit::Document document = reader_.read(file);
    return document.dictionary ? jsonOf(*document.dictionary) : jsonOf(*document.service);
  }

  // Those of a document.
  std::string shown(const std::string& document) const {
    write("shown.xml", document);
    return treeOfFile("shown.xml");
  }
  nlohmann::json shownJson(const std::string& document) const {
    write("shown.xml", document);
    return jsonOfFile("shown.xml");
  }

 private:
  const CurrentDirectory directory_;
  toolkit::DocumentReader reader_{AS_SCHEMA_DIR};
};

// "PLACE: PROBLEM" of each finding, with "; ADVICE" when there is one.
inline std::vector<std::string> textsOf(const toolkit::Findings& findings) {
  std::vector<std::string> texts;
  for (const toolkit::Finding& finding : findings) {
    std::string text = finding.place + ": " + finding.problem;
    if (!finding.advice.empty()) text += "; " + finding.advice;
    texts.push_back(text);
  }
  return texts;
}

// Why `action` was refused; a failure of the test when it was not.
template <class Action>
toolkit::Refusal refusalOf(const Action& action) {
  try {
    action();
  } catch (const toolkit::RefusedDocument& refused) {
    EXPECT_EQ(refused.what(), textOf(refused.refusal()));
    return refused.refusal();
  }
  ADD_FAILURE() << "nothing was refused";
  return {};
}

// What the toolkit::FileError of `action` says; a failure of the test when there is none.
template <class Action>
std::string fileErrorOf(const Action& action) {
  try {
    action();
  } catch (const toolkit::FileError& failure) {
    return failure.what();
  }
  ADD_FAILURE() << "every file was written";
  return "";
}

}  // namespace test

#endif  // TESTS_SUPPORT_TOOLKIT_H_
