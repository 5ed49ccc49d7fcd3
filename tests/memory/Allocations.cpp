#include "memory/Allocations.h"

#include <cstdlib>
#include <new>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace memory {

// The manager that the parser came with. What it has made so far it frees itself; nobody deletes
// it, and nobody else knows it any more.
xercesc::MemoryManager* replaced = nullptr;

}  // namespace memory

namespace {

long heldByUs = 0;
long parsersTotal = 0;
bool isParsers = false;  // What is being allocated or freed.

long failAt = 0;  // Counts down to 1; 0 for never.
memory::Failing::Whose failWhose = memory::Failing::anybodys;
std::size_t failSize = 0;  // 0 for none.
bool failed = false;

void* allocate(std::size_t size, std::size_t alignment) {
  const bool counts = failWhose == memory::Failing::anybodys || !isParsers;
  const bool fails = (failAt > 0 && counts && --failAt == 0) || (failSize != 0 && size == failSize);
  if (fails) {
    failed = true;
    throw std::bad_alloc();
  }
  const std::size_t rounded = (size + alignment) / alignment * alignment;
  void* const block = std::aligned_alloc(alignment, rounded);
  if (block == nullptr) throw std::bad_alloc();
  (isParsers ? parsersTotal : heldByUs)++;
  return block;
}

void release(void* block) {
  if (block != nullptr && !isParsers) heldByUs--;
  std::free(block);
}

// Tells the parser's memory from everybody else's.
class ParsersMemory : public xercesc::MemoryManager {
 public:
  ParsersMemory() {
    memory::replaced = xercesc::XMLPlatformUtils::fgMemoryManager;
    xercesc::XMLPlatformUtils::fgMemoryManager = this;
  }

  xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
  void* allocate(XMLSize_t size) override {
    isParsers = true;
    try {
      void* const block = ::operator new(size);
      isParsers = false;
      return block;
    } catch (...) {
      isParsers = false;
      throw xercesc::OutOfMemoryException();
    }
  }
  void deallocate(void* block) override {
    isParsers = true;
    ::operator delete(block);
    isParsers = false;
  }
};

// Never destroyed: the parser uses it until the process ends.
const ParsersMemory* const parsersMemory = new ParsersMemory;

}  // namespace

namespace memory {

long held() { return heldByUs; }

long givenToParser() { return parsersTotal; }

Failing::Failing(long n, Whose whose) {
  failed = false;
  failWhose = whose;
  failAt = n;
}

Failing Failing::ofSize(std::size_t size) {
  failed = false;
  failSize = size;
  return {};
}

Failing::~Failing() {
  failAt = 0;
  failSize = 0;
  failWhose = anybodys;
}

bool Failing::happened() { return failed; }

}  // namespace memory

void* operator new(std::size_t size) { return allocate(size, alignof(std::max_align_t)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
  release(block);
}

// Read by LeakSanitizer. The parser itself loses memory when an allocation of its own fails; what
// is ours is counted by held(), to the block.
extern "C" const char* __lsan_default_suppressions() { return "leak:libxerces-c"; }
