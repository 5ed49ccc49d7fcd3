// The lists of words that the toolkit has for its users, each row whole, compared with what is kept
// in tests/golden/words: texts change on purpose only.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "as/toolkit/Toolkit.h"
#include "support/Kept.h"

namespace {

namespace toolkit = as::toolkit;

TEST(WordLists, KindsOfChangesAreAsTheyWere) {
  std::ostringstream out;
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds()) {
    out << kind.id << " (the other way round " << kind.mirror << ") "
        << (kind.breaks ? "breaks callers" : "breaks nobody") << "\n  " << kind.text << ": "
        << kind.why << "\n";
  }
  test::expectKept("words/changes.txt", out.str());
}

TEST(WordLists, RulesOfLintAreAsTheyWere) {
  std::ostringstream out;
  for (const toolkit::LintRule& rule : toolkit::lintRules()) {
    out << rule.id << " (" << wordOf(rule.severity) << "): " << rule.summary << "\n";
  }
  for (const toolkit::RuleSetting& setting : toolkit::ruleSettings()) {
    out << "may be set to " << setting.word << ": "
        << (setting.severity ? wordOf(*setting.severity) : "is not told") << "\n";
  }
  test::expectKept("words/rules.txt", out.str());
}

TEST(WordLists, RulesOfImportAreAsTheyWere) {
  std::ostringstream out;
  for (const toolkit::ImportRule& rule : toolkit::importRules()) {
    out << rule.id << " (" << wordOf(rule.severity) << "): " << rule.summary << "\n";
  }
  for (const toolkit::Dialect& dialect : toolkit::dialects()) {
    out << "dialect " << dialect.word << ": " << dialect.summary << "\n";
  }
  test::expectKept("words/import.txt", out.str());
}

TEST(WordLists, KindsOfOutputAreAsTheyWere) {
  std::ostringstream out;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    out << kind.word << ": " << kind.summary << "\n  of";
    for (const char* const flavour : kind.flavours) out << ' ' << flavour;
    out << (kind.takesDictionaries ? ", and of dictionaries\n" : "\n");
    for (const toolkit::GeneratorOption& option : kind.options) {
      out << "  " << option.name << "=" << option.values << ": " << option.summary << "\n";
    }
  }
  test::expectKept("words/kinds.txt", out.str());
}

TEST(WordLists, FlavoursAndFormatsAreAsTheyWere) {
  std::ostringstream out;
  for (const toolkit::Flavour& flavour : toolkit::flavours()) {
    out << flavour.word << " " << flavour.name << " " << flavour.implementation << " "
        << flavour.documents.uri << "\n";
  }
  for (const toolkit::FindingsFormat& format : toolkit::findingsFormats()) {
    out << format.word << ": " << format.summary << "\n";
  }
  test::expectKept("words/flavours.txt", out.str());
}

}  // namespace
