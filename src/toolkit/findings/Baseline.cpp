#include "as/toolkit/Baseline.h"

#include <cerrno>
#include <optional>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Files.h"
#include "toolkit/findings/BaselineText.h"
#include "toolkit/io/Bytes.h"
#include "toolkit/render/JsonWriter.h"

namespace as::toolkit {

namespace {

// A document that was named in its place by mistake is not lost.
bool mayBeReplaced(const std::string& file) {
  std::string text;
  if (!readRegularFile(file, text) || text.empty()) return true;
  return rowsIn(text).has_value();
}

}  // namespace

Baseline::Baseline(std::string file) : file_(std::move(file)) {}
Baseline::~Baseline() = default;

void Baseline::read() {
  std::string text;
  errno = 0;
  if (!readRegularFile(file_, text)) {
    const std::string reason =
        errno == 0 ? "it is no file" : std::generic_category().message(errno);
    throw RefusedDocument({file_, 0, 0, "cannot be read: " + reason, ""});
  }
  const std::optional<std::vector<BaselineRow>> rows = rowsIn(text);
  if (!rows) {
    throw RefusedDocument({file_, 0, 0, "not a baseline of findings", "write a new one"});
  }
  for (const BaselineRow& row : *rows) counts_[{row.file, row.rule, row.place}] += row.count;
}

void Baseline::add(const std::string& document, const Finding& finding) {
  ++counts_[keyOf(document, finding)];
}

bool Baseline::take(const std::string& document, const Finding& finding) {
  const auto found = counts_.find(keyOf(document, finding));
  if (found == counts_.end() || found->second == 0) return false;
  --found->second;
  return true;
}

std::size_t Baseline::left() const {
  std::size_t all = 0;
  for (const auto& [key, number] : counts_) all += number;
  return all;
}

std::size_t Baseline::left(const std::string& document) {
  see(document);
  std::size_t all = 0;
  for (auto at = counts_.lower_bound({seen_, "", ""});
       at != counts_.end() && std::get<0>(at->first) == seen_; ++at) {
    all += at->second;
  }
  return all;
}

void Baseline::write() const {
  std::ostringstream out;
  // Else it would keep half of the text, and tell nobody, when memory runs out.
  out.exceptions(std::ios::badbit | std::ios::failbit);
  JsonWriter writer(out);
  writer.beginObject();
  writer.member("kind", baselineKind);
  writer.key("findings");
  writer.beginArray();
  for (const auto& [key, number] : counts_) {
    writer.beginObject();
    writer.member("file", std::get<0>(key));
    writer.member("rule", std::get<1>(key));
    writer.member("place", std::get<2>(key));
    writer.member("count", number);
    writer.end();
  }
  writer.end();
  writer.end();
  if (!mayBeReplaced(file_)) {
    throw RefusedDocument(
        {file_, 0, 0, "holds something other than a baseline of findings", "name another file"});
  }
  replaceFile(file_, out.str());
}

Baseline::Key Baseline::keyOf(const std::string& document, const Finding& finding) {
  see(document);
  return {seen_, finding.rule, finding.place};
}

void Baseline::see(const std::string& document) {
  if (!seen_.empty() && document == document_) return;
  // Standard input has no folder.
  std::string seen = document == "-" ? document : nameSeenFrom(file_, document);
  document_ = document;
  seen_ = std::move(seen);
}

}  // namespace as::toolkit
