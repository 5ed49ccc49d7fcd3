#include "support/Json.h"

template class nlohmann::basic_json<>;

namespace nlohmann {

void PrintTo(const json& value, std::ostream* out) { *out << value; }

}  // namespace nlohmann

namespace test {

nlohmann::json parsedJson(const std::string& text) {
  return nlohmann::json::parse(text, nullptr, false);
}

}  // namespace test
