#include "toolkit/render/JsonWriter.h"

#include <algorithm>
#include <ostream>
#include <string>

namespace as::toolkit {

using nlohmann::ordered_json;

void JsonWriter::end() {
  const Level ended = levels_.back();
  levels_.pop_back();
  if (!ended.empty) newLine();
  out_ << ended.closing;
  if (levels_.empty()) out_ << '\n';
}

void JsonWriter::key(std::string_view name) {
  separate();
  write(name);
  out_ << ": ";
  afterKey_ = true;
}

void JsonWriter::value(const ordered_json& scalar) {
  separate();
  write(scalar);
}

void JsonWriter::member(std::string_view name, const ordered_json& scalar) {
  key(name);
  value(scalar);
}

void JsonWriter::begin(char opening, char closing) {
  separate();
  out_ << opening;
  levels_.push_back({closing, true});
}

void JsonWriter::separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (levels_.empty()) return;
  if (!levels_.back().empty) out_ << ',';
  levels_.back().empty = false;
  newLine();
}

void JsonWriter::newLine() {
  // Nobody reads an indentation deeper than this, and the blanks of a document that nests as
  // deeply as it may would take more room than everything else.
  constexpr std::size_t deepest = 64;
  out_ << '\n' << std::string(2 * std::min(levels_.size(), deepest), ' ');
}

void JsonWriter::write(const ordered_json& scalar) {
  out_ << scalar.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace as::toolkit
