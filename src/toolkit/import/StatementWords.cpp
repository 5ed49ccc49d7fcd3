#include "toolkit/import/StatementWords.h"

#include <algorithm>
#include <initializer_list>

#include "toolkit/import/Characters.h"
#include "toolkit/import/LineText.h"

namespace as::toolkit {

namespace {

bool isAny(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view one) { return sameWord(one, word); });
}

}  // namespace

std::string_view firstWord(std::string_view text) {
  const auto end = std::find_if(text.begin(), text.end(),
                                [](char character) { return !isWordCharacter(character); });
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

bool endsCommentEntry(const SourceLine& line) {
  if (line.areaA) return true;
  const std::string_view word = firstWord(line.text);
  const std::string_view rest = trimmed(line.text.substr(word.size()));
  if (isAny(word, {"PROGRAM-ID", "AUTHOR", "INSTALLATION", "DATE-WRITTEN", "DATE-COMPILED",
                   "SECURITY", "REMARKS"})) {
    return rest.substr(0, 1) == ".";
  }
  return isAny(word, {"IDENTIFICATION", "ID", "ENVIRONMENT", "DATA", "PROCEDURE"}) &&
         sameWord(firstWord(rest), "DIVISION");
}

Statement statementOf(const TextWord& word) {
  struct Row {
    std::string_view word;
    Statement statement;
    bool beginsLine;
  };
  static constexpr Row rows[] = {
      {"COPY", Statement::copy, false},
      {"EXEC", Statement::exec, false},
      {"EXECUTE", Statement::exec, false},
      {"EJECT", Statement::eject, true},
      {"SKIP1", Statement::eject, true},
      {"SKIP2", Statement::eject, true},
      {"SKIP3", Statement::eject, true},
      {"TITLE", Statement::title, true},
      {"BASIS", Statement::basis, true},
      {"INSERT", Statement::insert, true},
      {"DELETE", Statement::insert, true},
      {"++INCLUDE", Statement::include, true},
      {"-INC", Statement::include, true},
      {"ID", Statement::identification, true},
      {"IDENTIFICATION", Statement::identification, true},
      {"PROGRAM-ID", Statement::identification, true},
      {"ENVIRONMENT", Statement::otherDivision, true},
      {"DATA", Statement::otherDivision, true},
      {"PROCEDURE", Statement::otherDivision, true},
      {"AUTHOR", Statement::commentEntry, true},
      {"INSTALLATION", Statement::commentEntry, true},
      {"DATE-WRITTEN", Statement::commentEntry, true},
      {"DATE-COMPILED", Statement::commentEntry, true},
      {"SECURITY", Statement::commentEntry, true},
      {"REMARKS", Statement::commentEntry, true},
  };
  // Most words begin with no letter that these begin with, or stand within their line.
  const char first = static_cast<char>(word.text.front() & ~0x20);
  if (!word.lineStart && first != 'C' && first != 'E') return Statement::none;
  for (const Row& row : rows) {
    if (row.word.size() == word.text.size() && (word.lineStart || !row.beginsLine) &&
        sameWord(row.word, word.text)) {
      return row.statement;
    }
  }
  return Statement::none;
}

}  // namespace as::toolkit
