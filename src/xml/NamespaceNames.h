// The names of the namespaces that a parse comes across, with a look at each.
#ifndef XML_NAMESPACENAMES_H_
#define XML_NAMESPACENAMES_H_

#include <functional>
#include <utility>
#include <xercesc/util/SynchronizedStringPool.hpp>

// The parser asks for a name at every declaration of a namespace, as it goes through the attributes
// of an element of which it has told nobody yet. Whoever wants to know is told each time, and may
// throw to end the parse.
class NamespaceNames final : public xercesc::XMLSynchronizedStringPool {
 public:
  // Names are numbered behind those of `others`, which has to live as long and is left alone.
  NamespaceNames(const xercesc::XMLStringPool* others, xercesc::MemoryManager* memory);
  ~NamespaceNames() override;

  void whenAsked(std::function<void()> tell) { tell_ = std::move(tell); }

  unsigned int addOrFind(const XMLCh* name) override;

 private:
  std::function<void()> tell_;
};

#endif  // XML_NAMESPACENAMES_H_
