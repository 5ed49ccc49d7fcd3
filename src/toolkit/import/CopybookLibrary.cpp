#include "toolkit/import/CopybookLibrary.h"

#include <optional>
#include <utility>

namespace as::toolkit {

CopybookLibrary::Entry* CopybookLibrary::find(const std::string& name, const std::string& library) {
  // A name has no zero byte.
  std::string key = library;
  key += '\0';
  key += name;
  const auto [known, isNew] = asked_.try_emplace(std::move(key), nullptr);
  if (!isNew) return known->second;
  if (provider_ == nullptr) return nullptr;
  auto entry = std::make_unique<Entry>();
  try {
    std::optional<Copybook> found = provider_->find(name, library);
    if (!found) return nullptr;
    entry->name = std::move(found->name);
    entry->bytes = std::move(found->text);
  } catch (const CopybookError& error) {
    entry->name = known->first;
    entry->error = error.what();
  }
  std::string entryName = entry->name;
  known->second = entries_.try_emplace(std::move(entryName), std::move(entry)).first->second.get();
  return known->second;
}

}  // namespace as::toolkit
