#include "xml/BuiltInSchemas.h"

#include <algorithm>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

using xercesc::BinMemInputStream;
using xercesc::MemoryManager;
using xercesc::XMLGrammarPoolImpl;
using xercesc::XMLString;

const BuiltInSchema* builtInSchema(const XMLCh* uri) {
  const auto all = builtInSchemas();
  const auto found = std::find_if(all.begin(), all.end(), [&](const BuiltInSchema& schema) {
    return XMLString::equals(schema.uri, uri);
  });
  return found == all.end() ? nullptr : &*found;
}

std::unique_ptr<XMLGrammarPoolImpl> readBuiltIn(const BuiltInSchema& schema,
                                                MemoryManager* memory) {
  std::unique_ptr<XMLGrammarPoolImpl> pool(new (memory) XMLGrammarPoolImpl(memory));
  BinMemInputStream bytes(reinterpret_cast<const XMLByte*>(schema.grammar.data()),
                          schema.grammar.size_bytes(), BinMemInputStream::BufOpt_Reference, memory);
  try {
    pool->deserializeGrammars(&bytes);
  } catch (const xercesc::XMLException&) {
    return nullptr;
  }
  return pool;
}
