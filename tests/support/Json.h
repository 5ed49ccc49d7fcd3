// JSON as tests look at it. What most of the compilation of a test that uses it would go to is
// compiled once, in Json.cpp.
#ifndef TESTS_SUPPORT_JSON_H_
#define TESTS_SUPPORT_JSON_H_

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

extern template class nlohmann::basic_json<>;

namespace nlohmann {

// How a failed test shows a value.
void PrintTo(const json& value, std::ostream* out);

}  // namespace nlohmann

namespace test {

// What `text` says; a discarded value when it is no JSON.
nlohmann::json parsedJson(const std::string& text);

}  // namespace test

#endif  // TESTS_SUPPORT_JSON_H_
