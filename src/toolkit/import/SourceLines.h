// The lines of a source that hold code or directives: comments, sequence numbers and what stands
// behind the right margin are left out, and lines that are continued are put together.
#ifndef TOOLKIT_IMPORT_SOURCELINES_H_
#define TOOLKIT_IMPORT_SOURCELINES_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "as/toolkit/SourceFormat.h"
#include "toolkit/import/LineLayout.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/SourceText.h"
#include "toolkit/import/TextArena.h"

namespace as::toolkit {

struct SourceLine {
  // Where the text of another line of the file goes on.
  struct Seam {
    std::size_t offset;
    std::int32_t line;
    std::int32_t column;
  };

  std::string_view text;    // Without blanks at its ends; of a directive from its first mark on.
  std::int32_t number = 0;  // Of the line, from 1.
  std::int32_t column = 0;  // Where the text begins, from 1.
  bool isDirective = false;
  bool isPlain = false;  // Only ASCII without tabs.
  bool areaA = false;    // It begins in columns 8 to 11 of a format that has them.
  std::vector<Seam> seams;
};

// A format that is told by the file itself holds for the lines behind it.
//
// Fixed format: columns 1 to 6 are passed over; column 7 is "*" or "/" (a comment), "-" (the line
// goes on where the one before ended), "D" (for debugging), "$" (a directive) or blank; code is in
// columns 8 to 72; tabs lead to columns 9, 17 and so on. A literal that does not end before column
// 72 goes on behind the first quote of the continuation. Between the two may be comments and blank
// lines. Free format: the same with neither; a literal that ends with its quote and "-" goes on
// behind the first quote of the next line, which fixed format has, too. "*>" begins a comment in
// any. A line that begins with "-INC" names a copybook.
class SourceLines {
 public:
  // The text, `arena` and `report` must outlive it. REQUIRES: a format that is recognised already.
  SourceLines(const SourceText& text, SourceFormat format, std::int32_t file, TextArena& arena,
              SourceReport& report);

  // Makes `line` the next one; false when there is none.
  bool next(SourceLine& line);

  SourceFormat format() const { return layout_.format(); }
  // For the lines behind the last one that was read, which was a directive.
  void setFormat(SourceFormat format) { layout_.setFormat(format); }

  // Whether lines for debugging are code.
  void setDebugging(bool isOn) { debugging_ = isOn; }

 private:
  bool layNext(LaidLine& laid);
  void findAhead();
  void continueAhead();
  bool isCode(const LaidLine& laid) const;
  void join(SourceLine& line);

  const std::string_view text_;
  LineLayout layout_;
  const std::int32_t file_;
  TextArena& arena_;
  SourceReport& report_;
  bool debugging_ = false;
  std::size_t at_ = 0;
  std::int32_t number_ = 0;
  LaidLine current_{};
  LaidLine ahead_{};
  bool hasAhead_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCELINES_H_
