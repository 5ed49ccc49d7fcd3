// Encodings by their names, as the C library knows them.
#ifndef TOOLKIT_IMPORT_CODEPAGE_H_
#define TOOLKIT_IMPORT_CODEPAGE_H_

#include <array>
#include <string>
#include <string_view>

namespace as::toolkit {

// Frames characters of two bytes in EBCDIC, and what they were decoded to.
inline constexpr char shiftOut = '\x0E';
inline constexpr char shiftIn = '\x0F';

class CodePage {
 public:
  // Throws std::invalid_argument for an encoding that is not known.
  explicit CodePage(const std::string& name);

  bool isEbcdic() const { return isEbcdic_; }

  // Whether it has characters of two bytes.
  bool isWide() const { return isWide_; }

  // In UTF-8. Of EBCDIC, NEL and LF are line feeds, and what stands between shift-out and shift-in
  // on one line are characters of two bytes: where the code page has none, each pair becomes a
  // character of its own for private use, so that equal names stay equal, and others others.
  std::string decode(std::string_view bytes) const;

 private:
  std::string decodeShifted(std::string_view bytes) const;
  std::string decodeWide(std::string_view bytes) const;

  const std::string name_;
  std::array<std::string, 256> characters_;
  bool isEbcdic_ = false;
  bool isWide_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_CODEPAGE_H_
