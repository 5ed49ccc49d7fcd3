// Tests of new services when the XML parser did not start.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "as/Globals.h"
#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

// Says that the parser did not start, as long as the object lives.
class NoParser {
 public:
  NoParser() : status_(nXercesInitStatus) { nXercesInitStatus = 0; }
  ~NoParser() { nXercesInitStatus = status_; }
  NoParser(const NoParser&) = delete;
  NoParser& operator=(const NoParser&) = delete;

 private:
  int status_;
};

class NewServiceStartUp : public testing::TestWithParam<test::Flavour> {
 protected:
  static test::Outcome<as::IService> outcomeWithoutParser(as::IProgram* program) {
    const NoParser noParser;
    return test::outcomeOf([&] { return GetParam().make(program); });
  }
  static constexpr char notStarted[] = "AgentServices: Unable to initialise the Xerces XML parser";
};

INSTANTIATE_TEST_SUITE_P(Flavours, NewServiceStartUp, testing::ValuesIn(test::flavours::all),
                         test::labelOf<test::Flavour>);

TEST_P(NewServiceStartUp, NothingIsCreatedWhenTheXmlParserDidNotStart) {
  const auto program = test::parse(test::payProgram());
  const auto outcome = outcomeWithoutParser(program.get());
  EXPECT_EQ(outcome.result, test::Result::exception);
  EXPECT_EQ(outcome.text, notStarted);
  EXPECT_EQ(program->getName(), "PAYROLL") << "the program is still the caller's";
}

// Ahead of everything else, a look at the program included.
TEST_P(NewServiceStartUp, TellsSoForNoProgramToo) {
  const auto outcome = outcomeWithoutParser(nullptr);
  EXPECT_EQ(outcome.result, test::Result::exception);
  EXPECT_EQ(outcome.text, notStarted);
}

TEST_P(NewServiceStartUp, TakesTheProgramOnceTheXmlParserHasStarted) {
  auto program = test::parse(test::payProgram());
  EXPECT_EQ(outcomeWithoutParser(program.get()).result, test::Result::exception);
  const std::unique_ptr<as::IService> service(GetParam().make(program.get()));
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getProgram(), program.release());
}

}  // namespace
