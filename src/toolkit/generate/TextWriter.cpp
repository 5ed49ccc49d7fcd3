#include "toolkit/generate/TextWriter.h"

#include <algorithm>

namespace as::toolkit::gen {

void TextWriter::line(std::string_view text) {
  if (!text.empty()) text_.append(std::min(depth_, deepest) * step_, ' ').append(text);
  text_ += '\n';
}

void TextWriter::open(std::string_view text) {
  line(text);
  indent();
}

void TextWriter::close(std::string_view text) {
  outdent();
  line(text);
}

}  // namespace as::toolkit::gen
