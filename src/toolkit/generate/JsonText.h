// JSON documents that are made: members in the order they are told in, and their text.
#ifndef TOOLKIT_GENERATE_JSONTEXT_H_
#define TOOLKIT_GENERATE_JSONTEXT_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit::gen {

// An object with room for so many members: one that grows copies all that it holds.
nlohmann::ordered_json objectFor(std::size_t members);

// Adds a member to an object that has none of that name: in no more time for many than for few.
// (The object's own way looks for the key first, from the first member on.)
void append(nlohmann::ordered_json& object, const std::string& key, nlohmann::ordered_json value);

// The text of an object that is told member by member: a document is many times as large in memory
// as its text is. What is no UTF-8 is replaced.
class JsonText {
 public:
  JsonText() { begin(); }

  void member(std::string_view key, const nlohmann::ordered_json& value);

  // What comes next are members of the object of that key.
  void open(std::string_view key);
  void close();

  // The document, which ends. REQUIRES: every object that was opened is closed.
  std::string take();

 private:
  void begin();
  void startMember(std::string_view key);
  void startLine();

  std::string text_;
  std::vector<bool> areEmpty_;  // The objects that members stand in, outermost first.
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONTEXT_H_
