// Compares documents, and tells what came of it in short.
#ifndef TESTS_SUPPORT_DIFFS_H_
#define TESTS_SUPPORT_DIFFS_H_

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "as/toolkit/Diff.h"
#include "as/toolkit/Import.h"
#include "support/Json.h"
#include "support/Toolkit.h"

namespace test {

// "KIND OLD PLACE -> NEW PLACE: OLD VALUE -> NEW VALUE"
inline std::string lineOf(const toolkit::Change& change) {
  std::string text = change.kind + " " + change.oldPlace;
  if (change.newPlace != change.oldPlace) text += " -> " + change.newPlace;
  if (change.oldValue.empty() && change.newValue.empty()) return text;
  return text + ": " + change.oldValue + " -> " + change.newValue;
}

// A line of each change that follows from no other; then how many follow from it, and "!" when it
// breaks callers.
inline std::string summaryOf(const toolkit::Diff& diff) {
  std::map<std::size_t, int> followers;
  for (const toolkit::Change& change : diff.changes) {
    if (change.cause) ++followers[*change.cause];
  }
  std::string text;
  for (std::size_t i = 0; i < diff.changes.size(); ++i) {
    const toolkit::Change& change = diff.changes[i];
    if (change.cause) continue;
    text += lineOf(change);
    if (followers.count(i) > 0) text += " +" + std::to_string(followers[i]);
    text += change.breaks ? " !\n" : "\n";
  }
  return text;
}

class DiffTest : public ToolkitTest {
 protected:
  // The dictionary of a program with such entries in its linkage section, in a file.
  std::string dictionary(const std::string& name, const std::string& entries) const {
    toolkit::ImportOptions options;
    options.format = toolkit::SourceFormat::free;
    const toolkit::Imported imported = toolkit::importCobol(
        "IDENTIFICATION DIVISION.\nPROGRAM-ID. T.\nDATA DIVISION.\nLINKAGE SECTION.\n" + entries +
            "\nPROCEDURE DIVISION USING R.\n",
        "T.cbl", nullptr, options);
    EXPECT_FALSE(imported.programs.front().isRefused());
    write(name, imported.programs.front().dictionary);
    return name;
  }

  toolkit::Diff diffOf(const std::string& before, const std::string& after) const {
    return toolkit::diffFiles(reader(), dictionary("old.xml", before),
                              dictionary("new.xml", after));
  }

  static std::vector<std::string> kindsOf(const toolkit::Diff& diff) {
    std::vector<std::string> kinds;
    for (const toolkit::Change& change : diff.changes) kinds.push_back(change.kind);
    return kinds;
  }

  static std::string textOf(const toolkit::Diff& diff) {
    std::ostringstream out;
    toolkit::renderText(out, diff);
    return out.str();
  }

  static nlohmann::json jsonOfDiff(const toolkit::Diff& diff) {
    std::ostringstream out;
    toolkit::renderJson(out, diff);
    return parsedJson(out.str());
  }
};

}  // namespace test

#endif  // TESTS_SUPPORT_DIFFS_H_
