#include "xml/GrammarMemory.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/Limits.h"

using xercesc::MemoryManager;
using xercesc::XMLPlatformUtils;

GrammarMemory::~GrammarMemory() {
  while (links_.after != &links_) {
    Link* const gone = links_.after;
    links_.after = gone->after;
    XMLPlatformUtils::fgMemoryManager->deallocate(gone);
  }
}

bool GrammarMemory::isOverfull() const { return held_ > limits::schemaMemory; }

void* GrammarMemory::allocate(XMLSize_t size) {
  blocks_++;
  if (size > largestUntold && tell_ &&
      (size > limits::schemaMemory || held_ > limits::schemaMemory - size)) {
    // What frees memory on the way out may need some.
    const std::function<void()> tell = std::exchange(tell_, nullptr);
    tell();
  }
  std::byte* block = nullptr;
  if (size <= largestSmall) {
    const std::size_t rounded = (size + alignment - 1) / alignment * alignment;
    Free*& free = freeFor(rounded);
    if (free != nullptr) {
      block = reinterpret_cast<std::byte*>(free) - sizeof(Header);
      free = free->next;
      new (block) Header{size};
      return block + sizeof(Header);
    }
    block = cut(sizeof(Header) + rounded);
  } else {
    // No size is so large that its sum with a header is a small one.
    block = link(sizeof(Header) + std::min(size, static_cast<XMLSize_t>(PTRDIFF_MAX)));
  }
  new (block) Header{size};
  return block + sizeof(Header);
}

void GrammarMemory::deallocate(void* pointer) {
  if (pointer == nullptr) return;
  std::byte* const block = static_cast<std::byte*>(pointer) - sizeof(Header);
  const XMLSize_t size = reinterpret_cast<const Header*>(block)->size;
  if (size > largestSmall) {
    held_ -= sizeof(Header) + size;
    auto* const released = reinterpret_cast<Link*>(block - linkSize);
    released->before->after = released->after;
    released->after->before = released->before;
    XMLPlatformUtils::fgMemoryManager->deallocate(released);
  } else if (size != 0) {
    Free*& free = freeFor((size + alignment - 1) / alignment * alignment);
    free = new (pointer) Free{free};
  }
}

// A piece of a chunk; what is left of one that is too small for it is lost until the end.
std::byte* GrammarMemory::cut(std::size_t size) {
  if (size > left_) {
    chunk_ = link(chunkSize);
    left_ = chunkSize;
  }
  std::byte* const piece = chunk_;
  chunk_ += size;
  left_ -= size;
  return piece;
}

// So many bytes from elsewhere.
std::byte* GrammarMemory::link(std::size_t size) {
  void* const place = XMLPlatformUtils::fgMemoryManager->allocate(linkSize + size);
  held_ += size;
  auto* const made = new (place) Link{&links_, links_.after};
  made->after->before = made;
  links_.after = made;
  return static_cast<std::byte*>(place) + linkSize;
}

MemoryManager* GrammarMemory::getExceptionMemoryManager() {
  return XMLPlatformUtils::fgMemoryManager->getExceptionMemoryManager();
}
