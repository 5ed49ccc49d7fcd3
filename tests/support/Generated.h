// What generators make of data divisions.
#ifndef TESTS_SUPPORT_GENERATED_H_
#define TESTS_SUPPORT_GENERATED_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Imports.h"
#include "support/Toolkit.h"

namespace test {

class GenerateTest : public ToolkitTest {
 protected:
  // Of the records of working storage.
  toolkit::Generated generated(const std::string& kind, const std::string& entries,
                               const toolkit::GenerateOptions& options = {}) const {
    write("p.xml", dictionaryOf(importOf(programOf(entries))));
    const toolkit::Document document = reader().read("p.xml");
    return toolkit::generate(*toolkit::findGeneratorKind(kind), *document.dictionary, options);
  }

  // The only file; empty, after a failure, when there is none.
  static std::string textOf(const toolkit::Generated& made) {
    EXPECT_EQ(made.files.size(), 1U) << testing::PrintToString(textsOf(made.findings));
    return made.files.empty() ? "" : made.files.front().content;
  }
};

}  // namespace test

#endif  // TESTS_SUPPORT_GENERATED_H_
