#include "xml/NamespaceNames.h"

namespace {

constexpr unsigned int buckets = 109;  // As the parser's own has.

}  // namespace

NamespaceNames::NamespaceNames(const xercesc::XMLStringPool* others, xercesc::MemoryManager* memory)
    : XMLSynchronizedStringPool(others, buckets, memory) {}

NamespaceNames::~NamespaceNames() = default;

unsigned int NamespaceNames::addOrFind(const XMLCh* name) {
  if (tell_) tell_();
  return XMLSynchronizedStringPool::addOrFind(name);
}
