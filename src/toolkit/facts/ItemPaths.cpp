#include "toolkit/facts/ItemPaths.h"

#include <vector>

namespace as::toolkit {

ItemPaths::ItemPaths(const DictionaryFacts& facts) {
  std::vector<bool> isOfFile(facts.items().size(), false);
  for (const SectionFacts& section : facts.sections()) {
    if (section.kind != SectionFacts::Kind::file) continue;
    for (const ItemNumber record : section.records) isOfFile[record] = true;
  }
  // For each item the first one of its path.
  std::vector<ItemNumber> firsts(facts.items().size(), noItem);
  for (ItemNumber i = 0; i < facts.items().size(); ++i) {
    const ItemNumber parent = facts[i].parent;
    if (parent != noItem) isOfFile[i] = isOfFile[parent];
    if (isOfFile[i]) continue;
    const ItemNumber around = parent == noItem ? noItem : firsts[parent];
    firsts[i] = index_[around].emplace(facts[i].name, i).first->second;
  }
}

ItemNumber ItemPaths::find(std::string_view path) const {
  path = path.substr(0, path.find('('));
  // A period at the end separates nothing.
  if (!path.empty() && path.back() == '.') path.remove_suffix(1);
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
