#include "toolkit/import/CopybookLibrary.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "toolkit/import/Token.h"

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

bool isSystemCopybook(std::string_view name) {
  static constexpr std::string_view names[] = {
      "SQLCA",       "SQLDA",        "acugui.def",  "acucobol.def", "crtvars.def",
      "showmsg.def", "opensave.def", "fonts.def",   "lmresize.def", "winprint.def",
      "winhelp.def", "webbrows.def", "activex.def", "palette.def",  "screenio.cpy"};
  const std::string_view last = name.substr(name.find_last_of("/\\") + 1);
  const std::string_view product = name.substr(0, 3);
  return sameWord(product, "DFH") || sameWord(product, "CMQ") ||
         std::any_of(std::begin(names), std::end(names),
                     [&](std::string_view one) { return sameWord(one, last); });
}

bool standsWhereNamed(std::string name, const std::string& library, std::string found) {
  if (library.find("..") != std::string::npos) return false;
  std::replace(name.begin(), name.end(), '\\', '/');
  std::replace(found.begin(), found.end(), '\\', '/');
  const std::size_t end = name.find_last_of('/');
  return end == std::string::npos || found.find(name.substr(0, end + 1)) != std::string::npos;
}

}  // namespace as::toolkit
