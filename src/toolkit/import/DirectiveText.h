// The parts that a compiler directive is written with.
#ifndef TOOLKIT_IMPORT_DIRECTIVETEXT_H_
#define TOOLKIT_IMPORT_DIRECTIVETEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace as::toolkit {

struct DirectivePart {
  enum class Kind { word, number, literal, mark, end };
  Kind kind = Kind::end;
  std::string_view text;  // Of a literal without its quotes, doubled ones as they stand.
};

// Hands out the parts of a text, one after the other.
class DirectiveText {
 public:
  explicit DirectiveText(std::string_view text);

  const DirectivePart& peek() const { return current_; }
  DirectivePart take();
  bool isAtEnd() const { return current_.kind == DirectivePart::Kind::end; }

  // Takes the next part if it is that word, or that mark.
  bool accept(std::string_view wordOrMark);

 private:
  void scan();

  std::string_view rest_;
  DirectivePart current_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DIRECTIVETEXT_H_
