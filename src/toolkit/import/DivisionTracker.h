// Which division the words of a source are in.
#ifndef TOOLKIT_IMPORT_DIVISIONTRACKER_H_
#define TOOLKIT_IMPORT_DIVISIONTRACKER_H_

#include <cstdint>
#include <string_view>

#include "toolkit/import/TextWord.h"

namespace as::toolkit {

class DivisionTracker {
 public:
  // The next word, whose text has to stay.
  void follow(const TextWord& word) {
    if (word.kind == TextWord::Kind::period) {
      if (procedure_ == Procedure::header) procedure_ = Procedure::body;
      return;
    }
    if (word.kind != TextWord::Kind::run) return;
    constexpr std::string_view division = "DIVISION";
    if (word.text.size() == division.size() && sameWord(word.text, division)) {
      procedure_ = sameWord(lastRun_, "PROCEDURE") ? Procedure::header : Procedure::none;
    }
    lastRun_ = word.text;
  }

  // Whether the words are of a procedure division, behind its header: up to another division.
  bool isProcedureBody() const { return procedure_ == Procedure::body; }

 private:
  enum class Procedure : std::uint8_t { none, header, body };

  Procedure procedure_ = Procedure::none;
  std::string_view lastRun_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DIVISIONTRACKER_H_
