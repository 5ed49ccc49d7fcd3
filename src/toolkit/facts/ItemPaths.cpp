#include "toolkit/facts/ItemPaths.h"

#include <vector>

namespace as::toolkit {

ItemPaths::ItemPaths(const DictionaryFacts& facts) {
  std::vector<bool> isOfFile(facts.items().size(), false);
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind != SectionFacts::Kind::file) continue;
    for (const ItemNumber record : section.records) isOfFile[record] = true;
  }
  for (ItemNumber i = 0; i < facts.items().size(); ++i) {
    const ItemNumber parent = facts[i].parent;
    if (parent != noItem) isOfFile[i] = isOfFile[parent];
    if (!isOfFile[i]) index_[parent].emplace(facts[i].name, i);
  }
}

ItemNumber ItemPaths::find(std::string_view path) const {
  path = path.substr(0, path.find('('));
  ItemNumber at = noItem;
  while (true) {
    const std::size_t period = path.find('.');
    const auto names = index_.find(at);
    if (names == index_.end()) return noItem;
    const auto found = names->second.find(path.substr(0, period));
    if (found == names->second.end()) return noItem;
    at = found->second;
    if (period == std::string_view::npos) return at;
    path.remove_prefix(period + 1);
  }
}

}  // namespace as::toolkit
