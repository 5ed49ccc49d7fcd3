// Schemas that let more words through than those that are shipped.
#ifndef TESTS_SUPPORT_SCHEMASOFMOREWORDS_H_
#define TESTS_SUPPORT_SCHEMASOFMOREWORDS_H_

#include <filesystem>
#include <sstream>
#include <string>

#include "support/TempDirectory.h"

namespace test {

// The shipped schemas, in `directory`, with two more words in each of their lists: what they would
// refuse still reaches lint where a client reads documents with schemas of its own.
inline void writeSchemasOfMoreWords(const TempDirectory& directory) {
  for (const auto& entry : std::filesystem::directory_iterator(AS_SCHEMA_DIR)) {
    std::istringstream lines(contentOf(entry.path()));
    std::string schema;
    bool isFirst = false;
    for (std::string line; std::getline(lines, line);) {
      if (line.find("<xs:restriction") != std::string::npos) isFirst = true;
      if (isFirst && line.find("<xs:enumeration") != std::string::npos) {
        schema += "<xs:enumeration value='Int'/><xs:enumeration value='sometimes'/>";
        isFirst = false;
      }
      schema += line + "\n";
    }
    directory.write(entry.path().filename().string(), schema);
  }
}

}  // namespace test

#endif  // TESTS_SUPPORT_SCHEMASOFMOREWORDS_H_
