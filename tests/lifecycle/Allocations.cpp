#include "lifecycle/Allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

long blocks = 0;
long allocations = 0;
long countdown = 0;
void (*stepAtZero)() = nullptr;

void* allocate(std::size_t size, std::size_t alignment) {
  allocations++;
  if (countdown > 0 && --countdown == 0) stepAtZero();
  const std::size_t rounded = (size + alignment) / alignment * alignment;
  void* const block = std::aligned_alloc(alignment, rounded);
  if (block == nullptr) throw std::bad_alloc();
  blocks++;
  return block;
}

void release(void* block) {
  if (block != nullptr) blocks--;
  std::free(block);
}

}  // namespace

namespace lifecycle {

long held() { return blocks; }

long made() { return allocations; }

void atAllocation(long n, void (*step)()) {
  stepAtZero = step;
  countdown = n;
}

}  // namespace lifecycle

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
