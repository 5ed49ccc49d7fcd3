// Rows of text in aligned columns, for tables that are too long to be kept: every row is measured
// first and printed later.
#ifndef TOOLKIT_TEXT_TEXTTABLE_H_
#define TOOLKIT_TEXT_TEXTTABLE_H_

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit {

// A column takes the room of its widest cell and its title. One in which every cell is empty is
// left out. The last column is for the rows' loose ends and takes what it needs.
class TextTable {
 public:
  struct Column {
    std::string_view title;
    bool rightAligned = false;
    // Wider cells get no more room; they push the rest of their row to the right.
    std::size_t maxWidth = 60;
  };

  struct Row {
    // For the leading columns ...
    std::vector<std::string> cells;
    // ... and what stands from the next column on, as wide as it is.
    std::string rest;
  };

  explicit TextTable(const std::vector<Column>& columns);

  void measure(const Row& row);

  // To be called when every row has been measured.
  void printHeader(std::ostream& out) const;
  void print(std::ostream& out, const Row& row) const;

 private:
  struct MeasuredColumn {
    Column column;
    std::size_t width = 0;
    bool used = false;
  };

  std::vector<MeasuredColumn> columns_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_TEXT_TEXTTABLE_H_
