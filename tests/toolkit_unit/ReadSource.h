// Reads sources into words, and shows both words and findings as text that tables can hold.
#ifndef TOOLKIT_UNIT_READSOURCE_H_
#define TOOLKIT_UNIT_READSOURCE_H_

#include <map>
#include <optional>
#include <ostream>
#include <string>

#include "as/toolkit/Copybooks.h"
#include "as/toolkit/Finding.h"
#include "toolkit/import/SourceReader.h"

namespace test {

// Copybooks by their names; a library's as "LIBRARY/NAME". "unreadable" is there and cannot be
// read.
class MemoryCopybooks : public as::toolkit::CopybookProvider {
 public:
  explicit MemoryCopybooks(std::map<std::string, std::string> texts) : texts_(std::move(texts)) {}

  std::optional<as::toolkit::Copybook> find(const std::string& name,
                                            const std::string& library) override {
    asked++;
    const std::string whole = library.empty() ? name : library + "/" + name;
    if (whole == "unreadable") throw as::toolkit::CopybookError("it is locked");
    const auto found = texts_.find(whole);
    if (found == texts_.end()) return std::nullopt;
    return as::toolkit::Copybook{whole, found->second};
  }

  int asked = 0;

 private:
  std::map<std::string, std::string> texts_;
};

// A word, a number behind "#", a picture in "<" and ">", a literal in its quotes.
inline std::string shown(const as::toolkit::Token& token) {
  using as::toolkit::TokenKind;
  switch (token.kind) {
    case TokenKind::number:
      return "#" + token.text;
    case TokenKind::picture:
      return "<" + token.text + ">";
    case TokenKind::literal:
      return token.prefix + token.quote + token.text + token.quote;
    default:
      return token.text;
  }
}

inline as::toolkit::Token nextOf(as::toolkit::TokenSource& source) {
  as::toolkit::Token token;
  source.read(token);
  return token;
}

struct Reading {
  std::string words;     // With blanks between.
  std::string findings;  // "rule PLACE", one a line.
  std::string texts;     // The same as users read them.
  bool decimalPointIsComma = false;
};

struct Source {
  std::string text;
  std::map<std::string, std::string> copybooks = {};
  as::toolkit::SourceFormat format = as::toolkit::SourceFormat::free;
  std::string encoding = "";
  as::toolkit::ImportBudget::Most most = {};
};

inline Reading readingOf(const Source& source, bool withPlaces = false) {
  MemoryCopybooks copybooks(source.copybooks);
  as::toolkit::SourceMap map;
  as::toolkit::SourceFindings findings;
  as::toolkit::SourceOptions options;
  options.format = source.format;
  options.encoding = source.encoding;
  options.most = source.most;
  options.definitions = {{"OUTSIDE", "7"}, {"VERSION", "7 8"}};
  as::toolkit::SourceReader reader(source.text, "main", options, &copybooks, map, findings);
  Reading result;
  as::toolkit::Token token;
  for (reader.read(token); token.kind != as::toolkit::TokenKind::end; reader.read(token)) {
    if (!result.words.empty()) result.words += ' ';
    result.words += shown(token);
    if (withPlaces) result.words += " at " + map.textOf(token.place) + ";";
  }
  for (const as::toolkit::SourceFinding& finding : findings) {
    if (!result.findings.empty()) result.findings += '\n';
    const std::string place = map.textOf(finding.place);
    result.findings += std::string(finding.rule) + " " + place;
    result.texts += textOf(as::toolkit::Finding{finding.rule, finding.severity, place,
                                                finding.problem, finding.advice}) +
                    "\n";
  }
  result.decimalPointIsComma = reader.decimalPointIsComma();
  return result;
}

inline std::string wordsOf(const Source& source) { return readingOf(source).words; }

// What a table says of a source: its name, the source, the words and the findings.
struct ReadingRow {
  const char* name;
  Source source;
  std::string words;
  std::string findings = "";
};

inline void PrintTo(const ReadingRow& row, std::ostream* out) { *out << row.name; }

}  // namespace test

#endif  // TOOLKIT_UNIT_READSOURCE_H_
