#include "toolkit/import/SourceMap.h"

namespace as::toolkit {

std::int32_t SourceMap::add(const std::string& name, const SourcePlace& from) {
  const auto [known, isNew] = numbers_.try_emplace(name, names_.size());
  if (isNew) names_.push_back(name);
  inclusions_.push_back({known->second, from});
  return static_cast<std::int32_t>(inclusions_.size() - 1);
}

const std::string& SourceMap::name(std::int32_t file) const { return names_[at(file).name]; }

std::string SourceMap::textOf(const SourcePlace& place) const {
  std::string text;
  SourcePlace current = place;
  while (true) {
    text += name(current.file);
    if (current.line > 0) text += ':' + std::to_string(current.line);
    if (current.column > 0) text += ':' + std::to_string(current.column);
    if (current.file == 0) return text;
    text += ", copied at ";
    current = from(current.file);
  }
}

}  // namespace as::toolkit
