// Tests of a service's program: the one that is loaded with it, and the one that it is made for.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"

namespace {

using test::javaService;
using test::parseService;
using test::payProgram;
using test::payService;
using test::TempDirectory;

// A service whose program is read from the dictionary in the file named `file`.
std::unique_ptr<as::IService> loadedService(const std::string& file,
                                            const std::string& content = "") {
  return parseService(javaService("implementation='java' dataDictFilename='" + file + "'", content),
                      true);
}

TEST(ServiceProgram, IsNullWithoutLoading) {
  const auto service = parseService(payService(""));
  EXPECT_EQ(service->getProgram(), nullptr);
}

TEST(ServiceProgram, WithoutLoadingLeavesItsAttributes) {
  const auto service =
      parseService(javaService("programName='OTHER' dataDictFilename='some/where/PAY.xml'", ""));
  EXPECT_EQ(service->getDDFilename(), "some/where/PAY.xml");
  EXPECT_EQ(service->getAttributeValue("programName"), "OTHER");
}

TEST(ServiceProgram, IsTheOneOfTheDictionary) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write("PAY.xml", payProgram()));
  ASSERT_NE(service->getProgram(), nullptr);
  EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
  EXPECT_EQ(service->getProgram()->getEntryPoints()->getLength(), 1);
}

TEST(ServiceProgram, IsTheSameObjectEveryTime) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write("PAY.xml", payProgram()));
  EXPECT_EQ(service->getProgram(), service->getProgram());
}

TEST(ServiceProgram, NeedsItsFileNoMoreOnceLoaded) {
  std::unique_ptr<as::IService> service;
  {
    const TempDirectory directory;
    service = loadedService(directory.write("PAY.xml", payProgram()));
  }
  EXPECT_EQ(service->getProgram()->getDataItems()->getLength(), 3);
}

TEST(ServiceProgram, WritesItsName) {
  const TempDirectory directory;
  const std::string file = directory.write("PAY.xml", payProgram());
  for (const char* const attribute : {"", "programName='OTHER'"}) {
    const auto service =
        parseService(javaService("dataDictFilename='" + file + "' " + attribute, ""), true);
    EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL") << attribute;
  }
}

class ServiceDictionaryFile : public testing::TestWithParam<const char*> {};

TEST_P(ServiceDictionaryFile, IsWrittenWithoutDirectory) {
  const TempDirectory directory;
  const auto service = loadedService(directory.write(GetParam(), payProgram()));
  EXPECT_EQ(service->getDDFilename(), GetParam());
}

TEST_P(ServiceDictionaryFile, CountsFromTheCurrentDirectory) {
  const TempDirectory directory;
  const std::string file = directory.write(GetParam(), payProgram());
  const auto service = loadedService(std::filesystem::relative(file).string());
  EXPECT_EQ(service->getDDFilename(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Names, ServiceDictionaryFile,
                         testing::Values("PAY.xml", "PAY", "PAY.2.xml", ".PAY", "PAY.",
                                         "MY PAY.xml", "PAY%20.xml", "P\xC3\x84Y.xml"));

TEST(ServiceProgram, OfANewServiceIsTheOneGiven) {
  as::IProgram* const program = test::parse(payProgram(), "some/where/PAY.xml").release();
  const std::unique_ptr<as::IService> service(as::CAgentServicesFactory::NewJavaService(program));
  EXPECT_EQ(service->getProgram(), program);
  EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL");
  EXPECT_EQ(service->getDDFilename(), "PAY.xml");
}

}  // namespace
