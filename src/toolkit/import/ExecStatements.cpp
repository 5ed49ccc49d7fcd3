#include "toolkit/import/ExecStatements.h"

#include "as/toolkit/Text.h"
#include "toolkit/import/Keywords.h"

namespace as::toolkit {

ExecStatements::Read ExecStatements::read(WordScanner& words, const SourcePlace& place) {
  words.setLenient(true);
  TextWord kind;
  words.read(kind);
  TextWord next = kind;
  Read result;
  bool isInclude = false;
  for (std::size_t number = 0; next.kind != TextWord::Kind::end && !next.isRun("END-EXEC");
       number++) {
    if (number == 1) isInclude = kind.isRun("SQL") && next.isRun("INCLUDE");
    const bool isName = next.kind == TextWord::Kind::run || next.kind == TextWord::Kind::literal;
    if (number == 2 && isInclude && isName) result.included = next;
    words.read(next);
  }
  words.setLenient(false);
  result.isWhole = next.kind != TextWord::Kind::end;
  if (!result.isWhole) {
    report_.add(SourceRule::unterminatedText, place, "the EXEC statement does not end",
                "end it with END-EXEC");
  } else if (!result.included) {
    count(kind, place);
  }
  return result;
}

void ExecStatements::count(const TextWord& kind, const SourcePlace& place) {
  constexpr std::size_t longestKind = 8;
  constexpr std::size_t mostKinds = 20;
  const std::string name =
      kind.kind == TextWord::Kind::run ? inCapitals(kind.text.substr(0, longestKind)) : "";
  if (passed_.size() >= mostKinds && !passed_.contains(name)) return;
  Passed& passed = passed_[name];
  if (passed.count++ == 0) passed.first = place;
}

void ExecStatements::finish() {
  for (const auto& [kind, passed] : passed_) {
    report_.add(SourceRule::execBlock, passed.first,
                toolkit::count(passed.count, "statement") + " EXEC " + kind + " " +
                    (passed.count == 1 ? "is" : "are") + " passed over, this is the first");
  }
}

}  // namespace as::toolkit
