// Reads what generators need of COBOL items.
#ifndef TOOLKIT_GENERATE_ITEMFACTS_H_
#define TOOLKIT_GENERATE_ITEMFACTS_H_

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "as/toolkit/Picture.h"
#include "toolkit/generate/ServiceModel.h"

namespace as {
class IDataItem;
}

namespace as::toolkit::gen {

// Where an item stands: as dottedPath() has it, unless that is too long to be read, see
// ShortPath.h.
std::string shortPathOf(as::IDataItem& item);

// Each item is read once. The list must outlive it.
class ItemFacts {
 public:
  explicit ItemFacts(std::deque<Item>& items) : items_(items) {}

  // Its number in the list.
  std::size_t numberOf(as::IDataItem& item);

 private:
  std::string pathOf(as::IDataItem& item, const std::string& name);
  std::shared_ptr<const Item::Table> tableAround(as::IDataItem& item);
  const std::optional<Picture>& pictureOf(const std::string& text);

  std::deque<Item>& items_;
  std::unordered_map<as::IDataItem*, std::size_t> known_;
  // The group that the last item stands in, with its path. Most items stand behind one of theirs.
  as::IDataItem* group_ = nullptr;
  std::string groupPath_;
  std::unordered_map<as::IDataItem*, std::shared_ptr<const Item::Table>> tables_;
  std::unordered_map<std::string, std::optional<Picture>> pictures_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_ITEMFACTS_H_
