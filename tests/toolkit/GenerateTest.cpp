// Tests of making what callers need: kinds and options, what refuses a service, names that users
// choose, and files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Requests.h"
#include "support/Toolkit.h"

namespace {

namespace fs = std::filesystem;
namespace toolkit = as::toolkit;
using test::contentOf;
using test::textsOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const toolkit::GeneratorKind& kindOf(const char* word) { return *toolkit::findGeneratorKind(word); }

const char* const example = AS_EXAMPLES_DIR "/MOTPREM-ws.xml";

class GenerateTest : public test::ToolkitTest {
 protected:
  toolkit::GeneratedOutput make(const char* kind, const std::string& file,
                                const std::string& output,
                                const toolkit::GenerateOptions& options = {}) const {
    return toolkit::generateFiles(reader(), kindOf(kind), file, output, options);
  }

  // The text of the only file that is made.
  std::string textOf(const char* kind, const std::string& file,
                     const toolkit::GenerateOptions& options = {}) const {
    make(kind, file, "out", options);
    return contentOf("out");
  }

  // p.xml, with a record of those items, and s.xml, a Java service of it.
  void writeService(const std::string& items) const {
    write("p.xml",
          test::dictionary("<dataItems><group name='R' length='8' linkage='true'>" + items +
                           "</group></dataItems><entryPoints><entryPoint name='GO'>"
                           "<parameter dataItem='R' byType='reference'/></entryPoint>"
                           "</entryPoints>"));
    toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  }
};

TEST_F(GenerateTest, WordsOfKindsAreUnique) {
  std::set<std::string> words;
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    EXPECT_TRUE(words.insert(kind.word).second) << kind.word;
    EXPECT_EQ(toolkit::findGeneratorKind(kind.word), &kind);
    EXPECT_THAT(kind.flavours, Not(IsEmpty()));
    for (const char* const flavour : kind.flavours) {
      EXPECT_NE(toolkit::findFlavour(flavour), nullptr) << flavour;
    }
  }
  EXPECT_EQ(toolkit::findGeneratorKind("nothing"), nullptr);
}

TEST_F(GenerateTest, EveryKindMakesSomethingOfEveryFlavourItTakes) {
  for (const toolkit::GeneratorKind& kind : toolkit::generatorKinds()) {
    for (const char* const flavour : kind.flavours) {
      const std::string file = std::string(AS_EXAMPLES_DIR "/PAYSLIP-") + flavour + ".xml";
      const toolkit::GeneratedOutput made = make(kind.word, file, "out/");
      EXPECT_THAT(made.files, Not(IsEmpty())) << kind.word << " " << flavour;
      for (const std::string& name : made.files) {
        EXPECT_THAT(contentOf(name), HasSubstr(std::string("from PAYSLIP-") + flavour)) << name;
      }
    }
  }
}

TEST_F(GenerateTest, OptionsAreThoseOfTheKind) {
  toolkit::GenerateOptions options;
  options.values = {{"schema", "separate"}};
  EXPECT_EQ(toolkit::wrongOption(kindOf("wsdl"), options), "");
  EXPECT_EQ(toolkit::wrongOption(kindOf("xsd"), options), "xsd has no option 'schema'");
  options.values = {{"schema", "both"}};
  EXPECT_EQ(toolkit::wrongOption(kindOf("wsdl"), options),
            "option 'schema' takes inline|separate, not 'both'");
}

TEST_F(GenerateTest, OptionsAreSuggestedAndSeveralAreLookedAt) {
  toolkit::GenerateOptions options;
  options.values = {{"adress", "x"}};
  EXPECT_EQ(toolkit::wrongOption(kindOf("wsdl"), options),
            "wsdl has no option 'adress'; did you mean 'address'?");
  // Of some options any value will do; of others the first word is as good as the last.
  options.values = {{"address", "any|thing"}, {"conditions", "enumerations"}, {"schema", "inline"}};
  EXPECT_EQ(toolkit::wrongOption(kindOf("wsdl"), options), "");
  options.values["schema"] = "inlin";
  EXPECT_EQ(toolkit::wrongOption(kindOf("wsdl"), options),
            "option 'schema' takes inline|separate, not 'inlin'");
}

TEST_F(GenerateTest, KindsThatNobodyMakesAreRefused) {
  const toolkit::GeneratorKind unknown = {"smoke", "", {"ws"}, true, {}};
  EXPECT_THROW(toolkit::generateFrom(reader(), unknown, {example}), std::invalid_argument);
}

TEST_F(GenerateTest, AFolderThatCannotBeMadeIsTold) {
  write("file", "");
  EXPECT_THAT(test::fileErrorOf([&] { make("wsdl", example, "file/"); }),
              HasSubstr("file/ cannot be made"));
  EXPECT_THAT(test::fileErrorOf([&] { make("xsd", example, "file/below"); }),
              HasSubstr("file/below cannot be made"));
}

TEST_F(GenerateTest, AFolderThatIsThereTakesWhatIsMade) {
  fs::create_directory("there");
  EXPECT_THAT(make("wsdl", example, "there").files, ElementsAre("there/Kfz-Pr_mie.wsdl"));
  EXPECT_THAT(make("wsdl", example, "").files, ElementsAre("Kfz-Pr_mie.wsdl"));
}

// Neither of the documents that it is made of is overwritten.
TEST_F(GenerateTest, DocumentsAreNotOverwritten) {
  write("MOTPREM.xml", contentOf(AS_EXAMPLES_DIR "/MOTPREM.xml"));
  write("other.xml", contentOf(AS_EXAMPLES_DIR "/MOTPREM.xml"));
  write("s.xml", contentOf(example));
  EXPECT_EQ(test::refusalOf([&] { make("wsdl", "s.xml", "s.xml"); }).text, "this is the document");
  EXPECT_EQ(test::refusalOf([&] { make("wsdl", "s.xml", "MOTPREM.xml"); }).text,
            "this is the dictionary");
  EXPECT_EQ(test::refusalOf([&] {
              toolkit::generateFiles(reader(), kindOf("wsdl"), std::string("s.xml"), "other.xml",
                                     {}, "other.xml");
            }).text,
            "this is the dictionary");
  EXPECT_EQ(make("wsdl", "s.xml", "other.xml").files.size(), 1U);
}

TEST_F(GenerateTest, WithoutADictionaryOfItsOwnNoneIsMissed) {
  write("s.xml", "<!-- lint: off no-dictionary -->" +
                     test::webService("name='S' implementation='ws'", "<operations/>"));
  EXPECT_THAT(make("wsdl", "s.xml", "out").files, ElementsAre("out"));
}

// The program of a service that has one is as good as one that is told.
TEST_F(GenerateTest, ServicesMayBringTheirPrograms) {
  writeService("<alphanumeric name='A' picture='X' length='1'/>");
  const toolkit::ServiceDocument document = reader().readServiceWithProgram("s.xml");
  const toolkit::Generated own = toolkit::generate(kindOf("java"), *document.service);
  const auto program = reader().readDictionary("p.xml");
  const auto bare = reader().readService("s.xml");
  const toolkit::Generated told = toolkit::generate(kindOf("java"), *bare, {}, program.get());
  ASSERT_THAT(own.files, SizeIs(1));
  ASSERT_THAT(told.files, SizeIs(1));
  EXPECT_EQ(own.files[0].content, told.files[0].content);
}

TEST_F(GenerateTest, WhatLintRefusesIsNotMade) {
  const toolkit::GeneratedOutput made =
      make("xsd", AS_EXAMPLES_DIR "/broken/WHSLOTS-ws.xml", "out/");
  EXPECT_THAT(made.files, IsEmpty());
  EXPECT_THAT(textsOf(made.findings), Contains(HasSubstr("data type 'byte' cannot hold LM-AS-OF")));
  EXPECT_FALSE(fs::exists("out"));
}

TEST_F(GenerateTest, OtherFlavoursAreRefused) {
  const toolkit::GeneratedOutput made = make("wsdl", AS_EXAMPLES_DIR "/PAYSLIP-java.xml", "out");
  EXPECT_THAT(textsOf(made.findings),
              ElementsAre("service: wsdl is not made of Java services; convert it first, to ws"));
  EXPECT_FALSE(fs::exists("out"));
}

TEST_F(GenerateTest, NamespacesThatAreNoUrisAreRefused) {
  std::string text = contentOf(AS_EXAMPLES_DIR "/MOTPREM-ws.xml");
  const std::string good = "urn:mi:motor:answer";
  for (std::size_t at = text.find(good); at != std::string::npos; at = text.find(good, at + 1)) {
    text.replace(at, good.size(), "urn:mi motor");
  }
  write("MOTPREM.xml", contentOf(AS_EXAMPLES_DIR "/MOTPREM.xml"));
  write("service.xml", text);
  for (const char* const kind : {"xsd", "wsdl"}) {
    const toolkit::GeneratedOutput made = make(kind, "service.xml", "out/");
    EXPECT_THAT(textsOf(made.findings), Contains(HasSubstr("'urn:mi motor' is no URI"))) << kind;
    EXPECT_FALSE(fs::exists("out")) << kind;
  }
  toolkit::GenerateOptions options;
  options.values = {{"namespace", "a|b"}};
  EXPECT_THAT(textsOf(make("xsd", example, "out/", options).findings),
              Contains(HasSubstr("'a|b' is no URI")));
  for (const char* const uri :
       {"http://www.w3.org/2000/xmlns/", "http://www.w3.org/XML/1998/namespace",
        "http://www.w3.org/2001/XMLSchema", "http://www.w3.org/2001/XMLSchema-instance"}) {
    options.values = {{"namespace", uri}};
    const toolkit::GeneratedOutput made = make("xsd", example, "out/", options);
    EXPECT_THAT(textsOf(made.findings), Contains("service: namespace '" + std::string(uri) +
                                                 "' is one of XML itself; choose another one"));
    EXPECT_THAT(made.files, IsEmpty());
  }
}

TEST_F(GenerateTest, OneOperationIsMadeWhereItIsAskedFor) {
  toolkit::GenerateOptions options;
  options.values = {{"operation", "instalments"}};
  for (const char* const kind : {"xsd", "jsonschema"}) {
    std::string text;
    for (const std::string& name : make(kind, example, "out/", options).files) {
      text += contentOf(name);
    }
    EXPECT_THAT(text, HasSubstr("instalments")) << kind;
    EXPECT_THAT(text, Not(HasSubstr("discount"))) << kind;
    fs::remove_all("out");
  }
}

TEST_F(GenerateTest, AnOperationThatThereIsNotIsRefused) {
  toolkit::GenerateOptions options;
  options.values = {{"operation", "nothing"}};
  for (const char* const kind : {"xsd", "jsonschema"}) {
    const toolkit::GeneratedOutput made = make(kind, example, "out/", options);
    EXPECT_THAT(textsOf(made.findings), Contains(HasSubstr("there is no operation 'nothing'")))
        << kind;
    EXPECT_THAT(made.files, IsEmpty()) << kind;
  }
}

TEST_F(GenerateTest, FilesThatHoldTheSameAreLeftAlone) {
  const toolkit::GeneratedOutput first = make("xsd", example, "out/");
  EXPECT_EQ(first.written, first.files);
  const toolkit::GeneratedOutput second = make("xsd", example, "out/");
  EXPECT_EQ(second.files, first.files);
  EXPECT_THAT(second.written, IsEmpty());
  write(first.files.back(), "other");
  EXPECT_THAT(make("xsd", example, "out/").written, ElementsAre(first.files.back()));
}

TEST_F(GenerateTest, AllFilesAreWrittenOrNone) {
  const toolkit::GeneratedOutput first = make("xsd", example, "out/");
  for (const std::string& file : first.files) write(file, "old");
  // A folder stands where the last file is to be.
  fs::remove(first.files.back());
  fs::create_directory(first.files.back());
  EXPECT_THAT(test::fileErrorOf([&] { make("xsd", example, "out/"); }),
              HasSubstr(first.files.back()));
  EXPECT_EQ(contentOf(first.files.front()), "old");
}

TEST_F(GenerateTest, OneFileIsCalledAsItIsTold) {
  EXPECT_THAT(make("wsdl", example, "my.wsdl").files, ElementsAre("my.wsdl"));
}

TEST_F(GenerateTest, WhatIsMadeIsTheSameEachTime) {
  EXPECT_EQ(textOf("openapi", example), textOf("openapi", example));
}

TEST_F(GenerateTest, RecordsOfDictionariesAreTypes) {
  toolkit::GenerateOptions options;
  options.record = "LK-RESULT";
  const std::string text = textOf("xsd", AS_EXAMPLES_DIR "/MOTPREM.xml", options);
  EXPECT_THAT(text, HasSubstr("<xs:element name=\"LK-RESULT\""));
  EXPECT_THAT(text, Not(HasSubstr("LK-REQUEST")));
}

TEST_F(GenerateTest, UnknownRecordsAreErrors) {
  toolkit::GenerateOptions options;
  options.record = "NONE";
  EXPECT_THAT(textsOf(make("xsd", AS_EXAMPLES_DIR "/MOTPREM.xml", "out", options).findings),
              ElementsAre("dictionary: there is no record 'NONE'; name another one"));
}

TEST_F(GenerateTest, KindsOfServicesTakeNoDictionaries) {
  EXPECT_EQ(test::refusalOf([&] { make("wsdl", AS_EXAMPLES_DIR "/MOTPREM.xml", "out"); }).text,
            "wsdl is made of services, this is a dictionary");
}

TEST_F(GenerateTest, OneOperationMayBeWanted) {
  toolkit::GenerateOptions options;
  options.values = {{"operation", "taxOn"}};
  const std::string text = textOf("jsonschema", example, options);
  EXPECT_THAT(text, HasSubstr("\"taxOnResponse\""));
  EXPECT_THAT(text, Not(HasSubstr("\"quoteResponse\"")));
  options.values = {{"operation", "none"}};
  EXPECT_THAT(make("jsonschema", example, "out", options).files, IsEmpty());
}

TEST_F(GenerateTest, PackedNumbersOfFifteenDigitsAreNoDoubles) {
  writeService(
      "<numeric name='N' picture='S9(13)V99' usage='comp-3' sign='true' digits='15' "
      "alignment='2' length='8'/>");
  EXPECT_THAT(textOf("xsd", "s.xml"), HasSubstr("<xs:restriction base=\"xs:decimal\">"));
  EXPECT_THAT(textOf("jsonschema", "s.xml"),
              HasSubstr(R"("pattern": "^-?[0-9]{1,13}([.][0-9]{1,2})?$")"));
}

// Readers of 24 digits refuse limits of more.
TEST_F(GenerateTest, VeryLongNumbersAreLimitedByAPattern) {
  writeService(
      "<numeric name='N' picture='9(26)V9' usage='comp-3' digits='27' alignment='1' "
      "length='14'/>");
  const std::string xsd = textOf("xsd", "s.xml");
  EXPECT_THAT(xsd, HasSubstr(R"(<xs:pattern value="[0-9]{1,26}([.][0-9]{1,1})?"/>)"));
  EXPECT_THAT(xsd, Not(HasSubstr("Inclusive")));
}

TEST_F(GenerateTest, ConditionsAreEnumerationsWhereTheyAreAskedFor) {
  writeService(
      "<numeric name='A' picture='9' digits='1' length='1'><numericCondition name='YES'>"
      "<numericConstant value='+1'/></numericCondition></numeric>");
  EXPECT_THAT(textOf("xsd", "s.xml"), HasSubstr("YES: '+1'"));
  EXPECT_THAT(textOf("xsd", "s.xml"), Not(HasSubstr("<xs:enumeration")));
  toolkit::GenerateOptions options;
  options.values = {{"conditions", "enumerations"}};
  EXPECT_THAT(textOf("xsd", "s.xml", options), HasSubstr(R"(<xs:enumeration value="1"/>)"));
}

TEST_F(GenerateTest, ConditionsThatAreNoValuesAreTold) {
  for (const char* const item :
       {"<numeric name='A' picture='9' digits='1' length='1'><numericCondition name='LOW'>"
        "<numericRange from='1' to='3'/></numericCondition></numeric>",
        "<pointer name='A' length='4'><numericCondition name='FAR'>"
        "<numericConstant value='99999999999999999999'/></numericCondition></pointer>"}) {
    writeService(item);
    toolkit::GenerateOptions options;
    options.values = {{"conditions", "enumerations"}};
    EXPECT_THAT(textsOf(make("xsd", "s.xml", "out", options).findings),
                ElementsAre("GO.R.A: conditions of A are ranges or no values of its type: they are "
                            "told in words"))
        << item;
  }
}

// A dictionary may not say how long an address is.
TEST_F(GenerateTest, AddressesOfNoLengthAreNumbersOfAnySize) {
  writeService("<pointer name='A'/>");
  EXPECT_THAT(textOf("xsd", "p.xml"), HasSubstr(R"(<xs:element name="A" type="xs:integer">)"));
}

TEST_F(GenerateTest, ChangedNamesAreToldAndMayBeChosen) {
  writeService("<alphanumeric name='1ST' picture='X' length='1'/>");
  EXPECT_THAT(textsOf(make("xsd", "s.xml", "out").findings),
              ElementsAre("GO.R.1ST: '1ST' is no name in XML, or taken: '_1ST' stands for it"));
  toolkit::GenerateOptions options;
  options.names = toolkit::readChosenNames("# Ours\n\nGO.R.1ST = first\n", "names");
  EXPECT_THAT(make("xsd", "s.xml", "out", options).findings, IsEmpty());
  EXPECT_THAT(contentOf("out"), HasSubstr("<xs:element name=\"first\""));
}

TEST_F(GenerateTest, ForbiddenChoicesMakeNothing) {
  writeService("<alphanumeric name='A' picture='X' length='1'/>");
  toolkit::GenerateOptions options;
  options.names = {{"A", "not this"}};
  EXPECT_THAT(make("xsd", "s.xml", "out", options).files, IsEmpty());
}

TEST_F(GenerateTest, NamesAreOnePerLine) {
  const toolkit::Refusal refusal =
      test::refusalOf([] { toolkit::readChosenNames("A = B\nnothing\n", "names"); });
  EXPECT_EQ(refusal.line, 2);
  for (const char* const text : {"= B\n", "A =\n", "A = \t\n", "=\n"}) {
    EXPECT_EQ(test::refusalOf([text] { toolkit::readChosenNames(text, "names"); }).text,
              "this is no name for another")
        << text;
  }
  EXPECT_EQ(toolkit::readChosenNames("a=b = c \r\n", "names").at("a=b"), "c");
  // Some editors begin with a mark of the encoding.
  EXPECT_EQ(toolkit::readChosenNames("\xEF\xBB\xBF"
                                     "a = c",
                                     "names")
                .at("a"),
            "c");
}

TEST_F(GenerateTest, SourcesCannotEndComments) {
  toolkit::GenerateOptions options;
  options.source = "a --> */ \n b \\u002a/";
  const std::string text = textOf("wsdl", example, options);
  EXPECT_THAT(text, HasSubstr("from a - -> * /   b /u002a/ -->"));
}

class RecursiveTypeTest : public GenerateTest {
 protected:
  // s.xml, a Web service with that type definition.
  void writeWithType(const std::string& definition) const {
    write("p.xml", test::dictionary("<dataItems><alphanumeric name='A' picture='X' length='1' "
                                    "linkage='true'/></dataItems><entryPoints><entryPoint "
                                    "name='GO'><parameter dataItem='A' byType='reference'/>"
                                    "</entryPoint></entryPoints>"));
    toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("ws"));
    std::string text = contentOf("s.xml");
    const std::string types = "<parameterTypeDefs/>";
    const std::size_t at = text.find(types);
    ASSERT_NE(at, std::string::npos) << text;
    text.replace(at, types.size(), "<parameterTypeDefs>" + definition + "</parameterTypeDefs>");
    write("s.xml", text);
  }
};

TEST_F(RecursiveTypeTest, ReferToThemselvesByName) {
  writeWithType(
      "<parameter name='Node'><mappings/><field name='next' ref='Node'/><field name='value' "
      "dataType='string'><mappings><mapping item='A'/></mappings></field></parameter>");
  EXPECT_THAT(textOf("wsdl", "s.xml"),
              HasSubstr("<xs:element name=\"next\" minOccurs=\"0\" type=\"tns:Node\"/>"));
  EXPECT_THAT(textOf("jsonschema", "s.xml"), HasSubstr(R"("$ref": "#/$defs/Node")"));
}

TEST_F(RecursiveTypeTest, OneThatIsNothingElseIsRefused) {
  writeWithType("<parameter name='Node' ref='Node'/>");
  EXPECT_THAT(make("wsdl", "s.xml", "out").files, IsEmpty());
}

}  // namespace
