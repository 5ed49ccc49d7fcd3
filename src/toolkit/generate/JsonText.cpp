#include "toolkit/generate/JsonText.h"

#include <utility>

#include "toolkit/generate/TextWriter.h"

namespace as::toolkit::gen {

namespace {

using Json = nlohmann::ordered_json;
using Members = Json::object_t;

constexpr unsigned step = 2;

std::string dumped(const Json& json) {
  return json.dump(step, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

Json objectFor(std::size_t members) {
  Json object = Json::object();
  static_cast<Members::Container&>(object.get_ref<Members&>()).reserve(members);
  return object;
}

void append(Json& object, const std::string& key, Json value) {
  static_cast<Members::Container&>(object.get_ref<Members&>()).emplace_back(key, std::move(value));
}

void JsonText::begin() {
  text_ += '{';
  areEmpty_.push_back(true);
}

void JsonText::startLine() { text_.append(1, '\n').append(areEmpty_.size() * step, ' '); }

void JsonText::startMember(std::string_view key) {
  if (!areEmpty_.back()) text_ += ',';
  areEmpty_.back() = false;
  startLine();
  text_.append(dumped(key)).append(": ");
}

void JsonText::member(std::string_view key, const Json& value) {
  startMember(key);
  // No text in it holds the end of a line.
  const std::string text = dumped(value);
  std::string_view rest = text;
  makeRoom(text_, text.size() + text.size() / 2);
  for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
    text_.append(rest.substr(0, end));
    startLine();
    rest.remove_prefix(end + 1);
  }
  text_.append(rest);
}

void JsonText::open(std::string_view key) {
  startMember(key);
  begin();
}

void JsonText::close() {
  const bool isEmpty = areEmpty_.back();
  areEmpty_.pop_back();
  if (!isEmpty) startLine();
  text_ += '}';
}

std::string JsonText::take() {
  close();
  text_ += '\n';
  return std::move(text_);
}

}  // namespace as::toolkit::gen
