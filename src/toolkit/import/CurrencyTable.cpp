#include "toolkit/import/CurrencyTable.h"

#include <utility>

#include "toolkit/import/Characters.h"

namespace as::toolkit {

void CurrencyTable::add(std::string symbol, int characters) {
  const auto [known, isNew] = bySymbol_.try_emplace(symbol, currencies_.size());
  if (isNew) {
    currencies_.push_back({std::move(symbol), characters});
  } else {
    currencies_[known->second].characters = characters;
  }
}

const CurrencyTable::Currency* CurrencyTable::lastIn(std::string_view text) const {
  const Currency* last = nullptr;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at + 1;
    while (end < text.size() && isWithinCharacter(text[end])) ++end;
    const auto found = bySymbol_.find(std::string(text.substr(at, end - at)));
    if (found != bySymbol_.end()) {
      const Currency* const currency = &currencies_[found->second];
      if (last == nullptr || currency > last) last = currency;
    }
    at = end;
  }
  return last;
}

}  // namespace as::toolkit
