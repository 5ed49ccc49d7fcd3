#include "toolkit/walk/ItemIndex.h"

#include <utility>
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
  // The entries on the way to the current item; null from the first unreachable one on.
  std::vector<const Entry*> way = {&top_};
  const Entry* last = &top_;
  walkItems(
      program.getDataItems(),
      [&](as::IDataItem& item, std::size_t depth) {
        const Entry* const around = way.back();
        std::string name = item.getName();
        const bool isReachable = around != nullptr && !isUnreachable(name, depth);
        if (!isReachable) {
          way.push_back(nullptr);
          return;
        }
        const auto [found, isNew] = entries_.insert(Entry{around, std::move(name), &item});
        way.push_back(&*found);
        if (isNew) last = last->next = &*found;
      },
      [&](as::IDataItem&) { way.pop_back(); });
}

as::IDataItem* ItemIndex::find(std::string_view path) const {
  if (path.empty()) return nullptr;
  // A period at the end separates nothing.
  if (path.back() == '.') path.remove_suffix(1);
  const Entry* at = &top_;
  while (at != nullptr) {
    const std::size_t period = path.find('.');
    at = below(at, path.substr(0, period));
    if (period == std::string_view::npos) break;
    path.remove_prefix(period + 1);
  }
  return at == nullptr ? nullptr : at->first;
}

const ItemIndex::Entry* ItemIndex::below(const Entry* around, std::string_view name) const {
  if (around == nullptr) return nullptr;
  const auto found = entries_.find(Key{around, name});
  return found == entries_.end() ? nullptr : &*found;
}

}  // namespace as::toolkit
