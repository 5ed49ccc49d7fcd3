// Tests of the requests for services: what comes of good documents of each flavour in the four
// forms of the request, and how the dictionary that a service names is found, read and missed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Dictionary.h"
#include "support/JavaService.h"
#include "support/TempDirectory.h"

namespace {

using test::itemOf;
using test::Outcome;
using test::outcomeOf;
using test::Result;
using test::TempDirectory;
using testing::HasSubstr;

constexpr char namespaceText[] = "The parser encountered an unexpected or unsupported namespace";
constexpr char before[] = "as before";

// The forms of the request.

struct Form {
  const char* label;
  bool tellsText;
  // Requests the service in the file named `file`, or in `document` under that name.
  as::IService* (*request)(as::IAgentServices& services, const std::string& file,
                           const std::string& document, std::string& errorText, bool loadProgram);
};

void PrintTo(const Form& form, std::ostream* out) { *out << form.label; }

const unsigned char* bytes(const std::string& text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned int size(const std::string& text) { return static_cast<unsigned int>(text.size()); }

using Text = std::string;

constexpr Form forms[] = {
    {"File", false,
     [](as::IAgentServices& services, const Text& file, const Text&, Text&, bool loadProgram) {
       return services.parseService(file.c_str(), loadProgram);
     }},
    {"FileWithText", true,
     [](as::IAgentServices& services, const Text& file, const Text&, Text& errorText,
        bool loadProgram) { return services.parseService(file.c_str(), errorText, loadProgram); }},
    {"Buffer", false,
     [](as::IAgentServices& services, const Text& file, const Text& document, Text&,
        bool loadProgram) {
       return services.parseService(file.c_str(), bytes(document), size(document), loadProgram);
     }},
    {"BufferWithText", true,
     [](as::IAgentServices& services, const Text& file, const Text& document, Text& errorText,
        bool loadProgram) {
       return services.parseService(file.c_str(), bytes(document), size(document), errorText,
                                    loadProgram);
     }},
};

// The flavours.

const std::string schemas = "http://agentservices.example/schema/";

struct Flavour {
  const char* label;
  std::string xmlns;
  bool isWebService;
  bool isDotNet;
  bool (*isParameter)(as::IElement* element);  // Whether its parameters are like that.
};

template <class T>
bool is(as::IElement* element) {
  return as::interface_cast<T>(element) != nullptr;
}

const Flavour flavours[] = {
    {"Web", schemas + "ws/v1.0/vorws.xsd", true, false, is<as::IWSParameter>},
    {"COM", schemas + "com/v1.0/vorcom.xsd", false, false, is<as::ICOMParameter>},
    {"Java", schemas + "java/v2.0/vorjava.xsd", false, false, is<as::IJavaParameter>},
    {"DotNet", schemas + "dotnet/v1.0/vordotnet.xsd", false, true, is<as::IDotNETParameter>},
};

// A service of the flavour for payProgram(), which names `dictionary`.
std::string serviceOf(const Flavour& flavour, const std::string& dictionary) {
  return "<service xmlns=\"" + flavour.xmlns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" +
         flavour.xmlns + " " + flavour.xmlns + "\" name=\"Pay\" dataDictFilename=\"" + dictionary +
         "\"><operations><operation name=\"pay\" entryPoint=\"PAY\"><parameters>"
         "<parameter name=\"title\"><mappings><mapping item=\"REQ.TITLE\"/></mappings></parameter>"
         "</parameters></operation></operations></service>";
}

std::string javaServiceOf(const std::string& dictionary) {
  return serviceOf(flavours[2], dictionary);
}

as::IOperation* operationOf(as::IService& service) {
  return itemOf<as::IOperation>(service.getOperations(), 0);
}

as::IParameter* parameterOf(as::IService& service) {
  return itemOf<as::IParameter>(operationOf(service)->getParameters(), 0);
}

as::IMapping* mappingOf(as::IService& service) {
  return itemOf<as::IMapping>(parameterOf(service)->getMappings(), 0);
}

// Makes the current directory one of the test's own.
class InDirectory {
 public:
  InDirectory() { std::filesystem::current_path(directory_.path()); }
  ~InDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(old_, ignored);
  }
  InDirectory(const InDirectory&) = delete;
  InDirectory& operator=(const InDirectory&) = delete;

  // Writes a file, in a subdirectory if its name says so, and returns its path.
  std::string write(const std::string& name, const std::string& content) const {
    const std::filesystem::path parent = std::filesystem::path(name).parent_path();
    if (!parent.empty()) std::filesystem::create_directories(directory_.path() / parent);
    return directory_.write(name, content);
  }
  // The directory, in the one spelling that a program is told of it.
  std::string path() const { return std::filesystem::current_path().string(); }

 private:
  const std::filesystem::path old_ = std::filesystem::current_path();
  const TempDirectory directory_;
};

class ServiceRequest : public testing::TestWithParam<Form> {
 protected:
  // What comes of the request for the service `document`, which lies in the file named `name`.
  Outcome<as::IService> request(const std::string& document, bool loadProgram,
                                const std::string& name = "service.xml") {
    directory_.write(name, document);
    return requestAgain(document, loadProgram, name);
  }

  Outcome<as::IService> requestAgain(const std::string& document, bool loadProgram,
                                     const std::string& name = "service.xml") {
    errorText_ = before;
    return outcomeOf(
        [&] { return GetParam().request(*services_, name, document, errorText_, loadProgram); });
  }

  // The service with its program.
  std::unique_ptr<as::IService> loaded(const std::string& document) {
    Outcome<as::IService> outcome = request(document, true);
    EXPECT_EQ(outcome.result, Result::root) << outcome.text << errorText_;
    EXPECT_EQ(errorText_, before);
    return std::move(outcome.root);
  }

  // Expects the request to fail like that, in the way of its form, and with this text, which a
  // failure about the namespace has none of its own for.
  void expectFailure(const Outcome<as::IService>& outcome, Result result, const std::string& text) {
    EXPECT_EQ(outcome.root, nullptr);
    if (GetParam().tellsText) {
      EXPECT_EQ(outcome.result, Result::null);
      EXPECT_THAT(errorText_, HasSubstr(text));
      EXPECT_THAT(errorText_, testing::Not(HasSubstr(before)));
      EXPECT_NE(errorText_, "");
    } else {
      EXPECT_EQ(outcome.result, result);
      EXPECT_EQ(errorText_, before);
      if (result == Result::parseException) {
        EXPECT_THAT(outcome.text, HasSubstr(text));
      }
    }
  }

  const InDirectory directory_;
  const std::unique_ptr<as::IAgentServices> services_ = test::newServices();
  std::string errorText_;
};

// Good documents.

TEST_P(ServiceRequest, GivesAServiceOfTheFlavour) {
  directory_.write("PAY.xml", test::payProgram());
  for (const Flavour& flavour : flavours) {
    for (const bool loadProgram : {false, true}) {
      SCOPED_TRACE(std::string(flavour.label) + (loadProgram ? " loaded" : ""));
      const auto outcome = request(serviceOf(flavour, "PAY.xml"), loadProgram);
      ASSERT_EQ(outcome.result, Result::root) << outcome.text << errorText_;
      as::IService* const service = outcome.root.get();
      EXPECT_EQ(service->getName(), "Pay");
      EXPECT_EQ(is<as::IWebService>(service), flavour.isWebService);
      EXPECT_EQ(is<as::IDotNET>(service), flavour.isDotNet);
      for (const Flavour& other : flavours) {
        EXPECT_EQ(other.isParameter(parameterOf(*service)), &other == &flavour) << other.label;
      }
    }
  }
}

TEST_P(ServiceRequest, LeavesTheErrorTextAsItWasOnSuccess) {
  directory_.write("PAY.xml", test::payProgram());
  for (const Flavour& flavour : flavours) {
    for (const bool loadProgram : {false, true}) {
      const auto outcome = request(serviceOf(flavour, "PAY.xml"), loadProgram);
      EXPECT_EQ(outcome.result, Result::root) << flavour.label;
      EXPECT_EQ(errorText_, before) << flavour.label;
    }
  }
}

TEST_P(ServiceRequest, WithoutLoadingHasNoProgram) {
  directory_.write("PAY.xml", test::payProgram());
  for (const Flavour& flavour : flavours) {
    SCOPED_TRACE(flavour.label);
    const auto outcome = request(serviceOf(flavour, "./PAY.xml"), false);
    ASSERT_EQ(outcome.result, Result::root);
    EXPECT_EQ(outcome.root->getProgram(), nullptr);
    EXPECT_EQ(outcome.root->getDDFilename(), "./PAY.xml");
    EXPECT_EQ(outcome.root->getAttributeValue("programName"), "");
    EXPECT_EQ(operationOf(*outcome.root)->getEntryPoint(), nullptr);
    EXPECT_EQ(mappingOf(*outcome.root)->getDataItem(), nullptr);
  }
}

TEST_P(ServiceRequest, LoadingBindsTheServiceToItsProgram) {
  directory_.write("PAY.xml", test::payProgram());
  for (const Flavour& flavour : flavours) {
    SCOPED_TRACE(flavour.label);
    const auto service = loaded(serviceOf(flavour, "PAY.xml"));
    ASSERT_NE(service, nullptr);
    ASSERT_NE(service->getProgram(), nullptr);
    EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
    EXPECT_EQ(service->getAttributeValue("programName"), "PAYROLL");
    EXPECT_EQ(operationOf(*service)->getEntryPoint(),
              itemOf<as::IEntryPoint>(service->getProgram()->getEntryPoints(), 0));
    as::IDataItem* const item = mappingOf(*service)->getDataItem();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->getName(), "TITLE");
  }
}

TEST_P(ServiceRequest, MakesAModelOfItsOwnEachTime) {
  directory_.write("PAY.xml", test::payProgram());
  const auto first = loaded(javaServiceOf("PAY.xml"));
  const auto second = loaded(javaServiceOf("PAY.xml"));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first->getProgram(), second->getProgram());
  first->setName("changed");
  EXPECT_EQ(second->getName(), "Pay");
}

TEST_P(ServiceRequest, OutlivesItsFilesBuffersAndEntryObject) {
  std::unique_ptr<as::IService> service;
  {
    const std::unique_ptr<as::IAgentServices> services = test::newServices();
    std::string document = javaServiceOf("PAY.xml");
    directory_.write("PAY.xml", test::payProgram());
    directory_.write("service.xml", document);
    service.reset(GetParam().request(*services, "service.xml", document, errorText_, true));
    std::filesystem::remove("PAY.xml");
    std::filesystem::remove("service.xml");
    document.assign(document.size(), '?');
  }
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getName(), "Pay");
  ASSERT_NE(mappingOf(*service)->getDataItem(), nullptr);
  EXPECT_EQ(mappingOf(*service)->getDataItem()->getLength(), 10);
}

// Where the dictionary is found.

TEST_P(ServiceRequest, FindsTheDictionaryByItsName) {
  directory_.write("PAY.xml", test::payProgram());
  directory_.write("sub/deep/PAY.xml", test::payProgram());
  directory_.write("with blank.xml", test::payProgram());
  directory_.write("Pr\xC3\xA4mie/\xE4\xB8\xAD.xml", test::payProgram());
  const std::string path = directory_.path();
  const struct {
    std::string name;
    const char* left;  // The name in the service afterwards.
  } rows[] = {
      {"PAY.xml", "PAY.xml"},
      {"./PAY.xml", "PAY.xml"},
      {"sub/deep/PAY.xml", "PAY.xml"},
      {"sub/../PAY.xml", "PAY.xml"},
      {"sub//deep/PAY.xml", "PAY.xml"},
      {"with blank.xml", "with blank.xml"},
      {"Pr\xC3\xA4mie/\xE4\xB8\xAD.xml", "\xE4\xB8\xAD.xml"},
      {path + "/PAY.xml", "PAY.xml"},
      {path + "/sub/deep/PAY.xml", "PAY.xml"},
      {"file://" + path + "/sub/deep/PAY.xml", "PAY.xml"},
      {"file://localhost" + path + "/PAY.xml", "PAY.xml"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto service = loaded(javaServiceOf(row.name));
    ASSERT_NE(service, nullptr);
    ASSERT_NE(service->getProgram(), nullptr);
    EXPECT_EQ(service->getProgram()->getName(), "PAYROLL");
    EXPECT_EQ(service->getDDFilename(), row.left);
  }
}

TEST_P(ServiceRequest, ARelativeNameCountsFromTheCurrentDirectory) {
  directory_.write("PAY.xml", test::payProgram());
  directory_.write("services/OTHER.xml", test::payProgram());
  const std::string good = javaServiceOf("PAY.xml");
  EXPECT_EQ(request(good, true, "services/service.xml").result, Result::root) << errorText_;
  // Beside the service is not where it is looked for.
  const std::string missing = "'" + directory_.path() + "/OTHER.xml'";
  expectFailure(request(javaServiceOf("OTHER.xml"), true, "services/service.xml"),
                Result::parseException, "unable to open primary document entity " + missing);
}

// In memory there is no file of the service, and nobody asks for it.
TEST(ServiceRequestFromMemory, TheBuffersNameHasNoPartInFindingTheDictionary) {
  const InDirectory directory;
  directory.write("PAY.xml", test::payProgram());
  const std::string document = javaServiceOf("PAY.xml");
  for (const char* const id :
       {"service.xml", "", "/no/such/place/service.xml", "no/such.xml", "http://127.0.0.1/s.xml"}) {
    SCOPED_TRACE(id);
    const auto outcome = outcomeOf([&] {
      return test::newServices()->parseService(id, bytes(document), size(document), true);
    });
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_NE(outcome.root->getProgram(), nullptr);
  }
}

// When the dictionary is missed.

struct BadDictionary {
  const char* label;
  const char* name;     // What the service says.
  const char* content;  // What PAY.xml holds; null for no such file.
  Result result;
  const char* text;
};

std::vector<BadDictionary> badDictionaries() {
  static const std::string ofAnotherRoot =
      "<group xmlns='" + std::string(test::dictionaryNamespace) + "' name='G'/>";
  static const std::string invalid = test::dictionaryOf("<bogus/>");
  static const std::string broken = test::dictionaryOf("<group name='G'>");
  static const std::string service = javaServiceOf("PAY.xml");
  static const std::string plainService =
      "<service xmlns='" + schemas + "service/v2.0/vorservice.xsd'/>";
  static const std::string external =
      "<!DOCTYPE program [<!ENTITY e SYSTEM 'e.xml'>]>" + test::dictionaryOf("&e;");
  const Result parse = Result::parseException;
  return {
      {"missing", "PAY.xml", nullptr, parse, "unable to open primary document entity"},
      {"in a missing directory", "no/such/PAY.xml", "", parse,
       "unable to open primary document entity"},
      {"without a name", "", nullptr, parse, ""},
      {"empty", "PAY.xml", "", parse, "invalid document structure"},
      {"no XML", "PAY.xml", "IDENTIFICATION DIVISION.", parse, "invalid document structure"},
      {"not well-formed", "PAY.xml", broken.c_str(), parse, "expected end of tag 'group'"},
      {"cut", "PAY.xml", "<program", parse, ""},
      {"invalid", "PAY.xml", invalid.c_str(), parse, "no declaration found for element 'bogus'"},
      {"of another root", "PAY.xml", ofAnotherRoot.c_str(), parse, "'group'"},
      {"with an external entity", "PAY.xml", external.c_str(), parse, "e.xml"},
      {"a directory", ".", nullptr, parse, "is a directory"},
      {"on a network", "http://127.0.0.1/PAY.xml", nullptr, parse, "not read over a network"},
      {"a service", "PAY.xml", service.c_str(), Result::namespaceException, namespaceText},
      {"the service itself", "service.xml", nullptr, Result::namespaceException, namespaceText},
      {"a plain service", "PAY.xml", plainService.c_str(), Result::namespaceException,
       namespaceText},
      {"of no namespace", "PAY.xml", "<program name='P'/>", Result::namespaceException,
       namespaceText},
      {"of another namespace", "PAY.xml", "<program xmlns='urn:x'/>", Result::namespaceException,
       namespaceText},
      {"a schema", "PAY.xml", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'/>",
       Result::namespaceException, namespaceText},
  };
}

TEST_P(ServiceRequest, FailsAsItsDictionaryFails) {
  for (const BadDictionary& row : badDictionaries()) {
    for (const Flavour& flavour : flavours) {
      SCOPED_TRACE(std::string("the dictionary is ") + row.label + ", " + flavour.label);
      if (row.content != nullptr) directory_.write("PAY.xml", row.content);
      const std::string document = serviceOf(flavour, row.name);
      directory_.write("service.xml", document);
      expectFailure(requestAgain(document, true), row.result, row.text);
      std::filesystem::remove("PAY.xml");
    }
  }
}

TEST_P(ServiceRequest, WithoutLoadingDoesNotLookAtTheDictionary) {
  for (const BadDictionary& row : badDictionaries()) {
    SCOPED_TRACE(std::string("the dictionary is ") + row.label);
    if (row.content != nullptr) directory_.write("PAY.xml", row.content);
    const auto outcome = request(javaServiceOf(row.name), false);
    ASSERT_EQ(outcome.result, Result::root) << outcome.text;
    EXPECT_EQ(outcome.root->getProgram(), nullptr);
    EXPECT_EQ(outcome.root->getDDFilename(), row.name);
    EXPECT_EQ(errorText_, before);
    std::filesystem::remove("PAY.xml");
  }
}

TEST_P(ServiceRequest, WithoutADictionaryAttributeFailsOnLoadingOnly) {
  const std::string document = test::javaService("name='Pay'", "<operations/>");
  EXPECT_EQ(request(document, false).result, Result::root);
  expectFailure(request(document, true), Result::parseException, "");
}

// The exception is the dictionary's own.
TEST(ServiceRequestThatThrows, TellsThePlaceInTheDictionary) {
  const InDirectory directory;
  const std::string dictionary =
      directory.write("sub/PAY.xml", test::dictionary("\n<dataItems>\n  <bogus/></dataItems>"));
  const std::string document = javaServiceOf("sub/PAY.xml");
  directory.write("service.xml", document);
  for (const Form& form : forms) {
    if (form.tellsText) continue;
    SCOPED_TRACE(form.label);
    std::string unused;
    const auto outcome = outcomeOf(
        [&] { return form.request(*test::newServices(), "service.xml", document, unused, true); });
    ASSERT_EQ(outcome.result, Result::parseException);
    EXPECT_TRUE(std::filesystem::equivalent(outcome.message.getSystemId(), dictionary))
        << outcome.message.getSystemId();
    EXPECT_EQ(outcome.message.getLineNum(), 3);
    EXPECT_EQ(outcome.message.getErrorCode(), 2);
  }
}

TEST_P(ServiceRequest, TellsTheMissingDictionaryLikeARequestForIt) {
  const auto alone = outcomeOf([&] { return services_->parseCobolDD("none.xml"); });
  ASSERT_EQ(alone.result, Result::parseException);
  expectFailure(request(javaServiceOf("none.xml"), true), Result::parseException, alone.text);
}

TEST_P(ServiceRequest, GoesWellAfterAFailure) {
  const std::string document = javaServiceOf("PAY.xml");
  expectFailure(request(document, true), Result::parseException, "PAY.xml");
  directory_.write("PAY.xml", "<broken");
  expectFailure(request(document, true), Result::parseException, "");
  directory_.write("PAY.xml", test::payProgram());
  const auto service = loaded(document);
  ASSERT_NE(service, nullptr);
  EXPECT_NE(service->getProgram(), nullptr);
}

// A document that is bad itself never gets as far as its dictionary.
TEST_P(ServiceRequest, TellsOfTheServiceFirst) {
  std::string document = javaServiceOf("none.xml");
  document.insert(document.find("<operations>"), "<bogus/>");
  const auto outcome = request(document, true);
  expectFailure(outcome, Result::parseException, "'bogus'");
}

// Schemas.

class SchemasOfAServiceRequest : public ServiceRequest {
 protected:
  // Copies a schema into the directory that the entry object is then told of.
  void use(const std::string& schema) {
    std::filesystem::create_directory("schemas");
    std::filesystem::copy_file(std::filesystem::path(AS_SCHEMA_DIR) / schema, "schemas/" + schema);
    services_->setSchemaLocation((directory_.path() + "/schemas").c_str());
  }
};

TEST_P(SchemasOfAServiceRequest, AreThoseOfTheServicesFlavourAndOfTheDictionary) {
  directory_.write("PAY.xml", test::payProgram());
  use("vorjava.xsd");
  const std::string document = javaServiceOf("PAY.xml");
  EXPECT_EQ(request(document, false).result, Result::root);
  expectFailure(request(document, true), Result::parseException,
                "'" + directory_.path() + "/schemas/vorcobol.xsd'");
  use("vorcobol.xsd");
  EXPECT_EQ(request(document, true).result, Result::root) << errorText_;
  expectFailure(request(serviceOf(flavours[0], "PAY.xml"), false), Result::parseException,
                "'" + directory_.path() + "/schemas/vorws.xsd'");
}

// A schema of the client's own may allow other roots.
TEST_P(SchemasOfAServiceRequest, ThatAllowOtherRootsGiveNullAndNoText) {
  std::string schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" +
                       flavours[2].xmlns + "' elementFormDefault='qualified'>";
  const std::vector<std::string> roots = {"operations", "operation", "parameter", "mapping",
                                          "properties"};
  for (const std::string& root : roots) {
    schema += "<xs:element name='" + root + "'><xs:complexType/></xs:element>";
  }
  directory_.write("own/vorjava.xsd", schema + "</xs:schema>");
  services_->setSchemaLocation("own");
  for (const std::string& root : roots) {
    for (const bool loadProgram : {false, true}) {
      SCOPED_TRACE(root);
      const auto outcome = request("<" + root + " xmlns='" + flavours[2].xmlns +
                                       "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                                       "xsi:schemaLocation='" +
                                       flavours[2].xmlns + " vorjava.xsd'/>",
                                   loadProgram);
      EXPECT_EQ(outcome.result, Result::null) << outcome.text;
      EXPECT_EQ(errorText_, before);
    }
  }
}

TEST_P(SchemasOfAServiceRequest, ThatMakeTheDictionaryNoProgramLeaveTheServiceWithoutOne) {
  use("vorjava.xsd");
  const std::string ns = test::dictionaryNamespace;
  directory_.write("schemas/vorcobol.xsd",
                   "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" + ns +
                       "'><xs:element name='dataItems'><xs:complexType/></xs:element></xs:schema>");
  directory_.write("sub/PAY.xml", "<dataItems xmlns='" + ns +
                                      "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                                      "xsi:schemaLocation='" +
                                      ns + " vorcobol.xsd'/>");
  const auto service = loaded(javaServiceOf("sub/PAY.xml"));
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->getProgram(), nullptr);
  EXPECT_EQ(service->getDDFilename(), "sub/PAY.xml");
  EXPECT_EQ(service->getAttributeValue("programName"), "");
}

const auto labelOf = [](const testing::TestParamInfo<Form>& row) { return row.param.label; };

INSTANTIATE_TEST_SUITE_P(Forms, ServiceRequest, testing::ValuesIn(forms), labelOf);
INSTANTIATE_TEST_SUITE_P(Forms, SchemasOfAServiceRequest, testing::ValuesIn(forms), labelOf);

// Documents that are no services, whatever their flavour.

TEST_P(ServiceRequest, RefusesWhatNoServiceHolds) {
  const struct {
    const char* label;
    const char* text;  // What is put in ...
    const char* at;    // ... in front of this.
    const char* message;
  } rows[] = {
      {"an unknown element", "<bogus/>", "<operations>", "'bogus'"},
      {"an element out of place", "<mapping/>", "<operations>", "'mapping'"},
      {"an unknown attribute", " bogus=\"1\"", " entryPoint", "'bogus'"},
      {"a bad number", " occurs=\"x\"", "><mappings>", "'x'"},
      {"text", "text", "<operations>", "character data"},
      {"blanks in a section of their own", "<![CDATA[ ]]>", "<operations>", "character data"},
      {"an unknown entity", "&unknown;", "<operations>", "'unknown'"},
      {"an end too many", "</service>", "</service>", ""},
  };
  for (const Flavour& flavour : flavours) {
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(flavour.label) + " with " + row.label);
      std::string document = serviceOf(flavour, "none.xml");
      document.insert(document.find(row.at), row.text);
      expectFailure(request(document, false), Result::parseException, row.message);
    }
  }
}

}  // namespace
