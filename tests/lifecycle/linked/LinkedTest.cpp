// The library in a client that is linked with it: the start and the end of the process, also in the
// middle of something.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>
#include <xercesc/util/PlatformUtils.hpp>

#include "as/AgentServices.h"
#include "lifecycle/Allocations.h"
#include "lifecycle/Work.h"
#include "support/Records.h"
#include "support/StopProbe.h"

namespace {

using as::CAgentServicesFactory;

std::unique_ptr<as::IAgentServices> createAgentServices() {
  return std::unique_ptr<as::IAgentServices>(CAgentServicesFactory::CreateAgentServices());
}

std::string work() {
  return lifecycle::work(*createAgentServices(), [](as::IService& service, const char* file) {
    CAgentServicesFactory::Serialize(&service, file);
  });
}

// Numbers of allocations from the first to nearly the last one of the work, for something to happen
// in.
std::vector<long> momentsOfWork() {
  work();  // What is only made once is there from now on.
  const long before = lifecycle::made();
  work();
  const long all = lifecycle::made() - before;
  return {1, 2, 5, 20, 100, all / 4, all / 2, all * 3 / 4, all * 9 / 10};
}

// A client's object that holds a model and uses it as it goes.
class Holder {
 public:
  ~Holder() {
    if (!tells_) return;
    service_->setName("the last one");
    std::cerr << service_->getName() << ", " << program_->getName() << "; ";
  }

  // Has the object say what it sees as it goes.
  void tell() { tells_ = true; }

 private:
  std::unique_ptr<as::IAgentServices> services_{
      CAgentServicesFactory::CreateCachingAgentServices()};
  std::unique_ptr<as::IProgram> program_ = lifecycle::parseDictionary(*services_);
  std::unique_ptr<as::IService> service_ = lifecycle::parseService(*services_);
  bool tells_ = false;
};

// Made before main begins.
Holder ofTheProgram;

TEST(LinkedDeathTest, ModelsOfStaticDurationGoBeforeTheParserIsStopped) {
  EXPECT_EXIT(
      {
        static Holder ofTheFunction;
        ofTheFunction.tell();
        ofTheProgram.tell();
        test::StopProbe::install([] { std::cerr << "stopped"; });
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^the last one, PAYSLIP; the last one, PAYSLIP; stopped$");
}

TEST(LinkedDeathTest, IdentitiesAreCleanedUpBehindTheParser) {
  EXPECT_EXIT(
      {
        test::StopProbe::install([all = test::records()] {
          std::cerr << (test::records() == all ? "all are there" : "some are gone");
        });
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^all are there$");
}

as::IService* leftAlone = nullptr;

TEST(LinkedDeathTest, AModelThatNobodyDeletesDoesNotDisturbTheExit) {
  EXPECT_EXIT(
      {
        leftAlone = lifecycle::parseService(*createAgentServices()).release();
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^$");
}

TEST(LinkedDeathTest, AClientsExitHandlerMayUseEverything) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::cerr << work().empty(); });
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^0$");
}

TEST(LinkedDeathTest, AClientsQuickExitHandlerMayUseEverything) {
  EXPECT_EXIT(
      {
        std::at_quick_exit([] { std::cerr << work().empty(); });
        std::quick_exit(7);
      },
      testing::ExitedWithCode(7), "^0$");
}

// The process ends in one of the allocations of a request, as when a client's handler for low
// memory gives up.
struct End {
  const char* name;
  void (*end)();
};

class EndInTheMiddleDeathTest : public testing::TestWithParam<End> {};

TEST_P(EndInTheMiddleDeathTest, EndsCleanly) {
  for (const long n : momentsOfWork()) {
    EXPECT_EXIT(
        {
          lifecycle::atAllocation(n, GetParam().end);
          work();
          std::_Exit(1);
        },
        testing::ExitedWithCode(7), "^$")
        << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, EndInTheMiddleDeathTest,
                         testing::Values(End{"Exit", [] { std::exit(7); }},
                                         End{"QuickExit", [] { std::quick_exit(7); }},
                                         End{"UnderscoreExit", [] { ::_exit(7); }}),
                         [](const auto& testInfo) { return testInfo.param.name; });

// What the child of a fork ends with, in its parent; 0 in the child itself.
int forked = -1;

void forkHere() {
  const pid_t child = ::fork();
  forked = 0;
  if (child == 0) return;
  int status = 0;
  ::waitpid(child, &status, 0);
  forked = WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

TEST(LinkedDeathTest, AForkInTheMiddleLeavesBothProcessesWorking) {
  const std::string expected = work();
  for (const long n : momentsOfWork()) {
    EXPECT_EXIT(
        {
          lifecycle::atAllocation(n, forkHere);
          const bool isRight = work() == expected;
          if (!isRight) std::exit(1);
          if (forked == 0) std::exit(5);
          std::exit(forked == 5 ? 7 : 2);
        },
        testing::ExitedWithCode(7), "^$")
        << n;
  }
}

TEST(LinkedDeathTest, AForkedModelIsTwo) {
  EXPECT_EXIT(
      {
        const auto service = lifecycle::parseService(*createAgentServices());
        forkHere();
        if (forked == 0) {
          service->setName("the child's");
          std::exit(service->getName() == "the child's" ? 5 : 1);
        }
        std::exit(forked == 5 && service->getName() == "Payslip" ? 7 : 2);
      },
      testing::ExitedWithCode(7), "^$");
}

}  // namespace
