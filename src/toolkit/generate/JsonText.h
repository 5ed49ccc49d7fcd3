// JSON documents that are made: members in the order they are told in, and their text.
#ifndef TOOLKIT_GENERATE_JSONTEXT_H_
#define TOOLKIT_GENERATE_JSONTEXT_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>

namespace as::toolkit::gen {

// An object with room for so many members: one that grows copies all that it holds.
nlohmann::ordered_json objectFor(std::size_t members);

// Adds a member to an object that has none of that name: in no more time for many than for few.
// (The object's own way looks for the key first, from the first member on.)
void append(nlohmann::ordered_json& object, const std::string& key, nlohmann::ordered_json value);

// The text of a document. What is no UTF-8 is replaced.
std::string jsonText(const nlohmann::ordered_json& json);

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_JSONTEXT_H_
