// Tests of the ids of what is told when services are made and converted: users select by them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Toolkit.h"

namespace {

namespace toolkit = as::toolkit;
using testing::ElementsAre;

std::vector<std::string> rulesOf(const toolkit::Findings& notes) {
  std::vector<std::string> rules;
  for (const toolkit::Finding& note : notes) rules.push_back(note.rule);
  return rules;
}

class NoteRule : public test::ToolkitTest {};

// What is told when a service is made of a program, by the rule's id alone.
struct MakeRow {
  std::string label;
  std::string program;
  const char* rule;
};

void PrintTo(const MakeRow& row, std::ostream* out) { *out << row.label; }

class MakeNoteRule : public NoteRule, public testing::WithParamInterface<MakeRow> {};

TEST_P(MakeNoteRule, IsThatOfTheRow) {
  write("p.xml", GetParam().program);
  const toolkit::MadeService made =
      toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  EXPECT_THAT(rulesOf(made.notes), ElementsAre(GetParam().rule));
}

std::string programOf(const std::string& items, const std::string& entryPoints) {
  return test::dictionary("<dataItems>" + items + "</dataItems><entryPoints>" + entryPoints +
                          "</entryPoints>");
}

std::string entryPoint(const std::string& item) {
  return "<entryPoint name='GO'><parameter dataItem='" + item +
         "' byType='reference'/></entryPoint>";
}

// A record with a good member and others.
std::string recordOf(const std::string& members) {
  return programOf(
      "<group name='R' offset='0' length='99'><alphanumeric name='KEPT' offset='0' "
      "length='1' picture='X'/>" +
          members + "</group>",
      entryPoint("R"));
}

std::string nested(int tables) {
  std::string open;
  std::string close;
  for (int i = 0; i < tables; i++) {
    open += "<group name='G" + std::to_string(i) + "' minOccurs='2' maxOccurs='2'>";
    close += "</group>";
  }
  return open + "<alphanumeric name='X' length='1' picture='X'/>" + close;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MakeNoteRule,
    testing::Values(
        MakeRow{"NoEntryPoints", programOf("", ""), "no-entry-points"},
        MakeRow{"SameEntryPoint", programOf("", "<entryPoint name='A'/><entryPoint name='A'/>"),
                "same-entry-point"},
        MakeRow{"LostRecord", programOf("", entryPoint("GONE")), "lost-record"},
        MakeRow{"UnnamedItems", recordOf("<alphanumeric name='FILLER' length='1' picture='X'/>"),
                "unnamed-items"},
        MakeRow{"RenamedItem",
                recordOf("<alphanumeric name='N' offset='0' length='1' renames='true'/>"),
                "renamed-item"},
        MakeRow{"RedefinedItem",
                recordOf("<group name='G' offset='0' length='1' redefines='true'><alphanumeric "
                         "name='A' offset='0' length='1' picture='X'/></group>"),
                "redefined-item"},
        MakeRow{"UnreachablePath", recordOf("<alphanumeric name='A.B' length='1' picture='X'/>"),
                "unreachable-path"},
        MakeRow{"SamePath", recordOf("<numeric name='KEPT' length='1' digits='1' picture='9'/>"),
                "same-path"},
        MakeRow{"TooManyTables", recordOf(nested(17)), "too-many-tables"},
        MakeRow{"TooLongPath",
                recordOf("<alphanumeric name='" + std::string(4095, 'X') +
                         "' length='1' picture='X'/>"),
                "too-long-path"},
        MakeRow{"NoFittingDataType", recordOf("<cobolObject name='P' length='4' offset='1'/>"),
                "no-fitting-data-type"},
        MakeRow{"EditedItem",
                recordOf("<numericEdited name='E' length='4' digits='3' picture='Z99-'/>"),
                "edited-item"},
        MakeRow{"VariableTable",
                recordOf("<alphanumeric name='T' length='1' picture='X' minOccurs='1' "
                         "maxOccurs='9' odo='R.KEPT'/>"),
                "variable-table"}),
    test::labelOf<MakeRow>);

TEST_F(NoteRule, OfANumberThatNoNumericTypeHolds) {
  write("p.xml", recordOf("<numeric name='N' offset='1' length='18' digits='18' alignment='9' "
                          "picture='9(9)V9(9)'/>"));
  const toolkit::MadeService made =
      toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("com"));
  EXPECT_THAT(rulesOf(made.notes), ElementsAre("number-as-text"));
  EXPECT_THAT(test::textsOf(made.notes),
              ElementsAre("GO.R.N: no numeric data type of COM services holds it: made 'string'"));
}

TEST_F(NoteRule, OfATwinOfAnEntryPointSaysThatItIsLeftOut) {
  write("p.xml", programOf("", "<entryPoint name='A'/><entryPoint name='A'/>"));
  const toolkit::MadeService made =
      toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  EXPECT_THAT(test::textsOf(made.notes),
              ElementsAre("A: the program has another entry point of that name, which cannot be "
                          "bound: left out"));
}

TEST_F(NoteRule, OfARedefinitionInPlaceComesBeforeThatOfTheUnnamed) {
  write("p.xml", recordOf("<alphanumeric name='FILLER' offset='1' length='4' picture='X(4)'/>"
                          "<group name='G' offset='1' length='4' redefines='true'><alphanumeric "
                          "name='A' offset='1' length='4' picture='X(4)'/></group>"));
  const toolkit::MadeService made =
      toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  EXPECT_THAT(rulesOf(made.notes), ElementsAre("redefinition-in-place", "unnamed-items"));
}

TEST_F(NoteRule, OfAnEmptyParameterComesBehindThatOfTheUnnamed) {
  write("p.xml", programOf("<group name='R' offset='0' length='1'><alphanumeric name='FILLER' "
                           "offset='0' length='1' picture='X'/></group>",
                           entryPoint("R")));
  const toolkit::MadeService made =
      toolkit::makeServiceFile(reader(), "p.xml", "s.xml", *toolkit::findFlavour("java"));
  EXPECT_THAT(rulesOf(made.notes), ElementsAre("unnamed-items", "empty-parameter"));
}

// What is told when a Web service with that in an operation becomes a COM service.
struct ConvertRow {
  std::string label;
  const char* attributes;  // Of the service.
  const char* content;
  const char* rule;
};

void PrintTo(const ConvertRow& row, std::ostream* out) { *out << row.label; }

class ConvertNoteRule : public NoteRule, public testing::WithParamInterface<ConvertRow> {};

TEST_P(ConvertNoteRule, IsThatOfTheRow) {
  const ConvertRow& row = GetParam();
  write("s.xml", test::webService(std::string("name='S' implementation='ws' ") + row.attributes,
                                  std::string("<operations><operation name='o' entryPoint='GO'>") +
                                      row.content + "</operation></operations>"));
  const toolkit::ConvertedService converted =
      toolkit::convertServiceFile(reader(), "s.xml", "out.xml", *toolkit::findFlavour("com"));
  EXPECT_THAT(rulesOf(converted.notes), ElementsAre(row.rule));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ConvertNoteRule,
    testing::Values(ConvertRow{"UnknownProgram", "dataDictFilename='gone.xml'", "",
                               "unknown-program"},
                    ConvertRow{"LostMessage", "", "<fault><parameters/></fault>", "lost-message"},
                    ConvertRow{"AttributeMadeField", "",
                               "<parameters><parameter name='p'><fieldAttribute name='a' "
                               "dataType='short'/></parameter></parameters>",
                               "attribute-made-field"},
                    ConvertRow{"DataTypeReplaced", "",
                               "<parameters><parameter name='p' dataType='Int32'/></parameters>",
                               "data-type-replaced"},
                    ConvertRow{"NoEquivalent", "",
                               "<parameters><parameter name='p' dataType='short' "
                               "namespace='urn:x'/></parameters>",
                               "no-equivalent"}),
    test::labelOf<ConvertRow>);

}  // namespace
