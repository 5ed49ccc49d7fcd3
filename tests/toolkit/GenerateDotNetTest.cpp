// Tests of .NET services in the namespace of Web services: what that lets them hold beside, and C#
// does not have.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/GeneratedWeb.h"

namespace {

namespace toolkit = as::toolkit;
using namespace test::web;
using test::textsOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class GenerateDotNet : public test::GenerateWebTest {
 protected:
  toolkit::Generated csharp(const std::string& parameters, const std::string& messages = "",
                            const std::string& types = "",
                            const toolkit::GenerateOptions& options = {}) const {
    Service service = {operation("op", parameters, messages), types};
    service.implementation = "dotnet";
    return made("csharp", service, options);
  }
  std::string code(const std::string& parameters, const std::string& types = "") const {
    return textOf(csharp(parameters, "", types));
  }
};

const std::string asText = " byType='in' dataType='String'";

TEST_F(GenerateDotNet, HeadersAndFaultsAreLeftOutAndTold) {
  const std::string structure =
      parameter("name='h' byType='in'", "<mappings/>" + field("name='inHeader'" + asText));
  const toolkit::Generated made =
      csharp(parameter("name='a'" + asText),
             message("header", structure, "byType='in' namespace='u' use='literal'") +
                 message("fault", parameter("name='f'" + asText)));
  EXPECT_THAT(textsOf(made.findings),
              ElementsAre("op, header 1: a header is nothing that C# has; make a kind for Web "
                          "services",
                          "op, fault 1: a fault is nothing that C# has; make a kind for Web "
                          "services"));
  EXPECT_THAT(textOf(made), HasSubstr("void op(string a);"));
  EXPECT_THAT(textOf(made), Not(HasSubstr("class")));
}

// The value stands beside them.
TEST_F(GenerateDotNet, FieldAttributesMakeStructures) {
  const std::string code = this->code(parameter(
      "name='p' byType='in' dataType='Int32'", mapped("STATE") + attribute("name='code'" + asText) +
                                                   attribute("name='rank' byType='in' "
                                                             "dataType='Int16'",
                                                             mapped("STATE"))));
  EXPECT_THAT(code, HasSubstr("void op(OpP p);"));
  EXPECT_THAT(code, HasSubstr("public class OpP\n"));
  EXPECT_THAT(code, HasSubstr("public string code { get; set; }"));
  EXPECT_THAT(code, HasSubstr("public short rank { get; set; }"));
  EXPECT_THAT(code, HasSubstr("<summary>the value</summary>\n"));
  EXPECT_THAT(code, HasSubstr("public int value { get; set; }"));
}

TEST_F(GenerateDotNet, ValuesBesideAttributesAreThoseOfTypesAndFieldsToo) {
  const std::string code = this->code(
      parameter("name='p' byType='in' ref='Coded'", "") +
          parameter("name='q' byType='in'",
                    "<mappings/>" + field("name='inner' dataType='Int64'",
                                          mapped("STATE") + attribute("name='code'" + asText))),
      parameter("name='Coded' dataType='Byte'",
                mapped("STATE") + attribute("name='code'" + asText)));
  EXPECT_THAT(code, HasSubstr("public byte value { get; set; }"));
  EXPECT_THAT(code, HasSubstr("public long value { get; set; }"));
}

TEST_F(GenerateDotNet, FieldsAndAttributesStandSideBySide) {
  const std::string code =
      this->code(parameter("name='p' byType='in'", "<mappings/>" + field("name='inner'" + asText) +
                                                       attribute("name='code'" + asText)));
  EXPECT_THAT(code, HasSubstr("public string inner { get; set; }"));
  EXPECT_THAT(code, HasSubstr("public string code { get; set; }"));
  EXPECT_THAT(code, Not(HasSubstr(" value ")));
}

TEST_F(GenerateDotNet, ListsNeedTheirNamespace) {
  const std::string table = parameter("name='p' occurs='4'" + asText, mapped("SECOND(*)", "*"));
  EXPECT_THAT(code(table), HasSubstr("using System.Collections.Generic;\n"));
  EXPECT_THAT(code(table), HasSubstr("void op(IList<string> p);"));
  EXPECT_THAT(code(parameter("name='p'" + asText)), Not(HasSubstr("using ")));
}

TEST_F(GenerateDotNet, TheNamespaceIsTheServicesUnlessTold) {
  EXPECT_THAT(code(""), HasSubstr("namespace Tests\n"));
  EXPECT_THAT(textOf(csharp("", "", "", optionsOf({{"namespace", "Insurance.Motor"}}))),
              HasSubstr("namespace Insurance.Motor\n"));
  EXPECT_THAT(csharp("", "", "", optionsOf({{"namespace", "Insurance..Motor"}})).files, IsEmpty());
}

TEST_F(GenerateDotNet, WhatHasNoItemIsToldAsSuch) {
  const std::string code =
      this->code(parameter("name='a'" + asText, "") +
                 parameter("name='b' byType='in'", "<mappings/>" + field("name='inner'" + asText)));
  EXPECT_THAT(code, HasSubstr("<param name=\"a\">no item of the program</param>"));
  EXPECT_THAT(code, HasSubstr("<param name=\"b\">see <see cref=\"OpB\"/></param>"));
}

// An answer is one thing that comes out, and nothing else.
TEST_F(GenerateDotNet, AnswersAreWhatOnlyComesOut) {
  const auto parameterOf = [](const std::string& name, const std::string& way) {
    return parameter("name='" + name + "' byType='" + way + "' dataType='String'");
  };
  EXPECT_THAT(code(parameterOf("a", "io")), HasSubstr("void op(ref string a);"));
  EXPECT_THAT(code(parameterOf("a", "out") + parameterOf("b", "io")),
              HasSubstr("void op(out string a, ref string b);"));
  EXPECT_THAT(code(parameterOf("a", "out") + parameterOf("b", "out")),
              HasSubstr("void op(out string a, out string b);"));
  EXPECT_THAT(code(parameterOf("a", "out")), HasSubstr("<returns>R.NAME, PIC X(8)</returns>"));
}

}  // namespace
