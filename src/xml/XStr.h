// The one conversion between the UTF-8 text of the public interface and the XMLCh text of the XML
// parser.
#ifndef XML_XSTR_H_
#define XML_XSTR_H_

#include <memory>
#include <string>
#include <xercesc/util/XercesDefs.hpp>

// Holds a text in UTF-8, which may be null (not the same as empty for the conversions to a
// pointer), and renders it as XMLCh, number or truth on request. A pointer that a conversion hands
// out is good until the object is changed, converted to XMLCh again or destroyed.
//
// Conversion never throws on bad text: what is no UTF-8 becomes U+FFFD, and what XMLCh text has no
// UTF-8 for becomes whatever the XML parser's transcoder puts in its place.
class CXStr {
 public:
  CXStr() = default;
  CXStr(const char* text);         // A copy; null for null.
  CXStr(const std::string& text);  // A copy up to the first zero, as C text is.
  CXStr(int number);               // In decimal.
  // The flag is of no effect; it keeps text and number constructors apart from this one.
  CXStr(const XMLCh* text, bool flag);
  // Goes through the other's XMLCh rendering, so an empty text makes a null one.
  CXStr(const CXStr& other);
  virtual ~CXStr() = default;

  CXStr& operator=(const char* text);
  // Keeps the present text when `text` is null or empty.
  CXStr& operator=(const XMLCh* text);
  CXStr& operator=(const CXStr& other);

  // A new rendering, terminated; null for a null text.
  operator const XMLCh*();
  // The text itself; null for a null text.
  operator char*();
  // The text; empty for a null text.
  operator std::string();
  // The decimal integer at the start of the text, as strtol reads it; 0 when there is none. What no
  // int holds becomes the nearest int.
  operator int();
  // True for the text "true" in any case.
  operator bool();

  // True when the text is null or of no length.
  bool isEmpty() const;

 private:
  void copyChars(const char* text, std::size_t length);
  void copyXMLCh(const XMLCh* text);
  // A rendering of the text as XMLCh; null for a null text.
  std::unique_ptr<XMLCh[]> rendered() const;

  std::unique_ptr<char[]> text_;
  std::unique_ptr<XMLCh[]> wide_;  // The latest that was handed out.
};

// What a CXStr of `text` answers as text, integer and truth, without making one: a text of ASCII
// alone, as nearly every attribute is, is read where it stands. Null counts as empty.
std::string textOf(const XMLCh* text);
int integerOf(const XMLCh* text);
bool truthOf(const XMLCh* text);

#endif  // XML_XSTR_H_
