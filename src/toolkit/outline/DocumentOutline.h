// Where the elements and comments of a document stand in its text: what a model does not know.
#ifndef TOOLKIT_OUTLINE_DOCUMENTOUTLINE_H_
#define TOOLKIT_OUTLINE_DOCUMENTOUTLINE_H_

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/outline/TextPlace.h"

namespace as::toolkit {

class DocumentOutline {
 public:
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  // An element that the text of an entity holds stands where the document refers to the entity.
  struct Element {
    std::string_view name;  // Without a prefix.
    TextPlace place;        // Of its start tag.
    std::size_t parent;     // Its number; none for the root.
    std::size_t end = 0;    // The number behind those of the elements in it.
  };

  // Those in the text of entities are left out.
  struct Comment {
    std::string_view text;
    TextPlace place;
    std::size_t parent;  // The element around it; none outside of the root.
    std::size_t next;    // The number of the next element to start; may be that of none.
  };

  // Of the text of a document, in UTF-8, that the library has read: what it refuses need not be
  // told right. Takes time and memory in proportion to the text, and to what entities come to
  // within the library's limits.
  explicit DocumentOutline(std::string text);
  DocumentOutline(const DocumentOutline&) = delete;
  DocumentOutline& operator=(const DocumentOutline&) = delete;

  // In the order of the document; the first is the root. Empty when the text could not be followed.
  const std::vector<Element>& elements() const { return elements_; }
  const std::vector<Comment>& comments() const { return comments_; }

  // The children of that name of an element; without elements below none.
  std::vector<std::size_t> childrenOf(std::size_t element, std::string_view name) const;
  // The first of them.
  std::size_t childOf(std::size_t element, std::string_view name) const;

 private:
  friend class OutlineScanner;

  std::string text_;
  std::deque<std::string> entityTexts_;  // That names of elements stand in.
  std::vector<Element> elements_;
  std::vector<Comment> comments_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_OUTLINE_DOCUMENTOUTLINE_H_
