// Tests of conversions: data types, what is lost and told, and what stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "support/Flavours.h"
#include "support/Toolkit.h"

namespace {

using test::contentOf;
using test::labelOf;
using test::refusalOf;
using test::textsOf;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
namespace toolkit = as::toolkit;

// "service" in the namespace `ns` with those attributes around `content`.
std::string service(const std::string& ns, const std::string& implementation,
                    const std::string& content, const std::string& more = "") {
  return "<service xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" name=\"S\" implementation=\"" + implementation +
         "\" programName=\"PAYROLL\" " + more + ">" + content + "</service>";
}

const char* namespaceOf(const std::string& flavour) {
  if (flavour == "ws") return as::namespaces::ws.uri;
  if (flavour == "com") return as::namespaces::com.uri;
  if (flavour == "java") return as::namespaces::java.uri;
  return as::namespaces::dotnet.uri;
}

std::string operation(const std::string& parameters, const std::string& attributes = "",
                      const std::string& more = "") {
  return "<operations><operation name='op' entryPoint='PAY' " + attributes + "><parameters>" +
         parameters + "</parameters>" + more + "</operation></operations>";
}

class ConvertTest : public test::ToolkitTest {
 protected:
  // Makes out.xml of the document, which is s.xml.
  toolkit::ConvertedService convert(const std::string& document, const std::string& flavour) const {
    write("s.xml", document);
    return convertFile("s.xml", "out.xml", flavour);
  }

  toolkit::ConvertedService convertFile(const std::string& file, const std::string& output,
                                        const std::string& flavour) const {
    return toolkit::convertServiceFile(reader(), file, output, *toolkit::findFlavour(flavour));
  }

  static std::string output() { return contentOf("out.xml"); }

  nlohmann::json converted() const { return jsonOfFile("out.xml"); }

  static std::vector<std::string> notesOf(const toolkit::ConvertedService& outcome) {
    for (const toolkit::Finding& note : outcome.notes) {
      EXPECT_EQ(note.severity, toolkit::Severity::note);
    }
    return textsOf(outcome.notes);
  }
};

// What becomes of a data type when nothing is known of the item: the words in the order of com,
// dotnet, java, ws; empty where there is no equivalent.
struct TypeRow {
  std::string label;
  const char* flavour;
  const char* type;
  std::vector<std::string> types;
};

void PrintTo(const TypeRow& row, std::ostream* out) { *out << row.flavour << ' ' << row.type; }

class ConvertType : public ConvertTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(ConvertType, BecomesTheOneThatHoldsAsMuch) {
  const TypeRow& row = GetParam();
  const char* const flavours[] = {"com", "dotnet", "java", "ws"};
  const char* const texts[] = {"string", "String", "String", "string"};
  const std::string type = *row.type == '\0' ? "" : std::string("dataType='") + row.type + "'";
  for (std::size_t i = 0; i < row.types.size(); i++) {
    SCOPED_TRACE(flavours[i]);
    const toolkit::ConvertedService outcome =
        convert(service(namespaceOf(row.flavour), row.flavour,
                        operation("<parameter name='p' " + type + "/>")),
                flavours[i]);
    const bool isSame = std::string(row.flavour) == flavours[i];
    if (row.types[i].empty() && isSame) {
      EXPECT_THAT(output(), Not(HasSubstr("dataType")));
    } else if (row.types[i].empty()) {
      // Text holds whatever there is; that it is no equivalent is told.
      EXPECT_THAT(output(), HasSubstr(std::string("dataType=\"") + texts[i] + "\""));
      EXPECT_THAT(notesOf(outcome),
                  ElementsAre(AllOf(StartsWith("op.p: "),
                                    EndsWith(std::string(": made '") + texts[i] + "'"))));
    } else {
      EXPECT_THAT(output(), HasSubstr("dataType=\"" + row.types[i] + "\""));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Words, ConvertType,
    testing::Values(
        TypeRow{"ComByte", "com", "byte", {"byte", "Byte", "short", "unsignedByte"}},
        TypeRow{"ComShort", "com", "short", {"short", "Int16", "short", "short"}},
        TypeRow{"ComInt", "com", "int", {"int", "Int32", "int", "int"}},
        TypeRow{"ComLong", "com", "long", {"long", "Int32", "int", "int"}},
        TypeRow{"ComFloat", "com", "float", {"float", "Single", "float", "float"}},
        TypeRow{"ComDouble", "com", "double", {"double", "Double", "double", "double"}},
        TypeRow{"ComCurrency", "com", "currency", {"currency", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"ComString", "com", "string", {"string", "String", "String", "string"}},
        TypeRow{"ComDate", "com", "date", {"date", "", "", ""}},
        // It reads as text, as every unknown word of COM services does.
        TypeRow{"ComObject", "com", "object", {"object", "String", "String", "string"}},
        TypeRow{"ComNone", "com", "", {"", "", "", ""}},
        TypeRow{"NetByte", "dotnet", "Byte", {"byte", "Byte", "short", "unsignedByte"}},
        TypeRow{"NetSByte", "dotnet", "SByte", {"short", "SByte", "byte", "byte"}},
        TypeRow{"NetInt16", "dotnet", "Int16", {"short", "Int16", "short", "short"}},
        TypeRow{"NetInt32", "dotnet", "Int32", {"int", "Int32", "int", "int"}},
        TypeRow{"NetInt64", "dotnet", "Int64", {"", "Int64", "long", "long"}},
        TypeRow{"NetUInt16", "dotnet", "UInt16", {"int", "UInt16", "int", "unsignedShort"}},
        TypeRow{"NetUInt32", "dotnet", "UInt32", {"currency", "UInt32", "long", "unsignedInt"}},
        TypeRow{"NetUInt64", "dotnet", "UInt64", {"", "UInt64", "BigInteger", "unsignedLong"}},
        TypeRow{"NetSingle", "dotnet", "Single", {"float", "Single", "float", "float"}},
        TypeRow{"NetDouble", "dotnet", "Double", {"double", "Double", "double", "double"}},
        TypeRow{"NetDecimal", "dotnet", "Decimal", {"", "Decimal", "BigDecimal", "decimal"}},
        TypeRow{"NetString", "dotnet", "String", {"string", "String", "String", "string"}},
        TypeRow{"NetNone", "dotnet", "", {"byte", "", "short", "unsignedByte"}},
        TypeRow{"JavaByte", "java", "byte", {"short", "SByte", "byte", "byte"}},
        TypeRow{"JavaLong", "java", "long", {"", "Int64", "long", "long"}},
        TypeRow{"JavaBigInteger", "java", "BigInteger", {"", "", "BigInteger", "integer"}},
        TypeRow{"JavaBigDecimal", "java", "BigDecimal", {"", "", "BigDecimal", "decimal"}},
        TypeRow{"JavaByteArray", "java", "byteArray", {"", "", "byteArray", ""}},
        TypeRow{"JavaNone", "java", "", {"short", "Int16", "", "short"}},
        TypeRow{
            "WebUnsignedLong", "ws", "unsignedLong", {"", "UInt64", "BigInteger", "unsignedLong"}},
        TypeRow{"WebInteger", "ws", "integer", {"", "", "BigInteger", "integer"}},
        TypeRow{"WebDecimal", "ws", "decimal", {"", "", "BigDecimal", "decimal"}},
        TypeRow{"WebXml", "ws", "XML", {"", "", "", "XML"}},
        TypeRow{"WebNone", "ws", "", {"", "", "", ""}}),
    labelOf<TypeRow>);

// Where no type holds all that the old one could, the item decides.
TEST_F(ConvertTest, TheItemHelpsWhereNoTypeHoldsAsMuch) {
  write("PAY.xml", test::payProgram());
  const toolkit::ConvertedService outcome =
      convert(service(as::namespaces::java.uri, "java",
                      operation("<parameter name='p' dataType='BigDecimal'><mappings><mapping "
                                "item='REQ.LINE.AMOUNT(1)'/></mappings></parameter>"),
                      "dataDictFilename='PAY.xml'"),
              "com");
  EXPECT_THAT(output(), HasSubstr("dataType=\"currency\""));
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op.p: data type 'BigDecimal' has no equivalent in COM services: made "
                          "'currency', which holds AMOUNT"));
}

TEST_F(ConvertTest, EveryItemOfAFieldCounts) {
  write("PAY.xml", test::payProgram());
  const toolkit::ConvertedService outcome =
      convert(service(as::namespaces::java.uri, "java",
                      operation("<parameter name='p' dataType='BigDecimal'><mappings>"
                                "<mapping item='REQ.LINE.CELL(1,1)'/>"
                                "<mapping item='REQ.LINE.AMOUNT(1)'/></mappings></parameter>"),
                      "dataDictFilename='PAY.xml'"),
              "com");
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op.p: data type 'BigDecimal' has no equivalent in COM services: made "
                          "'currency', which holds CELL AMOUNT"));
}

TEST_F(ConvertTest, ATypeOfNoWordIsToldAsOne) {
  const toolkit::ConvertedService outcome = convert(
      service(as::namespaces::ws.uri, "ws", operation("<parameter name='p' dataType='Int32'/>")),
      "java");
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op.p: data type 'Int32' is none of Web services: made 'String'"));
}

TEST_F(ConvertTest, NamespacesAreReplacedWhereverTheyAreDeclared) {
  const std::string java = as::namespaces::java.uri;
  const std::string web = as::namespaces::ws.uri;
  convert("<service xmlns='" + java +
              "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" +
              java + " " + java + "' name='see " + java + " for more' implementation='java'>" +
              "<q:operations xmlns:q='" + java + "'><operation xmlns='" + java +
              "' name='o'/></q:operations></service>",
          "ws");
  EXPECT_THAT(output(), AllOf(HasSubstr("name=\"see " + java + " for more\""),
                              HasSubstr("xmlns:q=\"" + web + "\""),
                              HasSubstr("xsi:schemaLocation=\"" + web + " " + web + "\"")));
  EXPECT_EQ(converted()["operations"][0]["name"], "o");
}

TEST_F(ConvertTest, AFieldAttributeOfAFieldsNameIsRenamed) {
  const toolkit::ConvertedService outcome =
      convert(service(as::namespaces::ws.uri, "ws",
                      operation("<parameter name='p'><field name='a' dataType='int'/>"
                                "<fieldAttribute name='a' dataType='short'/></parameter>")),
              "java");
  EXPECT_THAT(notesOf(outcome), ElementsAre(HasSubstr("made a field and called 'a-2', for there is "
                                                      "a field of its name")));
  const nlohmann::json fields = converted()["operations"][0]["parameters"][0]["children"];
  EXPECT_EQ(fields[1]["name"], "a-2");
}

TEST_F(ConvertTest, FieldsMadeOfAttributesGetTheFirstNamesThatAreLeft) {
  const std::string attribute = "<fieldAttribute name='a' dataType='short'/>";
  convert(service(as::namespaces::ws.uri, "ws",
                  operation("<parameter name='p'>" + attribute + attribute +
                            "<field name='a-3' dataType='int'/>" + attribute + attribute +
                            "</parameter><parameter name='q'>" + attribute + attribute +
                            "</parameter>")),
          "java");
  const nlohmann::json parameters = converted()["operations"][0]["parameters"];
  const auto namesIn = [](const nlohmann::json& parameter) {
    std::vector<std::string> names;
    for (const nlohmann::json& field : parameter["children"]) names.push_back(field["name"]);
    return names;
  };
  EXPECT_THAT(namesIn(parameters[0]), ElementsAre("a-2", "a-4", "a-3", "a-5", "a"));
  EXPECT_THAT(namesIn(parameters[1]), ElementsAre("a-2", "a"));
}

TEST_F(ConvertTest, TheDictionaryIsNeverTheOutput) {
  write("PAY.xml", test::payProgram());
  write("s.xml", service(as::namespaces::java.uri, "java", "", "dataDictFilename='PAY.xml'"));
  const toolkit::Refusal refusal = refusalOf([this] { convertFile("s.xml", "PAY.xml", "com"); });
  EXPECT_EQ(refusal.file, "PAY.xml");
  EXPECT_EQ(refusal.text, "this is the dictionary");
  EXPECT_EQ(contentOf("PAY.xml"), test::payProgram());
}

TEST_F(ConvertTest, ADictionaryThatCannotBeReadIsToldAndDoneWithout) {
  const toolkit::ConvertedService outcome = convert(
      service(as::namespaces::java.uri, "java", operation("<parameter name='p' dataType='int'/>"),
              "dataDictFilename='gone.xml'"),
      "ws");
  EXPECT_THAT(notesOf(outcome), ElementsAre(HasSubstr("the dictionary cannot be used")));
  EXPECT_THAT(output(),
              AllOf(HasSubstr("dataType=\"int\""), HasSubstr("dataDictFilename=\"gone.xml\"")));
}

TEST_F(ConvertTest, ReferencesHaveNoTypeOfTheirOwn) {
  convert(service(as::namespaces::java.uri, "java",
                  "<parameterTypeDefs><parameter name='D' dataType='int'/></parameterTypeDefs>" +
                      operation("<parameter name='p' ref='D' dataType='byte'/>")),
          "dotnet");
  const nlohmann::json parameter = converted()["operations"][0]["parameters"][0];
  EXPECT_EQ(parameter["referenceType"], "D");
  EXPECT_EQ(parameter["typeText"], "Int32");
  EXPECT_THAT(output(), HasSubstr("<parameter name=\"p\" ref=\"D\"/>"));
}

TEST_F(ConvertTest, RepeatedGroupsAreArraysInWebServicesAlone) {
  const std::string group =
      operation("<parameter name='p' occurs='5'><field name='f' dataType='int'/></parameter>");
  convert(service(as::namespaces::java.uri, "java", group), "ws");
  EXPECT_EQ(converted()["operations"][0]["parameters"][0]["typeText"], "Array");
  const toolkit::ConvertedService back = convert(output(), "com");
  EXPECT_THAT(output(), Not(HasSubstr("Array")));
  EXPECT_THAT(notesOf(back), Not(Contains(HasSubstr("Array"))));
}

TEST_F(ConvertTest, AGroupThatOccursOnceIsNoArray) {
  const std::string group =
      operation("<parameter name='p' occurs='1'><field name='f' dataType='int'/></parameter>");
  convert(service(as::namespaces::java.uri, "java", group), "ws");
  EXPECT_THAT(output(), Not(HasSubstr("Array")));
}

TEST_F(ConvertTest, WhatTheNewFlavourNeedsIsAdded) {
  const std::string plain = operation("<parameter name='p' dataType='int'/>");
  convert(service(as::namespaces::com.uri, "com", plain), "ws");
  const nlohmann::json web = converted()["operations"][0];
  EXPECT_EQ(web["styleText"], "document");
  EXPECT_EQ(web["inputUseText"], "literal");
  EXPECT_EQ(web["outputUseText"], "literal");
  EXPECT_EQ(web["inputNamespace"], "urn:agentservices:PAYROLL");
  EXPECT_EQ(web["outputNamespace"], "urn:agentservices:PAYROLL");
  convert(service(as::namespaces::com.uri, "com", plain), "java");
  EXPECT_THAT(output(), HasSubstr("transactionType=\"requires\""));
}

TEST_F(ConvertTest, HeadersAndFaultsAreLeftOutAndTold) {
  const std::string message = "<parameters><parameter name='x' dataType='int'/></parameters>";
  const toolkit::ConvertedService outcome = convert(
      service(as::namespaces::ws.uri, "ws",
              operation("<parameter name='p' dataType='int' namespace='urn:x' "
                        "elementForm='qualified' attributeForm='unqualified'/>",
                        "style='rpc' inputUse='literal' outputUse='literal' inputNamespace='urn:x' "
                        "outputNamespace='urn:y'",
                        "<header>" + message + "</header><fault>" + message + "</fault><header>" +
                            message + "</header>")),
      "java");
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op, header 1: Java services have none: left out with its parameters",
                          "op, fault 1: Java services have none: left out with its parameters",
                          "op, header 2: Java services have none: left out with its parameters",
                          "service: attributeForm has no equivalent in Java services: left out (1 "
                          "time)",
                          "service: elementForm has no equivalent in Java services: left out (1 "
                          "time)",
                          "service: inputNamespace has no equivalent in Java services: left out (1 "
                          "time)",
                          "service: inputUse has no equivalent in Java services: left out (1 time)",
                          "service: namespace has no equivalent in Java services: left out (1 "
                          "time)",
                          "service: outputNamespace has no equivalent in Java services: left out "
                          "(1 time)",
                          "service: outputUse has no equivalent in Java services: left out (1 "
                          "time)",
                          "service: style has no equivalent in Java services: left out (1 time)"));
  EXPECT_THAT(output(),
              AllOf(Not(HasSubstr("header")), Not(HasSubstr("fault")), Not(HasSubstr("urn:"))));
}

TEST_F(ConvertTest, FieldAttributesBecomeFields) {
  const toolkit::ConvertedService outcome =
      convert(service(as::namespaces::ws.uri, "ws",
                      operation("<parameter name='p'><field name='f' dataType='int'/>"
                                "<fieldAttribute name='a' dataType='short'/></parameter>")),
              "dotnet");
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op.p.a: it was a field attribute, which .NET services have not: made a "
                          "field"));
  const nlohmann::json fields = converted()["operations"][0]["parameters"][0]["children"];
  ASSERT_EQ(fields.size(), 2u);
  EXPECT_EQ(fields[1]["name"], "a");
  EXPECT_EQ(fields[1]["typeText"], "Int16");
}

TEST_F(ConvertTest, ReturnParametersAndTransactionTypesAreLeftOutAndTold) {
  const toolkit::ConvertedService com =
      convert(service(as::namespaces::com.uri, "com",
                      operation("<parameter name='p' dataType='int' returnParameter='1'/>")),
              "java");
  EXPECT_THAT(notesOf(com), ElementsAre("service: returnParameter has no equivalent in Java "
                                        "services: left out (1 time)"));
  EXPECT_THAT(output(), Not(HasSubstr("returnParameter")));
  const toolkit::ConvertedService java =
      convert(service(as::namespaces::java.uri, "java",
                      operation("<parameter name='p' dataType='int'/>", "transactionType='never'")),
              "com");
  EXPECT_THAT(notesOf(java), ElementsAre("service: transactionType has no equivalent in COM "
                                         "services: left out (1 time)"));
}

TEST_F(ConvertTest, EverythingElseStays) {
  const std::string ns = as::namespaces::java.uri;
  convert("<?first note?><!-- before --><j:service xmlns:j='" + ns +
              "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + ns +
              " " + ns +
              "' name='Gehälter &amp; &quot;Löhne&quot;&#9;&#10;x' implementation='java' "
              "exitProgramName='E'><j:properties><j:property name='a' value='b'/></j:properties>"
              "<!-- inside --><j:operations><j:operation name='op' exitPoints='3'>"
              "<j:hiddenParameters><j:hiddenParameter item='$stdin' value='v'/>"
              "</j:hiddenParameters><?pi x?></j:operation></j:operations></j:service>",
          "com");
  const std::string com = as::namespaces::com.uri;
  EXPECT_THAT(output(),
              AllOf(HasSubstr("<?first note?>"), HasSubstr("<!-- before -->"),
                    HasSubstr("<j:service"), HasSubstr("xmlns:j=\"" + com + "\""),
                    HasSubstr("xsi:schemaLocation=\"" + com + " " + com + "\""),
                    HasSubstr("<!-- inside -->"), HasSubstr("<?pi x?>"), Not(HasSubstr("java"))));
  const nlohmann::json model = converted();
  EXPECT_EQ(model["name"], "Gehälter & \"Löhne\"\t\nx");
  EXPECT_EQ(model["flavour"], "COM");
  EXPECT_EQ(model["implementationText"], "COM");
  EXPECT_EQ(model["exitProgramName"], "E");
  EXPECT_EQ(model["properties"][0]["value"], "b");
  EXPECT_EQ(model["operations"][0]["exitPoints"], 3);
  EXPECT_EQ(model["operations"][0]["hiddenParameters"][0]["value"], "v");
}

// New .NET services are written in the namespace of Web services.
TEST_F(ConvertTest, ANetServiceInTheNamespaceOfWebServicesIsOne) {
  write("p.xml", test::payProgram());
  toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("dotnet"));
  const std::string written = contentOf("s.xml");
  ASSERT_THAT(written, HasSubstr(as::namespaces::ws.uri));
  convert(written, "dotnet");
  EXPECT_THAT(output(),
              AllOf(HasSubstr(as::namespaces::dotnet.uri), Not(HasSubstr(as::namespaces::ws.uri)),
                    HasSubstr("dataType=\"Int32\"")));
  convert(written, "ws");
  EXPECT_THAT(output(), AllOf(HasSubstr(as::namespaces::ws.uri), HasSubstr("implementation=\"ws\""),
                              HasSubstr("dataType=\"int\"")));
}

TEST_F(ConvertTest, TheDictionaryIsNamedAsSeenFromTheOutput) {
  write("a/PAY.xml", test::payProgram());
  write("a/s.xml", service(as::namespaces::java.uri, "java", "", "dataDictFilename='PAY.xml'"));
  std::filesystem::create_directory("b");
  // Whether it is there or not.
  for (int i = 0; i < 2; i++) {
    convertFile("a/s.xml", "b/t.xml", "com");
    EXPECT_THAT(contentOf("b/t.xml"), HasSubstr("dataDictFilename=\"../a/PAY.xml\""));
    std::filesystem::remove("a/PAY.xml");
  }
}

TEST_F(ConvertTest, AFailureLeavesTheOldFile) {
  write("out.xml", "old");
  write("bad.xml", "<service/>");
  for (const char* const file : {"bad.xml", "missing.xml"}) {
    EXPECT_EQ(refusalOf([&] { convertFile(file, "out.xml", "com"); }).file, file);
    EXPECT_EQ(output(), "old");
  }
}

TEST_F(ConvertTest, AServiceCanTakeItsOwnPlace) {
  write("s.xml", service(as::namespaces::java.uri, "java",
                         operation("<parameter name='p' dataType='int'/>")));
  convertFile("s.xml", "s.xml", "dotnet");
  EXPECT_THAT(contentOf("s.xml"), HasSubstr("Int32"));
}

TEST_F(ConvertTest, AServiceInMemoryIsCarriedOverWithTheItemsOfItsProgram) {
  write("PAY.xml", test::payProgram());
  write("s.xml", service(as::namespaces::java.uri, "java",
                         operation("<parameter name='p' dataType='BigDecimal'><mappings><mapping "
                                   "item='REQ.LINE.AMOUNT(1)'/></mappings></parameter>")));
  const auto source = reader().readService("s.xml");
  const auto program = reader().readDictionary("PAY.xml");
  const std::string before = as::CAgentServicesFactory::SerializeToString(source.get());
  const toolkit::Flavour& com = *toolkit::findFlavour("com");
  const struct {
    as::IProgram* program;
    const char* type;
  } rows[] = {{program.get(), "currency"}, {nullptr, "string"}};
  for (const auto& row : rows) {
    const toolkit::ConvertedService outcome =
        toolkit::convertService(reader(), *source, "s.xml", com, row.program);
    EXPECT_EQ(outcome.from, toolkit::findFlavour("java"));
    EXPECT_EQ(&toolkit::flavourOf(*outcome.service), &com);
    EXPECT_EQ(jsonOf(*outcome.service)["operations"][0]["parameters"][0]["typeText"], row.type);
    EXPECT_EQ(outcome.notes.size(), 1u);
  }
  EXPECT_EQ(as::CAgentServicesFactory::SerializeToString(source.get()), before);
}

// Every sample service in every flavour.
struct Sample {
  std::string label;
  std::string file;
  const char* flavour;
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.label; }

std::vector<Sample> samples() {
  std::vector<Sample> all;
  for (const char* const program : {"DEPINT01", "MOTPREM", "PAYSLIP", "WHSLOTS"}) {
    for (const char* const from : {"com", "dotnet", "java", "ws"}) {
      for (const char* const to : {"com", "dotnet", "java", "ws"}) {
        all.push_back({std::string(program) + "_" + from + "_" + to,
                       std::string(program) + "-" + from + ".xml", to});
      }
    }
  }
  return all;
}

class ConvertSample : public ConvertTest, public testing::WithParamInterface<Sample> {};

TEST_P(ConvertSample, IsWithoutErrors) {
  const std::string source = std::string(AS_EXAMPLES_DIR "/") + GetParam().file;
  convertFile(source, "out.xml", GetParam().flavour);
  const toolkit::Findings findings = toolkit::lintFile(reader(), "out.xml");
  EXPECT_EQ(countOf(findings, toolkit::Severity::error), 0u);
  const auto numberOf = [](const nlohmann::json& list) { return list.size(); };
  const nlohmann::json before = jsonOfFile(source);
  const nlohmann::json after = converted();
  EXPECT_EQ(numberOf(after["parameterTypeDefs"]), numberOf(before["parameterTypeDefs"]));
  ASSERT_EQ(numberOf(after["operations"]), numberOf(before["operations"]));
  for (std::size_t i = 0; i < numberOf(after["operations"]); i++) {
    EXPECT_EQ(numberOf(after["operations"][i]["parameters"]),
              numberOf(before["operations"][i]["parameters"]));
    EXPECT_EQ(after["operations"][i]["hiddenParameters"],
              before["operations"][i]["hiddenParameters"]);
  }
}

INSTANTIATE_TEST_SUITE_P(Services, ConvertSample, testing::ValuesIn(samples()), labelOf<Sample>);

}  // namespace
