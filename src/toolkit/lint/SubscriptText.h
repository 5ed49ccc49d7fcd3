// Subscripts as they are written.
#ifndef TOOLKIT_LINT_SUBSCRIPTTEXT_H_
#define TOOLKIT_LINT_SUBSCRIPTTEXT_H_

#include <cstddef>
#include <string>

namespace as::toolkit {

// An open subscript for each of so many tables, of which there is one at least: "*,*".
inline std::string openSubscripts(std::size_t tables) {
  std::string text = "*";
  for (std::size_t i = 1; i < tables; ++i) text += ",*";
  return text;
}

}  // namespace as::toolkit

#endif  // TOOLKIT_LINT_SUBSCRIPTTEXT_H_
