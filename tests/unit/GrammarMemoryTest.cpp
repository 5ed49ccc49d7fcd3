// Tests of the memory for what is made of schemas.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/GrammarMemory.h"
#include "xml/Limits.h"

namespace {

TEST(GrammarMemory, GivesBlocksForEveryKindOfValue) {
  GrammarMemory memory;
  std::vector<void*> blocks;
  for (XMLSize_t size = 0; size < 100; size++) {
    void* const block = memory.allocate(size);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t), 0u);
    blocks.push_back(block);
  }
  for (void* const block : blocks) memory.deallocate(block);
  memory.deallocate(nullptr);
}

TEST(GrammarMemory, TellsOnceWhenItIsFull) {
  GrammarMemory memory;
  int told = 0;
  memory.whenFull([&] { told++; });
  constexpr XMLSize_t half = limits::schemaMemory / 2 - 100;
  void* const first = memory.allocate(half);
  void* const second = memory.allocate(half);
  EXPECT_EQ(told, 0);
  void* const more = memory.allocate(GrammarMemory::largestUntold + 1);
  void* const evenMore = memory.allocate(half);
  EXPECT_EQ(told, 1);
  for (void* const block : {first, second, more, evenMore}) memory.deallocate(block);
}

TEST(GrammarMemory, GivesBlocksThatWereFreedToOthersOfTheirSize) {
  GrammarMemory memory;
  memory.whenFull([] { throw std::length_error("full"); });
  // Of one size when rounded up, to 4 bytes or to 16.
  void* const first = memory.allocate(112);
  void* const second = memory.allocate(111);
  memory.deallocate(first);
  memory.deallocate(second);
  EXPECT_EQ(memory.allocate(110), second);
  EXPECT_EQ(memory.allocate(112), first);
  for (XMLSize_t i = 0; i < limits::schemaMemory / 100; i++) {
    memory.deallocate(memory.allocate(300));
  }
}

TEST(GrammarMemory, SmallBlocksAddUp) {
  GrammarMemory memory;
  memory.whenFull([] { throw std::length_error("full"); });
  for (XMLSize_t held = 0; held <= limits::schemaMemory; held += 500) memory.allocate(500);
  EXPECT_THROW(memory.allocate(GrammarMemory::largestUntold + 1), std::length_error);
}

// The parser's destructors ask for some.
TEST(GrammarMemory, GivesSmallBlocksHoweverFullItIs) {
  GrammarMemory memory;
  memory.whenFull([] { throw std::length_error("full"); });
  void* const most = memory.allocate(limits::schemaMemory - 1000);
  for (const XMLSize_t size :
       {XMLSize_t{1}, XMLSize_t{512}, XMLSize_t{513}, GrammarMemory::largestUntold}) {
    EXPECT_NO_THROW(memory.deallocate(memory.allocate(size))) << size;
  }
  memory.deallocate(most);
}

TEST(GrammarMemory, WhatIsFreedDoesNotCount) {
  GrammarMemory memory;
  memory.whenFull([] { throw std::length_error("full"); });
  for (int i = 0; i < 10; i++) memory.deallocate(memory.allocate(limits::schemaMemory / 2));
  EXPECT_THROW(memory.allocate(limits::schemaMemory + 1), std::length_error);
}

TEST(GrammarMemory, NoSizeIsTooLargeToBeCounted) {
  GrammarMemory memory;
  memory.whenFull([] { throw std::length_error("full"); });
  void* const block = memory.allocate(1);
  EXPECT_THROW(memory.allocate(static_cast<XMLSize_t>(-1)), std::length_error);
  memory.deallocate(block);
}

// LeakSanitizer tells if not.
TEST(GrammarMemory, FreesWhatIsLeft) {
  GrammarMemory memory;
  void* const first = memory.allocate(10);
  memory.allocate(20);
  void* const third = memory.allocate(3000);
  memory.allocate(4000);
  memory.deallocate(third);
  memory.deallocate(first);
}

// They may outlive it.
TEST(GrammarMemory, ExceptionsTakeTheirsElsewhere) {
  GrammarMemory memory;
  EXPECT_NE(memory.getExceptionMemoryManager(), &memory);
}

}  // namespace
