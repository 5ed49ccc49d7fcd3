#include "toolkit/text/TextTable.h"

#include <algorithm>
#include <ostream>

#include "toolkit/text/Phrases.h"

namespace as::toolkit {

namespace {

constexpr std::size_t gap = 2;  // Between columns, and in front of the first.

}  // namespace

TextTable::TextTable(const std::vector<Column>& columns) {
  for (const Column& column : columns) {
    columns_.push_back({column, characterCount(column.title), false});
  }
}

void TextTable::measure(const Row& row) {
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    if (row.cells[i].empty()) continue;
    MeasuredColumn& measured = columns_[i];
    measured.used = true;
    measured.width =
        std::max(measured.width, std::min(measured.column.maxWidth, characterCount(row.cells[i])));
  }
  if (!row.rest.empty() && row.cells.size() + 1 == columns_.size()) columns_.back().used = true;
}

void TextTable::printHeader(std::ostream& out) const {
  Row titles;
  for (std::size_t i = 0; i + 1 < columns_.size(); ++i) {
    titles.cells.emplace_back(columns_[i].used ? columns_[i].column.title : "");
  }
  if (columns_.back().used) titles.rest = columns_.back().column.title;
  print(out, titles);
}

void TextTable::print(std::ostream& out, const Row& row) const {
  std::string line;
  std::size_t written = 0;
  std::size_t start = gap;  // Where the column begins.
  const auto put = [&](const std::string& text, std::size_t at) {
    if (text.empty()) return;
    const std::size_t from = std::max(at, written + gap);
    line.append(from - written, ' ');
    line += text;
    written = from + characterCount(text);
  };
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    const MeasuredColumn& measured = columns_[i];
    if (!measured.used) continue;
    const std::string& cell = row.cells[i];
    const std::size_t taken = std::min(measured.width, characterCount(cell));
    put(cell, measured.column.rightAligned ? start + measured.width - taken : start);
    start += measured.width + gap;
  }
  put(row.rest, start);
  out << line << '\n';
}

}  // namespace as::toolkit
