// Changes texts of XML, and looks into them, without a parser.
#ifndef TESTS_SUPPORT_XMLTEXT_H_
#define TESTS_SUPPORT_XMLTEXT_H_

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace test {

inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    text.replace(at, from.size(), to);
    at += to.size();
  }
  return text;
}

inline std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; i++) result += text;
  return result;
}

// How often `part` stands in `text`.
inline int countOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) count++;
  return count;
}

// Every element under `prefix`.
inline std::string prefixed(const std::string& xml, const std::string& prefix) {
  std::string result;
  for (std::size_t i = 0; i < xml.size(); i++) {
    result += xml[i];
    const bool isTag = xml[i] == '<' || (xml[i] == '/' && i > 0 && xml[i - 1] == '<');
    if (isTag && i + 1 < xml.size() && std::isalpha(static_cast<unsigned char>(xml[i + 1])) != 0) {
      result += prefix;
    }
  }
  return result;
}

// With comments and processing instructions between all tags, and around the root.
inline std::string commented(const std::string& xml) {
  static const char* const nodes[] = {"<!-- plain -->",
                                      "<?target with data?>",
                                      "<!--\xC3\xA4 <service> & \"-' \xF0\x9F\x98\x80-->",
                                      "<?t?>",
                                      "<!---->",
                                      "<?t <a b=\"c\"> & \xE4\xB8\xAD?>"};
  std::string result = "<!-- before --><?before it?>";
  std::size_t count = 0;
  for (const char c : xml) {
    result += c;
    if (c == '>') result += nodes[count++ % std::size(nodes)];
  }
  return result + "<!-- behind --><?behind it?>";
}

// Each tag on a line of its own.
inline std::string onLines(const std::string& xml, const std::string& lineEnd) {
  return replaced(xml, "><", ">" + lineEnd + "   <");
}

// The comments and processing instructions, in document order.
inline std::vector<std::string> commentsOf(const std::string& xml) {
  const std::string text = replaced(replaced(xml, "\r\n", "\n"), "\r", "\n");
  std::vector<std::string> result;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    std::size_t end = std::string::npos;
    if (text.compare(at, 4, "<!--") == 0) end = text.find("-->", at + 4);
    if (text.compare(at, 2, "<?") == 0) end = text.find("?>", at) - 1;
    if (end >= text.size()) continue;
    if (text.compare(at, 6, "<?xml ") != 0) result.push_back(text.substr(at, end + 3 - at));
    at = end;
  }
  return result;
}

// The namespace declarations as name=value, sorted.
inline std::vector<std::string> declarationsOf(const std::string& xml) {
  std::vector<std::string> result;
  for (std::size_t at = xml.find("xmlns"); at != std::string::npos; at = xml.find("xmlns", at)) {
    const std::size_t quote = xml.find_first_of("\"'", at);
    const std::size_t end = xml.find(xml[quote], quote + 1);
    result.push_back(xml.substr(at, xml.find_first_of(" =", at) - at) + "=" +
                     xml.substr(quote + 1, end - quote - 1));
    at = end;
  }
  std::sort(result.begin(), result.end());
  return result;
}

// The names of the elements that do not begin with `prefix`.
inline std::vector<std::string> elementsWithout(const std::string& prefix, const std::string& xml) {
  std::vector<std::string> result;
  for (std::size_t at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1)) {
    for (const char* const other : {"!--", "?"}) {
      if (xml.compare(at + 1, std::string(other).size(), other) != 0) continue;
      at = xml.find(*other == '!' ? "-->" : "?>", at);
    }
    if (xml[at] != '<') continue;
    const std::size_t start = at + (xml[at + 1] == '/' ? 2 : 1);
    if (xml.compare(start, prefix.size(), prefix) != 0) {
      result.push_back(xml.substr(start, xml.find_first_of(" />\n", start) - start));
    }
  }
  return result;
}

// The element at the start of `text` that begins with `start`, up to `end`, without what layout
// puts between its elements. Attributes are written in the order of their names.
inline std::string elementIn(const std::string& text, const std::string& start,
                             const std::string& end) {
  const std::size_t from = text.find(start);
  const std::size_t to = from == std::string::npos ? from : text.find(end, from);
  if (to == std::string::npos) return "(no " + start + ")";
  std::string element;
  for (const char c : text.substr(from, to + end.size() - from)) {
    if (c == '\n') continue;
    if (c == ' ' && (element.empty() || element.back() == '>')) continue;
    element += c;
  }
  return element;
}

}  // namespace test

#endif  // TESTS_SUPPORT_XMLTEXT_H_
