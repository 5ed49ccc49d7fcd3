// Has the DOM of a document run out of memory.
#ifndef TESTS_MEMORY_DOMMEMORY_H_
#define TESTS_MEMORY_DOMMEMORY_H_

#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/DOMMemoryManager.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "memory/Allocations.h"
#include "xml/ElementImpl.h"

namespace memory {

// The DOM allocates in blocks, so that hardly a change needs a new one.
class DomMemory {
 public:
  // Beyond the size of what the DOM allocates outside of blocks, and a size of nothing else.
  static constexpr XMLSize_t blockSize = 5008;

  // Of the document that `root` is the root of.
  explicit DomMemory(as::IElement& root)
      : manager_(static_cast<xercesc::DOMMemoryManager*>(
            as::interface_cast<CElementImpl>(&root)->getElement()->getOwnerDocument()->getFeature(
                xercesc::XMLUni::fgXercescInterfaceDOMMemoryManager, nullptr))) {}

  // Makes what fails when the DOM has handed out a little more the later the number.
  Failing failingAt(long number) {
    leave(static_cast<XMLSize_t>(number - 1) * 2 * step);
    return Failing::ofSize(blockSize);
  }

 private:
  static constexpr XMLSize_t step = 16;

  // Has the DOM need a new block, of blockSize, when it has handed out `bytes` more.
  void leave(XMLSize_t bytes) {
    manager_->setMemoryAllocationBlockSize(blockSize);
    for (const long given = givenToParser(); given == givenToParser();) {
      manager_->allocate(step);
    }
    for (XMLSize_t left = blockSize - 2 * step; left > bytes; left -= step) {
      manager_->allocate(step);
    }
    manager_->setMemoryAllocationBlockSize(blockSize);
  }

  xercesc::DOMMemoryManager* manager_;
};

}  // namespace memory

#endif  // TESTS_MEMORY_DOMMEMORY_H_
