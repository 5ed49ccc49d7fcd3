// Keeps what was made of the schemas of a directory from one request to the next.
#ifndef XML_SCHEMACACHE_H_
#define XML_SCHEMACACHE_H_

#include <cstddef>
#include <memory>
#include <string>

#include "xml/SharedSchemas.h"

class SchemaCache {
 public:
  // Calls attempt(schemas), which reads a document, with nothing but the schemas that are built in;
  // where that does not do, again with null. Its answer, or what it throws.
  template <class Attempt>
  static auto runOnce(const std::string& directory, const Attempt& attempt) {
    if (!directory.empty()) {
      try {
        return attempt(std::make_shared<SharedSchemas>(directory));
      } catch (const SharedSchemas::NotShared&) {
        // As if there were none.
      }
    }
    return attempt(nullptr);
  }

  // Calls attempt(schemas), which reads a document with what it is given, or by itself with null,
  // and may throw SharedSchemas::NotShared unless it is. Called again until it is content; its
  // last answer, or what it throws else, is that of this. Without a `directory` nothing is kept.
  template <class Attempt>
  auto run(const std::string& directory, const Attempt& attempt) {
    for (std::size_t tries = 0; tries < mostTries; tries++) {
      const std::shared_ptr<SharedSchemas> schemas = schemasOf(directory);
      if (schemas == nullptr) break;
      try {
        return attempt(schemas);
      } catch (const SharedSchemas::NotShared& missing) {
        if (!provide(missing.uri)) break;
      }
    }
    return attempt(nullptr);
  }

 private:
  // A document may name each of our namespaces; files may change all the time.
  static constexpr std::size_t mostTries = 8;

  // What is kept for the directory; null for none.
  const std::shared_ptr<SharedSchemas>& schemasOf(const std::string& directory);
  // Whether there is a schema for `uri` now that was missing or out of date.
  bool provide(const std::basic_string<XMLCh>& uri);

  std::shared_ptr<SharedSchemas> schemas_;
};

#endif  // XML_SCHEMACACHE_H_
