// Pieces of documents that are made to do harm.
#ifndef TESTS_HOSTILE_TEXTS_H_
#define TESTS_HOSTILE_TEXTS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "as/Namespaces.h"

namespace hostile {

inline const std::string ns = as::namespaces::dd.uri;

inline std::string repeated(const std::string& text, int times) {
  std::string result;
  result.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; i++) result += text;
  return result;
}

inline std::string doctype(const std::string& declarations) {
  return "<!DOCTYPE program [" + declarations + "]>";
}

// A program with these schema attributes in place of the usual hint.
inline std::string programWith(const std::string& attributes, const std::string& content = "") {
  return "<program xmlns='" + ns + "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
         attributes + " name='P'>" + content + "</program>";
}

inline std::string programWithHint(const std::string& location, const std::string& content = "") {
  return programWith("xsi:schemaLocation='" + ns + " " + location + "'", content);
}

// Ten of each in the next, that many times.
inline std::string laughs(const std::string& reference, const std::string& declare, int levels,
                          const std::string& innermost) {
  std::string text = "<!ENTITY " + declare + "e0 '" + innermost + "'>";
  for (int i = 1; i <= levels; i++) {
    text += "<!ENTITY " + declare + "e" + std::to_string(i) + " '" +
            repeated(reference + "e" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  return text;
}

inline const std::string anything =
    "<xs:complexType mixed='true'><xs:sequence><xs:any processContents='lax' minOccurs='0' "
    "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip'/>"
    "</xs:complexType>";

inline std::string elementOfAny(const std::string& name) {
  return "<xs:element name='" + name + "'>" + anything + "</xs:element>";
}

// A schema that lets anything into the elements named.
inline std::string laxSchema(const std::string& target, const std::vector<std::string>& names,
                             const std::string& content = "") {
  std::string text =
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified'" +
      (target.empty() ? "" : " targetNamespace='" + target + "'") + ">" + content;
  for (const std::string& name : names) text += elementOfAny(name);
  return text + "</xs:schema>";
}

// Parts of the messages of refusals.
inline constexpr char network[] = "not read over a network";
inline constexpr char special[] = "no regular file";
inline constexpr char complete[] = "documents must be complete";

}  // namespace hostile

#endif  // TESTS_HOSTILE_TEXTS_H_
