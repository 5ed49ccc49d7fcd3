#include "toolkit/flavour/WebParts.h"

#include <type_traits>
#include <utility>

#include "as/IWSFault.h"
#include "as/IWSField.h"
#include "as/IWSHeader.h"
#include "as/IWSOperation.h"
#include "toolkit/text/Words.h"

namespace as::toolkit {

namespace {

// A trait whose accessor answers a number for one of two words, or unknownCode.
Trait wordTrait(const char* key, int code, const char* first, const char* second) {
  return {key, key, code, code == 0 ? first : code == 1 ? second : ""};
}

// What the operation's headers, or faults, are like.
template <class T>
void addMessages(std::vector<Message>& messages, const char* kind, as::IList* list) {
  forEachMember<T>(list, [&](T& message) {
    int direction = as::IParameter::BY_OUT;
    std::vector<Trait> traits;
    if constexpr (std::is_same_v<T, as::IWSHeader>) {
      direction = message.getByType();
      traits.push_back({"byType", "byType", direction, directionWord(direction)});
    }
    traits.push_back(textTrait("namespace", message.getNamespace()));
    traits.push_back(useTrait("use", message.getUse()));
    messages.push_back({kind, &message, direction, std::move(traits), message.getParameters()});
  });
}

}  // namespace

Trait useTrait(const char* key, int code) { return wordTrait(key, code, "literal", "encoded"); }

Trait formTrait(const char* key, int code) {
  return wordTrait(key, code, "qualified", "unqualified");
}

Trait styleTrait(const char* key, int code) { return wordTrait(key, code, "rpc", "document"); }

Trait textTrait(const char* key, const std::string& text) { return {key, key, std::nullopt, text}; }

std::vector<Message> webMessagesOf(as::IOperation& operation) {
  std::vector<Message> messages;
  if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
    addMessages<as::IWSHeader>(messages, "header", web->getHeaders());
    addMessages<as::IWSFault>(messages, "fault", web->getFaults());
  }
  return messages;
}

as::IList* webAttributesOf(as::IField& field) {
  auto* const web = as::interface_cast<as::IWSField>(&field);
  return web == nullptr ? nullptr : web->getFieldAttributes();
}

}  // namespace as::toolkit
