// A line of a source by itself: what of it is code, and what kind of line it is.
#ifndef TOOLKIT_IMPORT_LINELAYOUT_H_
#define TOOLKIT_IMPORT_LINELAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "as/toolkit/SourceFormat.h"
#include "toolkit/import/SourceReport.h"
#include "toolkit/import/SourceText.h"
#include "toolkit/import/TextArena.h"

namespace as::toolkit {

enum class LineKind : std::uint8_t { blank, code, debugging, continuation, directive };

struct LaidLine {
  LineKind kind;
  bool isPlain;  // Only ASCII without tabs.
  bool areaA;    // It begins in columns 8 to 11 of a format that has them.
  std::int32_t number;
  std::int32_t column;
  std::string_view text;   // Without blanks at its ends.
  std::string_view whole;  // With those at its end, up to the right margin.
  std::size_t room;        // How many columns are left up to the right margin.

  // The text is `code` without the blanks at its ends, and `code` begins in that column. REQUIRES:
  // isPlain.
  void setText(std::string_view code, std::int32_t beginsIn);
};

class LineLayout {
 public:
  // `arena` and `report` must outlive it. REQUIRES: a format that is recognised already.
  LineLayout(const SourceText& text, SourceFormat format, std::int32_t file, TextArena& arena,
             SourceReport& report)
      : isPlain_(text.plain),
        isWide_(text.wide),
        format_(format),
        file_(file),
        arena_(arena),
        report_(report) {}

  SourceFormat format() const { return format_; }
  void setFormat(SourceFormat format) { format_ = format; }

  // In front of all code there may be cards with options for a compiler.
  void setCodeSeen(bool isSeen) { codeSeen_ = isSeen; }

  // All of `laid` but for its number, which has to be there.
  void lay(std::string_view line, LaidLine& laid);

 private:
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

  static bool isDrawn(std::string_view line);
  static std::string_view withoutMark(std::string_view line);
  void layColumns(std::string_view line, LaidLine& laid);
  void tellWide(std::string_view line, const LaidLine& laid);
  void layFree(std::string_view line, LaidLine& laid);
  bool layOddStart(std::string_view line, LaidLine& laid) const;
  bool layDirective(const Cut& parts, LaidLine& laid);
  Cut cut(std::string_view line);

  const bool isPlain_;
  const bool isWide_;
  SourceFormat format_;
  const std::int32_t file_;
  TextArena& arena_;
  SourceReport& report_;
  bool codeSeen_ = false;
  bool wideTold_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_LINELAYOUT_H_
