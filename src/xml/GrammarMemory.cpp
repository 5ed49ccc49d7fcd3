#include "xml/GrammarMemory.h"

#include <cstddef>
#include <new>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/Limits.h"

using xercesc::MemoryManager;
using xercesc::XMLPlatformUtils;

namespace {

// Where a block starts behind its header: at the strictest alignment.
constexpr std::size_t alignment = alignof(std::max_align_t);

constexpr std::size_t rounded(std::size_t size) {
  return (size + alignment - 1) / alignment * alignment;
}

}  // namespace

GrammarMemory::GrammarMemory() : blocks_{&blocks_, &blocks_, 0} {}

GrammarMemory::~GrammarMemory() {
  while (blocks_.after != &blocks_) {
    Header* const block = blocks_.after;
    blocks_.after = block->after;
    XMLPlatformUtils::fgMemoryManager->deallocate(block);
  }
}

void* GrammarMemory::allocate(XMLSize_t size) {
  if ((size > limits::schemaMemory || held_ > limits::schemaMemory - size) && tell_) {
    // What frees memory on the way out may need some.
    const std::function<void()> tell = std::exchange(tell_, nullptr);
    tell();
  }
  void* const place = XMLPlatformUtils::fgMemoryManager->allocate(rounded(sizeof(Header)) + size);
  auto* const block = new (place) Header{&blocks_, blocks_.after, size};
  block->after->before = block;
  blocks_.after = block;
  held_ += size;
  return static_cast<std::byte*>(place) + rounded(sizeof(Header));
}

void GrammarMemory::deallocate(void* pointer) {
  if (pointer == nullptr) return;
  void* const place = static_cast<std::byte*>(pointer) - rounded(sizeof(Header));
  const auto* const block = static_cast<const Header*>(place);
  block->before->after = block->after;
  block->after->before = block->before;
  held_ -= block->size;
  XMLPlatformUtils::fgMemoryManager->deallocate(place);
}

MemoryManager* GrammarMemory::getExceptionMemoryManager() {
  return XMLPlatformUtils::fgMemoryManager->getExceptionMemoryManager();
}
