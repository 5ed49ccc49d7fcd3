// Tests of how much generators make: what a language has no room for, and how large examples get.
// Each limit is looked at from both sides.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/Documents.h"
#include "support/Json.h"
#include "support/SmallStack.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using test::textsOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class GenerateLimits : public test::ToolkitTest {
 protected:
  // Of a service of that flavour with those parameters, each of an item of its own.
  toolkit::Generated made(const std::string& kind, const std::string& flavour,
                          const std::string& parameters,
                          const toolkit::GenerateOptions& options = {},
                          const std::string& operation = "ask") const {
    write("p.xml",
          test::dictionary(
              "<dataItems><group name='R' offset='0' length='8' linkage='true'>"
              "<numeric name='N' offset='0' length='4' picture='S9(9)' usage='comp-5' sign='true' "
              "digits='9'/><numeric name='W' offset='0' length='8' picture='S9(18)' "
              "usage='comp-5' sign='true' digits='18'/><numeric name='F' usage='comp-2' "
              "sign='true' offset='0' length='8'/></group></dataItems>"
              "<entryPoints><entryPoint name='E'><parameter dataItem='R' byType='reference'/>"
              "</entryPoint></entryPoints>"));
    const toolkit::Flavour& of = *toolkit::findFlavour(flavour);
    write("s.xml", test::serviceDocument(of.documents.uri,
                                         "name='Tests' implementation='" + flavour +
                                             "' programName='PAYROLL' dataDictFilename='p.xml'",
                                         "<operations><operation name='" + operation +
                                             "' entryPoint='E'><parameters>" + parameters +
                                             "</parameters></operation></operations>"));
    return toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(kind), {"s.xml"}, options);
  }

  // So many of a tag, of that data type and item.
  static std::string fields(const std::string& tag, int count, const std::string& dataType,
                            const std::string& item, const std::string& more = "") {
    std::string text;
    for (int i = 0; i < count; ++i) {
      text += "<" + tag + " name='" + item + std::to_string(i) + "' dataType='" + dataType + "'" +
              more + "><mappings><mapping item='R." + item + "'/></mappings></" + tag + ">";
    }
    return text;
  }

  // Of a Java service with a parameter of such fields.
  std::string javaOf(const std::string& members) const {
    const toolkit::Generated java =
        made("java", "java", "<parameter name='p' byType='in'>" + members + "</parameter>");
    EXPECT_EQ(java.files.size(), 1U) << testing::PrintToString(textsOf(java.findings));
    return java.files.empty() ? "" : java.files.front().content;
  }
};

// A long and a double take two of the words that a constructor has.
TEST_F(GenerateLimits, RecordsHoldAsMuchAsAConstructorTakes) {
  const char* const record = "record AskP(";
  EXPECT_THAT(javaOf(fields("field", 254, "int", "N")), HasSubstr(record));
  EXPECT_THAT(javaOf(fields("field", 255, "int", "N")), Not(HasSubstr(record)));
  EXPECT_THAT(javaOf(fields("field", 127, "long", "W")), HasSubstr(record));
  EXPECT_THAT(javaOf(fields("field", 128, "long", "W")), Not(HasSubstr(record)));
  EXPECT_THAT(javaOf(fields("field", 127, "double", "F")), HasSubstr(record));
  EXPECT_THAT(javaOf(fields("field", 128, "double", "F")), Not(HasSubstr(record)));
}

// What stands in the place of a record.
TEST_F(GenerateLimits, ClassesReadAndSetTheirFields) {
  const std::string java = javaOf(fields("field", 255, "int", "N"));
  EXPECT_THAT(java, HasSubstr("  /** The structure of ask.p. */\n"
                              "  final class AskP {\n"
                              "    private int N0;\n"
                              "    private int N1;\n"));
  EXPECT_THAT(java, HasSubstr("    private int N254;\n"
                              "\n"
                              "    /** Makes one without values. */\n"
                              "    public AskP() {}\n"
                              "\n"
                              "    /** {@return R.N, PIC S9(9), COMP-5} */\n"
                              "    public int N0() {\n"
                              "      return this.N0;\n"
                              "    }\n"
                              "\n"
                              "    /**\n"
                              "     * Sets it.\n"
                              "     *\n"
                              "     * @param N0 R.N, PIC S9(9), COMP-5\n"
                              "     */\n"
                              "    public void N0(int N0) {\n"
                              "      this.N0 = N0;\n"
                              "    }\n"));
}

TEST_F(GenerateLimits, MethodsTakeAsMuchAsTheLanguageLetsThem) {
  const std::string in = " byType='in'";
  const std::string most = fields("parameter", 254, "int", "N", in);
  EXPECT_THAT(made("java", "java", most).findings, IsEmpty());
  // What only comes out is in the answer.
  EXPECT_THAT(
      made("java", "java", most + fields("parameter", 1, "long", "W", " byType='out'")).findings,
      IsEmpty());
  const toolkit::Generated java =
      made("java", "java", most + fields("parameter", 1, "long", "W", " byType='io'"));
  EXPECT_THAT(java.files, IsEmpty());
  EXPECT_THAT(textsOf(java.findings),
              ElementsAre("ask: Java takes no 255 parameters in one place; make groups of "
                          "them"));
}

TEST_F(GenerateLimits, ClassesHaveAsManyFieldsAsTheLanguageLetsThem) {
  EXPECT_THAT(javaOf(fields("field", 8000, "int", "N")), HasSubstr("final class AskP {"));
  const toolkit::Generated java =
      made("java", "java",
           "<parameter name='p' byType='in'>" + fields("field", 8001, "int", "N") + "</parameter>");
  EXPECT_THAT(java.files, IsEmpty());
  EXPECT_THAT(textsOf(java.findings),
              ElementsAre("ask.p: Java takes no 8001 fields in one place; make groups of "
                          "them"));
}

std::string tableOf(const std::string& occurs) {
  return "<parameter name='p' byType='in' dataType='int' occurs='" + occurs + "'/>";
}

TEST_F(GenerateLimits, LargeExamplesAreLeftOutUnlessTheyAreAskedFor) {
  const std::string left =
      "ask: an example of its request would be large and is left out; option 'examples' "
      "asks for it";
  EXPECT_THAT(made("openapi", "java", tableOf("200")).findings, IsEmpty());
  EXPECT_THAT(textsOf(made("openapi", "java", tableOf("201")).findings), ElementsAre(left));
  // A structure counts for itself, too.
  const auto structures = [](const std::string& occurs) {
    return "<parameter name='p' byType='in' occurs='" + occurs +
           "'><field name='n' dataType='int'/></parameter>";
  };
  EXPECT_THAT(made("openapi", "java", structures("100")).findings, IsEmpty());
  EXPECT_THAT(textsOf(made("openapi", "java", structures("101")).findings), ElementsAre(left));
  toolkit::GenerateOptions options;
  options.values = {{"examples", "all"}};
  EXPECT_THAT(made("openapi", "java", tableOf("100000"), options).findings, IsEmpty());
  EXPECT_THAT(textsOf(made("openapi", "java", tableOf("100001"), options).findings),
              ElementsAre(left));
}

// Definitions each of which refers to the one in front of it, and an encoded operation that takes
// the last one.
std::string chainOf(int definitions) {
  std::string text = "<parameterTypeDefs>";
  for (int i = 0; i < definitions; ++i) {
    const std::string inner = i == 0 ? "dataType='int'" : "ref='T" + std::to_string(i - 1) + "'";
    text +=
        "<parameter name='T" + std::to_string(i) + "'><field name='f' " + inner + "/></parameter>";
  }
  return text +
         "</parameterTypeDefs><operations><operation name='ask' entryPoint='E' style='rpc' "
         "inputUse='encoded' outputUse='encoded' inputNamespace='urn:a' outputNamespace='urn:b'>"
         "<parameters><parameter name='p' byType='in' ref='T" +
         std::to_string(definitions - 1) + "'/></parameters></operation></operations>";
}

// Nothing that is made of them is made recursively, or it is left out.
TEST_F(GenerateLimits, ChainsOfDefinitionsHaveAnyLength) {
  made("wsdl", "ws", "");  // Writes the dictionary.
  write("s.xml", test::serviceDocument(toolkit::findFlavour("ws")->documents.uri,
                                       "name='Tests' implementation='ws' programName='PAYROLL' "
                                       "dataDictFilename='p.xml'",
                                       chainOf(2500)));
  toolkit::GenerateOptions all;
  all.values = {{"examples", "all"}};
  const std::pair<const char*, toolkit::GenerateOptions> rows[] = {
      {"wsdl", {}}, {"openapi", {}}, {"openapi", all}};
  for (const auto& [kind, options] : rows) {
    test::onASmallStack([&, word = kind, chosen = options] {
      const toolkit::Generated made =
          toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(word), {"s.xml"}, chosen);
      EXPECT_EQ(made.files.size(), 1U) << word << testing::PrintToString(textsOf(made.findings));
    });
  }
}

// A table occurs once at least in an example, but where it would have no end.
TEST_F(GenerateLimits, ExamplesOfWhatStandsInItselfEnd) {
  made("openapi", "java", "");
  write("s.xml",
        test::serviceDocument(
            toolkit::findFlavour("java")->documents.uri,
            "name='Tests' implementation='java' programName='PAYROLL' dataDictFilename='p.xml'",
            "<parameterTypeDefs><parameter name='T' occurs='5'><field name='n' dataType='int'/>"
            "<field name='f' ref='T'/></parameter></parameterTypeDefs><operations>"
            "<operation name='ask' entryPoint='E'><parameters><parameter name='p' byType='in' "
            "ref='T'/></parameters></operation></operations>"));
  const toolkit::Generated made =
      toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("openapi"), {"s.xml"});
  ASSERT_EQ(made.files.size(), 1U) << testing::PrintToString(textsOf(made.findings));
  const nlohmann::json page = test::parsedJson(made.files.front().content);
  EXPECT_EQ(page["paths"]["/ask"]["post"]["requestBody"]["content"]["application/json"]["example"],
            test::parsedJson(R"({"p": [{"n": 1147483647}, {"n": 1147483647}, {"n": 1147483647},
                                            {"n": 1147483647}, {"n": 1147483647}]})"));
}

TEST_F(GenerateLimits, PathsHoldAnyName) {
  const toolkit::Generated made = this->made("openapi", "java", "", {}, "ask me/now");
  ASSERT_EQ(made.files.size(), 1U) << testing::PrintToString(textsOf(made.findings));
  EXPECT_THAT(made.files.front().content, HasSubstr("\"/ask%20me%2Fnow\": {"));
}

}  // namespace
