#include "toolkit/generate/JsonText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace as::toolkit::gen {

namespace {

using Json = nlohmann::ordered_json;
using Members = Json::object_t;

bool isPlain(char byte) { return byte >= 0x20 && byte < 0x7F && byte != '"' && byte != '\\'; }

// Most of a document is plain strings and its layout: those are written here, all else by the JSON
// library.
class Writer {
 public:
  std::string text(const Json& json) {
    write(json);
    return std::move(text_) + "\n";
  }

 private:
  void write(const Json& json) {
    switch (json.type()) {
      case Json::value_t::object:
        writeObject(json.get_ref<const Members&>());
        return;
      case Json::value_t::array:
        writeArray(json.get_ref<const Json::array_t&>());
        return;
      case Json::value_t::string:
        writeString(json.get_ref<const std::string&>());
        return;
      default:
        text_ += json.dump();
    }
  }

  void writeObject(const Members& members) {
    if (members.empty()) {
      text_ += "{}";
      return;
    }
    ++depth_;
    char before = '{';
    for (const auto& [key, value] : members) {
      startLine(std::exchange(before, ','));
      writeString(key);
      text_ += ": ";
      write(value);
    }
    endLines('}');
  }

  void writeArray(const Json::array_t& values) {
    if (values.empty()) {
      text_ += "[]";
      return;
    }
    ++depth_;
    char before = '[';
    for (const Json& value : values) {
      startLine(std::exchange(before, ','));
      write(value);
    }
    endLines(']');
  }

  void writeString(std::string_view string) {
    if (std::all_of(string.begin(), string.end(), isPlain)) {
      text_.append("\"").append(string).append("\"");
    } else {
      text_ += Json(string).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
  }

  void startLine(char before) {
    text_ += before;
    text_.append("\n").append(2 * depth_, ' ');
  }

  void endLines(char end) {
    --depth_;
    text_.append("\n").append(2 * depth_, ' ');
    text_ += end;
  }

  std::size_t depth_ = 0;
  std::string text_;
};

}  // namespace

Json objectFor(std::size_t members) {
  Json object = Json::object();
  static_cast<Members::Container&>(object.get_ref<Members&>()).reserve(members);
  return object;
}

void append(Json& object, const std::string& key, Json value) {
  static_cast<Members::Container&>(object.get_ref<Members&>()).emplace_back(key, std::move(value));
}

std::string jsonText(const Json& json) { return Writer().text(json); }

}  // namespace as::toolkit::gen
