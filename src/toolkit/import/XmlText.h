// Writes the text of an XML document.
#ifndef TOOLKIT_IMPORT_XMLTEXT_H_
#define TOOLKIT_IMPORT_XMLTEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace as::toolkit {

// Elements are written as they are told: open(), its attributes, and then its members or close().
class XmlText {
 public:
  XmlText();

  void open(std::string_view element);
  void attribute(std::string_view name, std::string_view value);
  void attribute(std::string_view name, int value);
  void flag(std::string_view name, bool isSet);
  void close(std::string_view element);

  // Whether a value held what XML cannot: control characters, and bytes that are no UTF-8. The
  // character for such ones, U+FFFD, stands in their places.
  bool hasReplaced() const { return hasReplaced_; }

  std::string take();

  // `value` as a document holds it: with that character in their places.
  static std::string heldOf(std::string_view value);

 private:
  void indent();
  void escape(std::string_view value);

  std::string text_;
  std::size_t depth_ = 0;
  bool isOpen_ = false;
  bool hasReplaced_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_XMLTEXT_H_
