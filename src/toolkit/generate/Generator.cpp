#include "toolkit/generate/Generator.h"

#include <algorithm>

namespace as::toolkit::gen {

Generator::~Generator() = default;

std::string Job::option(std::string_view name) const {
  const auto chosen = options.values.find(name);
  if (chosen != options.values.end()) return chosen->second;
  for (const GeneratorOption& option : kind.options) {
    if (name != option.name) continue;
    const std::string_view values = option.values;
    return std::string(values.substr(0, values.find('|')));
  }
  return "";
}

void Job::note(const char* rule, const std::string& place, const std::string& text) const {
  out.findings.push_back({rule, Severity::note, place, text, ""});
}

void Job::warn(const char* rule, const std::string& place, const std::string& text,
               const std::string& advice) const {
  out.findings.push_back({rule, Severity::warning, place, text, advice});
}

void Job::refuse(const char* rule, const std::string& place, const std::string& text,
                 const std::string& advice) const {
  out.findings.push_back({rule, Severity::error, place, text, advice});
}

std::string Job::banner() const {
  return "Made by AgentServices " AS_TOOLKIT_VERSION " from " + commentText(model.source);
}

std::string Job::fileStem() const {
  constexpr std::size_t longest = 100;
  std::string stem;
  for (const char32_t character : charactersOf(model.name)) {
    const bool isFine = isAsciiLetter(character) || isDigit(character) || character == U'_' ||
                        ((character == U'-' || character == U'.') && !stem.empty());
    stem += isFine ? static_cast<char>(character) : '_';
  }
  if (stem.size() <= longest) return stem.empty() ? "service" : stem;
  return stem.substr(0, longest) + "-" + digitsOfText(model.name);
}

std::string commentText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char byte : text) {
    const bool isControl = static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
    const char next = isControl ? ' ' : byte;
    const char last = result.empty() ? ' ' : result.back();
    if ((last == '*' && next == '/') || (last == '/' && next == '*') ||
        (last == '-' && next == '-')) {
      result += ' ';
    }
    // An escape in a comment counts in some languages (\u000a in Java).
    result += next == '\\' ? '/' : next;
  }
  return result;
}

}  // namespace as::toolkit::gen
