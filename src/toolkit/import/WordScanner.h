// Cuts the lines of a file into text words.
#ifndef TOOLKIT_IMPORT_WORDSCANNER_H_
#define TOOLKIT_IMPORT_WORDSCANNER_H_

#include <cstddef>
#include <string_view>

#include "toolkit/import/Directives.h"
#include "toolkit/import/LineText.h"
#include "toolkit/import/SourceLines.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/TextWord.h"

namespace as::toolkit {

class WordScanner : public TextWordSource {
 public:
  // All must outlive it.
  WordScanner(SourceLines& lines, std::int32_t file, Directives& directives, SourceReport& report);

  void read(TextWord& word) override;

  // What is left of the line behind the last word, without blanks at its ends.
  std::string_view restOfLine() const { return trimmed({at_, left()}); }
  void skipRestOfLine() { at_ = end_; }

  // The first line from here on that `isEnd` holds for is read next. Lines are shown without their
  // blanks at the ends; those that are passed over may hold anything.
  template <typename Predicate>
  void skipLinesUntil(Predicate isEnd) {
    do {
      if (!nextLine()) return;
    } while (!isEnd(line_));
  }

  // Whether a quote without another on its line is taken as it stands: EXEC statements are not
  // written in COBOL.
  void setLenient(bool isLenient) { lenient_ = isLenient; }

 private:
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }
  bool nextLine();
  bool isFollowedByBlank(const char* separator) const;
  bool isComment(const char* bar) const;
  void setPlace(TextWord& word, const char* begin);
  void readLiteral(TextWord& word, const char* begin);
  void readRun(TextWord& word);
  void readMark(TextWord& word);

  SourceLines& lines_;
  const std::int32_t file_;
  Directives& directives_;
  SourceReport& report_;
  SourceLine line_;
  const char* at_ = nullptr;
  const char* end_ = nullptr;
  bool atLineStart_ = false;
  bool lenient_ = false;
  bool atEnd_ = false;
  // How far the place was told.
  const char* counted_ = nullptr;
  std::size_t seam_ = 0;
  SourcePlace countedPlace_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_WORDSCANNER_H_
