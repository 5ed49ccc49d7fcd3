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
  constexpr XMLSize_t most = limits::schemaMemory;
  void* const half = memory.allocate(most / 2);
  void* const other = memory.allocate(most / 2);
  EXPECT_EQ(told, 0);
  void* const more = memory.allocate(1);
  void* const evenMore = memory.allocate(1);
  EXPECT_EQ(told, 1);
  for (void* const block : {half, other, more, evenMore}) memory.deallocate(block);
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
  void* const third = memory.allocate(30);
  memory.allocate(40);
  memory.deallocate(third);
  memory.deallocate(first);
}

// They may outlive it.
TEST(GrammarMemory, ExceptionsTakeTheirsElsewhere) {
  GrammarMemory memory;
  EXPECT_NE(memory.getExceptionMemoryManager(), &memory);
}

}  // namespace
