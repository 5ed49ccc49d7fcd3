// Reads what generators need of COBOL items.
#ifndef TOOLKIT_GENERATE_ITEMFACTS_H_
#define TOOLKIT_GENERATE_ITEMFACTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "as/toolkit/Picture.h"
#include "toolkit/generate/ServiceModel.h"

namespace as {
class IDataItem;
}

namespace as::toolkit::gen {

// Each item is read once. The list must outlive it.
class ItemFacts {
 public:
  explicit ItemFacts(std::vector<Item>& items) : items_(items) {}

  // Its number in the list.
  std::size_t numberOf(as::IDataItem& item);

 private:
  std::vector<Item::Table> tablesAround(as::IDataItem& item);
  const std::optional<Picture>& pictureOf(const std::string& text);

  std::vector<Item>& items_;
  std::unordered_map<as::IDataItem*, std::size_t> known_;
  std::unordered_map<as::IDataItem*, Item::Table> tables_;
  std::unordered_map<std::string, std::optional<Picture>> pictures_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_ITEMFACTS_H_
