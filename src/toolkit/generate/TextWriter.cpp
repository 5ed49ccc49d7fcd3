#include "toolkit/generate/TextWriter.h"

#include <algorithm>

namespace as::toolkit::gen {

void makeRoom(std::string& text, std::size_t more) {
  constexpr std::size_t large = 1 << 20;
  constexpr std::size_t plenty = 4;
  const std::size_t needed = text.size() + more;
  if (needed > text.capacity() && needed > large) text.reserve(plenty * needed);
}

void TextWriter::line(Pieces pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  const std::size_t blanks = size == 0 ? 0 : std::min(depth_, deepest) * step_;
  makeRoom(text_, blanks + size + 1);
  text_.append(blanks, ' ');
  for (const std::string_view piece : pieces) text_.append(piece);
  text_ += '\n';
}

void TextWriter::open(Pieces pieces) {
  line(pieces);
  indent();
}

void TextWriter::close(Pieces pieces) {
  outdent();
  line(pieces);
}

void TextWriter::block(std::string_view lines) {
  makeRoom(text_, lines.size());
  text_.append(lines);
}

}  // namespace as::toolkit::gen
