// The memory for what the XML parser makes of schemas, with a limit.
#ifndef XML_GRAMMARMEMORY_H_
#define XML_GRAMMARMEMORY_H_

#include <array>
#include <cstddef>
#include <functional>
#include <utility>
#include <xercesc/framework/MemoryManager.hpp>

// A content model of a few lines may be laid out to any size. A large block that goes beyond the
// limit is told to whoever wants to know, once, who may throw to end the parse. Smaller ones are
// given always: the parser's destructors need some, which must not throw. What grows without a
// bound of its own, the tables of a content model, comes to large blocks.
//
// Schemas are made of thousands of small blocks that go all at once: these are cut from large ones
// and used again by blocks of their size, which is faster than to allocate each.
class GrammarMemory final : public xercesc::MemoryManager {
 public:
  GrammarMemory() = default;
  // Frees what is left, too: where a parse ends half-way, the parser loses some of what it has
  // made.
  ~GrammarMemory() override;
  GrammarMemory(const GrammarMemory&) = delete;
  GrammarMemory& operator=(const GrammarMemory&) = delete;

  void whenFull(std::function<void()> tell) { tell_ = std::move(tell); }

  // Whether the limit has been passed, by blocks of whatever size: what is told too late to bound
  // what is made, but in time to have it refused.
  bool isOverfull() const;
  // How many blocks have been asked for.
  XMLSize_t blocks() const { return blocks_; }

  void* allocate(XMLSize_t size) override;
  void deallocate(void* pointer) override;
  // An exception may outlive this.
  xercesc::MemoryManager* getExceptionMemoryManager() override;

  // What a destructor of the parser's asks for at most: a stack of the elements that a content
  // model has, as many as Limits.def allows.
  static constexpr XMLSize_t largestUntold = 65536;

 private:
  static constexpr std::size_t alignment = alignof(std::max_align_t);
  static constexpr std::size_t largestSmall = 512;
  static constexpr std::size_t chunkSize = 65536;

  // In front of every block.
  struct alignas(alignment) Header {
    XMLSize_t size;
  };
  // In front of what comes from elsewhere: chunks, and blocks that are too large for one. Not
  // aligned itself: it is a member, too, and parsers are made where nothing stricter than a pointer
  // fits.
  struct Link {
    Link* before;
    Link* after;
  };
  static constexpr std::size_t linkSize = (sizeof(Link) + alignment - 1) / alignment * alignment;
  // In a small block that is free.
  struct Free {
    Free* next;
  };

  // The list of free blocks for so many bytes.
  Free*& freeFor(std::size_t size) { return free_[size / alignment]; }
  std::byte* cut(std::size_t size);
  std::byte* link(std::size_t size);

  XMLSize_t held_ = 0;  // From elsewhere.
  XMLSize_t blocks_ = 0;
  std::array<Free*, largestSmall / alignment + 1> free_ = {};
  std::byte* chunk_ = nullptr;  // What is left of the last one.
  std::size_t left_ = 0;
  Link links_{&links_, &links_};
  std::function<void()> tell_;
};

#endif  // XML_GRAMMARMEMORY_H_
