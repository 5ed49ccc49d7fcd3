// Imports COBOL sources that tests write.
#ifndef TESTS_SUPPORT_IMPORTS_H_
#define TESTS_SUPPORT_IMPORTS_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include "as/toolkit/Import.h"

namespace test {

// The rows of a table, which name tests and tell of failures by their text.
struct ImportRow {
  const char* source;
  const char* expected;
};

inline void PrintTo(const ImportRow& row, std::ostream* out) { *out << row.source; }

// Copybooks in memory.
class ListedCopybooks : public as::toolkit::CopybookProvider {
 public:
  using Texts = std::map<std::string, std::string>;

  explicit ListedCopybooks(Texts texts) : texts_(std::move(texts)) {}

  std::optional<as::toolkit::Copybook> find(const std::string& name, const std::string&) override {
    const auto found = texts_.find(name);
    if (found == texts_.end()) return std::nullopt;
    return as::toolkit::Copybook{found->first + ".cpy", found->second};
  }

 private:
  Texts texts_;
};

inline as::toolkit::ImportOptions freeFormat(const std::string& dialect = "ibm") {
  as::toolkit::ImportOptions options;
  options.format = as::toolkit::SourceFormat::free;
  options.dialect = dialect;
  return options;
}

// What stands in front of the entries of a program in a row, in so many lines.
inline constexpr int kHeadLines = 4;
inline std::string programOf(const std::string& entries,
                             const std::string& section = "WORKING-STORAGE SECTION.") {
  return "IDENTIFICATION DIVISION.\nPROGRAM-ID. T.\nDATA DIVISION.\n" + section + "\n" + entries +
         "\n";
}

inline as::toolkit::Imported importOf(const std::string& source,
                                      const as::toolkit::ImportOptions& options = freeFormat()) {
  return as::toolkit::importCobol(source, "T.cbl", nullptr, options);
}

// "LINE:COLUMN RULE" of each finding, lines counted behind so many first ones.
inline std::string findingsOf(const as::toolkit::Imported& imported, int headLines = 0) {
  std::string text;
  for (const as::toolkit::ImportFinding& finding : imported.findings) {
    if (!text.empty()) text += ", ";
    text += std::to_string(finding.location.line - headLines) + ":" +
            std::to_string(finding.location.column) + " " + finding.rule;
  }
  return text;
}

inline std::string problemsOf(const as::toolkit::Imported& imported) {
  std::string text;
  for (const as::toolkit::ImportFinding& finding : imported.findings)
    text += textOf(finding) + "\n";
  return text;
}

// The dictionary of the only program; empty, after a failure, when there is none.
inline std::string dictionaryOf(const as::toolkit::Imported& imported) {
  EXPECT_EQ(imported.programs.size(), 1U) << problemsOf(imported);
  if (imported.programs.size() != 1) return "";
  EXPECT_FALSE(imported.programs.front().isRefused()) << problemsOf(imported);
  return imported.programs.front().dictionary;
}

// All that matches the expression in a text, without line numbers and without linkage="true", and
// with ' for ".
inline std::vector<std::string> partsOf(const std::string& text, const std::string& expression) {
  static const std::regex place(" line=\"[0-9]*\"| linkage=\"true\"");
  const std::regex wanted(expression);
  std::vector<std::string> parts;
  for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
    std::string part = std::regex_replace(at->str(), place, "");
    std::replace(part.begin(), part.end(), '"', '\'');
    parts.push_back(part);
  }
  return parts;
}

// "NAME OFFSET+LENGTH" of each item of a dictionary, with "*TIMES" for tables.
inline std::string placesOf(const std::string& dictionary) {
  static const std::regex item(
      " name=\"([^\"]*)\"[^>]*?(?: minOccurs=\"[0-9]+\" maxOccurs=\"([0-9]+)\"[^>]*?)?"
      " offset=\"([0-9]+)\" length=\"([0-9]+)\"");
  std::string text;
  for (std::sregex_iterator at(dictionary.begin(), dictionary.end(), item), end; at != end; ++at) {
    if (!text.empty()) text += ", ";
    text += (*at)[1].str() + " " + (*at)[3].str() + "+" + (*at)[4].str();
    if ((*at)[2].matched) text += "*" + (*at)[2].str();
  }
  return text;
}

}  // namespace test

#endif  // TESTS_SUPPORT_IMPORTS_H_
