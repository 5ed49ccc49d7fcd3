#include "toolkit/findings/BaselineText.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace as::toolkit {

namespace {

using nlohmann::json;

// Takes the text as it comes: a value of the library's that holds others takes memory to be
// destroyed, and ends the process when there is none.
class Reader : public json::json_sax_t {
 public:
  bool isBaseline() const { return kind_ == baselineKind && hasFindings_; }
  std::vector<BaselineRow> takeRows() { return std::move(rows_); }

  bool null() override { return true; }
  bool boolean(bool /*value*/) override { return true; }
  bool number_integer(number_integer_t /*value*/) override { return true; }
  bool number_unsigned(number_unsigned_t value) override {
    // More than a program of 32 bits can count are as many as it can.
    constexpr number_unsigned_t most = std::numeric_limits<std::size_t>::max();
    if (isInRow() && key_ == "count") row_.count = static_cast<std::size_t>(std::min(value, most));
    return true;
  }
  bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return true; }
  bool binary(binary_t& /*value*/) override { return true; }
  bool string(string_t& value) override {
    if (depth_ == 1 && isObject_ && key_ == "kind") kind_ = value;
    if (!isInRow()) return true;
    if (key_ == "file") row_.file = value;
    if (key_ == "rule") row_.rule = value;
    if (key_ == "place") row_.place = value;
    return true;
  }

  bool key(string_t& value) override {
    if (depth_ == 1 || isInRow()) key_ = value;
    return true;
  }
  bool start_object(std::size_t /*members*/) override {
    if (depth_ == 0) isObject_ = true;
    if (depth_ == 2 && areFindings_) isRow_ = true;
    ++depth_;
    return true;
  }
  bool end_object() override {
    if (isInRow()) {
      rows_.push_back(std::exchange(row_, {}));
      isRow_ = false;
    }
    --depth_;
    return true;
  }
  bool start_array(std::size_t /*elements*/) override {
    if (depth_ == 1 && isObject_ && key_ == "findings") areFindings_ = hasFindings_ = true;
    ++depth_;
    return true;
  }
  bool end_array() override {
    --depth_;
    if (depth_ == 1) areFindings_ = false;
    return true;
  }
  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const nlohmann::detail::exception& /*error*/) override {
    return false;
  }

 private:
  // In it itself, not in what it may hold.
  bool isInRow() const { return isRow_ && depth_ == 3; }

  std::size_t depth_ = 0;  // How many objects and arrays are open.
  bool isObject_ = false;  // The whole.
  bool hasFindings_ = false;
  bool areFindings_ = false;  // The open array.
  bool isRow_ = false;
  std::string key_;
  std::string kind_;
  BaselineRow row_;
  std::vector<BaselineRow> rows_;
};

}  // namespace

std::optional<std::vector<BaselineRow>> rowsIn(const std::string& text) {
  Reader reader;
  if (!json::sax_parse(text, &reader) || !reader.isBaseline()) return std::nullopt;
  return reader.takeRows();
}

}  // namespace as::toolkit
