#include "xml/TypeNames.h"

#include <vector>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

using xercesc::ComplexTypeInfo;
using xercesc::Grammar;
using xercesc::MemoryManager;
using xercesc::RefHashTableOf;
using xercesc::XMLString;

void shortenTypeNames(Grammar& grammar, MemoryManager* memory) {
  RefHashTableOf<ComplexTypeInfo>* const types =
      static_cast<xercesc::SchemaGrammar&>(grammar).getComplexTypeRegistry();
  if (types == nullptr) return;
  std::vector<ComplexTypeInfo*> all;
  xercesc::RefHashTableOfEnumerator<ComplexTypeInfo> each(types);
  while (each.hasMoreElements()) all.push_back(&each.nextElement());
  for (ComplexTypeInfo* const type : all) {
    // The table knows the type by the very text that the type has.
    XMLCh* const name = XMLString::replicate(type->getTypeName(), memory);
    types->orphanKey(name);
    types->put(name, type);
    XMLString::copyString(type->getTypeName(), type->getTypeLocalName());
  }
}
