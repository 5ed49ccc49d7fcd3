#include "cobol/DataItemPath.h"

#include <algorithm>
#include <cstddef>

#include "as/IGroup.h"
#include "cobol/NamedItems.h"
#include "cobol/ProgramImpl.h"
#include "xml/XStr.h"

namespace {

using Components = std::vector<CXStr>;

// Follows the components from number `at` on through `items`, of whatever making.
as::IDataItem* follow(Components& components, std::size_t at, as::IList* items) {
  const bool isLast = at + 1 == components.size();
  NamedItems<as::IDataItem> named(items, components[at]);
  while (as::IDataItem* const item = named.next()) {
    if (isLast) return item;
    // An item that is no group cannot lead on, but one of the same name behind it may.
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
  if (CProgramImpl* const own = CProgramImpl::own(program)) {
    CXStr wide(path);
    return findDataItem(static_cast<const XMLCh*>(wide), *own);
  }
  const std::vector<std::string> names = splitDataItemPath(path);
  if (names.empty()) return nullptr;
  Components components(names.begin(), names.end());
  return follow(components, 0, program->getDataItems());
}

as::IDataItem* findDataItem(const XMLCh* path, CProgramImpl& program) {
  NameIndex::View left(path == nullptr ? u"" : path);
  left = left.substr(0, left.find(u'('));
  const NameIndex::Entry* at = nullptr;
  while (!left.empty()) {
    const std::size_t end = std::min(left.find(u'.'), left.size());
    at = program.dataItems(at, left.substr(0, end));
    if (at == nullptr) return nullptr;
    left.remove_prefix(std::min(end + 1, left.size()));
  }
  return at == nullptr ? nullptr : as::interface_cast<as::IDataItem>(at->first);
}
