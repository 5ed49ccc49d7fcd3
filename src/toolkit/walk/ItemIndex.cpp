#include "toolkit/walk/ItemIndex.h"

#include <cstddef>
#include <vector>

#include "as/IProgram.h"
#include "toolkit/walk/ItemWalk.h"

namespace as::toolkit {

namespace {

// Periods and parentheses separate the parts of a path, and a "$" starts what is no item.
bool isUnreachable(const std::string& name, std::size_t depth) {
  return name.find_first_of(".(") != std::string::npos || (depth == 0 && name.rfind('$', 0) == 0);
}

}  // namespace

ItemIndex::ItemIndex(as::IProgram& program) {
  // How much of `path` leads to each of the groups around.
  std::vector<std::size_t> starts;
  std::string path;
  std::size_t unreachable = 0;  // How many of them have names that no path can hold.
  walkItems(
      program.getDataItems(),
      [&](as::IDataItem& item, std::size_t depth) {
        starts.push_back(path.size());
        const std::string name = item.getName();
        path += (depth == 0 ? "" : ".") + name;
        if (isUnreachable(name, depth)) ++unreachable;
        if (unreachable == 0) items_.emplace(path, &item);
      },
      [&](as::IDataItem& item) {
        path.resize(starts.back());
        starts.pop_back();
        if (isUnreachable(item.getName(), starts.size())) --unreachable;
      });
}

as::IDataItem* ItemIndex::find(const std::string& path) const {
  if (path.empty()) return nullptr;
  // A period at the end separates nothing.
  const bool isCut = path.back() == '.';
  const auto found = items_.find(isCut ? path.substr(0, path.size() - 1) : path);
  return found == items_.end() ? nullptr : found->second;
}

}  // namespace as::toolkit
