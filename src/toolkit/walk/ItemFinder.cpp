#include "toolkit/walk/ItemFinder.h"

#include <algorithm>
#include <cstddef>

namespace as::toolkit {

const ItemIndex::Entry* ItemFinder::below(const ItemIndex::Entry* around, std::string_view name) {
  const ItemIndex::Entry* const next = last_->next;
  const bool isNext = next != nullptr && next->is(around, name);
  const ItemIndex::Entry* const found = isNext ? next : index_->below(around, name);
  if (found != nullptr) last_ = found;
  return found;
}

void ItemFinder::follow(std::string_view way) {
  if (way == way_) return;
  group_ = index_->top();
  for (std::size_t from = 0; from <= way.size();) {
    const std::size_t to = std::min(way.find('.', from), way.size());
    group_ = below(group_, way.substr(from, to - from));
    from = to + 1;
  }
  way_ = way;
}

as::IDataItem* ItemFinder::find(std::string_view path) {
  if (path.empty()) return nullptr;
  // A period at the end separates nothing.
  if (path.back() == '.') path.remove_suffix(1);
  const std::size_t period = path.rfind('.');
  const ItemIndex::Entry* group = index_->top();
  if (period != std::string_view::npos) {
    follow(path.substr(0, period));
    group = group_;
    path.remove_prefix(period + 1);
  }
  const ItemIndex::Entry* const found = below(group, path);
  return found == nullptr ? nullptr : found->first;
}

}  // namespace as::toolkit
