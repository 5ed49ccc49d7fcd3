// Has the XML parser refuse the bytes that no UTF-8 has, in texts that are UTF-8. Left to itself it
// takes F5, F6 and F7 for the beginning of four bytes, and where 32 characters stand in front of
// them it passes over all four without a word.
#ifndef XML_UTF8GUARD_H_
#define XML_UTF8GUARD_H_

#include <xercesc/util/XercesDefs.hpp>

class Utf8Guard {
 public:
  static constexpr bool isNeverUtf8(XMLByte byte) { return byte > 0xF4; }

  // Puts one that the parser refuses in the place of each of them. To be called with all pieces of
  // a text, in order: how the first one begins tells whether it is UTF-8, as it tells the parser.
  void look(XMLByte* piece, XMLSize_t size);

 private:
  enum class Encoding { unknown, utf8, other };
  Encoding encoding_ = Encoding::unknown;
};

#endif  // XML_UTF8GUARD_H_
