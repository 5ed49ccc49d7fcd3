#include "cli/Parcel.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace cli {

namespace {

std::size_t unsignedOf(int number) { return static_cast<std::size_t>(std::max(number, 0)); }

}  // namespace

void Parcel::put(std::size_t number) {
  bytes_.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void Parcel::put(const std::string& text) {
  put(text.size());
  bytes_ += text;
}

void Parcel::put(const as::toolkit::Finding& finding) {
  put(finding.rule);
  put(static_cast<std::size_t>(finding.severity));
  put(finding.place);
  put(finding.problem);
  put(finding.advice);
  put(unsignedOf(finding.line));
  put(unsignedOf(finding.column));
}

void Parcel::put(const as::toolkit::FileFinding& finding) {
  put(finding.file);
  put(finding.finding);
  put(finding.copiedAt.size());
  for (const as::toolkit::SourceLocation& location : finding.copiedAt) {
    put(location.file);
    put(unsignedOf(location.line));
    put(unsignedOf(location.column));
  }
}

void Parcel::put(const as::toolkit::Refusal& refusal) {
  put(refusal.file);
  put(unsignedOf(refusal.line));
  put(unsignedOf(refusal.column));
  put(refusal.text);
  put(refusal.hint);
  put(std::size_t{refusal.isOfAnotherKind ? 1U : 0U});
}

void Parcel::put(const as::toolkit::Diff& diff) {
  put(std::size_t{diff.isOfServices ? 1U : 0U});
  put(diff.changes.size());
  for (const as::toolkit::Change& change : diff.changes) {
    put(change.kind);
    put(change.oldPlace);
    put(change.newPlace);
    put(change.oldValue);
    put(change.newValue);
    put(std::size_t{change.breaks ? 1U : 0U});
    put(std::size_t{change.isAllowed ? 1U : 0U});
    put(change.cause ? *change.cause + 1 : 0);
    put(change.service);
  }
  put(diff.services.size());
  for (const std::string& service : diff.services) put(service);
}

std::size_t OpenedParcel::number() {
  std::size_t number = 0;
  if (bytes_.size() - at_ < sizeof number) return 0;
  std::memcpy(&number, bytes_.data() + at_, sizeof number);
  at_ += sizeof number;
  return number;
}

std::string OpenedParcel::text() {
  const std::size_t size = std::min(number(), bytes_.size() - at_);
  at_ += size;
  return bytes_.substr(at_ - size, size);
}

as::toolkit::Finding OpenedParcel::finding() {
  as::toolkit::Finding finding;
  finding.rule = text();
  finding.severity = static_cast<as::toolkit::Severity>(number());
  finding.place = text();
  finding.problem = text();
  finding.advice = text();
  finding.line = static_cast<int>(number());
  finding.column = static_cast<int>(number());
  return finding;
}

as::toolkit::FileFinding OpenedParcel::fileFinding() {
  as::toolkit::FileFinding told;
  told.file = text();
  told.finding = finding();
  for (std::size_t left = number(); left > 0; --left) {
    as::toolkit::SourceLocation& location = told.copiedAt.emplace_back();
    location.file = text();
    location.line = static_cast<int>(number());
    location.column = static_cast<int>(number());
  }
  return told;
}

as::toolkit::Refusal OpenedParcel::refusal() {
  as::toolkit::Refusal refusal;
  refusal.file = text();
  refusal.line = static_cast<int>(number());
  refusal.column = static_cast<int>(number());
  refusal.text = text();
  refusal.hint = text();
  refusal.isOfAnotherKind = number() != 0;
  return refusal;
}

as::toolkit::Diff OpenedParcel::diff() {
  as::toolkit::Diff diff;
  diff.isOfServices = number() != 0;
  for (std::size_t left = number(); left > 0; --left) {
    as::toolkit::Change change;
    change.kind = text();
    change.oldPlace = text();
    change.newPlace = text();
    change.oldValue = text();
    change.newValue = text();
    change.breaks = number() != 0;
    change.isAllowed = number() != 0;
    const std::size_t cause = number();
    if (cause > 0) change.cause = cause - 1;
    change.service = text();
    diff.changes.push_back(std::move(change));
  }
  for (std::size_t left = number(); left > 0; --left) diff.services.push_back(text());
  return diff;
}

}  // namespace cli
