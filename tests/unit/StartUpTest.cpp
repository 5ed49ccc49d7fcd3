// Tests of the library's start-up and of what depends on it.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

#include "as/AgentServices.h"
#include "as/Globals.h"
#include "frame/AgentServices.h"
#include "support/Dom.h"
#include "support/Records.h"
#include "support/StopProbe.h"

namespace {

TEST(StartUp, StartsTheXmlParserAtLoad) {
  EXPECT_EQ(nXercesInitStatus, 1);
  ASSERT_NE(gUTF8Transcoder, nullptr);
  EXPECT_EQ(test::narrow(gUTF8Transcoder->getEncodingName()), "UTF-8");
  EXPECT_EQ(gUTF8Transcoder->getBlockSize(), 4096u);
}

TEST(StartUp, NothingIsCreatedWhenTheXmlParserDidNotStart) {
  nXercesInitStatus = 0;
  std::string text;
  try {
    std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  } catch (const as::CASException& exception) {
    text = exception.getErrorText();
  }
  nXercesInitStatus = 1;
  EXPECT_EQ(text, "AgentServices: Unable to initialise the Xerces XML parser");
}

// In a process of its own: the library is stopped for good.
TEST(StartUpDeathTest, AtExitStopsTheTranscoderAndMayRunTwice) {
  EXPECT_EXIT(
      {
        AtExit();
        const bool gone = gUTF8Transcoder == nullptr;
        xercesc::XMLPlatformUtils::Initialize();
        AtExit();
        std::_Exit(gone ? 7 : 8);
      },
      testing::ExitedWithCode(7), "");
}

// A client may still cast, and look classes up, while the parser is being stopped.
TEST(StartUpDeathTest, IdentitiesAreCleanedUpBehindTheParser) {
  EXPECT_EXIT(
      {
        test::StopProbe::install([all = test::records()] {
          std::cerr << (test::records() == all ? "all are there" : "some are gone");
        });
        std::exit(7);
      },
      testing::ExitedWithCode(7), "^all are there$");
}

TEST(StartUpDeathTest, ExitsCleanly) {
  EXPECT_EXIT(std::exit(7), testing::ExitedWithCode(7), "^$");
}

}  // namespace
