// The library in a host that uses the XML parser itself. Each test is a process of its own, in
// which nothing has been started or loaded yet.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "lifecycle/Library.h"
#include "lifecycle/Work.h"

namespace {

using lifecycle::Library;
using xercesc::XMLPlatformUtils;

// A document of the host's own.
class HostsDocument {
 public:
  HostsDocument() { parser_.parse(AS_EXAMPLES_DIR "/PAYSLIP.xml"); }

  bool isIntact() {
    return parser_.getErrorCount() == 0 &&
           parser_.getDocument()->getElementsByTagName(u"*")->getLength() > 100;
  }

 private:
  xercesc::XercesDOMParser parser_;
};

// The host's memory, counted.
class HostsMemory : public xercesc::MemoryManager {
 public:
  xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
  void* allocate(XMLSize_t size) override {
    held++;
    return ::operator new(size);
  }
  void deallocate(void* block) override {
    if (block != nullptr) held--;
    ::operator delete(block);
  }

  long held = 0;
};

TEST(BesideDeathTest, HostThatStartedTheParserFirstKeepsIt) {
  EXPECT_EXIT(
      {
        XMLPlatformUtils::Initialize();
        {
          HostsDocument before;
          auto library = std::make_unique<Library>();
          library->work();
          HostsDocument meanwhile;
          library.reset();
          HostsDocument after;
          std::cerr << before.isIntact() << meanwhile.isIntact() << after.isIntact();
        }
        XMLPlatformUtils::Terminate();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^111$");
}

TEST(BesideDeathTest, HostMayStopTheParserInFrontOfTheLibrary) {
  EXPECT_EXIT(
      {
        XMLPlatformUtils::Initialize();
        Library library;
        const auto services = library.createAgentServices();
        auto service = lifecycle::parseService(*services);
        XMLPlatformUtils::Terminate();
        service->setName("still there");
        std::cerr << service->getName();
        service.reset();
        library.work();
        library.keep();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^still there$");
}

TEST(BesideDeathTest, HostMayStartAndStopTheParserWhileTheLibraryIsLoaded) {
  EXPECT_EXIT(
      {
        Library library;
        const auto services = library.createAgentServices();
        const auto service = lifecycle::parseService(*services);
        XMLPlatformUtils::Initialize();
        std::cerr << HostsDocument().isIntact();
        XMLPlatformUtils::Terminate();
        std::cerr << service->getName();
        library.work();
        library.keep();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^1Payslip$");
}

TEST(BesideDeathTest, HostMayStartTheParserWhenTheLibraryIsGone) {
  EXPECT_EXIT(
      {
        for (int i = 0; i < 3; i++) {
          Library().work();
          XMLPlatformUtils::Initialize();
          std::cerr << HostsDocument().isIntact();
          XMLPlatformUtils::Terminate();
        }
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^111$");
}

TEST(BesideDeathTest, UnloadedWhileTheHostRunsTheParserItGivesTheHostsMemoryBack) {
  EXPECT_EXIT(
      {
        HostsMemory memory;
        XMLPlatformUtils::Initialize("en_US", nullptr, nullptr, &memory);
        Library().work();  // The parser itself keeps some for later.
        const long before = memory.held;
        for (int i = 0; i < 5; i++) Library().work();
        std::cerr << memory.held - before;
        XMLPlatformUtils::Terminate();
        std::cerr << ' ' << memory.held;
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^0 0$");
}

}  // namespace
