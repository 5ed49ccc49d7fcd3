// Tests of the interfaces that generators make of services: which parameters go where, what
// languages cannot say, and what users choose.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/Documents.h"
#include "support/Generated.h"

namespace {

namespace toolkit = as::toolkit;
using test::textsOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const char* const program =
    "IDENTIFICATION DIVISION.\nPROGRAM-ID. T.\nDATA DIVISION.\nLINKAGE SECTION.\n"
    "01 R.\n 05 AMOUNT PIC S9(13)V99 COMP-3.\n 05 NAME PIC X(8).\n 05 LK-NO PIC 9.\n"
    "PROCEDURE DIVISION USING R.\nGOBACK.\n";

std::string parameter(const std::string& attributes, const std::string& item = "R.NAME") {
  return "<parameter " + attributes + "><mappings><mapping item='" + item +
         "'/></mappings></parameter>";
}

class GenerateInterface : public test::GenerateTest {
 protected:
  // Of a service with one operation.
  toolkit::Generated made(const std::string& kind, const std::string& parameters,
                          const std::string& types = "",
                          const toolkit::GenerateOptions& options = {},
                          const std::string& properties = "") const {
    const std::string flavour = toolkit::findGeneratorKind(kind)->flavours.front();
    const toolkit::Flavour& of = *toolkit::findFlavour(flavour);
    write("p.xml", test::dictionaryOf(test::importOf(program)));
    write("s.xml",
          test::element("service",
                        "<properties>" + properties + "</properties><parameterTypeDefs>" + types +
                            "</parameterTypeDefs><operations><operation name='do-it' "
                            "entryPoint='T'><hiddenParameters/><parameters>" +
                            parameters + "</parameters></operation></operations>",
                        test::declarations(of.documents.uri) + " name='Tests' implementation='" +
                            flavour + "' programName='T' dataDictFilename='p.xml'"));
    const toolkit::ServiceDocument document = reader().readServiceWithProgram("s.xml");
    return toolkit::generate(*toolkit::findGeneratorKind(kind), *document.service, options);
  }

  std::string text(const std::string& kind, const std::string& parameters,
                   const std::string& types = "") const {
    return textOf(made(kind, parameters, types));
  }
};

const std::string in = parameter("name='a' byType='in' dataType='String'");
const std::string out = parameter("name='b' byType='out' dataType='String'");
const std::string both = parameter("name='c' byType='io' dataType='String'");

TEST_F(GenerateInterface, JavaAnswersWhatComesOut) {
  EXPECT_THAT(text("java", in + out), HasSubstr("String doIt(String a);"));
}

TEST_F(GenerateInterface, JavaAnswersARecordOfSeveral) {
  const std::string java = text("java", out + both);
  EXPECT_THAT(java, HasSubstr("DoItResult doIt(String c);"));
  EXPECT_THAT(java, HasSubstr("record DoItResult(\n      String b,\n      String c) {}"));
}

TEST_F(GenerateInterface, JavaAnswersNothing) {
  EXPECT_THAT(text("java", in), HasSubstr("void doIt(String a);"));
}

// As "new" makes them.
TEST_F(GenerateInterface, JavaCallsTheOnlyOperationAsItsInterface) {
  write("p.xml", test::dictionaryOf(test::importOf(program)));
  toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  const std::string java =
      textOf(toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("java"), {"s.xml"}));
  EXPECT_THAT(java, HasSubstr("public interface T {"));
  EXPECT_THAT(java, HasSubstr(" T("));
  EXPECT_THAT(java, Not(HasSubstr("T_(")));
}

TEST_F(GenerateInterface, WhatTheItemIsCalledIsToldOnce) {
  const std::string item = parameter("name='LK-NO' byType='in' dataType='int'", "R.LK-NO");
  EXPECT_THAT(text("java", item), HasSubstr("@param lkNo R.LK-NO, PIC 9\n"));
  EXPECT_THAT(text("java", parameter("name='NO-OF' byType='in' dataType='int'", "R.LK-NO")),
              HasSubstr("@param noOf called NO-OF; R.LK-NO, PIC 9\n"));
}

TEST_F(GenerateInterface, JavaTellsTheTransactionType) {
  EXPECT_THAT(text("java", in), HasSubstr("@Transaction(TransactionType.NEVER)\n  void"));
}

TEST_F(GenerateInterface, CSharpAnswersWhatComesOutAlone) {
  EXPECT_THAT(text("csharp", in + out), HasSubstr("string DoIt(string a);"));
}

TEST_F(GenerateInterface, CSharpHasParametersForSeveral) {
  EXPECT_THAT(text("csharp", out + both), HasSubstr("void DoIt(out string b, ref string c);"));
}

TEST_F(GenerateInterface, IdlReturnsWhatTheDocumentSays) {
  const std::string idl =
      text("idl", parameter("name='a' byType='out' dataType='string' returnParameter='1'") +
                      parameter("name='b' byType='out' dataType='string'"));
  EXPECT_THAT(idl, HasSubstr("[out] BSTR *b,"));
  EXPECT_THAT(idl, HasSubstr("[out, retval] BSTR *a);"));
}

TEST_F(GenerateInterface, IdlReturnsOneThing) {
  const toolkit::Generated idl =
      made("idl", parameter("name='a' byType='out' dataType='string' returnParameter='1'") +
                      parameter("name='b' byType='out' dataType='string' returnParameter='1'"));
  EXPECT_THAT(textOf(idl), HasSubstr("[out, retval] BSTR *a);"));
  EXPECT_THAT(textOf(idl), HasSubstr("[out] BSTR *b,"));
  EXPECT_THAT(textsOf(idl.findings).back(),
              HasSubstr("do-it.b: another one is returned: it is a parameter"));
}

TEST_F(GenerateInterface, IdlHandsStructuresOverByAddressAndTablesAsArrays) {
  const std::string inner = "<mappings/><field name='f' dataType='string'/>";
  const std::string idl =
      text("idl", test::element("parameter", inner, "name='a' byType='in'") +
                      test::element("parameter", inner, "name='b' byType='in' occurs='3'"));
  EXPECT_THAT(idl, HasSubstr("[in] DoItA *a,"));
  EXPECT_THAT(idl, HasSubstr("[in] SAFEARRAY(DoItB) b);"));
}

// What compilers of C read in another way, and as much as a help string holds.
TEST_F(GenerateInterface, TextsOfIdlAreLiterals) {
  const auto helpOf = [this](const std::string& name) {
    write("p.xml", test::dictionaryOf(test::importOf(program)));
    write("s.xml", test::serviceDocument(toolkit::findFlavour("com")->documents.uri,
                                         "name='" + name +
                                             "' implementation='com' programName='T' "
                                             "dataDictFilename='p.xml'",
                                         "<operations/>"));
    const std::string idl =
        textOf(toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("idl"), {"s.xml"}));
    const std::string start = "helpstring(";
    const std::size_t at = idl.find(start) + start.size();
    return idl.substr(at, idl.find(")]", at) - at);
  };
  const std::string rest = ": what program T does for its callers\"";
  EXPECT_EQ(helpOf("a&quot;b\\c"), R"("a\"b\\c)" + rest);
  EXPECT_EQ(helpOf("&#xE4;\x7F?x"), "\"? ? ?x" + rest);
  EXPECT_EQ(helpOf(std::string(300, 'n')), "\"" + std::string(200, 'n') + "\"");
}

TEST_F(GenerateInterface, IdlReturnsNothingThatGoesIn) {
  const toolkit::Generated idl =
      made("idl", parameter("name='a' byType='io' dataType='string' returnParameter='1'"));
  EXPECT_THAT(textOf(idl), HasSubstr("[in, out] BSTR *a);"));
  EXPECT_EQ(idl.findings.back().rule, std::string("not-returned"));
}

TEST_F(GenerateInterface, DecimalNumbersAreNoFloatingPointOnes) {
  const toolkit::Generated java =
      made("java", parameter("name='a' byType='in' dataType='double'", "R.AMOUNT"));
  EXPECT_THAT(textOf(java), HasSubstr("void doIt(BigDecimal a);"));
  EXPECT_EQ(java.findings.back().rule, std::string("inexact-type"));
}

TEST_F(GenerateInterface, IdlEndsWhatStandsInItself) {
  const toolkit::Generated idl =
      made("idl", "<parameter name='p' byType='in' ref='Node'/>",
           "<parameter name='Node'><mappings/><field name='next' ref='Node'/></parameter>");
  EXPECT_THAT(textOf(idl), HasSubstr("VARIANT next;"));
  EXPECT_EQ(idl.findings.back().rule, std::string("recursive-type"));
}

TEST_F(GenerateInterface, JavaKeepsWhatStandsInItself) {
  EXPECT_THAT(text("java", "<parameter name='p' byType='in' ref='Node'/>",
                   "<parameter name='Node'><mappings/><field name='next' ref='Node'/></parameter>"),
              HasSubstr("record Node(Node next) {}"));
}

// Folders may not tell capital letters from small ones.
TEST_F(GenerateInterface, TypesAreNotCalledAsFilesOfTheOutputInAnyCase) {
  const auto typesOf = [](const std::string& name) {
    return "<parameter name='" + name +
           "'><mappings/><field name='f' dataType='String'><mappings/></field></parameter>";
  };
  const struct {
    const char* kind;
    const char* type;
    const char* text;
  } rows[] = {{"java", "TESTS", "record TESTS_("},
              {"java", "TRANSACTION", "record TRANSACTION_("},
              {"java", "transactionType", "record transactionType_("},
              {"csharp", "iTESTS", "class iTESTS_"},
              {"csharp", "tests", "class tests_"},
              // Words that no file is called by, in the case that they have.
              {"java", "STRING", "record STRING("},
              {"java", "Class", "record Class("}};
  for (const auto& row : rows) {
    EXPECT_THAT(
        text(row.kind, "<parameter name='p' byType='in' ref='" + std::string(row.type) + "'/>",
             typesOf(row.type)),
        HasSubstr(row.text));
  }
}

TEST_F(GenerateInterface, IdlTakesIdentifiersOfTheDocument) {
  const std::string idl =
      textOf(made("idl", "", "", {},
                  "<property name='libid' value='00000000-3b29-5706-99fa-193c6e82c6d1'/>"
                  "<property name='iid' value='{E01B3295-3B29-5706-99FA-193C6E82C6D2}'/>"
                  "<property name='clsid' value='11111111-3b29-5706-99fa-193c6e82c6d3'/>"));
  const auto uuidOf = [&idl](const std::string& part) {
    constexpr std::size_t length = 36;
    const std::size_t head = idl.rfind("uuid(", idl.find("\n" + part + ' '));
    return idl.substr(head + 5, length);
  };
  EXPECT_EQ(uuidOf("library"), "00000000-3b29-5706-99fa-193c6e82c6d1");
  EXPECT_EQ(uuidOf("  interface"), "e01b3295-3b29-5706-99fa-193c6e82c6d2");
  EXPECT_EQ(uuidOf("  coclass"), "11111111-3b29-5706-99fa-193c6e82c6d3");
}

TEST_F(GenerateInterface, IdlTellsWrongIdentifiers) {
  const toolkit::Generated idl = made("idl", "", "", {}, "<property name='iid' value='mine'/>");
  EXPECT_EQ(idl.findings.back().rule, std::string("no-uuid"));
}

TEST_F(GenerateInterface, PackagesAreNames) {
  toolkit::GenerateOptions options;
  options.values["package"] = "com.class";
  const toolkit::Generated java = made("java", in, "", options);
  EXPECT_THAT(java.files, IsEmpty());
  EXPECT_THAT(textsOf(java.findings).back(),
              HasSubstr("option package: 'class' is no name in Java"));
}

TEST_F(GenerateInterface, NamesAreChosen) {
  toolkit::GenerateOptions options;
  options.names["do-it"] = "perform";
  EXPECT_THAT(textOf(made("java", in, "", options)), HasSubstr("void perform(String a);"));
}

TEST_F(GenerateInterface, WhatHasNoItemIsToldAsSuch) {
  const std::string java =
      text("java", test::element("parameter", "", "name='a' byType='in' dataType='String'") +
                       test::element("parameter", "<mappings/><field name='f' dataType='String'/>",
                                     "name='b' byType='in'"));
  EXPECT_THAT(java, HasSubstr("@param a no item of the program\n"));
  EXPECT_THAT(java, HasSubstr("@param b see {@link DoItB}\n"));
}

// A method takes 255 words of 32 bits, its object's included; long numbers take two.
TEST_F(GenerateInterface, JavaTakesSoManyParametersAndNoMore) {
  const auto parametersOf = [](int number, const std::string& type) {
    std::string parameters;
    for (int i = 0; i < number; ++i) {
      parameters +=
          "<parameter name='p" + std::to_string(i) + "' byType='in' dataType='" + type + "'/>";
    }
    return parameters;
  };
  EXPECT_THAT(text("java", parametersOf(254, "int")), HasSubstr("int p253);"));
  EXPECT_THAT(text("java", parametersOf(127, "double")), HasSubstr("double p126);"));
  const std::pair<int, std::string> rows[] = {{255, "int"}, {128, "long"}, {128, "double"}};
  for (const auto& [number, type] : rows) {
    const toolkit::Generated java = made("java", parametersOf(number, type));
    EXPECT_THAT(java.files, IsEmpty()) << type;
    EXPECT_THAT(textsOf(java.findings).back(),
                HasSubstr("do-it: Java takes no " + std::to_string(number) +
                          " parameters in one "
                          "place; make groups of them"));
  }
}

TEST_F(GenerateInterface, JavaTakesSoManyFieldsOfAClassAndNoMore) {
  for (const int number : {8000, 8001}) {
    std::string items;
    for (int i = 0; i < number; ++i) {
      items += "<numeric name='F" + std::to_string(i) + "' offset='0' length='1' digits='1'/>";
    }
    write("p.xml",
          test::dictionaryOf("<group name='R' offset='0' length='8'>" + items + "</group>"));
    const toolkit::Generated java =
        toolkit::generateFrom(reader(), *toolkit::findGeneratorKind("java"), {"p.xml"});
    EXPECT_EQ(java.files.empty(), number > 8000);
    if (!java.files.empty()) continue;
    EXPECT_THAT(textsOf(java.findings).back(),
                HasSubstr("type R: Java takes no 8001 fields in one place"));
  }
}

TEST_F(GenerateInterface, LargeStructuresAreNoRecords) {
  std::string entries = "01 R.\n";
  for (int i = 0; i < 300; ++i) entries += " 05 F" + std::to_string(i) + " PIC 9(04).\n";
  const std::string java = textOf(generated("java", entries));
  EXPECT_THAT(java, HasSubstr("final class R {"));
  EXPECT_THAT(java, HasSubstr("public short F299() {"));
  EXPECT_THAT(java, Not(HasSubstr("record R")));
}

}  // namespace
