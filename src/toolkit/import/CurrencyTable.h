// The currency symbols that a program names, and how long what they stand for is.
#ifndef TOOLKIT_IMPORT_CURRENCYTABLE_H_
#define TOOLKIT_IMPORT_CURRENCYTABLE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace as::toolkit {

class CurrencyTable {
 public:
  struct Currency {
    std::string symbol;  // One character.
    int characters = 1;
  };

  // What is said of a symbol again counts instead.
  void add(std::string symbol, int characters);

  bool empty() const { return currencies_.empty(); }
  std::size_t size() const { return currencies_.size(); }

  // The one that was named first; null when there is none.
  const Currency* first() const { return currencies_.empty() ? nullptr : currencies_.data(); }

  // Of those in the text, the one that was named last; null when there is none. Takes time with the
  // text, however many there are.
  const Currency* lastIn(std::string_view text) const;

 private:
  std::vector<Currency> currencies_;
  std::unordered_map<std::string, std::size_t> bySymbol_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CURRENCYTABLE_H_
