// Tests of the tool's command `convert`: data types, what is lost and told, and what stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/Flavours.h"
#include "support/Tool.h"

namespace {

using test::contentOf;
using test::labelOf;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

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

class ToolConvertTest : public test::ToolTest {
 protected:
  test::ToolOutcome convert(const std::string& document, const std::string& flavour) const {
    write("s.xml", document);
    const test::ToolOutcome outcome =
        run({"convert", "--flavour", flavour, "s.xml", "-o", "out.xml"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome;
  }

  std::string output() const { return contentOf(pathOf("out.xml")); }

  nlohmann::json converted() const {
    return nlohmann::json::parse(run({"show", "--json", "out.xml"}).out, nullptr, false);
  }

  // The notes of the tool, without the file's name and "note:".
  static std::vector<std::string> notesOf(const test::ToolOutcome& outcome) {
    const std::string start = "out.xml: note: ";
    std::vector<std::string> notes;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);) {
      if (line.rfind(start, 0) == 0) notes.push_back(line.substr(start.size()));
    }
    return notes;
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

class ToolConvertType : public ToolConvertTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(ToolConvertType, BecomesTheOneThatHoldsAsMuch) {
  const TypeRow& row = GetParam();
  const char* const flavours[] = {"com", "dotnet", "java", "ws"};
  const char* const texts[] = {"string", "String", "String", "string"};
  const std::string type = *row.type == '\0' ? "" : std::string("dataType='") + row.type + "'";
  for (std::size_t i = 0; i < row.types.size(); i++) {
    SCOPED_TRACE(flavours[i]);
    const test::ToolOutcome outcome =
        convert(service(namespaceOf(row.flavour), row.flavour,
                        operation("<parameter name='p' " + type + "/>")),
                flavours[i]);
    const bool isSame = std::string(row.flavour) == flavours[i];
    if (row.types[i].empty() && isSame) {
      EXPECT_THAT(output(), Not(HasSubstr("dataType")));
    } else if (row.types[i].empty()) {
      // Text holds whatever there is; that it is no equivalent is told.
      EXPECT_THAT(output(), HasSubstr(std::string("dataType=\"") + texts[i] + "\""));
      EXPECT_THAT(outcome.out, HasSubstr("out.xml: note: op.p: "));
      EXPECT_THAT(outcome.out, HasSubstr(std::string(": made '") + texts[i] + "'\n"));
    } else {
      EXPECT_THAT(output(), HasSubstr("dataType=\"" + row.types[i] + "\""));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Words, ToolConvertType,
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
TEST_F(ToolConvertTest, TheItemHelpsWhereNoTypeHoldsAsMuch) {
  write("PAY.xml", test::payProgram());
  const test::ToolOutcome outcome =
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

TEST_F(ToolConvertTest, EveryItemOfAFieldCounts) {
  write("PAY.xml", test::payProgram());
  const test::ToolOutcome outcome =
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

TEST_F(ToolConvertTest, ATypeOfNoWordIsToldAsOne) {
  const test::ToolOutcome outcome = convert(
      service(as::namespaces::ws.uri, "ws", operation("<parameter name='p' dataType='Int32'/>")),
      "java");
  EXPECT_THAT(notesOf(outcome),
              ElementsAre("op.p: data type 'Int32' is none of Web services: made 'String'"));
}

TEST_F(ToolConvertTest, NamespacesAreReplacedWhereverTheyAreDeclared) {
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

TEST_F(ToolConvertTest, AFieldAttributeOfAFieldsNameIsRenamed) {
  const test::ToolOutcome outcome =
      convert(service(as::namespaces::ws.uri, "ws",
                      operation("<parameter name='p'><field name='a' dataType='int'/>"
                                "<fieldAttribute name='a' dataType='short'/></parameter>")),
              "java");
  EXPECT_THAT(outcome.out, HasSubstr("made a field and called 'a-2', for there is a field of its "
                                     "name"));
  const nlohmann::json fields = converted()["operations"][0]["parameters"][0]["children"];
  EXPECT_EQ(fields[1]["name"], "a-2");
}

TEST_F(ToolConvertTest, TheDictionaryIsNeverTheOutput) {
  write("PAY.xml", test::payProgram());
  write("s.xml", service(as::namespaces::java.uri, "java", "", "dataDictFilename='PAY.xml'"));
  const test::ToolOutcome outcome = run({"convert", "--flavour", "com", "s.xml", "-o", "PAY.xml"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("PAY.xml: error: this is the dictionary"));
  EXPECT_EQ(contentOf(pathOf("PAY.xml")), test::payProgram());
}

TEST_F(ToolConvertTest, ADictionaryThatCannotBeReadIsToldAndDoneWithout) {
  const test::ToolOutcome outcome = convert(
      service(as::namespaces::java.uri, "java", operation("<parameter name='p' dataType='int'/>"),
              "dataDictFilename='gone.xml'"),
      "ws");
  EXPECT_THAT(outcome.out, HasSubstr("the dictionary cannot be used"));
  EXPECT_THAT(output(),
              AllOf(HasSubstr("dataType=\"int\""), HasSubstr("dataDictFilename=\"gone.xml\"")));
}

TEST_F(ToolConvertTest, ReferencesHaveNoTypeOfTheirOwn) {
  convert(service(as::namespaces::java.uri, "java",
                  "<parameterTypeDefs><parameter name='D' dataType='int'/></parameterTypeDefs>" +
                      operation("<parameter name='p' ref='D' dataType='byte'/>")),
          "dotnet");
  const nlohmann::json parameter = converted()["operations"][0]["parameters"][0];
  EXPECT_EQ(parameter["referenceType"], "D");
  EXPECT_EQ(parameter["typeText"], "Int32");
  EXPECT_THAT(output(), HasSubstr("<parameter name=\"p\" ref=\"D\"/>"));
}

TEST_F(ToolConvertTest, RepeatedGroupsAreArraysInWebServicesAlone) {
  const std::string group =
      operation("<parameter name='p' occurs='5'><field name='f' dataType='int'/></parameter>");
  convert(service(as::namespaces::java.uri, "java", group), "ws");
  EXPECT_EQ(converted()["operations"][0]["parameters"][0]["typeText"], "Array");
  const test::ToolOutcome back = convert(output(), "com");
  EXPECT_THAT(output(), Not(HasSubstr("Array")));
  EXPECT_THAT(back.out, Not(HasSubstr("Array")));
}

TEST_F(ToolConvertTest, WhatTheNewFlavourNeedsIsAdded) {
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

TEST_F(ToolConvertTest, HeadersAndFaultsAreLeftOutAndTold) {
  const std::string message = "<parameters><parameter name='x' dataType='int'/></parameters>";
  const test::ToolOutcome outcome = convert(
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

TEST_F(ToolConvertTest, FieldAttributesBecomeFields) {
  const test::ToolOutcome outcome =
      convert(service(as::namespaces::ws.uri, "ws",
                      operation("<parameter name='p'><field name='f' dataType='int'/>"
                                "<fieldAttribute name='a' dataType='short'/></parameter>")),
              "dotnet");
  EXPECT_THAT(outcome.out, HasSubstr("note: op.p.a: it was a field attribute, which .NET services "
                                     "have not: made a field"));
  const nlohmann::json fields = converted()["operations"][0]["parameters"][0]["children"];
  ASSERT_EQ(fields.size(), 2u);
  EXPECT_EQ(fields[1]["name"], "a");
  EXPECT_EQ(fields[1]["typeText"], "Int16");
}

TEST_F(ToolConvertTest, ReturnParametersAndTransactionTypesAreLeftOutAndTold) {
  const test::ToolOutcome com =
      convert(service(as::namespaces::com.uri, "com",
                      operation("<parameter name='p' dataType='int' returnParameter='1'/>")),
              "java");
  EXPECT_THAT(notesOf(com), ElementsAre("service: returnParameter has no equivalent in Java "
                                        "services: left out (1 time)"));
  EXPECT_THAT(output(), Not(HasSubstr("returnParameter")));
  const test::ToolOutcome java =
      convert(service(as::namespaces::java.uri, "java",
                      operation("<parameter name='p' dataType='int'/>", "transactionType='never'")),
              "com");
  EXPECT_THAT(notesOf(java), ElementsAre("service: transactionType has no equivalent in COM "
                                         "services: left out (1 time)"));
}

TEST_F(ToolConvertTest, EverythingElseStays) {
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
TEST_F(ToolConvertTest, ANetServiceInTheNamespaceOfWebServicesIsOne) {
  write("p.xml", test::payProgram());
  ASSERT_EQ(run({"new", "--flavour", "dotnet", "p.xml", "-o", "s.xml"}).exitCode, 0);
  const std::string written = contentOf(pathOf("s.xml"));
  ASSERT_THAT(written, HasSubstr(as::namespaces::ws.uri));
  convert(written, "dotnet");
  EXPECT_THAT(output(),
              AllOf(HasSubstr(as::namespaces::dotnet.uri), Not(HasSubstr(as::namespaces::ws.uri)),
                    HasSubstr("dataType=\"Int32\"")));
  convert(written, "ws");
  EXPECT_THAT(output(), AllOf(HasSubstr(as::namespaces::ws.uri), HasSubstr("implementation=\"ws\""),
                              HasSubstr("dataType=\"int\"")));
}

TEST_F(ToolConvertTest, TheDictionaryIsNamedAsSeenFromTheOutput) {
  write("a/PAY.xml", test::payProgram());
  write("a/s.xml", service(as::namespaces::java.uri, "java", "", "dataDictFilename='PAY.xml'"));
  std::filesystem::create_directory(directory() / "b");
  // Whether it is there or not.
  for (int i = 0; i < 2; i++) {
    ASSERT_EQ(run({"convert", "--flavour", "com", "a/s.xml", "-o", "b/t.xml"}).exitCode, 0);
    EXPECT_THAT(contentOf(pathOf("b/t.xml")), HasSubstr("dataDictFilename=\"../a/PAY.xml\""));
    std::filesystem::remove(directory() / "a/PAY.xml");
  }
}

TEST_F(ToolConvertTest, AFailureLeavesTheOldFile) {
  write("out.xml", "old");
  write("bad.xml", "<service/>");
  for (const char* const file : {"bad.xml", "missing.xml"}) {
    const test::ToolOutcome outcome = run({"convert", "--flavour", "com", file, "-o", "out.xml"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.err, HasSubstr(file));
    EXPECT_EQ(output(), "old");
  }
}

TEST_F(ToolConvertTest, AServiceCanTakeItsOwnPlace) {
  write("s.xml", service(as::namespaces::java.uri, "java",
                         operation("<parameter name='p' dataType='int'/>")));
  ASSERT_EQ(run({"convert", "--flavour", "dotnet", "s.xml", "-o", "s.xml"}).exitCode, 0);
  EXPECT_THAT(contentOf(pathOf("s.xml")), HasSubstr("Int32"));
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

class ToolConvertSample : public ToolConvertTest, public testing::WithParamInterface<Sample> {};

TEST_P(ToolConvertSample, IsWithoutErrors) {
  const std::string source = std::string(AS_EXAMPLES_DIR "/") + GetParam().file;
  ASSERT_EQ(run({"convert", "--flavour", GetParam().flavour, source, "-o", "out.xml"}).exitCode, 0);
  const test::ToolOutcome outcome = run({"lint", "out.xml"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
  const auto numberOf = [](const nlohmann::json& list) { return list.size(); };
  const nlohmann::json before =
      nlohmann::json::parse(run({"show", "--json", source}).out, nullptr, false);
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

INSTANTIATE_TEST_SUITE_P(Services, ToolConvertSample, testing::ValuesIn(samples()),
                         labelOf<Sample>);

}  // namespace
