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
  };
  static constexpr Row anywhere[] = {
      {"COPY", Statement::copy},
      {"EXEC", Statement::exec},
      {"EXECUTE", Statement::exec},
  };
  static constexpr Row atLineStart[] = {
      {"EJECT", Statement::eject},
      {"SKIP1", Statement::eject},
      {"SKIP2", Statement::eject},
      {"SKIP3", Statement::eject},
      {"TITLE", Statement::title},
      {"BASIS", Statement::basis},
      {"INSERT", Statement::insert},
      {"DELETE", Statement::insert},
      {"++INCLUDE", Statement::include},
      {"-INC", Statement::include},
      {"ID", Statement::identification},
      {"IDENTIFICATION", Statement::identification},
      {"PROGRAM-ID", Statement::identification},
      {"ENVIRONMENT", Statement::otherDivision},
      {"DATA", Statement::otherDivision},
      {"PROCEDURE", Statement::otherDivision},
      {"AUTHOR", Statement::commentEntry},
      {"INSTALLATION", Statement::commentEntry},
      {"DATE-WRITTEN", Statement::commentEntry},
      {"DATE-COMPILED", Statement::commentEntry},
      {"SECURITY", Statement::commentEntry},
      {"REMARKS", Statement::commentEntry},
  };
  const auto find = [&word](const auto& rows) {
    for (const Row& row : rows) {
      if (row.word.size() == word.text.size() && sameWord(row.word, word.text)) {
        return row.statement;
      }
    }
    return Statement::none;
  };
  const Statement found = find(anywhere);
  return found == Statement::none && word.lineStart ? find(atLineStart) : found;
}

}  // namespace as::toolkit
