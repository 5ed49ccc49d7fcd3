// The memory for what the XML parser makes of schemas, with a limit.
#ifndef XML_GRAMMARMEMORY_H_
#define XML_GRAMMARMEMORY_H_

#include <functional>
#include <utility>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

// A content model of a few lines may be laid out to any size. What is beyond the limit is told to
// whoever wants to know, once, who may throw to end the parse.
class GrammarMemory final : public xercesc::MemoryManager {
 public:
  GrammarMemory();
  // Frees what is left: where a parse ends half-way, the parser loses some of what it has made.
  ~GrammarMemory() override;
  GrammarMemory(const GrammarMemory&) = delete;
  GrammarMemory& operator=(const GrammarMemory&) = delete;

  void whenFull(std::function<void()> tell) { tell_ = std::move(tell); }

  void* allocate(XMLSize_t size) override;
  void deallocate(void* block) override;
  // An exception may outlive this.
  xercesc::MemoryManager* getExceptionMemoryManager() override;

 private:
  // In front of every block.
  struct Header {
    Header* before;
    Header* after;
    XMLSize_t size;
  };

  XMLSize_t held_ = 0;
  Header blocks_;  // The two ends of the list of them.
  std::function<void()> tell_;
};

// That memory with the pool of grammars in it, for a parser to derive from virtually: made in front
// of the parser and destroyed behind it.
struct GrammarStore {
  GrammarMemory memory;
  xercesc::XMLGrammarPoolImpl grammars{&memory};
};

#endif  // XML_GRAMMARMEMORY_H_
