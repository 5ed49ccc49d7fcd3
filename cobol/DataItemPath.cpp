#include "cobol/DataItemPath.h"

#include <cstddef>

#include "as/IGroup.h"
#include "as/IList.h"

namespace {

// Follows the components from number `at` on through `items`.
as::IDataItem* follow(const std::vector<std::string>& components, std::size_t at,
                      as::IList* items) {
  if (items == nullptr) return nullptr;
  const bool isLast = at + 1 == components.size();
  const int count = items->getLength();
  for (int i = 0; i < count; i++) {
    auto* const item = as::interface_cast<as::IDataItem>(items->getItem(i));
    if (item == nullptr || item->getName() != components[at]) continue;
    if (isLast) return item;
    // An item that is no group cannot lead on, but one of the same name behind it may.
    if (item->getDataType() != as::IDataItem::TYPE_GROUP) continue;
    auto* const group = as::interface_cast<as::IGroup>(item);
    if (group == nullptr) continue;
    if (as::IDataItem* const found = follow(components, at + 1, group->getChildren())) return found;
  }
  return nullptr;
}

}  // namespace

std::vector<std::string> splitDataItemPath(const std::string& path) {
  const std::string names = path.substr(0, path.find('('));
  std::vector<std::string> components;
  std::size_t begin = 0;
  while (begin < names.size()) {
    const std::size_t dot = names.find('.', begin);
    components.push_back(names.substr(begin, dot == std::string::npos ? dot : dot - begin));
    if (dot == std::string::npos) break;
    begin = dot + 1;
  }
  return components;
}

as::IDataItem* findDataItem(const std::string& path, as::IProgram* program) {
  if (program == nullptr) return nullptr;
  const std::vector<std::string> components = splitDataItemPath(path);
  if (components.empty()) return nullptr;
  return follow(components, 0, program->getDataItems());
}
