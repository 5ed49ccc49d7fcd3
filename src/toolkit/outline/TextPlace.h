// A place in the text of a document.
#ifndef TOOLKIT_OUTLINE_TEXTPLACE_H_
#define TOOLKIT_OUTLINE_TEXTPLACE_H_

namespace as::toolkit {

// Counted from 1, columns in characters; a tab is one, and a line ends with LF, CR LF or CR.
struct TextPlace {
  int line = 0;
  int column = 0;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_OUTLINE_TEXTPLACE_H_
