// Tests of what the public headers say that no other test of an interface comes by: exact limits,
// what the library leaves out, and what is lost between writing and reading.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <ostream>
#include <string>
#include <thread>

#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/Model.h"
#include "support/Requests.h"
#include "support/TempDirectory.h"
#include "support/XmlText.h"

namespace {

using test::dictionary;
using test::dictionaryOf;
using test::itemOf;
using test::javaService;
using test::operationOf;
using test::outcomeOf;
using test::parameterDocument;
using test::parameterOf;
using test::parseService;
using test::payProgram;
using test::payService;
using test::repeated;
using test::Result;
using test::serviceOutcomeOf;
using test::servicesWithoutSchemas;
using test::TempDirectory;
using test::topItem;
using test::written;
using test::writtenAndRead;
using testing::HasSubstr;
using testing::Not;

const std::string dictionaryURI = as::namespaces::dd.uri;

// A dictionary that says so of its schema.
std::string dictionaryWithPlace(const std::string& place, const std::string& content = "") {
  return "<program name='P' xmlns='" + dictionaryURI +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" +
         dictionaryURI + " " + place + "'>" + content + "</program>";
}

// Limits of documents: what is just let through and just refused.

struct Limit {
  const char* label;
  int count;  // The greatest that is let through.
  std::string (*document)(int count);
};

void PrintTo(const Limit& limit, std::ostream* out) { *out << limit.label; }

class DocumentLimit : public testing::TestWithParam<Limit> {};

TEST_P(DocumentLimit, LetsSoManyThrough) {
  const auto outcome = outcomeOf(GetParam().document(GetParam().count));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

TEST_P(DocumentLimit, RefusesOneMore) {
  EXPECT_EQ(outcomeOf(GetParam().document(GetParam().count + 1)).result, Result::parseException);
}

const Limit limits[] = {
    {"LevelsOfElements", 2048,
     [](int count) {
       // Two of them are the root and the section.
       return dictionaryOf(repeated("<group name='G'>", count - 2) +
                           repeated("</group>", count - 2));
     }},
    {"AttributesWithNamespaceDeclarations", 1000,
     [](int count) {
       std::string attributes = "name='G'";
       for (int i = 1; i < count; i++) attributes += " xmlns:n" + std::to_string(i) + "='urn:x'";
       return dictionaryOf("<group " + attributes + "/>");
     }},
    {"ReferencesToEntities", 1000,
     [](int count) {
       return "<!DOCTYPE program [<!ENTITY e 'x'>]>" +
              dictionaryOf("<group name='" + repeated("&e;", count) + "'/>");
     }},
    {"CharactersOfAnEntity", 65536,
     [](int count) {
       return "<!DOCTYPE program [<!ENTITY e '" +
              std::string(static_cast<std::size_t>(count), 'x') + "'>]>" +
              dictionaryOf("<group name='&e;'/>");
     }},
};

std::string labelOf(const testing::TestParamInfo<Limit>& info) { return info.param.label; }

INSTANTIATE_TEST_SUITE_P(All, DocumentLimit, testing::ValuesIn(limits), labelOf);

TEST(DocumentLimits, DoNotCountReferencesToCharactersAndPredefinedEntities) {
  const auto outcome =
      outcomeOf(dictionaryOf("<group name='" + repeated("&amp;&#65;", 1001) + "'/>"));
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

// Schemas.

TEST(SchemaDirectory, IsWhereTheSchemaIsReadWhateverFileTheDocumentNames) {
  for (const char* place : {"whatever/my.xsd", "vorws.xsd.old", "file:///no/such/file.xsd"}) {
    SCOPED_TRACE(place);
    const auto outcome = outcomeOf(dictionaryWithPlace(place));
    EXPECT_EQ(outcome.result, Result::root) << outcome.text;
  }
}

TEST(SchemaDirectory, CountsFromTheCurrentDirectoryOfEachRequest) {
  const auto services = servicesWithoutSchemas();
  services->setSchemaLocation("schemas");
  EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::parseException);
  {
    const test::CurrentDirectory current;
    current.write("schemas/vorcobol.xsd", test::contentOf(AS_SCHEMA_DIR "/vorcobol.xsd"));
    EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::root);
  }
  EXPECT_EQ(outcomeOf(*services, dictionary("")).result, Result::parseException);
}

// What the directory protects from; see IAgentServices.
TEST(SchemaDirectory, KeepsOutSchemasThatADocumentBrings) {
  const TempDirectory directory;
  directory.write("lax.xsd",
                  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault="
                  "'qualified' targetNamespace='" +
                      dictionaryURI +
                      "'><xs:element name='program'><xs:complexType><xs:sequence>"
                      "<xs:element name='properties'><xs:complexType><xs:anyAttribute "
                      "processContents='skip'/></xs:complexType></xs:element></xs:sequence>"
                      "<xs:attribute name='name'/></xs:complexType></xs:element></xs:schema>");
  const std::string hostile = dictionaryWithPlace("lax.xsd", "<properties strange='1'/>");
  const std::string id = directory.path() + "/d.xml";
  EXPECT_EQ(outcomeOf(hostile, id.c_str()).result, Result::parseException);
  const auto outcome = outcomeOf(*servicesWithoutSchemas(), hostile, id.c_str());
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

// Messages and files.

TEST(ErrorCode, MayStandForSeveralMessages) {
  const auto missing =
      outcomeOf(dictionaryWithPlace(dictionaryURI + " urn:unused no-such-file.xsd"));
  const auto undeclared = outcomeOf("<program xmlns='" + dictionaryURI + "' name='P'/>");
  EXPECT_EQ(missing.message.getErrorCode(), undeclared.message.getErrorCode());
  EXPECT_THAT(missing.text, HasSubstr("unable to open"));
  EXPECT_THAT(undeclared.text, HasSubstr("no declaration found"));
}

TEST(ErrorCode, IsNoneForRefusalsOfTheLibrary) {
  const auto refused = outcomeOf("<!DOCTYPE program [<!ENTITY % p 'x'>]>" + dictionary(""));
  ASSERT_EQ(refused.result, Result::parseException);
  EXPECT_EQ(refused.message.getErrorCode(), 0);
}

TEST(DocumentFile, MayBeAPipe) {
  const TempDirectory directory;
  const std::string pipe = directory.path() + "/pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const std::string text = dictionary("");
  std::thread writer([&] {
    const int file = ::open(pipe.c_str(), O_WRONLY);  // Waits for the reader.
    EXPECT_EQ(::write(file, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    ::close(file);
  });
  const auto outcome = outcomeOf([&] { return test::newServices()->parseCobolDD(pipe.c_str()); });
  writer.join();
  EXPECT_EQ(outcome.result, Result::root) << outcome.text;
}

// The dictionary is named by a URL; what is left of it is no file name.
TEST(LoadProgram, DropsTheDirectoryOfAnEscapedNameAndKeepsTheEscapes) {
  const test::CurrentDirectory directory;
  directory.write("My Dict.xml", payProgram());
  const std::string url = "file://" + directory.path() + "/My%20Dict.xml";
  const auto service = parseService(javaService("dataDictFilename='" + url + "'", ""), true);
  EXPECT_EQ(service->getDDFilename(), "My%20Dict.xml");

  const std::string again = written(*service);
  EXPECT_EQ(serviceOutcomeOf(again, true).result, Result::parseException);
  service->setDDFilename("My Dict.xml");
  EXPECT_NE(parseService(written(*service), true)->getProgram(), nullptr);
}

// Elements and lists.

TEST(AttributeValue, IsAskedForWithItsPrefix) {
  const auto service = parseService(payService(""));
  EXPECT_THAT(service->getAttributeValue("xsi:schemaLocation"), HasSubstr("vorjava.xsd"));
  EXPECT_EQ(service->getAttributeValue("schemaLocation"), "");
  EXPECT_EQ(service->getAttributeValue(""), "");
}

TEST(ListAttributeValue, IsThatOfTheElementAroundTheMembers) {
  const auto program = test::parse(
      dictionaryOf("<numeric name='N'><numericCondition name='C'><numericConstant value='1'/>"
                   "</numericCondition></numeric>"));
  as::IList* const conditions = topItem<as::IDataItem>(*program)->getConditions();
  EXPECT_EQ(conditions->getAttributeValue("name"), "N");
  EXPECT_EQ(program->getDataItems()->getAttributeValue("name"), "");
  EXPECT_EQ(program->getProperties()->getAttributeValue("name"), "") << "the empty list";
}

TEST(EmptyList, SharesItsUserData) {
  const auto service = parseService(payService(""));
  const auto program = test::parse(dictionary(""));
  int data = 0;
  service->getOperations()->setUserData(&data);
  EXPECT_EQ(program->getFileSection()->getUserData(), &data);
  service->getOperations()->setUserData(nullptr);
}

TEST(EmptyList, DoesNotShowWhatIsAddedToTheSection) {
  const auto service = parseService(payService(""));
  as::IList* const before = service->getOperations();
  service->addOperation("op", nullptr);
  EXPECT_EQ(before->getLength(), 0);
  EXPECT_EQ(service->getOperations()->getLength(), 1);
}

// Texts.

TEST(Text, IsWellFormedOnceItIsSet) {
  const auto service = parseService(payService(""));
  const struct {
    const char* given;
    const char* got;
  } rows[] = {
      {"\xC3(", "\xEF\xBF\xBD("},
      {"a\xFFz", "a\xEF\xBF\xBDz"},
      {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xC3\x84", "\xC3\x84"},
  };
  for (const auto& row : rows) {
    service->setName(row.given);
    EXPECT_EQ(service->getName(), row.got);
    EXPECT_EQ(writtenAndRead(*service)->getName(), row.got);
  }
}

TEST(Text, ThatXmlCannotHoldIsKeptAndNotWritten) {
  for (const char* text : {"\x01", "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
    const auto service = parseService(payService(""));
    service->setName(text);
    EXPECT_EQ(service->getName(), text);
    EXPECT_THROW(written(*service), as::CASException);
  }
}

// Writing.

TEST(Written, IsUtf8OfXml10WithoutDoctype) {
  const auto service = parseService(
      "<?xml version='1.1' encoding='ISO-8859-1'?><!DOCTYPE service [<!ENTITY e 'entity'>]>"
      "<!--kept-->" +
      javaService("name='\xC4 &e;'", ""));
  const std::string text = written(*service);
  EXPECT_THAT(text, HasSubstr("<?xml version=\"1.0\" encoding=\"UTF-8\""));
  EXPECT_THAT(text, HasSubstr("<!--kept-->"));
  EXPECT_THAT(text, HasSubstr("name=\"\xC3\x84 entity\""));
  EXPECT_THAT(text, Not(HasSubstr("DOCTYPE")));
}

TEST(Written, FieldsOfAFieldAttributeAreReadBack) {
  const auto service =
      parseService(parameterDocument(as::namespaces::ws.uri, "<parameter name='p'/>"));
  as::IWSParameter* const attribute =
      parameterOf<as::IWSParameter>(*service)->addFieldAttribute("a");
  attribute->addField("f", 1)->addField("g", 2);
  attribute->addFieldAttribute("b");
  const auto again = writtenAndRead(*service);
  as::IWSParameter* const read =
      itemOf<as::IWSParameter>(parameterOf<as::IWSParameter>(*again)->getFieldAttributes(), 0);
  auto* const field = itemOf<as::IField>(read->getChildren(), 0);
  EXPECT_EQ(field->getName(), "f");
  EXPECT_EQ(itemOf<as::IField>(field->getChildren(), 0)->getName(), "g");
  EXPECT_EQ(itemOf<as::IField>(read->getFieldAttributes(), 0)->getName(), "b");
}

TEST(Written, DirectionsOfFieldsAreReadBack) {
  const auto service = parseService(
      parameterDocument(as::namespaces::java.uri, "<parameter name='p' byType='in'/>"));
  as::IField* const field = parameterOf<as::IParameter>(*service)->addField("f", 1);
  auto* const asParameter = as::interface_cast<as::IParameter>(field);
  EXPECT_EQ(asParameter->getByType(), as::IParameter::BY_IO);
  asParameter->setByType(as::IParameter::BY_OUT);
  const auto again = writtenAndRead(*service);
  auto* const parameter = parameterOf<as::IParameter>(*again);
  EXPECT_EQ(parameter->getByType(), as::IParameter::BY_IN);
  EXPECT_EQ(itemOf<as::IParameter>(parameter->getChildren(), 0)->getByType(),
            as::IParameter::BY_OUT);
}

// Readers have room for so many subscripts.
TEST(Written, MappingsToItemsInMoreThanSixteenTablesAreNotReadBack) {
  for (const int tables : {as::IMapping::MAX_SUBSCRIPTS, as::IMapping::MAX_SUBSCRIPTS + 1}) {
    std::string items = "<numeric name='N' maxOccurs='2'/>";
    for (int i = 1; i < tables; i++) items = "<group name='G' maxOccurs='2'>" + items + "</group>";
    const auto program = test::parse(dictionaryOf(items));
    auto* item = topItem<as::IDataItem>(*program);
    while (auto* const group = as::interface_cast<as::IGroup>(item)) {
      item = itemOf<as::IDataItem>(group->getChildren(), 0);
    }
    const auto service =
        parseService(parameterDocument(as::namespaces::java.uri, "<parameter name='p'/>"));
    parameterOf<as::IParameter>(*service)->addMapping(item);
    EXPECT_EQ(serviceOutcomeOf(written(*service)).result,
              tables > as::IMapping::MAX_SUBSCRIPTS ? Result::parseException : Result::root);
  }
}

// Data items.

TEST(DataItemType, ObjectsAndAlphanumericEditedItemsAreInNoDictionary) {
  for (const char* element : {"object", "alphanumericEdited"}) {
    EXPECT_EQ(outcomeOf(dictionaryOf(std::string("<") + element + " name='A'/>")).result,
              Result::parseException);
  }
}

// References.

TEST(Definition, MayBeRecursiveThroughItsFields) {
  const auto service = parseService(
      parameterDocument(as::namespaces::java.uri, "<parameter name='p' ref='Node'/>",
                        "<parameter name='Node'><field name='next' ref='Node'/></parameter>"));
  as::IField* const next =
      itemOf<as::IField>(parameterOf<as::IParameter>(*service)->getChildren(), 0);
  EXPECT_EQ(itemOf<as::IField>(next->getChildren(), 0), next);
}

TEST(Definition, IsShownAsExtendedToAllThatLeadThere) {
  const auto service =
      parseService(parameterDocument(as::namespaces::java.uri, "<parameter name='p' ref='Near'/>",
                                     "<parameter name='Far'/><parameter name='Near' ref='Far'/>"));
  const auto program = test::parse(payProgram());
  auto* const parameter = parameterOf<as::IParameter>(*service);
  auto* const far = itemOf<as::IParameter>(service->getParameterTypeDefs(), 0);
  as::IField* const field = far->addField("f", 1);
  as::IMapping* const mapping = far->addMapping(topItem<as::IDataItem>(*program));
  EXPECT_EQ(itemOf<as::IField>(parameter->getChildren(), 0), field);
  EXPECT_EQ(itemOf<as::IMapping>(parameter->getMappings(), 0), mapping);
  EXPECT_EQ(field->getQualifiedName(), "Farf");
}

TEST(Definition, IsFoundByItsNewNameOnceReadAgain) {
  const auto service = parseService(parameterDocument(
      as::namespaces::java.uri, "<parameter name='p' ref='Old'/>", "<parameter name='Old'/>"));
  itemOf<as::IParameter>(service->getParameterTypeDefs(), 0)->setName("New");
  EXPECT_NE(parameterOf<as::IParameter>(*service)->getReferenceType(), nullptr);
  EXPECT_EQ(parameterOf<as::IParameter>(*writtenAndRead(*service))->getReferenceType(), nullptr);
}

TEST(ReferenceToNothing, LosesItsAdditionsWhenReadAgain) {
  const auto service =
      parseService(parameterDocument(as::namespaces::ws.uri, "<parameter name='p' ref='Gone'/>"));
  const auto program = test::parse(payProgram());
  const auto lengths = [](as::IWSParameter& parameter) {
    return std::to_string(parameter.getChildren()->getLength()) +
           std::to_string(parameter.getMappings()->getLength()) +
           std::to_string(parameter.getFieldAttributes()->getLength());
  };
  auto* const parameter = parameterOf<as::IWSParameter>(*service);
  parameter->addField("f", 1);
  parameter->addMapping(topItem<as::IDataItem>(*program));
  parameter->addFieldAttribute("a");
  EXPECT_EQ(lengths(*parameter), "111");
  EXPECT_THAT(written(*service), HasSubstr("<field name=\"f\""));
  const auto again = writtenAndRead(*service);
  EXPECT_EQ(lengths(*parameterOf<as::IWSParameter>(*again)), "001") << "the field attribute stays";
}

// Mappings.

TEST(Mapping, OfAnItemOfAnotherProgramKeepsItsPath) {
  const auto service =
      parseService(parameterDocument(as::namespaces::java.uri, "<parameter name='p'/>"));
  as::IMapping* mapping = nullptr;
  {
    const auto program = test::parse(payProgram());
    auto* const record = topItem<as::IGroup>(*program, 1);
    mapping = parameterOf<as::IParameter>(*service)->addMapping(
        itemOf<as::IDataItem>(record->getChildren(), 0));
  }
  EXPECT_EQ(mapping->getRawMapping(), "REQ.ID");
  EXPECT_EQ(mapping->getDataItem(), nullptr);
}

TEST(Mapping, OfARecordOfAFileIsNotFound) {
  std::unique_ptr<as::IProgram> program = test::parse(
      dictionary("<fileSection><fd name='F'><dataItems><alphanumeric name='REC'/></dataItems></fd>"
                 "</fileSection>"));
  auto* const file = itemOf<as::IFD>(program->getFileSection(), 0);
  auto* const record = itemOf<as::IDataItem>(file->getDataItems(), 0);
  const std::unique_ptr<as::IService> service(
      as::CAgentServicesFactory::NewJavaService(program.release()));
  as::IOperation* const operation = service->addOperation("op", nullptr);
  as::IMapping* const mapping =
      operation->addParameter(as::IParameter::BY_IN, "p", 1)->addMapping(record);
  EXPECT_EQ(mapping->getRawMapping(), "REC");
  EXPECT_EQ(mapping->getDataItem(), nullptr);
}

}  // namespace
