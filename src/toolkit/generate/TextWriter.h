// Text made line by line, indented as deep as it nests.
#ifndef TOOLKIT_GENERATE_TEXTWRITER_H_
#define TOOLKIT_GENERATE_TEXTWRITER_H_

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace as::toolkit::gen {

// Makes room for so much more. A text of megabytes gets plenty: what nothing is written to costs
// nothing, but to double the room over and over is to touch twice the memory that the text needs.
void makeRoom(std::string& text, std::size_t more);

class TextWriter {
 public:
  // What stands on a line, in pieces that nobody has to join.
  using Pieces = std::initializer_list<std::string_view>;

  explicit TextWriter(std::size_t step = 2) : step_(step) {}

  // A line of text that has no line ends of its own; an empty one is not indented.
  void line(std::string_view text = {}) { line(Pieces{text}); }
  void line(Pieces pieces);
  // The same, and what follows stands a step deeper.
  void open(std::string_view text) { open(Pieces{text}); }
  void open(Pieces pieces);
  // What follows stands a step higher, the line itself, too.
  void close(std::string_view text) { close(Pieces{text}); }
  void close(Pieces pieces);
  // Lines as they are.
  void block(std::string_view lines);
  void indent() { ++depth_; }
  void outdent() { --depth_; }

  const std::string& text() const { return text_; }
  std::string take() { return std::move(text_); }

 private:
  // Deeper ones are indented no further: output is to grow with what it holds.
  static constexpr std::size_t deepest = 40;

  std::size_t step_;
  std::size_t depth_ = 0;
  std::string text_;
};

}  // namespace as::toolkit::gen

#endif  // TOOLKIT_GENERATE_TEXTWRITER_H_
