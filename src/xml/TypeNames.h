// The names of a schema's types, made short for the parser.
#ifndef XML_TYPENAMES_H_
#define XML_TYPENAMES_H_

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/validators/common/Grammar.hpp>

// Takes the namespace out of the names of the types of elements. At each element the parser looks
// for the grammar of the namespace that the name of its type tells, to find what it has already
// where element and type are of the same schema: a tenth of a parse. Types are still found by their
// whole names, which are put into `memory`; that has to live as long as the grammar.
//
// REQUIRES: the grammar refers to no other, and none other refers to it; and none of its types is
// made from another: where one may not stand in for the other, the parser tells the name.
void shortenTypeNames(xercesc::Grammar& grammar, xercesc::MemoryManager* memory);

#endif  // XML_TYPENAMES_H_
