// Rows of tables of documents made to do harm: how each is made, who is asked for it, and what must
// come of it. An instantiation of HostileDocument with such rows has every form of the request made
// for each, with a server listening that nobody must connect to.
#ifndef TESTS_HOSTILE_ROW_H_
#define TESTS_HOSTILE_ROW_H_

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "as/Namespaces.h"
#include "support/Requests.h"

namespace hostile {

// Who is asked: the request for dictionaries, or that for services.
struct Kind {
  const char* label;
  as::Namespace own;
  const char* root;
};

inline constexpr Kind dictionary = {"Dictionary", as::namespaces::dd, "program"};
inline constexpr Kind web = {"Web", as::namespaces::ws, "service"};
inline constexpr Kind com = {"COM", as::namespaces::com, "service"};
inline constexpr Kind java = {"Java", as::namespaces::java, "service"};
inline constexpr Kind dotNet = {"DotNet", as::namespaces::dotnet, "service"};
inline constexpr Kind kinds[] = {dictionary, web, com, java, dotNet};

inline bool isDictionary(const Kind& kind) { return std::string(kind.root) == dictionary.root; }

// A document of the kind that names its schema as it should, with more in front of the root, among
// its attributes and inside it.
inline std::string documentOf(const Kind& kind, const std::string& content = "",
                              const std::string& attributes = "", const std::string& before = "") {
  const std::string uri = kind.own.uri;
  return before + "<" + kind.root + " xmlns='" + uri +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + uri +
         " " + uri + "' name='P' " + attributes + ">" + content + "</" + kind.root + ">";
}

// A text that is made when it is needed: some are large.
class Text {
 public:
  Text(std::string text) : make_([text = std::move(text)] { return text; }) {}
  Text(const char* text) : Text(std::string(text)) {}
  template <class Make, class = std::enable_if_t<std::is_invocable_r_v<std::string, Make>>>
  Text(Make make) : make_(std::move(make)) {}

  std::string operator()() const { return make_(); }

 private:
  std::function<std::string()> make_;
};

constexpr int anyLine = -1;

// What a request must come to.
struct Answer {
  test::Result result;
  std::string text = "";  // Part of what the exception tells.
  int line = anyLine;     // That it tells.
};

inline Answer model() { return {test::Result::root}; }
inline Answer foreign() { return {test::Result::namespaceException}; }
inline Answer refused(const std::string& text, int line = anyLine) {
  return {test::Result::parseException, text, line};
}

enum class Schemas {
  shipped,
  none,  // No schema directory is set.
  own    // Those beside the document.
};

struct File {
  std::string name;
  Text text;
};

// In all texts "@NET@" stands for the server that listens, "@DIR@" for the folder of the document,
// "@SHIPPED@" for that of the shipped schemas.
struct Row {
  std::string label;
  Answer answer;
  Text document;
  std::vector<File> files = {};  // Beside the document.
  Kind kind = dictionary;
  Schemas schemas = Schemas::shipped;
  bool loadProgram = false;
};

inline void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

class HostileDocument : public testing::TestWithParam<Row> {};

// The rows that `make` has for each kind.
template <class Make>
std::vector<Row> ofEveryKind(const Make& make) {
  std::vector<Row> all;
  for (const Kind& kind : kinds) {
    for (Row& row : make(kind)) {
      row.label += std::string("Of") + kind.label;
      row.kind = kind;
      all.push_back(std::move(row));
    }
  }
  return all;
}

}  // namespace hostile

#endif  // TESTS_HOSTILE_ROW_H_
