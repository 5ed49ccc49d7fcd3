#include "toolkit/report/ReportSource.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "toolkit/text/Utf8.h"
#include "toolkit/text/Utf8Text.h"

namespace as::toolkit {

namespace {

namespace fs = std::filesystem;

// Nobody reads a source of more bytes in a browser.
constexpr std::uintmax_t largestSource = 16U << 20U;

std::string fromLatin1(const std::string& text) {
  std::string result;
  for (const char c : text) appendUtf8(result, static_cast<unsigned char>(c));
  return result;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    std::string line = text.substr(from, end - from);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    from = end + 1;
  }
  return lines;
}

std::string inCapitals(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  });
  return text;
}

}  // namespace

std::optional<ReportSource> findSource(const std::string& name,
                                       const std::vector<std::string>& folders) {
  const fs::path file = fs::path(name).filename();
  if (file.empty() || file == "." || file == "..") return std::nullopt;
  for (const std::string& folder : folders) {
    const fs::path path = fs::path(folder) / file;
    std::error_code failure;
    if (!fs::is_regular_file(path, failure) || fs::file_size(path, failure) > largestSource) {
      continue;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) continue;
    std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (!isUtf8(text)) text = fromLatin1(text);
    return ReportSource{file.string(), linesOf(text)};
  }
  return std::nullopt;
}

bool SourceLineCheck::isOf(const ItemFacts& item) const {
  if (source_ == nullptr || item.line < 1) return false;
  const auto line = static_cast<std::size_t>(item.line) - 1;
  if (line >= source_->lines.size()) return false;
  if (item.isUnnamed()) return true;
  // No line of COBOL is as long; one that is may be that of all items.
  constexpr std::size_t longest = 1000;
  const std::string text = source_->lines[line].substr(0, longest);
  return inCapitals(text).find(inCapitals(item.name)) != std::string::npos;
}

}  // namespace as::toolkit
