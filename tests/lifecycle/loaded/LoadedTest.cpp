// The library in a host that loads and unloads it, and has nothing to do with the XML parser. Each
// test is a process of its own, which begins without the library.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>

#include "lifecycle/Allocations.h"
#include "lifecycle/Library.h"
#include "lifecycle/Work.h"
#include "support/TempDirectory.h"

namespace {

using lifecycle::Library;

// What the process holds.
struct Holdings {
  long blocks;
  std::ptrdiff_t maps;
  std::ptrdiff_t descriptors;
};

Holdings holdings() {
  Holdings now = {lifecycle::held(), 0, 0};
  std::ifstream maps("/proc/self/maps");
  // The heap may be one map, or more as it grows.
  for (std::string line; std::getline(maps, line);) {
    if (line.find(".so") != std::string::npos) now.maps++;
  }
  const std::filesystem::directory_iterator descriptors("/proc/self/fd");
  now.descriptors = std::distance(begin(descriptors), end(descriptors));
  return now;
}

void loadWorkAndUnload(int rounds) {
  for (int i = 0; i < rounds; i++) {
    const Library library;
    library.work();
  }
}

TEST(LoadedDeathTest, IsGoneWhenUnloaded) {
  EXPECT_EXIT(
      {
        loadWorkAndUnload(1);
        std::exit(Library::isLoaded() ? 1 : 7);
      },
      testing::ExitedWithCode(7), "^$");
}

TEST(LoadedDeathTest, LeavesNothingBehind) {
  EXPECT_EXIT(
      {
        loadWorkAndUnload(2);
        const Holdings before = holdings();
        loadWorkAndUnload(lifecycle::rounds());
        const Holdings after = holdings();
        std::cerr << "blocks " << after.blocks - before.blocks << " maps "
                  << after.maps - before.maps << " descriptors "
                  << after.descriptors - before.descriptors;
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^blocks 0 maps 0 descriptors 0$");
}

// Left loaded, that is.
TEST(LoadedDeathTest, ExitsCleanly) {
  EXPECT_EXIT(
      {
        Library library;
        library.work();
        library.keep();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^$");
}

// One thread at a time.
TEST(LoadedDeathTest, LoadsWorksAndGoesInDifferentThreads) {
  EXPECT_EXIT(
      {
        std::unique_ptr<Library> library;
        std::unique_ptr<as::IAgentServices> services;
        std::unique_ptr<as::IService> service;
        std::string name;
        const auto inAThread = [](auto step) { std::thread(step).join(); };
        inAThread([&] { library = std::make_unique<Library>(); });
        inAThread([&] { services = library->createAgentServices(); });
        inAThread([&] { service = lifecycle::parseService(*services); });
        inAThread([&] { name = service->getName(); });
        inAThread([&] { service.reset(); });
        inAThread([&] { library->work(); });
        inAThread([&] { services.reset(); });
        inAThread([&] { library.reset(); });
        std::cerr << name;
        std::exit(Library::isLoaded() ? 1 : 7);
      },
      testing::ExitedWithCode(7), "^Payslip$");
}

// Two versions of the library, as two plugins of one host bring them.
class TwoCopies {
 public:
  const Library first;
  const test::TempDirectory directory;
  const std::string file = copied(directory);
  const Library second{file.c_str()};

 private:
  static std::string copied(const test::TempDirectory& to) {
    const std::string file = to.path() + "/libother.so";
    std::filesystem::copy_file(AS_LIBRARY, file);
    return file;
  }
};

// A group of the first copy, cast to `interface` as either copy knows it: whether it is one, unless
// the copies differ.
std::string castThroughBoth(const TwoCopies& copies, as::IElement* group, const char* interface) {
  const RTTITypeinfo* const own = copies.first.record(interface);
  const RTTITypeinfo* const others = copies.second.record(interface);
  if (own == others) return "one copy ";
  void* const seen = group->RTTI_cast(RTTItypeid(own));
  if (group->RTTI_cast(RTTItypeid(others)) != seen) return "different ";
  return seen == nullptr ? "no " : "yes ";
}

TEST(LoadedDeathTest, TwoCopiesCastEachOthersObjectsByName) {
  EXPECT_EXIT(
      {
        const TwoCopies copies;
        {
          const auto services = copies.first.createAgentServices();
          const auto program = lifecycle::parseDictionary(*services);
          as::IElement* const group = program->getDataItems()->getItem(1);
          std::cerr << castThroughBoth(copies, group, "IGroup")
                    << castThroughBoth(copies, group, "IDataItem")
                    << castThroughBoth(copies, group, "IElement")
                    << castThroughBoth(copies, group, "INumeric")
                    << castThroughBoth(copies, group, "IService");
        }
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^yes yes yes no no $");
}

TEST(LoadedDeathTest, TwoCopiesWorkSideBySideAndOneOutlivesTheOther) {
  EXPECT_EXIT(
      {
        const Library later;
        const std::string alone = later.work();
        std::string both;
        {
          const TwoCopies copies;
          both = copies.second.work();
        }
        std::exit(both == alone && later.work() == alone ? 7 : 1);
      },
      testing::ExitedWithCode(7), "^$");
}

// Of static duration in the host, so that it goes behind everything that the library does at exit.
TEST(LoadedDeathTest, AnEntryObjectMayOutliveTheExitHook) {
  EXPECT_EXIT(
      {
        static std::unique_ptr<as::IAgentServices> services;
        Library library;
        services = library.createAgentServices();
        library.work();
        library.keep();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^$");
}

// Asked behind the library's clean-ups: by a handler from before it was loaded.
const RTTITypeinfo* listRecord = nullptr;

TEST(LoadedDeathTest, IdentitiesAreCleanedUpAtExitAndStayInTheirPlaces) {
  EXPECT_EXIT(
      {
        std::atexit([] {
          std::cerr << (listRecord->name == nullptr ? "cleaned up, " : "not cleaned up, ")
                    << listRecord->derivedCount << " derived";
        });
        Library library;
        listRecord = library.record("IList");
        library.keep();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^cleaned up, 4 derived$");
}

}  // namespace
