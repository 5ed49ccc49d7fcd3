// Writes JSON piece by piece, so that a model of any size and depth needs no second copy in memory.
#ifndef TOOLKIT_RENDER_JSONWRITER_H_
#define TOOLKIT_RENDER_JSONWRITER_H_

#include <cstddef>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

namespace as::toolkit {

// Every value inside an object needs a key() before it. One line a member, indented.
class JsonWriter {
 public:
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  void beginObject() { begin('{', '}'); }
  void beginArray() { begin('[', ']'); }
  // Ends the object or array begun last.
  void end();

  void key(std::string_view name);
  // A text, a number, true, false or null.
  void value(const nlohmann::ordered_json& scalar);
  void member(std::string_view name, const nlohmann::ordered_json& scalar);

 private:
  struct Level {
    char closing;
    bool empty;
  };

  void begin(char opening, char closing);
  // Goes to where the next key or value belongs.
  void separate();
  void newLine();
  void write(const nlohmann::ordered_json& scalar);

  std::ostream& out_;
  std::vector<Level> levels_;
  bool afterKey_ = false;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_RENDER_JSONWRITER_H_
