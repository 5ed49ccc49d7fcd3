// Tests of JSON that is told member by member: its text is that of the whole.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "toolkit/generate/JsonText.h"

namespace {

using as::toolkit::gen::JsonText;
using Json = nlohmann::ordered_json;

std::string textOf(const Json& json) {
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

TEST(JsonText, IsThatOfTheWhole) {
  const Json values[] = {
      nullptr,
      true,
      -12,
      1.5,
      "",
      "two\nlines, a \"quote\" and \xC3\xA4",
      Json::array(),
      Json::object(),
      {1, {{"in", {"an", "array"}}}, Json::array({Json::array()})},
      {{"of", {{"some", {{"depth", 1}}}}}, {"and", "width"}},
  };
  Json whole = Json::object();
  JsonText text;
  for (const Json& value : values) {
    const std::string key = "key " + std::to_string(whole.size());
    text.member(key, value);
    whole[key] = value;
  }
  EXPECT_EQ(text.take(), textOf(whole));
}

TEST(JsonText, HoldsObjectsThatAreToldMemberByMember) {
  JsonText text;
  text.open("outer");
  text.member("first", 1);
  text.open("inner");
  text.member("a", {{"b", "c"}});
  text.close();
  text.open("empty");
  text.close();
  text.close();
  text.member("last", 2);
  EXPECT_EQ(text.take(),
            textOf({{"outer",
                     {{"first", 1}, {"inner", {{"a", {{"b", "c"}}}}}, {"empty", Json::object()}}},
                    {"last", 2}}));
}

TEST(JsonText, OfNothingIsAnEmptyObject) { EXPECT_EQ(JsonText().take(), "{}\n"); }

TEST(JsonText, ReplacesWhatIsNoUtf8InKeysToo) {
  JsonText text;
  text.member("\xFF", "\xC3");
  EXPECT_EQ(text.take(), "{\n  \"\xEF\xBF\xBD\": \"\xEF\xBF\xBD\"\n}\n");
}

}  // namespace
