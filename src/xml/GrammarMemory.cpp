#include "xml/GrammarMemory.h"

#include <cstddef>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/Limits.h"

using xercesc::MemoryManager;
using xercesc::XMLPlatformUtils;

namespace {

// In front of every block: its size. As large as the strictest alignment.
constexpr std::size_t header = alignof(std::max_align_t);
static_assert(header >= sizeof(XMLSize_t));

}  // namespace

void* GrammarMemory::allocate(XMLSize_t size) {
  if ((size > limits::schemaMemory || held_ > limits::schemaMemory - size) && tell_) {
    // What frees memory on the way out may need some.
    const std::function<void()> tell = std::exchange(tell_, nullptr);
    tell();
  }
  void* const block = XMLPlatformUtils::fgMemoryManager->allocate(header + size);
  held_ += size;
  *static_cast<XMLSize_t*>(block) = size;
  return static_cast<std::byte*>(block) + header;
}

void GrammarMemory::deallocate(void* pointer) {
  if (pointer == nullptr) return;
  void* const block = static_cast<std::byte*>(pointer) - header;
  held_ -= *static_cast<XMLSize_t*>(block);
  XMLPlatformUtils::fgMemoryManager->deallocate(block);
}

MemoryManager* GrammarMemory::getExceptionMemoryManager() {
  return XMLPlatformUtils::fgMemoryManager->getExceptionMemoryManager();
}
