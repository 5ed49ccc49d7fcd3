// Tests of reading documents: either kind, with programs, and what is said of refused ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

using test::labelOf;
using test::refusalOf;
using testing::HasSubstr;
using testing::StartsWith;
namespace toolkit = as::toolkit;

class DocumentReaderTest : public test::ToolkitTest {};

TEST_F(DocumentReaderTest, ADocumentOfEitherKindIsRead) {
  write("d.xml", test::payProgram());
  write("s.xml", test::payService(""));
  const toolkit::Document dictionary = reader().read("d.xml");
  ASSERT_NE(dictionary.dictionary, nullptr);
  EXPECT_EQ(dictionary.service, nullptr);
  EXPECT_EQ(dictionary.dictionary->getName(), "PAYROLL");
  const toolkit::Document service = reader().read("s.xml");
  ASSERT_NE(service.service, nullptr);
  EXPECT_EQ(service.dictionary, nullptr);
  EXPECT_EQ(service.service->getProgram(), nullptr);
}

// As the system has it; the parser would take "link/.." out of the name.
TEST_F(DocumentReaderTest, ALinkInANameIsFollowedBeforeItIsLeft) {
  std::filesystem::create_directories("real/sub");
  std::filesystem::create_directory("other");
  std::filesystem::create_directory_symlink("../real/sub", "other/link");
  write("real/PAY.xml", test::payProgram());
  write("real/s.xml", test::javaService("name='RIGHT' dataDictFilename='PAY.xml'", ""));
  write("other/PAY.xml", test::dictionary("<dataItems/>"));
  write("other/s.xml", test::javaService("name='WRONG' dataDictFilename='PAY.xml'", ""));
  const std::string dictionary = "other/link/../PAY.xml";
  const std::string service = "other/link/../s.xml";
  EXPECT_EQ(reader().read(dictionary).dictionary->getName(), "PAYROLL");
  EXPECT_EQ(reader().readDictionary(dictionary)->getName(), "PAYROLL");
  EXPECT_EQ(reader().read(service).service->getName(), "RIGHT");
  EXPECT_EQ(reader().readService(service)->getName(), "RIGHT");
  EXPECT_EQ(reader().readServiceWithProgram(service).service->getProgram()->getName(), "PAYROLL");
  const toolkit::ProgramChoice chosen{dictionary};
  EXPECT_EQ(reader().readServiceWithProgram("other/s.xml", chosen).service->getProgram()->getName(),
            "PAYROLL");
  write("real/bad.xml", "<program");
  EXPECT_EQ(refusalOf([&] { reader().read("other/link/../bad.xml"); }).file,
            "other/link/../bad.xml");
}

// Programs

TEST_F(DocumentReaderTest, AServiceComesWithTheProgramThatItNames) {
  write("d/PAY.xml", test::payProgram());
  write("s/s.xml", test::javaService("programName='OTHER' dataDictFilename='../d/PAY.xml'", ""));
  const toolkit::ServiceDocument document = reader().readServiceWithProgram("s/s.xml");
  ASSERT_NE(document.service->getProgram(), nullptr);
  EXPECT_EQ(document.service->getProgram()->getName(), "PAYROLL");
  EXPECT_EQ(document.programName, "OTHER");
  EXPECT_EQ(document.dictionary, "../d/PAY.xml");
  EXPECT_EQ(document.service->getAttributeValue("programName"), "PAYROLL");
  EXPECT_EQ(document.service->getDDFilename(), "../d/PAY.xml");
}

TEST_F(DocumentReaderTest, AnotherDictionaryCountsFromTheCurrentDirectory) {
  write("d/OTHER.xml", test::payProgram());
  write("s/s.xml", test::payService(""));
  write("s/none.xml", test::javaService("", ""));
  const toolkit::ProgramChoice other{"d/OTHER.xml"};
  const toolkit::ServiceDocument document = reader().readServiceWithProgram("s/s.xml", other);
  EXPECT_NE(document.service->getProgram(), nullptr);
  EXPECT_EQ(document.service->getDDFilename(), "PAY.xml");
  const toolkit::ServiceDocument unnamed = reader().readServiceWithProgram("s/none.xml", other);
  EXPECT_NE(unnamed.service->getProgram(), nullptr);
  EXPECT_EQ(unnamed.dictionary, "");
}

TEST_F(DocumentReaderTest, AServiceGivenAProgramKeepsWhatItSays) {
  write("PAY.xml", test::payProgram());
  for (const std::string& text : {test::payService(""), test::javaService("", "")}) {
    const auto service = reader().readServiceText(text, "s.xml");
    const std::string before = as::CAgentServicesFactory::SerializeToString(service.get());
    const auto complete = reader().withProgram(*service, "s.xml", {"PAY.xml"});
    EXPECT_NE(complete.service->getProgram(), nullptr);
    EXPECT_EQ(service->getProgram(), nullptr);
    EXPECT_EQ(as::CAgentServicesFactory::SerializeToString(service.get()), before);
  }
}

TEST_F(DocumentReaderTest, TheProgramOfAServiceIsReadByItself) {
  write("d/PAY.xml", test::payProgram());
  write("OTHER.xml", test::dictionary("<dataItems/>"));
  for (const std::string& text : {test::javaService("dataDictFilename='../d/PAY.xml'", ""),
                                  test::webService("dataDictFilename='../d/PAY.xml'", "")}) {
    const auto service = reader().readServiceText(text, "s/s.xml");
    write("s/s.xml", text);
    const std::shared_ptr<as::IProgram> program = reader().programOf(*service, "s/s.xml");
    EXPECT_GT(program->getDataItems()->getLength(), 0);
    EXPECT_EQ(service->getProgram(), nullptr);
    EXPECT_EQ(service->getDDFilename(), "../d/PAY.xml");
    const auto other = reader().programOf(*service, "s/s.xml", {"OTHER.xml"});
    EXPECT_EQ(other->getDataItems()->getLength(), 0);
  }
}

// With the service that has it, or by itself.
class ProgramRefusalTest : public DocumentReaderTest, public testing::WithParamInterface<bool> {
 protected:
  toolkit::Refusal refusalOfProgram(const std::string& file) const {
    const auto service = reader().readService(file);
    return refusalOf([&] {
      if (GetParam()) {
        reader().withProgram(*service, file);
      } else {
        reader().programOf(*service, file);
      }
    });
  }
};

INSTANTIATE_TEST_SUITE_P(Readings, ProgramRefusalTest, testing::Bool());

TEST_P(ProgramRefusalTest, ADictionaryThatCannotBeReadIsTheOneTold) {
  write("s/s.xml", test::javaService("dataDictFilename='../d/PAY.xml'", ""));
  const toolkit::Refusal missing = refusalOfProgram("s/s.xml");
  EXPECT_EQ(textOf(missing), "s/../d/PAY.xml: cannot be read: No such file or directory");
  write("d/PAY.xml", test::payService(""));
  const toolkit::Refusal wrong = refusalOfProgram("s/s.xml");
  EXPECT_EQ(wrong.file, "s/../d/PAY.xml");
  EXPECT_THAT(wrong.text, StartsWith("not a data dictionary: "));
}

TEST_P(ProgramRefusalTest, AnErrorInTheDictionaryIsToldThere) {
  write("s/s.xml", test::javaService("dataDictFilename='../d/PAY.xml'", ""));
  write("d/PAY.xml", test::dictionaryOf("\n<pointr/>"));
  const toolkit::Refusal wrong = refusalOfProgram("s/s.xml");
  EXPECT_EQ(wrong.file, "s/../d/PAY.xml");
  EXPECT_EQ(wrong.line, 2);
}

TEST_P(ProgramRefusalTest, ADeviceIsNoDictionary) {
  write("s.xml", test::javaService("dataDictFilename='/dev/zero'", ""));
  EXPECT_EQ(refusalOfProgram("s.xml").file, "/dev/zero");
}

TEST_P(ProgramRefusalTest, AServiceThatNamesNoDictionaryIsTold) {
  write("s.xml", test::javaService("", ""));
  const toolkit::Refusal refusal = refusalOfProgram("s.xml");
  EXPECT_EQ(textOf(refusal), "s.xml: the service names no dictionary");
  EXPECT_THAT(refusal.hint, HasSubstr("dataDictFilename"));
}

// Refusals

TEST_F(DocumentReaderTest, WhatIsOfAnotherKindIsToldSo) {
  write("d.xml", test::payProgram());
  write("s.xml", test::payService(""));
  const std::string other = "<other/>";
  const auto isOfAnotherKind = [](const auto& read) {
    const toolkit::Refusal refusal = refusalOf(read);
    EXPECT_EQ(refusal.line, 0);
    return refusal.isOfAnotherKind ? refusal.text.substr(0, refusal.text.find(':')) : "";
  };
  EXPECT_EQ(isOfAnotherKind([&] { reader().readService("d.xml"); }), "not a service");
  EXPECT_EQ(isOfAnotherKind([&] { reader().readDictionary("s.xml"); }), "not a data dictionary");
  EXPECT_EQ(isOfAnotherKind([&] { reader().readServiceText(test::payProgram(), "d.xml"); }),
            "not a service");
  const toolkit::Refusal neither = refusalOf([&] {
    reader().read(toolkit::DocumentSource{"o.xml", other});
  });
  EXPECT_TRUE(neither.isOfAnotherKind);
  EXPECT_THAT(neither.text, testing::AllOf(StartsWith("not a data dictionary: "),
                                           HasSubstr("; and not a service: ")));
}

// A document that is refused, and the whole of what is said about it.
struct RefusalCase {
  std::string label;
  std::string document;
  std::string text;
  std::string hint;
};

void PrintTo(const RefusalCase& refusal, std::ostream* out) { *out << refusal.document; }

class RefusedDocumentTest : public DocumentReaderTest,
                            public testing::WithParamInterface<RefusalCase> {};

TEST_P(RefusedDocumentTest, IsTold) {
  write("refused.xml", GetParam().document);
  const toolkit::Refusal refusal = refusalOf([this] { reader().read("refused.xml"); });
  EXPECT_EQ(textOf(refusal), GetParam().text);
  EXPECT_EQ(refusal.hint, GetParam().hint);
}

const std::string neitherKind =
    std::string("refused.xml: not a data dictionary: its root element is not in the namespace ") +
    as::namespaces::dd.uri +
    "; and not a service: its root element is in none of the namespaces"
    " http://agentservices.example/schema/ws/v1.0/vorws.xsd"
    " http://agentservices.example/schema/java/v2.0/vorjava.xsd"
    " http://agentservices.example/schema/com/v1.0/vorcom.xsd"
    " http://agentservices.example/schema/dotnet/v1.0/vordotnet.xsd";

const std::string schemaHint =
    std::string(
        "name the schema in the root element: "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"") +
    as::namespaces::dd.uri + " " + as::namespaces::dd.uri + "\"";

INSTANTIATE_TEST_SUITE_P(
    Documents, RefusedDocumentTest,
    testing::Values(
        RefusalCase{"MistypedAttribute", test::dictionaryOf("\n\n<pointer name='A' lenght='4'/>"),
                    "refused.xml:3:31: attribute 'lenght' is not declared for element "
                    "'pointer'",
                    ""},
        RefusalCase{"MistypedElement", test::dictionaryOf("\n<pointr name='A'/>"),
                    "refused.xml:2:19: no declaration found for element 'pointr'", ""},
        RefusalCase{"OtherNamespace", "<service xmlns='http://elsewhere.example/service'/>",
                    neitherKind, ""},
        RefusalCase{"NoNamespace", "<program name='PAYROLL'/>", neitherKind, ""},
        RefusalCase{"NoSchemaLocation",
                    std::string("<program xmlns=\"") + as::namespaces::dd.uri +
                        "\" name=\"PAYROLL\"></program>",
                    "refused.xml:1:93: no declaration found for element 'program'", schemaHint},
        RefusalCase{"NoSchemaLocationBehindAPrefix",
                    std::string("<d:program name='P' xmlns:d='") + as::namespaces::dd.uri + "'/>",
                    "refused.xml:1:92: no declaration found for element 'd:program'", schemaHint},
        RefusalCase{"Empty", "", "refused.xml:1:1: invalid document structure", ""},
        RefusalCase{"ControlCharactersInAMessage",
                    test::dictionaryOf("\n<pointer name='A' sync='&#9;'/>"),
                    "refused.xml:2:32: value '\t' does not match regular expression "
                    "facet '[Tt][Rr][Uu][Ee]|[Ff][Aa][Ll][Ss][Ee]'",
                    ""}),
    labelOf<RefusalCase>);

TEST_F(DocumentReaderTest, AServiceWithoutASchemaLocationIsHelped) {
  for (const char* const ns : {as::namespaces::ws.uri, as::namespaces::com.uri,
                               as::namespaces::java.uri, as::namespaces::dotnet.uri}) {
    write("s.xml", std::string("<service xmlns='") + ns + "'/>");
    EXPECT_THAT(refusalOf([this] { reader().read("s.xml"); }).hint,
                StartsWith("name the schema in the root element: "));
  }
}

TEST_F(DocumentReaderTest, ADocumentOfTheOtherKindIsRefused) {
  write("d.xml", test::payProgram());
  write("s.xml", test::payService(""));
  EXPECT_THAT(refusalOf([this] { reader().readService("d.xml"); }).text,
              StartsWith("not a service: "));
  EXPECT_THAT(refusalOf([this] { reader().readDictionary("s.xml"); }).text,
              StartsWith("not a data dictionary: "));
}

TEST_F(DocumentReaderTest, WhatIsNoFileIsNamed) {
  EXPECT_EQ(textOf(refusalOf([this] { reader().read("missing.xml"); })),
            "missing.xml: cannot be read: No such file or directory");
  std::filesystem::create_directory("folder");
  EXPECT_EQ(textOf(refusalOf([this] { reader().read("folder"); })),
            "folder: is a directory, not a document");
}

// The parser could not open it.
TEST_F(DocumentReaderTest, ANameThatIsNoUtf8IsTold) {
  write("\xE4.xml", test::payProgram());
  const toolkit::Refusal refusal = refusalOf([&] { reader().read("\xE4.xml"); });
  EXPECT_EQ(refusal.file, "\xE4.xml");
  EXPECT_EQ(refusal.text, "cannot be read: its name is no UTF-8");
  EXPECT_EQ(refusal.hint, "rename it");
}

}  // namespace
