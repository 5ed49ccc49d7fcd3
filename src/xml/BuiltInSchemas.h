// The schemas that the library comes with, as the XML parser had compiled them when it was built.
#ifndef XML_BUILTINSCHEMAS_H_
#define XML_BUILTINSCHEMAS_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

// What takes most of the time of a small document is to compile its schema. Schemas are read from
// the schema directory, whosever it is; for one that is the same to the byte as one of these the
// parser is spared that.
struct BuiltInSchema {
  const XMLCh* uri;
  std::string_view text;
  // As the parser writes it down: for this kind of machine, and for versions of the parser that
  // write it down in the same way, which a number in front tells.
  std::span<const std::uint64_t> grammar;
};

// All of them, made by cmake/CompileSchemas.cpp; none where that could not be run.
std::span<const BuiltInSchema> builtInSchemas();
// That of a namespace; null for none.
const BuiltInSchema* builtInSchema(const XMLCh* uri);

// A pool with the grammar of `schema`, which refers to namespaces as numberNamespaces() has them;
// null when the parser is of another version. (The grammar needs the names in its pool, and only an
// empty pool reads one.)
std::unique_ptr<xercesc::XMLGrammarPoolImpl> readBuiltIn(const BuiltInSchema& schema,
                                                         xercesc::MemoryManager* memory);

#endif  // XML_BUILTINSCHEMAS_H_
