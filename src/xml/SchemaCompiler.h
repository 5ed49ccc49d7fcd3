// Has the XML parser compile a schema by itself, for others than a document.
#ifndef XML_SCHEMACOMPILER_H_
#define XML_SCHEMACOMPILER_H_

#include <string>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

// Has a new pool number the namespaces of the schemas: grammars refer to them by number, and those
// that a parse uses together have to agree. (Other names have numbers among themselves only.)
void numberNamespaces(xercesc::XMLStringPool& names);

// Compiles the schema in `text`, which is for the namespace `uri`, into `grammars`, as the parser
// of a document would. Null when the parser has something to tell of the schema, when that refers
// to another, or is for another namespace; what was made until then is lost to whoever owns the
// memory of `grammars`. The grammar is the pool's.
xercesc::Grammar* compileSchema(const XMLCh* uri, const std::string& text,
                                xercesc::XMLGrammarPoolImpl& grammars);

// The grammar for `uri` in `grammars`; null for none.
xercesc::Grammar* grammarIn(xercesc::XMLGrammarPoolImpl& grammars, const XMLCh* uri);

#endif  // XML_SCHEMACOMPILER_H_
