// Tests of writing a service: the file it goes to, and how the text is laid out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "as/AgentServices.h"
#include "support/EditService.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"
#include "support/XmlText.h"

namespace {

using test::contentOf;
using test::everything;
using test::modelText;
using test::parseService;
using test::replaced;
using test::rootOf;
using test::TempDirectory;
using test::written;
using test::samples::java;

constexpr char failure[] = "AgentServices: An error occurred serializing the XML to file ";

// The file.

TEST(SerializeToFile, ReplacesWhatTheFileHeld) {
  const TempDirectory directory;
  const std::string file = directory.write("service.xml", std::string(1000000, '?'));
  const auto service = parseService(rootOf(java, everything(java)));
  as::CAgentServicesFactory::Serialize(service.get(), file.c_str());
  EXPECT_EQ(contentOf(file), written(*service));
}

TEST(SerializeToFile, TakesFilesOfAnyName) {
  const TempDirectory directory;
  const auto service = parseService(rootOf(java, ""));
  for (const char* const name : {"plain", "with blank.xml", "Pr\xC3\xA4mie.xml", "a%20b&c.xml"}) {
    const std::string file = directory.path() + "/" + name;
    as::CAgentServicesFactory::Serialize(service.get(), file.c_str());
    EXPECT_EQ(contentOf(file), written(*service)) << name;
  }
}

TEST(SerializeToFile, ThatCannotBeOpenedIsPassedOver) {
  const TempDirectory directory;
  const auto service = parseService(rootOf(java, everything(java)));
  const std::string before = modelText(*service);
  for (const std::string& file :
       {directory.path(), directory.path() + "/no/such/file.xml", std::string(),
        std::string("/dev/full"), std::string("/proc/file.xml")}) {
    EXPECT_NO_THROW(as::CAgentServicesFactory::Serialize(service.get(), file.c_str())) << file;
  }
  EXPECT_NO_THROW(as::CAgentServicesFactory::Serialize(service.get(), nullptr));
  EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
  EXPECT_EQ(modelText(*service), before);
}

TEST(SerializeNothing, IsAFailure) {
  const TempDirectory directory;
  const std::string file = directory.path() + "/service.xml";
  try {
    as::CAgentServicesFactory::Serialize(nullptr, file.c_str());
    ADD_FAILURE();
  } catch (const as::CASException& exception) {
    EXPECT_EQ(exception.getErrorText(), failure + file);
  }
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_THROW(as::CAgentServicesFactory::SerializeToString(nullptr), as::CASException);
}

// A carriage return in a blank text has the elements around it laid out anew, each time that the
// document has been read: the layout grows, the model stays.
TEST(CarriageReturns, BetweenElementsGrowTheLayoutOnly) {
  const auto service =
      parseService(rootOf(java,
                          "<operations>&#13;<operation name=\"a\"/><operation name=\"b\"/>&#13;"
                          "</operations>"));
  const std::string before = modelText(*service);
  const std::string once = written(*service);
  EXPECT_EQ(written(*service), once);
  const auto again = parseService(once);
  EXPECT_EQ(modelText(*again), before);
  const std::string twice = written(*again);
  EXPECT_GT(twice.size(), once.size());
  EXPECT_EQ(modelText(*parseService(twice)), before);
}

// Layout.

TEST(Layout, PutsEachElementOnALineOfItsOwn) {
  const auto service =
      parseService(rootOf(java,
                          "<operations><operation name=\"a\"><parameters><parameter/>"
                          "</parameters></operation><!-- c --></operations>"));
  const std::string text = written(*service);
  EXPECT_THAT(text, testing::EndsWith("\">\n"
                                      "  <operations>\n"
                                      "    <operation name=\"a\">\n"
                                      "      <parameters>\n"
                                      "        <parameter/>\n"
                                      "      </parameters>\n"
                                      "    </operation>\n"
                                      "    <!-- c -->\n"
                                      "  </operations>\n"
                                      "</service>\n"));
  EXPECT_THAT(text, testing::StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\""));
}

TEST(Layout, ThatIsThereIsKept) {
  const std::string content =
      "\n <operations>\n\n     <operation name=\"a\">\t<parameters/> </operation>\n "
      "</operations>\n";
  const auto service = parseService(rootOf(java, content));
  EXPECT_THAT(written(*service), testing::HasSubstr(content));
}

// What could not be read again is told when it is written.
TEST(Attributes, BeyondTheLimitOfReadersAreNotWritten) {
  std::string declarations;
  for (int i = 0; i < 996; i++) declarations += " xmlns:n" + std::to_string(i) + "='urn:n'";
  const auto service = parseService(rootOf(java, "", declarations));
  EXPECT_NO_THROW(parseService(written(*service)));
  service->setName("one more");
  EXPECT_THROW(written(*service), as::CASException);
}

// New elements.

// XML 1.1 has a way to take a prefix back; what is written is XML 1.0.
TEST(Prefixes, ThatAreTakenBackAreReadBack) {
  const auto service = parseService(
      "<?xml version='1.1'?>" +
      rootOf(java,
             "<properties xmlns:x=''><property name='P' value='V' xmlns:x='urn:y'/></properties>",
             "xmlns:x='urn:x'"));
  ASSERT_NE(service, nullptr);
  const std::string text = written(*service);
  EXPECT_THAT(text, testing::HasSubstr("xmlns:x=\"urn:x\""));
  EXPECT_THAT(text, testing::HasSubstr("xmlns:x=\"urn:y\""));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("xmlns:x=\"\"")));
  const auto again = parseService(text);
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(modelText(*again), modelText(*service));
}

// Within a part of a document the root's own declaration may be hidden by another: what is added
// there must be read back all the same.
TEST(NewElements, AreReadBackWhereTheRootsDeclarationIsHidden) {
  const std::string ns = java.flavour.own.uri;
  const struct {
    const char* label;
    std::string prefix;
    std::string hiding;
  } rows[] = {
      {"default", "", "xmlns='urn:other' xmlns:q='" + ns + "'"},
      {"prefix", "p:", "xmlns:p='urn:other' xmlns:q='" + ns + "'"},
      {"prefix beside a default",
       "p:", "xmlns:p='urn:other' xmlns='" + ns + "' xmlns:q='" + ns + "'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    std::string document = test::prefixed(rootOf(java, ""), row.prefix);
    if (!row.prefix.empty()) document = replaced(document, "xmlns=", "xmlns:p=");
    document.insert(document.find("</"),
                    "<q:operations " + row.hiding + "><q:operation name='op'/></q:operations>");
    const auto service = parseService(document);
    test::edit(*service);
    const std::string before = modelText(*service, test::QualifiedNames::leftOut);
    const std::string text = written(*service);
    const auto outcome = test::serviceOutcomeOf(text);
    EXPECT_EQ(outcome.result, test::Result::root) << outcome.text << '\n' << text;
    if (!outcome.root) continue;
    EXPECT_EQ(modelText(*outcome.root, test::QualifiedNames::leftOut), before);
  }
}

}  // namespace
