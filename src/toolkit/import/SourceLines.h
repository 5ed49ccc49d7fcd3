// The lines of a source that hold code or directives: comments, sequence numbers and what stands
// behind the right margin are left out, and lines that are continued are put together.
#ifndef TOOLKIT_IMPORT_SOURCELINES_H_
#define TOOLKIT_IMPORT_SOURCELINES_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "as/toolkit/SourceFormat.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/SourceText.h"
#include "toolkit/import/TextArena.h"

namespace as::toolkit {

struct SourceLine {
  // Where the text of another line of the file goes on.
  struct Seam {
    std::size_t offset = 0;
    std::int32_t line = 0;
    std::int32_t column = 0;
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

  SourceFormat format() const { return format_; }
  // For the lines behind the last one that was read, which was a directive.
  void setFormat(SourceFormat format) { format_ = format; }

  // Whether lines for debugging are code.
  void setDebugging(bool isOn) { debugging_ = isOn; }

 private:
  enum class Kind : std::uint8_t { blank, code, debugging, continuation, directive };

  // A line of the file, looked at by itself.
  struct Laid {
    Kind kind = Kind::blank;
    bool isPlain = false;
    bool areaA = false;
    std::int32_t number = 0;
    std::int32_t column = 0;
    std::string_view text;   // Without blanks at its ends.
    std::string_view whole;  // With those at its end, up to the right margin.
    std::size_t room = 0;    // How many columns are left up to the right margin.
  };

  // What a line is cut into: the indicator and the code.
  struct Cut {
    std::string_view sequence;
    char indicator = ' ';
    std::string_view fromIndicator;
    std::string_view code;
    std::int32_t column = 0;
    std::size_t room = 0;
    bool isPlain = false;
  };

  bool layNext(Laid& laid);
  void lay(std::string_view line, Laid& laid);
  static bool isDrawn(std::string_view line);
  static std::string_view withoutMark(std::string_view line);
  void layColumns(std::string_view line, Laid& laid);
  void tellWide(std::string_view line, const Laid& laid);
  void layFree(std::string_view line, Laid& laid);
  bool layOddStart(std::string_view line, Laid& laid);
  Cut cut(std::string_view line);
  void setText(Laid& laid, std::string_view code, std::int32_t column);
  void findAhead();
  void continueAhead();
  bool isCode(const Laid& laid) const;
  void join(SourceLine& line);

  const std::string_view text_;
  const bool isPlain_;
  SourceFormat format_;
  const std::int32_t file_;
  TextArena& arena_;
  SourceReport& report_;
  bool debugging_ = false;
  bool codeSeen_ = false;
  bool wideTold_ = false;
  std::size_t at_ = 0;
  std::int32_t number_ = 0;
  Laid current_;
  Laid ahead_;
  bool hasAhead_ = false;
};

// Whether `text`, which begins with "$", is a directive.
bool isDollarDirective(std::string_view text);

// Without the blanks at its ends. Control characters are blanks.
std::string_view trimmed(std::string_view text);

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_SOURCELINES_H_
