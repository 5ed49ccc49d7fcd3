// Which division the words of a source are in, and which kind of section.
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
      isPassedSection_ = false;
    }
    constexpr std::string_view section = "SECTION";
    if (word.text.size() == section.size() && sameWord(word.text, section)) {
      isPassedSection_ = sameWord(lastRun_, "SCREEN") || sameWord(lastRun_, "REPORT") ||
                         sameWord(lastRun_, "COMMUNICATION");
    }
    lastRun_ = word.text;
  }

  // Whether the words are of a procedure division, behind its header: up to another division.
  bool isProcedureBody() const { return procedure_ == Procedure::body; }

  // Whether they are of a section of the data division that holds no items: of the screen, reports
  // or communication.
  bool isPassedSection() const { return isPassedSection_; }

 private:
  enum class Procedure : std::uint8_t { none, header, body };

  Procedure procedure_ = Procedure::none;
  bool isPassedSection_ = false;
  std::string_view lastRun_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DIVISIONTRACKER_H_
