// Follows the literals of a text that comes in parts.
#ifndef TOOLKIT_IMPORT_QUOTESTATE_H_
#define TOOLKIT_IMPORT_QUOTESTATE_H_

#include <cstddef>
#include <string_view>

namespace as::toolkit {

class QuoteState {
 public:
  // Reads the next part; gives where a comment begins in it, or npos.
  std::size_t read(std::string_view part);

  bool isOpen() const { return open_; }
  char quote() const { return quote_; }

  // The place in the last part behind the last literal that ended there; npos when none did.
  std::size_t closedAt() const { return closedAt_; }

  // The next part goes on within a literal.
  void open(char quote);

  // The quote that the last part ended with is half of a doubled one; the next part begins with the
  // other half.
  void reopen();

 private:
  bool open_ = false;
  bool skipsFirst_ = false;
  char quote_ = '"';
  std::size_t closedAt_ = std::string_view::npos;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_QUOTESTATE_H_
