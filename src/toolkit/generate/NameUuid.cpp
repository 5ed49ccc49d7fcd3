#include "toolkit/generate/NameUuid.h"

#include <uuid/uuid.h>

namespace as::toolkit::gen {

namespace {

// That of the URL urn:agentservices.
constexpr const char* ownNamespace = "e01b3295-3b29-5706-99fa-193c6e82c6d2";

std::string textOf(const uuid_t& uuid) {
  char text[UUID_STR_LEN];
  uuid_unparse_lower(uuid, text);
  return text;
}

}  // namespace

std::string uuidOfName(std::string_view name) {
  uuid_t space;
  uuid_t made;
  uuid_parse(ownNamespace, space);
  uuid_generate_sha1(made, space, name.data(), name.size());
  return textOf(made);
}

std::string readUuid(std::string_view text) {
  constexpr std::size_t length = UUID_STR_LEN - 1;
  if (text.size() == length + 2 && text.front() == '{' && text.back() == '}') {
    text = text.substr(1, length);
  }
  uuid_t read;
  if (text.size() != length || uuid_parse(std::string(text).c_str(), read) != 0) return "";
  return textOf(read);
}

}  // namespace as::toolkit::gen
