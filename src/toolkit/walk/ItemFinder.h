// Finds the data items that one mapping after the other leads to.
#ifndef TOOLKIT_WALK_ITEMFINDER_H_
#define TOOLKIT_WALK_ITEMFINDER_H_

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "toolkit/walk/ItemIndex.h"

namespace as::toolkit {

// Fields of a structure are mostly mapped to the items of a group, in their order. So the item
// behind the last one is looked at first: it is nearer than what the index has to look up.
class ItemFinder {
 public:
  explicit ItemFinder(std::shared_ptr<const ItemIndex> index)
      : index_(std::move(index)), last_(index_->top()), group_(index_->top()) {}

  const std::shared_ptr<const ItemIndex>& index() const { return index_; }

  // What the index answers.
  as::IDataItem* find(std::string_view path);

 private:
  // To the group that the names lead to.
  void follow(std::string_view way);
  const ItemIndex::Entry* below(const ItemIndex::Entry* around, std::string_view name);

  std::shared_ptr<const ItemIndex> index_;
  const ItemIndex::Entry* last_;    // Found last.
  std::optional<std::string> way_;  // To the group of the item before ...
  const ItemIndex::Entry* group_;   // ... and where it led; null for nowhere.
};

}  // namespace as::toolkit

#endif  // TOOLKIT_WALK_ITEMFINDER_H_
