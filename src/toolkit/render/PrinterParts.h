// What the printed trees of dictionaries and services have in common.
#ifndef TOOLKIT_RENDER_PRINTERPARTS_H_
#define TOOLKIT_RENDER_PRINTERPARTS_H_

#include <cstddef>
#include <iosfwd>
#include <string>

namespace as {
class IList;
}

namespace as::toolkit {

// `text` as a cell at that depth of a tree.
std::string indented(std::size_t depth, const std::string& text);

// Collects the clauses of an entry, set off from each other.
class Clauses {
 public:
  void add(const std::string& clause);
  void addIf(bool condition, const char* clause);
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// The section of a document's properties; nothing when there are none.
void printProperties(std::ostream& out, as::IList* properties);

}  // namespace as::toolkit

#endif  // TOOLKIT_RENDER_PRINTERPARTS_H_
