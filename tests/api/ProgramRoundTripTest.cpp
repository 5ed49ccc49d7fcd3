// Tests of writing services that have their program, and new ones, and reading them back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/EditService.h"
#include "support/Flavours.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"

namespace {

using test::edit;
using test::modelText;
using test::parseService;
using test::ServiceSample;
using test::TempDirectory;
using test::written;

class RoundTripWithProgram : public testing::TestWithParam<ServiceSample> {
 protected:
  std::unique_ptr<as::IService> load(const std::string& document) const {
    return parseService(document, true);
  }
  // The service, written with the way to its dictionary instead of the bare name.
  std::string writtenToLoad(as::IService& service) const {
    const std::string name = service.getDDFilename();
    service.setDDFilename(dictionary_.c_str());
    std::string text = written(service);
    service.setDDFilename(name.c_str());
    return text;
  }

  const TempDirectory directory_;
  const std::string dictionary_ = directory_.write("PAY.xml", test::payProgram());
  const std::unique_ptr<as::IService> service_ = load(test::rootOf(
      GetParam(), test::everything(GetParam()), "dataDictFilename=\"" + dictionary_ + "\""));
};

TEST_P(RoundTripWithProgram, FindsTheSameEntryPointsAndItems) {
  const std::string text = modelText(*service_);
  for (const char* const line : {"entry point \"PAY\"\n", "bound to \"PAY\"\n",
                                 "data item \"REQ/LINE/CELL\"\n", "data item \"REQ/TITLE\"\n"}) {
    EXPECT_THAT(text, testing::HasSubstr(line));
  }
  EXPECT_EQ(modelText(*load(writtenToLoad(*service_))), text);
}

TEST_P(RoundTripWithProgram, FindsTheSameOnceEdited) {
  edit(*service_);
  service_->setDDFilename("PAY.xml");
  const std::string text = modelText(*service_);
  EXPECT_THAT(text, testing::HasSubstr("data item \"REQ/LINE/AMOUNT\"\n"));
  EXPECT_EQ(modelText(*load(writtenToLoad(*service_))), text);
}

INSTANTIATE_TEST_SUITE_P(Flavours, RoundTripWithProgram, testing::ValuesIn(test::samples::all),
                         [](const auto& row) { return row.param.flavour.label; });

// .NET is left out: such a service is read back as a Web service.
TEST(NewServiceRoundTrip, GivesTheSameModel) {
  const TempDirectory directory;
  const std::string dictionary = directory.write("PAY.xml", test::payProgram());
  for (const test::Flavour& flavour :
       {test::flavours::web, test::flavours::com, test::flavours::java}) {
    for (const bool isEdited : {false, true}) {
      SCOPED_TRACE(std::string(flavour.label) + (isEdited ? " edited" : " empty"));
      const std::unique_ptr<as::IService> service(
          flavour.make(test::parse(test::payProgram(), "PAY.xml").release()));
      if (isEdited) edit(*service);
      service->setDDFilename(dictionary.c_str());
      const std::string once = written(*service);
      EXPECT_EQ(written(*service), once);
      const auto again = parseService(once, true);
      service->setDDFilename("PAY.xml");
      EXPECT_EQ(modelText(*again), modelText(*service));
      again->setDDFilename(dictionary.c_str());
      EXPECT_EQ(written(*again), once);
    }
  }
}

}  // namespace
