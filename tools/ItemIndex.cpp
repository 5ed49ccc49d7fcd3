#include "ItemIndex.h"

#include <cstddef>
#include <vector>

#include "ItemWalk.h"
#include "as/IProgram.h"

ItemIndex::ItemIndex(as::IProgram& program) {
  // How much of `path` leads to each of the groups around.
  std::vector<std::size_t> starts;
  std::string path;
  walkItems(
      program.getDataItems(),
      [&](as::IDataItem& item, std::size_t depth) {
        starts.push_back(path.size());
        const std::string name = item.getName();
        path += (depth == 0 ? "" : ".") + name;
        // These separate the names of a path.
        if (name.find_first_of(".(") == std::string::npos) items_.emplace(path, &item);
      },
      [&](as::IDataItem& /*item*/) {
        path.resize(starts.back());
        starts.pop_back();
      });
}

as::IDataItem* ItemIndex::find(const std::string& path) const {
  const auto found = items_.find(path);
  return found == items_.end() ? nullptr : found->second;
}
