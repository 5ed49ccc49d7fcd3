// A place in a file.
#ifndef AS_TOOLKIT_SOURCELOCATION_H_
#define AS_TOOLKIT_SOURCELOCATION_H_

#include <string>

namespace as::toolkit {

// Line and column are counted from 1, columns in characters; 0 when there is none to tell.
struct SourceLocation {
  std::string file;  // As the caller, or the copybook's provider, names it.
  int line = 0;      // Of the file.
  int column = 0;    // Of the line.
};

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_SOURCELOCATION_H_
