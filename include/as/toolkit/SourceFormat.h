// How the lines of a COBOL source are laid out.
#ifndef AS_TOOLKIT_SOURCEFORMAT_H_
#define AS_TOOLKIT_SOURCEFORMAT_H_

namespace as::toolkit {

// Where in its lines a source has code.
enum class SourceFormat {
  recognised,  // Told from the text, for each file by itself.
  fixed,       // Code in columns 8 to 72, an indicator in column 7.
  free,        // Code wherever it stands.
  variable,    // As fixed, with no end of the line at column 72.
};

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_SOURCEFORMAT_H_
