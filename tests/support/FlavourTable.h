// The README's table of the service flavours, taken apart.
#ifndef TESTS_SUPPORT_FLAVOURTABLE_H_
#define TESTS_SUPPORT_FLAVOURTABLE_H_

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

namespace test {

// A Markdown table between the lines "<!-- flavours -->" and "<!-- /flavours -->" of a file. Cells
// are plain text: without the blanks around them, and without backquotes. Empty when the file has
// no such lines.
class FlavourTable {
 public:
  using Row = std::vector<std::string>;

  explicit FlavourTable(const std::string& file) {
    std::ifstream in(file);
    bool inside = false;
    for (std::string line; std::getline(in, line);) {
      if (line == "<!-- /flavours -->") break;
      if (inside && !line.empty()) rows_.push_back(cellsOf(line));
      inside = inside || line == "<!-- flavours -->";
    }
  }

  // The first row, which names the columns; its own first cell is empty.
  Row head() const { return rows_.empty() ? Row() : rows_.front(); }

  // The rows under the head and the line that rules it off.
  std::vector<Row> body() const {
    return rows_.size() < 2 ? std::vector<Row>() : std::vector<Row>(rows_.begin() + 2, rows_.end());
  }

  // The first cell of every row of the body.
  std::vector<std::string> labels() const {
    std::vector<std::string> labels;
    for (const Row& row : body()) labels.push_back(row.front());
    return labels;
  }

  // The cell where the row of that label meets the column of that name; "(no such cell)" when
  // there is none.
  std::string cell(const std::string& label, const std::string& column) const {
    const Row names = head();
    const auto at =
        static_cast<std::size_t>(std::find(names.begin(), names.end(), column) - names.begin());
    for (const Row& row : body()) {
      if (row.front() == label && at < row.size()) return row[at];
    }
    return "(no such cell)";
  }

 private:
  // The cells of the line "| A | `B` |": "A" and "B".
  static Row cellsOf(const std::string& line) {
    Row cells;
    std::size_t from = line.find('|');
    for (std::size_t to = 0; from != std::string::npos; from = to) {
      to = line.find('|', from + 1);
      if (to == std::string::npos) break;
      cells.push_back(plain(line.substr(from + 1, to - from - 1)));
    }
    if (cells.empty()) cells.push_back(line);
    return cells;
  }

  static std::string plain(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '`'), text.end());
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
  }

  std::vector<Row> rows_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_FLAVOURTABLE_H_
