#include "toolkit/generate/JsonText.h"

#include <utility>

namespace as::toolkit::gen {

namespace {

using Json = nlohmann::ordered_json;
using Members = Json::object_t;

}  // namespace

Json objectFor(std::size_t members) {
  Json object = Json::object();
  static_cast<Members::Container&>(object.get_ref<Members&>()).reserve(members);
  return object;
}

void append(Json& object, const std::string& key, Json value) {
  static_cast<Members::Container&>(object.get_ref<Members&>()).emplace_back(key, std::move(value));
}

std::string jsonText(const Json& json) {
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace as::toolkit::gen
